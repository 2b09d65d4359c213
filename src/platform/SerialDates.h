// Dates in a workbook are numbers of days, told from other numbers by the format that shows them.
#pragma once

#include <string>
#include <string_view>

namespace quillmetra::sheets {

bool IsBuiltInDateFormat(int number);
// Whether a format of the user's shows parts of a date or a time.
bool IsDateFormat(std::string_view code);

// "2026-11-26", with a time of day "2026-11-26 13:45:00"; the count of days begins in 1900 or in 1904. A
// number that is no date stays as it is.
std::string DateOfSerial(double serial, bool from1904);

}  // namespace quillmetra::sheets
