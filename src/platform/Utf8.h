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

inline void AppendUtf8(std::string& text, char32_t c) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&append, c](unsigned shift) { append(0x80U | ((c >> shift) & 0x3FU)); };
    if (c < 0x80) return append(c);
    append(c < 0x800 ? 0xC0U | (c >> 6U) : c < 0x10000 ? 0xE0U | (c >> 12U) : 0xF0U | (c >> 18U));
    if (c >= 0x10000) follow(12);
    if (c >= 0x800) follow(6);
    follow(0);
}

// Whether all bytes are characters of UTF-8.
inline bool IsUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        if (lead < 0x80) continue;
        std::size_t rest = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
        if (rest == 0 || i + rest > text.size()) return false;
        for (; rest > 0; --rest) {
            if (StartsCharacter(text[i++])) return false;
        }
    }
    return true;
}

inline std::string WithoutLastCharacter(std::string text) {
    while (!text.empty() && !StartsCharacter(text.back())) text.pop_back();
    if (!text.empty()) text.pop_back();
    return text;
}

}  // namespace quillmetra
