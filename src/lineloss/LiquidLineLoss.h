// The pressure at the far end of a liquid line, and a case's results in the units shown.
#pragma once

#include "lineloss/LineResults.h"

namespace quillmetra {

// Sets FlowPressure (psia) at the far end from what CalcFriction has left. When the destination is given,
// EquivLength changes its sign and the same subtraction raises the pressure. A line that cannot deliver is
// told to the user and leaves FlowPressure 0, which stands for no result.
void CalcFinalPressure();

struct LiquidLineResults : LineResults {
    double Reynolds;
};

// Throws a RuntimeError when a result is not finite.
LiquidLineResults LiquidLineResultsOf(const CalcRecord& record);

}  // namespace quillmetra
