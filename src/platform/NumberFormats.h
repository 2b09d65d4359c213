// What a workbook shows a number as: dates are numbers of days, and of percents a hundred times the number is
// seen, told from others by their format alone.
#pragma once

#include <string>
#include <string_view>

namespace quillmetra::sheets {

bool IsBuiltInDateFormat(int number);
// Whether a format of the user's shows parts of a date or a time.
bool IsDateFormat(std::string_view code);

bool IsBuiltInPercentFormat(int number);
bool IsPercentFormat(std::string_view code);

// "2026-11-26", with a time of day "2026-11-26 13:45:00"; the count of days begins in 1900 or in 1904. A
// number that is no date stays as it is.
std::string DateOfSerial(double serial, bool from1904);

}  // namespace quillmetra::sheets
