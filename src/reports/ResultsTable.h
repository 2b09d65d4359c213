// A calculation as a table for a spreadsheet or a mail.
#pragma once

#include <string>

#include "platform/Form.h"

namespace quillmetra {

// The lines of the form of a program, as they stand on it: what names the calculation, then each row of
// inputs and results with its label, the value of each case and the unit, apart by tabs. A row without any
// value is left out.
std::string ResultsTable(const Form& form, int program);

}  // namespace quillmetra
