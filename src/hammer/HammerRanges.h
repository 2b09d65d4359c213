// Where the calculation of water hammer can be relied upon.
#pragma once

#include "units/CorrelationRange.h"

namespace quillmetra {

// The hints for the calculation of program 3 that has just been made.
HintList HammerHints();

}  // namespace quillmetra
