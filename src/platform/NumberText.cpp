// See NumberText.h. std::from_chars and std::to_chars are used throughout since they know no locale.
#include "platform/NumberText.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>
#include <version>

#ifndef __cpp_lib_to_chars
#include <cstdlib>
#ifdef __APPLE__
#include <xlocale.h>
#else
#include <clocale>
#endif
#endif

#include "platform/TextCase.h"

namespace quillmetra {

namespace {

// The leading number of a text with its blanks taken out, in the spelling of from_chars, and how far the
// text was read.
struct LeadingNumber {
    std::string Digits;
    std::size_t End = 0;
};

class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) { SkipBlanks(); }

    bool At(auto&& accept) const { return next_ < text_.size() && accept(text_[next_]); }
    char Take() {
        const char c = text_[next_++];
        end_ = next_;
        SkipBlanks();
        return c;
    }
    std::size_t End() const { return end_; }
    std::size_t Position() const { return next_; }
    // Goes back to a remembered place, when what looked like an exponent was none.
    void Return(std::size_t position, std::size_t end) {
        next_ = position;
        end_ = end;
    }

private:
    void SkipBlanks() {
        while (next_ < text_.size() && IsBlank(text_[next_])) ++next_;
    }

    std::string_view text_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
};

LeadingNumber ScanNumber(std::string_view text) {
    const auto isSign = [](char c) { return c == '+' || c == '-'; };
    Scanner scan(text);
    LeadingNumber number;
    if (scan.At(isSign) && scan.Take() == '-') number.Digits += '-';
    bool digits = false;
    bool point = false;
    while (scan.At([&](char c) { return IsDigit(c) || (c == '.' && !point); })) {
        const char c = scan.Take();
        (c == '.' ? point : digits) = true;
        if (c == '.' && !digits) number.Digits += '0';
        number.Digits += c;
    }
    if (!digits) return {};
    number.End = scan.End();

    const auto isExponent = [](char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; };
    if (!scan.At(isExponent)) return number;
    std::string exponent = "e";
    const std::size_t before = scan.Position();
    scan.Take();
    if (scan.At(isSign)) exponent += scan.Take();
    bool exponentDigits = false;
    while (scan.At(IsDigit)) {
        exponent += scan.Take();
        exponentDigits = true;
    }
    if (!exponentDigits) {
        scan.Return(before, number.End);
        return number;
    }
    number.Digits += exponent;
    number.End = scan.End();
    return number;
}

// A text that is a number and nothing else, in the spelling of from_chars; nothing when it is too large.
std::optional<double> WholeNumber(std::string_view text) {
    double value = 0;
#ifdef __cpp_lib_to_chars
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end || error != std::errc{}) return {};
#else
    // Apple's library long had no from_chars for doubles.
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    if (text.empty() || text.find_first_not_of("0123456789.eE+-") != std::string_view::npos) return {};
    const std::string copy(text);
    char* stop = nullptr;
    value = strtod_l(copy.c_str(), &stop, plain);
    if (*stop != '\0' || !std::isfinite(value)) return {};
#endif
    return value;
}

// Nearly all texts are a number and nothing else, in digits that from_chars reads as they are.
std::optional<double> PlainNumber(std::string_view text) {
    text = Trim(text);
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (first == text.size() || !(IsDigit(text[first]) || text[first] == '.')) return {};
    return WholeNumber(text);
}

// Turns the digits and the decimal exponent of scientific text ("1.2345e+04") into the suite's own form.
std::string FromScientific(std::string_view scientific) {
    const bool negative = scientific.front() == '-';
    if (negative) scientific.remove_prefix(1);
    const std::size_t e = scientific.find('e');
    std::string digits(scientific.substr(0, e));
    if (digits.size() > 1) digits.erase(1, 1);
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
    int exponent = 0;
    const std::size_t start = scientific[e + 1] == '+' ? e + 2 : e + 1;
    std::from_chars(scientific.data() + start, scientific.data() + scientific.size(), exponent);

    std::string text(1, negative ? '-' : ' ');
    if (exponent < -15 || exponent >= 15) {
        text += digits[0];
        if (digits.size() > 1) text += '.' + digits.substr(1);
        const int size = std::abs(exponent);
        return text + (exponent < 0 ? "E-" : "E+") + (size < 10 ? "0" : "") + std::to_string(size);
    }
    if (exponent < 0) return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) return text + digits + std::string(whole - digits.size(), '0');
    return text + digits.substr(0, whole) + '.' + digits.substr(whole);
}

}  // namespace

double Val(std::string_view text) {
    if (const std::optional<double> value = PlainNumber(text)) return *value;
    return WholeNumber(ScanNumber(text).Digits).value_or(0);
}

bool ValReadsAll(std::string_view text) {
    const LeadingNumber number = ScanNumber(text);
    if (!Trim(text.substr(number.End)).empty()) return false;
    return number.Digits.empty() || WholeNumber(number.Digits).has_value();
}

std::string Str(double value) {
    if (value == 0 || !std::isfinite(value)) return " 0";
    char buffer[40];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14);
    return FromScientific({buffer, static_cast<std::size_t>(written.ptr - buffer)});
}

double Int(double value) { return std::floor(value); }

std::string TrimmedStr(double value) { return std::string(Trim(Str(value))); }

}  // namespace quillmetra
