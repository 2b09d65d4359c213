// What becomes of converted figures, kept from run to run beside the places of the windows.
#pragma once

#include <string>

namespace quillmetra {

// Puts the choice of the last run in force and keeps what is chosen from now on.
void RememberFigures(const std::string& suitePath);

}  // namespace quillmetra
