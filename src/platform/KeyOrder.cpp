// See KeyOrder.h.
#include "platform/KeyOrder.h"

#include <algorithm>
#include <cstdint>

#include "platform/Utf8.h"

namespace quillmetra {

namespace {

// Letters whose small form stands Offset behind the capital; Pairs stand capital, small, capital, small.
struct LetterRange {
    char32_t First, Last;
    char32_t Offset;
    bool Pairs;
};
constexpr LetterRange Capitals[] = {
    {U'A', U'Z', 32, false},   {0xC0, 0xD6, 32, false},   {0xD8, 0xDE, 32, false},
    {0x100, 0x12F, 1, true},   {0x132, 0x137, 1, true},   {0x14A, 0x177, 1, true},
    {0x391, 0x3AB, 32, false}, {0x400, 0x40F, 80, false}, {0x410, 0x42F, 32, false},
};
// Here the capital is the odd number of the pair.
constexpr LetterRange OddCapitals[] = {{0x139, 0x148, 1, true}, {0x179, 0x17E, 1, true}};

char32_t SmallLetter(char32_t c) {
    if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 32 : c;
    if (c == 0x178) return 0xFF;
    for (const LetterRange& range : Capitals) {
        if (c < range.First || c > range.Last) continue;
        return range.Pairs ? c | 1U : c + range.Offset;
    }
    for (const LetterRange& range : OddCapitals) {
        if (c >= range.First && c <= range.Last) return c + (c & 1U);
    }
    return c;
}

// The next character; a byte that starts none stands for itself, behind all characters.
char32_t NextCharacter(std::string_view text, std::size_t& next) {
    constexpr char32_t noCharacter = 0x110000;
    const auto lead = static_cast<std::uint8_t>(text[next++]);
    if (lead < 0x80) return lead;
    const std::size_t more = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
    if (more == 0 || next + more > text.size()) return noCharacter + lead;
    char32_t c = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const auto byte = static_cast<std::uint8_t>(text[next + i]);
        if ((byte & 0xC0U) != 0x80U) return noCharacter + lead;
        c = (c << 6U) | (byte & 0x3FU);
    }
    next += more;
    return c;
}

}  // namespace

int CompareKeys(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t k = 0;
    while (i < a.size() && k < b.size()) {
        if (a[i] == b[k] && static_cast<std::uint8_t>(a[i]) < 0x80) {
            ++i;
            ++k;
            continue;
        }
        const char32_t x = SmallLetter(NextCharacter(a, i));
        const char32_t y = SmallLetter(NextCharacter(b, k));
        if (x != y) return x < y ? -1 : 1;
    }
    if (i == a.size() && k == b.size()) return 0;
    return i == a.size() ? -1 : 1;
}

// UTF-8 orders by the numbers of the characters, and has room for those of bytes that are none.
std::string SortKey(std::string_view text) {
    std::string key;
    for (std::size_t next = 0; next < text.size();) AppendUtf8(key, SmallLetter(NextCharacter(text, next)));
    return key;
}

// All letters that have a small form have two bytes in UTF-8, or one, and so has the small form.
std::string SmallLetters(std::string_view text) {
    std::string small(text);
    for (std::size_t i = 0; i < small.size();) {
        const std::size_t start = i;
        if (const auto c = static_cast<std::uint8_t>(small[i]); c < 0x80) {
            small[i++] = static_cast<char>(SmallLetter(c));
            continue;
        }
        const char32_t c = SmallLetter(NextCharacter(text, i));
        if (i - start != 2) continue;
        small[start] = static_cast<char>(0xC0U | (c >> 6U));
        small[start + 1] = static_cast<char>(0x80U | (c & 0x3FU));
    }
    return small;
}

std::vector<std::string> SmallWords(std::string_view text) {
    std::vector<std::string> words(1);
    for (const char c : SmallLetters(text)) {
        if (c != ' ') {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

bool HasWords(std::string_view letters, const std::vector<std::string>& words) {
    return std::ranges::all_of(
        words, [letters](const std::string& word) { return letters.find(word) != std::string_view::npos; });
}

}  // namespace quillmetra
