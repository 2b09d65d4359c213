// Where the calculation of a liquid or gas line can be relied upon.
#pragma once

#include "units/CorrelationRange.h"

namespace quillmetra {

// The hints for the case of programs 1 and 2 that has just been calculated.
HintList LineHints();

}  // namespace quillmetra
