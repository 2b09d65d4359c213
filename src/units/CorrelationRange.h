// The range within which a correlation can be defended, and the hint that a value outside of it brings. A
// hint refuses nothing: the calculation goes on. Each subject has its table of ranges beside its formulas:
// fluids/FluidRanges, lineloss/LineRanges, hammer/HammerRanges.
#pragma once

#include <concepts>
#include <limits>
#include <span>
#include <string>

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
    const char* Outside = "";                     // what the user is to know of the result
    bool (*IsUsed)(const CalcRecord&) = nullptr;  // whether the calculation used the correlation
};

// One sentence for each range that the record is outside of, in the order of the table, with the bounds in
// the units of the record: "Temperature above 200 degF: ...". Empty when it is inside of all.
std::string HintsOf(std::span<const CorrelationRange> ranges, const CalcRecord& record);

// Two texts of sentences, either of which may be empty, as one.
std::string Sentences(const std::string& first, const std::string& second);

}  // namespace quillmetra
