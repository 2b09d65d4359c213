// The four number conversions of the suite. Nothing else in the tree parses or prints a number that a user
// sees. None of them depends on the machine's locale, and none throws.
#pragma once

#include <string>
#include <string_view>

namespace quillmetra {

// Reads the leading number of a text: sign, digits, one point, digits, and an exponent E or D with digits.
// Blanks and tabs are skipped anywhere. Text that starts with no number reads 0, and so does a number too
// large for a double; "inf", "nan" and "0x10" are no numbers beyond their leading digits.
double Val(std::string_view text);

// True when Val takes the whole text, blanks aside, and a double holds it; an empty text counts as read.
bool ValReadsAll(std::string_view text);

// Writes a number with at most 15 significant digits, the shortest that says the same, plain from 1e-15 up
// to below 1e15 and as "1.25E+20" beyond. A number not below zero starts with one blank. Val reads back all
// that Str writes. A value that is not finite is the caller's fault: it is written as " 0".
std::string Str(double value);

// The whole number towards minus infinity, kept as a double so that no range is lost.
double Int(double value);

// A text without the blanks and tabs at its ends.
inline bool IsBlank(char c) { return c == ' ' || c == '\t'; }
inline std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

// The trimmed text of a number, for lists and messages: Str without its leading blank.
std::string TrimmedStr(double value);

}  // namespace quillmetra
