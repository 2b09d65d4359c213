// See CorrelationRange.h.
#include "units/CorrelationRange.h"

#include "core/Words.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

std::string Shown(double value, const std::string& unit) {
    return TrimmedStr(RoundedFour(value)) + (unit.empty() ? "" : " " + unit);
}

std::string ShownBound(double bound, BoundUnit unit, const CalcRecord& record) {
    constexpr std::size_t temperature = 2, pressure = 3, diameter = 18;  // rows of units
    switch (unit) {
        case BoundUnit::Temperature:
            return Shown(FromDegF(record.UnitName[temperature], bound, record.UnitFactor[temperature]),
                         record.UnitName[temperature]);
        case BoundUnit::Pressure: {
            const double gauge = record.PressureMode == words::Absolute ? 0 : record.BaroPressure;
            return Shown((bound - gauge) / record.UnitFactor[pressure], record.UnitName[pressure]);
        }
        case BoundUnit::PipeDiameter:
            return Shown(bound / record.UnitFactor[diameter], record.UnitName[diameter]);
        case BoundUnit::Seconds: return Shown(bound, "s");
        case BoundUnit::None: break;
    }
    return Shown(bound, "");
}

}  // namespace

std::string Sentences(const std::string& first, const std::string& second) {
    return first.empty() || second.empty() ? first + second : first + " " + second;
}

std::string HintsOf(std::span<const CorrelationRange> ranges, const CalcRecord& record) {
    std::string hints;
    for (const CorrelationRange& range : ranges) {
        if (!range.IsUsed(record)) continue;
        const double value = range.Value(record), low = range.Low.In(record), high = range.High.In(record);
        // No comparison holds with a bound or a value that is none.
        const bool below = value < low;
        if (!below && !(value > high)) continue;
        hints = Sentences(hints, std::string(range.Quantity) + (below ? " below " : " above ") +
                                     ShownBound(below ? low : high, range.Unit, record) + ": " +
                                     range.Outside + ".");
    }
    return hints;
}

}  // namespace quillmetra
