// Lengths of UTF-8 texts in characters: what a user sees as the length of a name is not its bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillmetra {

// False for the second and later bytes of a character.
inline bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

inline std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

// The longest head of a text with at most so many characters.
inline std::string FirstCharacters(std::string_view text, std::size_t most) {
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        if (StartsCharacter(text[end]) && most-- == 0) break;
    }
    return std::string(text.substr(0, end));
}

inline std::string WithoutLastCharacter(std::string text) {
    while (!text.empty() && !StartsCharacter(text.back())) text.pop_back();
    if (!text.empty()) text.pop_back();
    return text;
}

}  // namespace quillmetra
