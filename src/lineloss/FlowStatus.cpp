// See FlowStatus.h.
#include "lineloss/FlowStatus.h"

#include <algorithm>
#include <string>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "lineloss/Friction.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {

bool ToldAlone = false;

// Two rows end at 3.4, so that the second is never reached, and the limit of 1500000 below 1.5 in exceeds
// that of the row after it: the table stands as it is.
constexpr std::array<TurbulenceRow, 15> TurbulenceTable = {{
    {0.63, 0.027, 300000},
    {0.9, 0.025, 400000},
    {1.1, 0.023, 600000},
    {1.5, 0.022, 1500000},
    {1.78, 0.021, 1000000},
    {2.25, 0.019, 1500000},
    {3.4, 0.018, 2500000},
    {3.4, 0.017, 3000000},
    {5.4, 0.016, 4000000},
    {6.5, 0.015, 5000000},
    {10.5, 0.014, 8000000},
    {15.7, 0.013, 20000000},
    {24, 0.012, 30000000},
    {36, 0.011, 35000000},
    {48, 0.01, 50000000},
}};

// Any number but those of the first two is the third case.
const char* CaseWord() {
    const bool isFirstTwo = Calc.CaseIndex == 0 || Calc.CaseIndex == 1;
    return words::Cases[isFirstTwo ? At(Calc.CaseIndex) : 2];
}

// What is told of a zone. Telling it moves the two marks along.
const char* ZoneText() {
    if (Calc.FlowZone == words::Laminar) {
        Calc.FlowZone = Calc.TransitionMark;
        Calc.TransitionMark.clear();
        return " flow is in the Laminar Zone \nUse data with care";
    }
    if (Calc.FlowZone == words::Critical) {
        Calc.TransitionMark.clear();
        return " flow is in the Critical Zone \nUse data with care";
    }
    if (Calc.TransitionMark == words::Transition) {
        return " flow in is in the Transition Zone  \nUse data with care";
    }
    return " flow is in the Complete Turbulence Zone ";
}

void TellFlowZone() {
    const char* zone = ZoneText();
    if (!Suite.HideFlowStatus.empty()) return;
    Calc.MessageText = std::string(CaseWord()) + zone;
    if (ToldAlone) return Tell(Calc.MessageText, Calc.MessageTitle, Icon::Question);
    if (AskYesNo(Calc.MessageText + "\n\n\n(Press No to hide the message)", Calc.MessageTitle,
                 Icon::Question))
        return;
    Suite.HideFlowStatus = words::Yes;
    SaveStandardConditions();
}

// K D / f for each fitting that the line has; the others keep what they had.
void SetEquivalentLengths() {
    const double diameter = Calc.PipeId[TheLine] / 12;  // ft
    const double f = Calc.FrictionFactor;
    for (const Fitting& fitting : Fittings) {
        if (!(Calc.*fitting.Count > 0)) continue;
        const double k = fitting.CountIsK ? 1 : Calc.TurbulentFactor * fitting.LengthToDiameter;
        Calc.EquivLengthPerFitting[fitting.Element] = (k / f) * diameter;
    }
}

}  // namespace

const TurbulenceRow* FindTurbulenceRow(double pipeId) {
    const auto* found =
        std::find_if(TurbulenceTable.begin(), TurbulenceTable.end(),
                     [pipeId](const TurbulenceRow& row) { return pipeId < row.DiameterBelow; });
    return found == TurbulenceTable.end() ? nullptr : found;
}

const char* FlowRegimeOf(double reynolds, double statusReynolds, double pipeId) {
    if (reynolds <= LaminarLimit) return "laminar";
    if (reynolds <= CriticalLimit) return "critical";
    const TurbulenceRow* const row = FindTurbulenceRow(pipeId);
    return row != nullptr && statusReynolds < row->ReynoldsLimit ? "transition" : "turbulent";
}

void CalcFlowStatus() {
    Calc.TransitionMark.clear();
    Calc.MessageTitle = "Flow Status";
    Calc.ReynoldsNumber = ReynoldsOf(Calc.MassFlow, Calc.PipeId[TheLine], Calc.Viscosity);
    if (const TurbulenceRow* row = FindTurbulenceRow(Calc.PipeId[TheLine])) {
        Calc.TurbulentFactor = row->Factor;
        if (Calc.ReynoldsNumber < row->ReynoldsLimit) Calc.TransitionMark = words::Transition;
    }
    if (!IsYes(Suite.HideFlowStatus)) TellFlowZone();
    SetEquivalentLengths();
}

FlowStatusAlone::FlowStatusAlone() { ToldAlone = true; }
FlowStatusAlone::~FlowStatusAlone() { ToldAlone = false; }

}  // namespace quillmetra
