// See LineTrial.h.
#include "lineloss/LineTrial.h"

#include <cmath>

#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "lineloss/ChokedFlow.h"
#include "lineloss/Friction.h"
#include "lineloss/GasLineLoss.h"
#include "lineloss/LiquidLineLoss.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "units/Border.h"
#include "units/CorrelationRange.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

bool IsGas() { return Calc.CurrentProgram == program::GasLine; }
std::size_t ThisCase() { return At(Calc.CaseIndex); }

// The figures follow from the record, so the results go there first.
void CalculateLiquid(LineTrial& trial) {
    CalcFriction();
    CalcFinalPressure();
    const LiquidLineResults results = LiquidLineResultsOf(Calc);
    trial.End = Calc.FlowPressure == 0 ? Outcome::ZeroPressure : Outcome::Reached;
    trial.Results = static_cast<const LineResults&>(results);
    trial.Reynolds = results.Reynolds;
    Calc.CaseResult[result::FinalPressure][ThisCase()] = results.FinalPressure;
    const LiquidFigures figures = LiquidFiguresOf(Calc.CaseIndex, Calc.FrictionFactor);
    static_cast<LineFigures&>(trial.Figures) = static_cast<const LineFigures&>(figures);
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
    Calc.CaseResult[result::FinalPressure][ThisCase()] = results.FinalPressure;
    Calc.CaseResult[result::Velocity][ThisCase()] = results.Velocity;
    Calc.CaseResult[result::SonicVelocity][ThisCase()] = results.SonicVelocity;
    trial.Figures = GasFiguresOf(Calc.CaseIndex);
    trial.IsChoked = Calc.MassFlow > ChokedFlowOf(Calc);
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

bool LineTrials::IsStopped() const {
    constexpr std::chrono::milliseconds soon(200);
    return Clock::now() - start_ > soon && UserWantsToStop();
}

LineTrial LineTrials::Run() {
    LineTrial trial;
    if (IsGas() && IsStopped()) {
        trial.End = Outcome::Stopped;
        return trial;
    }
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

bool IsBackwards() { return Calc.PressureDirection == direction::Backwards; }

std::string WithUnit(double value, int unitRow) {
    return TrimmedStr(RoundedFour(value)) + " " + Calc.UnitName[At(unitRow)];
}

// The flow at which a line ends beyond a pressure: friction takes more, the greater the flow is.
class FlowSearch {
public:
    explicit FlowSearch(double endPressure) : target_(PressureIn(endPressure)) {}

    FlowAnswer Find() {
        FlowAnswer answer = Search();
        return isStopped_ ? FlowAnswer{0, "Stopped"} : answer;
    }

private:
    FlowAnswer Search() {
        if (!IsBelow(LeastFlow)) return {0, NothingFlows()};
        still_ = below_;
        if (IsBelow(GreatestFlow)) return {0, "No flow loses so much"};
        return AnswerAt(GreatestBelow());
    }

    double GreatestBelow() {
        double low = LeastFlow, high = GreatestFlow;
        while (high > low * (1 + SameFlow) && !isStopped_) {
            const double middle = std::sqrt(low * high);
            (IsBelow(middle) ? low : high) = middle;
        }
        return low;
    }

    FlowAnswer AnswerAt(double flow) {
        IsBelow(flow * (1 + SameFlow));
        const std::string stop = WhatStops(flow);
        IsBelow(flow);
        const bool isMet = std::fabs(below_ - target_) <= SameLoss * std::fabs(still_ - below_);
        if (!isMet && !IsShownAs(below_)) return {0, stop};
        return {RoundedFour(flow), IsGas() ? Sentences(ChokedFlowHints(Calc)) : ""};
    }

    // Whether the line loses less at a flow than it may. What does not get to the end loses too much.
    bool IsBelow(double flow) {
        const LineTrial trial = trials_.WithFlow(flow);
        isStopped_ = isStopped_ || trial.End == Outcome::Stopped;
        last_ = trial.End;
        end_ = trial.EndPressure;
        const bool isBelow = last_ == Outcome::Reached && (IsBackwards() ? end_ < target_ : end_ > target_);
        if (isBelow) below_ = end_;
        return isBelow;
    }

    // As the form shows it, the pressure at the end is the one that was asked for.
    bool IsShownAs(double end) const {
        return RoundedFour(PressureShown(end)) == RoundedFour(PressureShown(target_));
    }

    std::string NothingFlows() const {
        if (last_ == Outcome::Reached && IsShownAs(end_))
            return "The line has that pressure without any flow";
        return std::string("Even without flow the line does not ") + (IsBackwards() ? "start" : "end") +
               " at that pressure";
    }

    // Above the greatest flow below the pressure stands a line that stops, or one of another zone.
    std::string WhatStops(double most) const {
        const std::string flow = WithUnit(most, IsGas() ? unit::GasFlow : unit::LiquidFlow);
        const std::string end =
            (IsBackwards() ? "starts at " : "ends at ") + WithUnit(PressureShown(below_), unit::Pressure);
        const std::string answer = "the line takes at most " + flow + ", and " + end;
        if (last_ == Outcome::Sonic) return "The gas becomes as fast as sound first: " + answer;
        if (last_ == Outcome::ZeroPressure) return "The pressure is used up first: " + answer;
        return "No flow has just that loss, the flow zone changes: up to " + flow + " the line " + end;
    }

    LineTrials trials_;
    const double target_;              // psia
    double still_ = 0;                 // psia, the end without flow
    double below_ = 0;                 // psia, the end of the greatest flow that loses less
    Outcome last_ = Outcome::Reached;  // of the last trial, with its end
    double end_ = 0;                   // psia
    bool isStopped_ = false;
};

}  // namespace

FlowAnswer FlowForPressure(double endPressure) { return FlowSearch(endPressure).Find(); }

}  // namespace quillmetra
