// The day that the suite takes for today, in the one form in which it writes and reads dates:
// month/day/year with four digits of year, whatever the machine's locale.
#pragma once

#include <string>

namespace quillmetra {

// "11/24/2026", "01/05/2026"
std::string Today();

// A day as the suite writes it from its year-month-day form ("2026-11-24"); empty for a text that is no day.
std::string DateText(const std::string& isoDay);

// The year-month-day form of a text month/day/year with two or four digits of year (00 to 29 stand for 2000
// to 2029), or of one that has this form already; empty for a text that is no day.
std::string IsoDate(const std::string& text);

// Fixes today for an unattended run; an empty text gives the machine's day again. The form is
// year-month-day ("2026-11-24"); false for a text that is no day.
bool SetToday(const std::string& isoDay);

}  // namespace quillmetra
