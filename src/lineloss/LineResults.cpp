// See LineResults.h.
#include "lineloss/LineResults.h"

#include <cmath>

#include "units/Border.h"

namespace quillmetra {

LineResults LineResultsOf(const CalcRecord& record, bool hasEnd) {
    const auto& factor = record.UnitFactor;
    const double difference = record.SourcePressure[TheLine] - record.FlowPressure;
    const double loss = record.EquivLength == 0 ? 0 : difference / record.EquivLength * 100;
    return {.FinalPressure = hasEnd ? ShownFigures(PressureShown(record.FlowPressure, record)) : 0,
            .LossPer100 = hasEnd ? ShownFigures(loss / factor[unit::PressureDrop] * factor[unit::Length]) : 0,
            .Velocity = ShownFigures(record.Velocity / factor[unit::Velocity]),
            .EquivLength = ShownFigures(std::fabs(record.EquivLength) / factor[unit::Length])};
}

}  // namespace quillmetra
