// The pressure at the far end of a liquid line, and a case's results in the units shown.
#pragma once

#include "core/CalcRecord.h"

namespace quillmetra {

// Sets FlowPressure (psia) at the far end from what CalcFriction has left. When the destination is given,
// EquivLength changes its sign and the same subtraction raises the pressure. A line that cannot deliver is
// told to the user and leaves FlowPressure 0, which stands for no result.
void CalcFinalPressure();

// In the units of the record, four figures each.
struct LiquidLineResults {
    double FinalPressure;  // unit row 3, gauge or absolute as the pressure mode
    double LossPer100;     // unit row 4 per 100 of row 25: the whole difference over the equivalent length,
                           // elevation and equipment in both; 0 when that length is 0
    double Velocity;       // unit row 20
    double Reynolds;
    double EquivLength;  // unit row 25, never negative
};

// Throws a RuntimeError when a result is not finite.
LiquidLineResults LiquidLineResultsOf(const CalcRecord& record);

}  // namespace quillmetra
