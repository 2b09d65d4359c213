// See LiquidLineLoss.h.
#include "lineloss/LiquidLineLoss.h"

#include <cmath>

#include "core/Words.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr std::size_t Line = 1;  // a calculation has one line

// How far the pressure reaches, in percent of the equivalent length. In gauge mode the barometric pressure is
// added to what is absolute already; the figure stands so.
double PercentReached(double difference) {
    if (difference == 0) return 0;
    const double source = Calc.PressureMode == words::Absolute
                              ? Calc.SourcePressure[Line]
                              : Calc.SourcePressure[Line] + Calc.BaroPressure;
    return Int(100 * source / difference);
}

double Shown(double value) { return CheckFinite(RoundedFour(value)); }

// From psia to unit row 3, gauge or absolute as the pressure mode.
double PressureShown(const CalcRecord& record, double pressure) {
    if (record.PressureMode != words::Absolute) pressure -= record.BaroPressure;
    return pressure / record.UnitFactor[3];
}

}  // namespace

void CalcFinalPressure() {
    if (Calc.PressureDirection == 2) Calc.EquivLength = -Calc.EquivLength;
    const double difference = Calc.LossPer100 * Calc.EquivLength / 100;
    Calc.FlowPressure = Calc.SourcePressure[Line] - difference;
    if (!(Calc.FlowPressure <= 0)) return;
    Tell("Zero pressure reached @" + Str(PercentReached(difference)) +
             " % of equiv line length\nFlow cannot be maintained",
         "Line pressure loss calculation", Icon::Stop);
    Calc.FlowPressure = 0;
}

LiquidLineResults LiquidLineResultsOf(const CalcRecord& record) {
    const auto& factor = record.UnitFactor;
    const double difference = record.SourcePressure[Line] - record.FlowPressure;
    const double loss = record.EquivLength == 0 ? 0 : difference / record.EquivLength * 100;
    return {.FinalPressure = Shown(PressureShown(record, record.FlowPressure)),
            .LossPer100 = Shown(loss / factor[4] * factor[25]),
            .Velocity = Shown(record.Velocity / factor[20]),
            .Reynolds = Shown(record.ReynoldsNumber),
            .EquivLength = Shown(std::fabs(record.EquivLength) / factor[25])};
}

}  // namespace quillmetra
