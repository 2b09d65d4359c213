// Where the correlations of liquids, gases and steam can be relied upon.
#pragma once

#include <string>

namespace quillmetra {

// The hints for the fluid that has just been taken from a table, at FlowTemperature and FlowPressure of the
// record in hand.
std::string FluidHints();

}  // namespace quillmetra
