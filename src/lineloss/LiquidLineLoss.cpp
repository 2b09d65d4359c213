// See LiquidLineLoss.h.
#include "lineloss/LiquidLineLoss.h"

#include <cmath>

#include "core/Words.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"

namespace quillmetra {

namespace {

// How far the pressure reaches, in percent of the equivalent length. In gauge mode the barometric pressure is
// added to what is absolute already; the figure stands so.
double PercentReached(double difference) {
    if (difference == 0) return 0;
    const double source = Calc.SourcePressure[TheLine] + GaugeZero();
    return Int(100 * source / difference);
}

}  // namespace

void CalcFinalPressure() {
    if (Calc.PressureDirection == 2) Calc.EquivLength = -Calc.EquivLength;
    const double difference = Calc.LossPer100 * Calc.EquivLength / 100;
    Calc.FlowPressure = Calc.SourcePressure[TheLine] - difference;
    if (!(Calc.FlowPressure <= 0)) return;
    Tell("Zero pressure reached @" + Str(PercentReached(difference)) +
             " % of equiv line length\nFlow cannot be maintained",
         "Line pressure loss calculation", Icon::Stop);
    Calc.FlowPressure = 0;
}

LiquidLineResults LiquidLineResultsOf(const CalcRecord& record) {
    const auto& factor = record.UnitFactor;
    const double difference = record.SourcePressure[TheLine] - record.FlowPressure;
    const double loss = record.EquivLength == 0 ? 0 : difference / record.EquivLength * 100;
    return {.FinalPressure = ShownFigures(PressureShown(record.FlowPressure, record)),
            .LossPer100 = ShownFigures(loss / factor[unit::PressureDrop] * factor[unit::Length]),
            .Velocity = ShownFigures(record.Velocity / factor[unit::Velocity]),
            .Reynolds = ShownFigures(record.ReynoldsNumber),
            .EquivLength = ShownFigures(std::fabs(record.EquivLength) / factor[unit::Length])};
}

}  // namespace quillmetra
