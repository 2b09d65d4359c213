// Comparison of names without regard to the case of the letters A to Z. Like all of the suite it asks no
// locale what a letter is.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace quillmetra {

inline bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }
inline char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

inline std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return LowerCase(c); });
    return text;
}

inline bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

}  // namespace quillmetra
