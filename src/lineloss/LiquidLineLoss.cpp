// See LiquidLineLoss.h.
#include "lineloss/LiquidLineLoss.h"

#include "core/Words.h"
#include "lineloss/Friction.h"
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
    if (Calc.PressureDirection == direction::Backwards) Calc.EquivLength = -Calc.EquivLength;
    const double difference = Calc.LossPer100 * Calc.EquivLength / 100;
    Calc.FlowPressure = Calc.SourcePressure[TheLine] - difference;
    if (!(Calc.FlowPressure <= 0)) return;
    Tell("Zero pressure reached @" + Str(PercentReached(difference)) +
             " % of equiv line length\nFlow cannot be maintained",
         LineLossTitle, Icon::Stop);
    Calc.FlowPressure = 0;
}

LiquidLineResults LiquidLineResultsOf(const CalcRecord& record) {
    return {LineResultsOf(record), ShownFigures(record.ReynoldsNumber)};
}

}  // namespace quillmetra
