// The units of temperature. They go by a scale and a zero of their own, so the factors of their unit rows
// are placeholders; any other name is a unit of the user's own, and its factor is all that is known of it.
#pragma once

#include <string_view>

#include "core/PhysicalConstants.h"

namespace quillmetra {

constexpr double CelsiusOf(double degF) { return (degF - 32) / 1.8; }
constexpr double FahrenheitOf(double degC) { return degC * 1.8 + 32; }

// degF from a value in a unit and back. The factor counts for a unit of the user's own alone.
double ToDegF(std::string_view unit, double value, double factor);
double FromDegF(std::string_view unit, double degF, double factor);

// The same by way of degR, for critical temperatures.
double ToDegR(std::string_view unit, double value, double factor);
double FromDegR(std::string_view unit, double degR, double factor);

// A temperature in degF and one in degR. Absolute zero in another unit comes out a last bit above or below.
bool IsAboveAbsoluteZero(double degF);
bool IsAboveZeroDegR(double degR);

// Absolute zero in the unit, as messages show it; that of degF for a unit of the user's own.
double AbsoluteZeroIn(std::string_view unit);

}  // namespace quillmetra
