// What the readers of SheetReader.h share with one another.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/SheetReader.h"

namespace quillmetra::sheets {

inline constexpr int MostRows = 1048576, MostColumns = 16384;  // of a workbook's sheet

inline RuntimeError Refused(const std::string& why) { return {321, why}; }

// A text that is one number, without blanks or separators within it, by this decimal sign.
std::optional<double> NumberIn(std::string_view text, char point);
// Whether a text is a number in which this can only be the decimal sign: 1,5 and 0,125 and 1.234,5 and
// 1.234.567 say that it is the comma, 1,234 may as well be thousands.
bool ShowsDecimalSign(std::string_view text, char point);

void ReadSeparated(const std::string& bytes, SheetTaker& taker);
void ReadWorkbook(const std::string& bytes, SheetTaker& taker);

}  // namespace quillmetra::sheets
