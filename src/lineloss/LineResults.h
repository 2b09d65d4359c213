// What the results of a case have in common on a liquid and on a gas line.
#pragma once

#include "core/CalcRecord.h"

namespace quillmetra {

// In the units of the record, four figures each.
struct LineResults {
    double FinalPressure;  // unit row 3, gauge or absolute as the pressure mode
    double LossPer100;     // unit row 4 per 100 of row 25: the whole difference over the equivalent length,
                           // elevation and equipment in both; 0 when that length is 0
    double Velocity;       // unit row 20
    double EquivLength;    // unit row 25, never negative
};

// A line that the fluid does not get through has no pressure at its end: the first two are 0. Throws a
// RuntimeError when a result is not finite.
LineResults LineResultsOf(const CalcRecord& record, bool hasEnd = true);

}  // namespace quillmetra
