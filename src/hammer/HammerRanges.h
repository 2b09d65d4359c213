// Where the calculation of water hammer can be relied upon.
#pragma once

#include <string>

namespace quillmetra {

// The hints for the calculation of program 3 that has just been made.
std::string HammerHints();

}  // namespace quillmetra
