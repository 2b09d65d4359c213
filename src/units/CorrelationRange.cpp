// See CorrelationRange.h.
#include "units/CorrelationRange.h"

#include <algorithm>
#include <cmath>

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

// More than a figure and a half would be pretence.
std::string SizeInWords(double percent) {
    constexpr double most = 900;
    if (percent >= most) return "10 times the true one and more";
    if (percent >= 100) return TrimmedStr(std::round(percent / 10) / 10 + 1) + " times the true one";
    const double size = std::fmax(1, std::round(std::fabs(percent)));
    return TrimmedStr(size) + (percent < 0 ? " % low" : " % high");
}

std::string OutsideText(const CorrelationRange& range, double error) {
    std::string text = range.Outside;
    const std::size_t gap = text.find("{}");
    return gap == std::string::npos ? text : text.replace(gap, 2, SizeInWords(error));
}

}  // namespace

double ErrorAt(std::span<const MeasuredError> measured, double value) {
    if (!(value > measured.front().At)) return measured.front().Percent;
    const auto next = std::find_if(measured.begin(), measured.end(),
                                   [value](const MeasuredError& each) { return each.At >= value; });
    if (next == measured.end()) return measured.back().Percent;
    const auto before = next - 1;
    const double part = (value - before->At) / (next->At - before->At);
    return before->Percent + part * (next->Percent - before->Percent);
}

HintList Together(HintList first, const HintList& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::string Sentences(HintList hints) {
    std::stable_sort(hints.begin(), hints.end(), [](const Hint& one, const Hint& other) {
        return std::fabs(one.Error) > std::fabs(other.Error);
    });
    std::string text;
    for (const Hint& hint : hints) text = Sentences(text, hint.Text);
    return text;
}

std::string Sentences(const std::string& first, const std::string& second) {
    return first.empty() || second.empty() ? first + second : first + " " + second;
}

HintList HintsOf(std::span<const CorrelationRange> ranges, const CalcRecord& record) {
    HintList hints;
    for (const CorrelationRange& range : ranges) {
        if (!range.IsUsed(record)) continue;
        const double value = range.Value(record), low = range.Low.In(record), high = range.High.In(record);
        // No comparison holds with a bound or a value that is no number.
        const bool below = value < low;
        if (!below && !(value > high)) continue;
        const double error = range.Error.In(record);
        hints.push_back({error, std::string(range.Quantity) + (below ? " below " : " above ") +
                                    ShownBound(below ? low : high, range.Unit, record) + ": " +
                                    OutsideText(range, error) + "."});
    }
    return hints;
}

}  // namespace quillmetra
