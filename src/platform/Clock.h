// The day that the suite takes for today, in the one form in which it writes and reads dates:
// month/day/year with four digits of year, whatever the machine's locale.
#pragma once

#include <string>

namespace quillmetra {

// "11/24/2026"
std::string Today();

// Fixes today for an unattended run; an empty text gives the machine's day again. The form is
// year-month-day ("2026-11-24"); false for a text that is no day.
bool SetToday(const std::string& isoDay);

}  // namespace quillmetra
