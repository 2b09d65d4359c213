// Where the correlations of liquids, gases and steam can be relied upon.
#pragma once

#include "units/CorrelationRange.h"

namespace quillmetra {

// Of the density by the equation of Redlich and Kwong: below the critical temperature above
// RedlichKwongLimit, and from the critical temperature to 1.2 of it from a reduced pressure of 0.8 on.
inline constexpr const char* NearLiquidText = "so near to the liquid the density is 3 to 12 % low";
inline constexpr double NearLiquidError = -8;
inline constexpr double BesideCriticalPressure = 0.8;
inline constexpr const char* BesideCriticalText =
    "so near to the critical point the density is up to 20 % low";
inline constexpr double BesideCriticalError = -15;
// Whether it is that near by its temperature: from the critical one to 1.2 of it.
bool IsBesideCritical(const CalcRecord& record);

// The hints for the fluid that has just been taken from a table, at FlowTemperature and FlowPressure of the
// record in hand.
HintList FluidHints();

}  // namespace quillmetra
