// See CorrelationRange.h.
#include "units/CorrelationRange.h"

#include "core/Words.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

std::string Shown(double value, const std::string& unit) {
    return TrimmedStr(RoundedFour(value)) + (unit.empty() ? "" : " " + unit);
}

std::string ShownBound(double bound, BoundUnit of, const CalcRecord& record) {
    switch (of) {
        case BoundUnit::Temperature:
            return Shown(
                FromDegF(record.UnitName[unit::Temperature], bound, record.UnitFactor[unit::Temperature]),
                record.UnitName[unit::Temperature]);
        case BoundUnit::Pressure: {
            return Shown(PressureShown(bound, record), record.UnitName[unit::Pressure]);
        }
        case BoundUnit::PipeDiameter:
            return Shown(bound / record.UnitFactor[unit::PipeSize], record.UnitName[unit::PipeSize]);
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
