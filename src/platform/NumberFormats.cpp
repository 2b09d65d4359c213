// See NumberFormats.h.
#include "platform/NumberFormats.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "platform/NumberText.h"
#include "platform/TextCase.h"

namespace quillmetra::sheets {

bool IsBuiltInDateFormat(int number) {
    const auto within = [number](int first, int last) { return number >= first && number <= last; };
    return within(14, 22) || within(27, 36) || within(45, 47) || within(50, 58);
}

namespace {

// The letters of a format that stand for parts of a number, as far as it is for positive ones: no text in
// quotes or behind "\\", "_" and "*", no colours; of elapsed hours, [h], what is within the brackets.
std::string Letters(std::string_view code) {
    std::string letters;
    for (std::size_t i = 0; i < code.size() && code[i] != ';'; ++i) {
        const char c = LowerCase(code[i]);
        if (c == '\\' || c == '_' || c == '*') {
            ++i;
        } else if (c == '"') {
            i = std::min(code.find('"', i + 1), code.size());
        } else if (c == '[') {
            const char inside = i + 1 < code.size() ? LowerCase(code[i + 1]) : ' ';
            const bool elapsed =
                i + 2 < code.size() && (code[i + 2] == ']' || LowerCase(code[i + 2]) == inside);
            if (elapsed) letters += inside;
            i = std::min(code.find(']', i), code.size());
        } else if (SameName(code.substr(i, 7), "General")) {
            i += 6;
        } else {
            letters += c;
        }
    }
    return letters;
}

}  // namespace

bool IsDateFormat(std::string_view code) { return Letters(code).find_first_of("dmyhs") != std::string::npos; }

bool IsBuiltInPercentFormat(int number) { return number == 9 || number == 10; }

bool IsPercentFormat(std::string_view code) { return Letters(code).find('%') != std::string::npos; }

std::string DateOfSerial(double serial, bool from1904) {
    constexpr double dayAfter9999 = 2958466, secondsPerDay = 86400;
    if (!(serial >= 0 && serial < dayAfter9999)) return TrimmedStr(serial);
    using namespace std::chrono;
    auto whole = static_cast<int>(std::floor(serial));
    auto seconds = static_cast<int>(std::lround((serial - whole) * secondsPerDay));
    if (seconds == static_cast<int>(secondsPerDay)) {
        ++whole;
        seconds = 0;
    }
    // The count of 1900 has a 29 February of that year, which never was.
    const sys_days first =
        from1904 ? sys_days(1904y / January / 1) : sys_days(1899y / December / (whole < 60 ? 31 : 30));
    const year_month_day day(first + days(whole));
    std::array<char, 48> text{};
    if (seconds == 0) {
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                      static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    } else {
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d", static_cast<int>(day.year()),
                      static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()), seconds / 3600,
                      seconds / 60 % 60, seconds % 60);
    }
    return text.data();
}

}  // namespace quillmetra::sheets
