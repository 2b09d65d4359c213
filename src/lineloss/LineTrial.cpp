// See LineTrial.h.
#include "lineloss/LineTrial.h"

#include <cmath>

#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/Friction.h"
#include "lineloss/GasLineLoss.h"
#include "lineloss/LiquidLineLoss.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "units/Border.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

bool IsGas() { return Calc.CurrentProgram == program::GasLine; }
std::size_t ThisCase() { return At(Calc.CaseIndex); }

// The figures of a liquid line, which LiquidFiguresOf finds from a record alone, stand in the working layer.
void CalculateLiquid(LineTrial& trial) {
    CalcFriction();
    CalcFinalPressure();
    const LiquidLineResults results = LiquidLineResultsOf(Calc);
    trial.End = Calc.FlowPressure == 0 ? Outcome::ZeroPressure : Outcome::Reached;
    trial.Results = static_cast<const LineResults&>(results);
    trial.Reynolds = results.Reynolds;
    trial.Figures.Regime = FlowRegimeOf(Calc.ReynoldsNumber, Calc.ReynoldsNumber, Calc.PipeId[TheLine]);
    trial.Figures.TotalLoss = (Calc.PressureDirection == direction::Backwards ? -1 : 1) *
                              (Calc.SourcePressure[TheLine] - Calc.FlowPressure);
    trial.Figures.PipeAndFittings = LengthWithFittings();
    trial.Figures.OutletVelocity = Calc.Velocity;
    trial.Figures.OutletDensity = Calc.Density;
}

void CalculateGas(LineTrial& trial) {
    CalcGasFriction();
    trial.Reynolds = ShownFigures(Calc.ReynoldsNumber);
    if (!CalcGasProfile()) {
        trial.End = Outcome::Stopped;
        return;
    }
    const GasLineResults results = GasLineResultsOf(Calc);
    trial.End = results.IsSonic          ? Outcome::Sonic
                : Calc.FlowPressure == 0 ? Outcome::ZeroPressure
                                         : Outcome::Reached;
    trial.Results = static_cast<const LineResults&>(results);
    // The figures of a gas line follow from the record, so its results go there first.
    Calc.CaseResult[result::FinalPressure][ThisCase()] = results.FinalPressure;
    Calc.CaseResult[result::Velocity][ThisCase()] = results.Velocity;
    Calc.CaseResult[result::SonicVelocity][ThisCase()] = results.SonicVelocity;
    trial.Figures = GasFiguresOf(Calc.CaseIndex);
}

// The flow of the case in hand, to both layers.
void TakeFlow(double flow) {
    Calc.CaseInput[IsGas() ? input::GasFlow : input::LiquidFlow][ThisCase()] = flow;
    Calc.MassFlow = IsGas() ? GasFlowIn(flow, Calc.MolecularWeight) : LiquidFlowIn(flow, Calc.FlowingSG);
}

}  // namespace

LineTrials::LineTrials() : zoneUntold_(Suite.HideFlowStatus, words::Yes) {}
LineTrials::~LineTrials() { Calc = checked_; }

LineTrial LineTrials::WithDiameter(double diameter) {
    Calc.PipeData[pipe::InsideDiameter] = diameter;
    Calc.PipeId[TheLine] = diameter * Calc.UnitFactor[unit::PipeSize];
    return Run();
}

LineTrial LineTrials::WithFlow(double flow) {
    TakeFlow(flow);
    return Run();
}

LineTrial LineTrials::Run() {
    LineTrial trial;
    // All that a calculation finds of the one before and does not write itself.
    Calc.TurbulentFactor = checked_.TurbulentFactor;
    Calc.ColebrookTerm = checked_.ColebrookTerm;
    Calc.EquivLengthPerFitting = checked_.EquivLengthPerFitting;
    try {
        IsGas() ? CalculateGas(trial) : CalculateLiquid(trial);
        trial.EndPressure = Calc.FlowPressure;
    } catch (const RuntimeError&) {
        trial.End = Outcome::NoResult;
    }
    return trial;
}

// --- The flow for a pressure -------------------------------------------------------------------------------

namespace {

// Far below and above any line's flow; halving their logarithms ends at a part in ten millions.
constexpr double LeastFlow = 1e-9, GreatestFlow = 1e15;
constexpr double SameFlow = 1e-7;
// Part of the friction loss: four figures of the flow are a thousandth, friction that jumps between two zones
// is more.
constexpr double SameLoss = 0.002;

// The flow at which a line ends beyond a pressure: friction takes more, the greater the flow is.
class FlowSearch {
public:
    explicit FlowSearch(double endPressure) : target_(PressureIn(endPressure)) {}

    FlowAnswer Find() {
        if (!IsBelow(LeastFlow)) return {0, "Even without flow the line does not end at that pressure"};
        still_ = below_;
        double low = LeastFlow, high = GreatestFlow;
        if (IsBelow(high)) return {0, "No flow loses so much"};
        while (high > low * (1 + SameFlow)) {
            const double middle = std::sqrt(low * high);
            (IsBelow(middle) ? low : high) = middle;
            if (isStopped_) return {0, "Stopped"};
        }
        IsBelow(low);
        return AnswerAt(low, high);
    }

private:
    // Whether the line loses less at a flow than it may. What does not get to the end loses too much.
    bool IsBelow(double flow) {
        const LineTrial trial = trials_.WithFlow(flow);
        isStopped_ = isStopped_ || trial.End == Outcome::Stopped;
        if (trial.End != Outcome::Reached) {
            stop_ = trial.End;
            return false;
        }
        const double end = trial.EndPressure;
        const bool isBelow = Calc.PressureDirection == direction::Backwards ? end < target_ : end > target_;
        if (isBelow) {
            below_ = end;
        } else {
            stop_ = Outcome::Reached;
        }
        return isBelow;
    }

    // Above the greatest flow below the pressure stands a line that stops, or one of another zone.
    FlowAnswer AnswerAt(double low, double high) {
        IsBelow(high);
        const std::string most =
            Str(RoundedFour(low)) + " " + Calc.UnitName[IsGas() ? unit::GasFlow : unit::LiquidFlow];
        const bool isMet = std::fabs(below_ - target_) <= SameLoss * std::fabs(still_ - below_);
        if (isMet) return {RoundedFour(low), ""};
        if (stop_ == Outcome::Sonic)
            return {0, "The gas becomes as fast as sound first: the line takes at most" + most +
                           ", and ends at" + Shown(below_)};
        if (stop_ == Outcome::ZeroPressure)
            return {0, "The line takes at most" + most + ", and ends at" + Shown(below_)};
        return {0, "No flow has just that loss, the flow zone changes: up to" + most + " the line ends at" +
                       Shown(below_)};
    }

    static std::string Shown(double psia) {
        return Str(RoundedFour(PressureShown(psia))) + " " + Calc.UnitName[unit::Pressure];
    }

    LineTrials trials_;
    const double target_;  // psia
    double still_ = 0;     // psia, the end without flow
    double below_ = 0;     // psia, the end of the greatest flow that loses less
    Outcome stop_ = Outcome::Reached;
    bool isStopped_ = false;
};

}  // namespace

FlowAnswer FlowForPressure(double endPressure) { return FlowSearch(endPressure).Find(); }

}  // namespace quillmetra
