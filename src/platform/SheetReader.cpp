// See SheetReader.h.
#include "platform/SheetReader.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/NumberText.h"
#include "platform/SheetFormats.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

constexpr std::uintmax_t LargestFile = 256U << 20U;
constexpr std::string_view Zip = "PK\x03\x04";
// Workbooks of the former binary format, and those that a password protects.
constexpr std::string_view CompoundFile = "\xD0\xCF\x11\xE0";

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// The end of the digits with one point among them; 0 where there is no digit.
std::size_t SkipMantissa(std::string_view text, char point) {
    const std::size_t first = SkipSign(text, 0);
    std::size_t at = SkipDigits(text, first);
    std::size_t digits = at - first;
    if (at < text.size() && text[at] == point) {
        const std::size_t fraction = at + 1;
        at = SkipDigits(text, fraction);
        digits += at - fraction;
    }
    return digits == 0 ? 0 : at;
}

// The digits of 1.234.567 with the number of their points; nothing where they are no groups of three.
struct Groups {
    std::size_t End = 0, Separators = 0;
};
Groups SkipGroups(std::string_view text, char separator) {
    const std::size_t first = SkipSign(text, 0);
    std::size_t at = SkipDigits(text, first);
    if (at == first || at > first + 3) return {};
    Groups groups{at, 0};
    for (; at < text.size() && text[at] == separator; groups = {at, groups.Separators + 1}) {
        const std::size_t group = at + 1;
        at = SkipDigits(text, group);
        if (at != group + 3) return {};
    }
    return groups;
}

}  // namespace

namespace sheets {

bool ShowsDecimalSign(std::string_view text, char point) {
    const auto [end, separators] = SkipGroups(text, point == ',' ? '.' : ',');
    if (end == text.size()) return separators > 1;
    if (separators > 0) return text[end] == point && SkipDigits(text, end + 1) == text.size();
    if (!NumberIn(text, point)) return false;
    const std::size_t sign = text.find(point);
    if (sign == std::string_view::npos) return false;
    const std::size_t first = SkipSign(text, 0), before = sign - first;
    return text.size() - sign - 1 != 3 || before == 0 || before > 3 || text[first] == '0';
}

std::optional<double> NumberIn(std::string_view text, char point) {
    text = Trim(text);
    const std::size_t mantissa = SkipMantissa(text, point);
    if (mantissa == 0) return {};
    if (mantissa < text.size()) {
        if (text[mantissa] != 'e' && text[mantissa] != 'E') return {};
        const std::size_t digits = SkipSign(text, mantissa + 1);
        if (digits == text.size() || SkipDigits(text, digits) != text.size()) return {};
    }
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), point, '.');
    const double value = Val(plain);
    // Val takes what is beyond a double for 0.
    if (value == 0 && text.substr(0, mantissa).find_first_of("123456789") != std::string_view::npos)
        return {};
    return value;
}

}  // namespace sheets

std::string ColumnLetters(int column) {
    std::string letters;
    for (int rest = column + 1; rest > 0; rest = (rest - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (rest - 1) % 26));
    return letters;
}

void ReadSheets(std::string_view suitePath, SheetTaker& taker) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(MachinePath(suitePath), error);
    if (!error && size > LargestFile) throw sheets::Refused("The file has more than 256 MB");
    const std::string bytes = ReadBytes(suitePath);
    if (bytes.starts_with(CompoundFile))
        throw sheets::Refused("The workbook has a password or is of the former format: save it as .xlsx");
    if (bytes.starts_with(Zip)) return sheets::ReadWorkbook(bytes, taker);
    sheets::ReadSeparated(bytes, taker);
}

}  // namespace quillmetra
