// The range within which a correlation can be defended, and the hint that a value outside of it brings. A
// hint refuses nothing: the calculation goes on. Each subject has its table of ranges beside its formulas:
// fluids/FluidRanges, lineloss/LineRanges, hammer/HammerRanges.
#pragma once

#include <concepts>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "core/CalcRecord.h"

namespace quillmetra {

// A bound of a range in internal units: a number, or one that the record tells.
struct Bound {
    double Number;
    double (*Of)(const CalcRecord&) = nullptr;

    constexpr Bound(double number) : Number(number) {}
    template <std::convertible_to<double (*)(const CalcRecord&)> Function>
    constexpr Bound(Function of) : Number(0), Of(of) {}
    double In(const CalcRecord& record) const { return Of != nullptr ? Of(record) : Number; }
};

constexpr Bound NoBound = std::numeric_limits<double>::quiet_NaN();

// In which unit a hint names the bound.
enum class BoundUnit { None, Temperature, Pressure, PipeDiameter, Seconds };

struct CorrelationRange {
    const char* Quantity = "";                     // as the hint names it
    double (*Value)(const CalcRecord&) = nullptr;  // in internal units: degF, psia, in, s
    Bound Low = NoBound, High = NoBound;           // both belong to the range
    BoundUnit Unit = BoundUnit::None;
    const char* Outside = "";  // what the user is to know of the result; "{}" stands for Error in words
    bool (*IsUsed)(const CalcRecord&) = nullptr;  // whether the calculation used the correlation
    // Percent by which the result is off outside, below 0 when it is too low. Where nobody knows, a guess at
    // the most, which only orders the hints.
    Bound Error = 10;
};

struct Hint {
    double Error;
    std::string Text;  // a sentence
};
using HintList = std::vector<Hint>;

// A hint for each range that the record is outside of, with the bounds in the units of the record:
// "Temperature above 200 degF: ...". Empty when it is inside of all.
HintList HintsOf(std::span<const CorrelationRange> ranges, const CalcRecord& record);

// All that there is to tell, and as one text: the larger error first.
HintList Together(HintList first, const HintList& second);
std::string Sentences(HintList hints);
// Two texts of sentences, either of which may be empty, as one.
std::string Sentences(const std::string& first, const std::string& second);

// An error that was measured at some values of what it depends on: straight lines between them, and the first
// and the last one beyond.
struct MeasuredError {
    double At, Percent;
};
double ErrorAt(std::span<const MeasuredError> measured, double value);

}  // namespace quillmetra
