// See GasLineLoss.h.
#include "lineloss/GasLineLoss.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "core/Filling.h"
#include "core/Words.h"
#include "fluids/GasData.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/Friction.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr const char* LimitText = "Increase line size, or\nIncrease pressure, or\nDecrease flow rate";

constexpr double FewestSteps = 20;
// Data checking ends at a hundred millionth of it; it keeps any length inside the counter.
constexpr double MostSteps = 1e15;
constexpr std::int64_t LongMarch = 1000000;
constexpr std::int64_t StepsOfABreath = 100000;

std::int64_t GasStepCount(double pipeLength) {
    const double steps = pipeLength > FewestSteps ? Int(pipeLength) : FewestSteps;
    return static_cast<std::int64_t>(std::fmin(steps, MostSteps));
}

// A resistance that the line does not have has an old equivalent length, or none.
double LengthOf(double resistance, std::size_t element) {
    return resistance == 0 ? 0 : resistance * Calc.EquivLengthPerFitting[element];
}

void TakeVelocities() {
    Calc.Velocity = LineVelocity(Calc.MassFlow, Calc.Density, Calc.PipeId[TheLine]);
    Calc.SonicVelocity = SonicVelocityOf(Calc.RatioSpecificHeats, Calc.FlowPressure, Calc.Density);
}

GasStation StationAt(double part) { return {part, Calc.FlowPressure, Calc.Velocity, Calc.SonicVelocity}; }

void TellSonicInlet() {
    const double flow = Calc.CaseInput[input::GasFlow][static_cast<std::size_t>(Calc.CaseIndex)];
    const double limit = RoundedThree(flow * Calc.SonicVelocity / Calc.Velocity);
    Tell("Sonic velocity exists, flow is limited to\n" + Str(limit) + " " + Calc.UnitName[unit::GasFlow] +
             "\n" + LimitText,
         LineLossTitle, Icon::Stop);
}

std::string PercentOfLine(double part) { return Str(Int(part * 100 + 0.5)) + " % of equiv line length\n"; }

// No line break stands before the advice.
void TellZeroPressure(double part) {
    Tell("Zero pressure reached @" + PercentOfLine(part) + "Flow cannot be maintained" + LimitText,
         LineLossTitle, Icon::Stop);
}

void TellSonicVelocity(double part) {
    Tell("Sonic velocity reached @" + PercentOfLine(part), LineLossTitle, Icon::Stop);
}

// The steps from the inlet on, one after the other in the record.
class March {
public:
    explicit March(const GasLineObserver& observer) : observer_(observer) {}

    // False when the user ended it.
    bool Run(bool converges) {
        const Setting marching(Calc.InCalculation, words::Yes, words::No);
        const bool isLong = count_ > LongMarch;
        for (std::int64_t step = 1; step <= count_; ++step) {
            if (!Step(static_cast<double>(step) / static_cast<double>(count_))) return true;
            if (!FindCompressibility() && converges) {
                converges = false;
                WarnOfCompressibility();
            }
            if (isLong && step % StepsOfABreath == 0 && UserWantsToStop()) return false;
        }
        return true;
    }

private:
    // The pressure at the end of a step; false when the gas does not get beyond it.
    bool Step(double part) {
        Calc.LossPer100 =
            LossPer100Feet(Calc.FrictionFactor, Calc.MassFlow, Calc.PipeId[TheLine], Calc.Density);
        Calc.EquivLength = SignedLength();
        Calc.FlowPressure -= (Calc.LossPer100 * Calc.EquivLength / 100) / static_cast<double>(count_);
        if (Calc.FlowPressure <= 0) {
            Calc.FlowPressure = 0;
            if (observer_) observer_(StationAt(part));
            TellZeroPressure(part);
            return false;
        }
        // The sonic velocity takes the new pressure over the old density; it stands so.
        TakeVelocities();
        if (observer_) observer_(StationAt(part));
        // A velocity that is not a number stops nothing here: the comparison must stay this way round.
        if (Calc.Velocity > Calc.SonicVelocity) {
            TellSonicVelocity(part);
            Calc.Velocity = Calc.SonicVelocity;
            return false;
        }
        return true;
    }

    // Entrance and exit stand in the fittings' length already and count a second time here, and a line that
    // rises is shorter for it. Both differ from the liquid line and are to be left so.
    double SignedLength() const {
        const double equipment = Calc.EquipLoss[TheLine] / Calc.LossPer100 * 100;
        const double fall = (Calc.Density * (Calc.Elevation[LineStart] - Calc.Elevation[LineEnd]) / 144) /
                            Calc.LossPer100 * 100;
        return Calc.PressureDirection == direction::Backwards
                   ? -Calc.FittingsEquivLength - equipment - exit_ - entrance_ - fall
                   : Calc.FittingsEquivLength + equipment + exit_ + entrance_ + fall;
    }

    const GasLineObserver& observer_;
    const std::int64_t count_ = GasStepCount(Calc.PipeLength[TheLine]);
    const double entrance_ = LengthOf(Calc.EntranceK, 1);
    const double exit_ = LengthOf(Calc.ExitK, 9);
};

}  // namespace

double SonicVelocityOf(double ratioSpecificHeats, double pressure, double density) {
    return std::sqrt(4639 * ratioSpecificHeats * pressure / density);
}

void CalcGasFriction() {
    // The friction factor and the zone go by this constant; the flow status leaves the liquid's in the
    // record.
    Calc.ReynoldsNumber = GasReynoldsConstant * Calc.MassFlow / Calc.PipeId[TheLine] / Calc.Viscosity;
    CalcFrictionFactor();
    CalcFlowStatus();

    Calc.FlowPressure = Calc.SourcePressure[TheLine];
    CalcCompressibility();
    Calc.MessageTitle = LineLossTitle;
    Calc.LossPer100 = LossPer100Feet(Calc.FrictionFactor, Calc.MassFlow, Calc.PipeId[TheLine], Calc.Density);
    Calc.Velocity = LineVelocity(Calc.MassFlow, Calc.Density, Calc.PipeId[TheLine]);
    Calc.FittingsEquivLength = LengthWithFittings();
}

bool CalcGasProfile(const GasLineObserver& observer) {
    Calc.EquivLength = 0;
    Calc.FlowPressure = Calc.SourcePressure[TheLine];
    // CalcGasFriction has told it when the inlet does not converge, and once is enough.
    const bool converges = FindCompressibility();
    TakeVelocities();
    if (observer) observer(StationAt(0));
    if (Calc.Velocity > Calc.SonicVelocity) {
        TellSonicInlet();
        Calc.Velocity = Calc.SonicVelocity;
        Calc.InCalculation = words::No;
        return true;
    }
    return March(observer).Run(converges);
}

GasLineResults GasLineResultsOf(const CalcRecord& record) {
    const bool isSonic = record.Velocity == record.SonicVelocity;
    const double sonic = record.SonicVelocity / record.UnitFactor[unit::Velocity];
    return {LineResultsOf(record, !isSonic), isSonic, ShownFigures(sonic)};
}

}  // namespace quillmetra
