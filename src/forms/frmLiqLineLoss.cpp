// See frmLiqLineLoss.h.
#include "forms/frmLiqLineLoss.h"

#include <algorithm>
#include <utility>

#include "core/Filling.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "lineloss/Friction.h"
#include "lineloss/LiquidLineLoss.h"
#include "platform/Arithmetic.h"
#include "reports/FormRefresh.h"
#include "units/Border.h"
#include "units/Conversion.h"
#include "units/Rounding.h"
#include "units/Viscosity.h"

namespace quillmetra {

frmLiqLineLoss::frmLiqLineLoss()
    : LineLossForm({.Program = 1,
                    .Form = "frmLiqLineLoss",
                    .FluidMenu = "mnuFluiProp",
                    .ListFrame = "fraLiquidData",
                    .ListCaption = "Liquids"},
                   {unit::LiquidFlow, unit::Temperature, unit::Pressure, unit::PressureDrop,
                    unit::LiquidDensity, unit::Viscosity, unit::PipeSize, unit::Length}) {
    Entries = {
        {&mnuPureLiquid1, &mnuMixture1}, {&mnuPureLiquid2, &mnuMixture2}, {&mnuPureLiquid3, &mnuMixture3}};
    chkLossParts.SetToolTip(
        "Shows what the pipe, the fittings, the equipment and the elevation have of the total loss");
    chkLossParts.Click = [this] { Figures.ShowParts(chkLossParts.Checked()); };
    Assemble();
    TabOrder.insert(std::ranges::find(TabOrder, &cmdCalculateAll) + 1, &chkLossParts);
}

std::vector<LineLossForm::CaseBoxes> frmLiqLineLoss::BoxesOfACase() const {
    return {&txtFlow, &txtTemp, &txtPressure, &txtSGFlow, &txtViscosity, &txtEquip};
}

bool frmLiqLineLoss::Remembers(const Control& control) const {
    return &control != &chkLossParts && LineLossForm::Remembers(control);
}

Handler frmLiqLineLoss::KeepBeside() {
    return [this, former = LineLossForm::KeepBeside()] {
        former();
        Figures.ShowParts(chkLossParts.Checked());
    };
}

bool frmLiqLineLoss::CheckState() {
    return CheckTempPressure(*this, {txtTemp(Calc.CaseIndex), txtPressure(Calc.CaseIndex)}, LiquidRules);
}

bool frmLiqLineLoss::CheckSourcePressure() {
    if (Calc.SourcePressure[TheLine] > 0) return true;
    return RefuseData("Absolute Source Pressure must be greater than zero", txtPressure(Calc.CaseIndex));
}

bool frmLiqLineLoss::CheckFluid(Wanted wanted) {
    const int caseIndex = Calc.CaseIndex;
    const std::size_t i = ThisCase();
    Calc.FlowingSG = GravityIn(Calc.CaseInput[input::FlowGravity][i], unit::LiquidDensity);
    if (!(Calc.FlowingSG > 0)) {
        return RefuseData(Calc.LiquidDensityMode == words::Density
                              ? "Flowing Density must be greater than zero"
                              : "Flowing specific gravity must be greater than zero",
                          txtSGFlow(caseIndex));
    }

    Calc.MassFlow = LiquidFlowIn(Calc.CaseInput[input::LiquidFlow][i], Calc.FlowingSG);
    if (wanted != Wanted::NoFlow && !(Calc.MassFlow > 0))
        return RefuseData("Flow must be greater than zero", txtFlow(caseIndex));

    Calc.Viscosity = LiquidViscosityIn(Calc.CaseInput[input::Viscosity][i], Calc.FlowingSG);
    if (!(Calc.Viscosity > 0))
        return RefuseData("Viscosity must be greater than zero", txtViscosity(caseIndex));
    return true;
}

bool frmLiqLineLoss::CalculateCase() {
    CalcFriction();
    CalcFinalPressure();
    if (Calc.FlowPressure == 0) return false;  // the line cannot deliver; the user has been told
    Calc.FinalPressure = Calc.FlowPressure;
    ShowResults();
    return true;
}

// Friction, fittings, equipment and elevation are spread evenly over the straight pipe, since the record does
// not say where on it they are: a straight line from the source on.
PlotDrawing frmLiqLineLoss::DrawingOf(int caseIndex) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    std::vector<double> pressures = {Calc.CaseInput[input::Pressure][i],
                                     Calc.CaseResult[result::FinalPressure][i]};
    if (Calc.PressureDirection == direction::Backwards) std::swap(pressures[0], pressures[1]);
    return {.Title = {},
            .Bottom = {"Length", Calc.UnitName[unit::Length]},
            .Left = {"Pressure", Calc.UnitName[unit::Pressure]},
            .Right = {},
            .Series = {{"Pressure", {0, Calc.PipeData[pipe::Length]}, std::move(pressures)}},
            .Marks = {}};
}

void frmLiqLineLoss::ShowResults() {
    const LiquidLineResults results = LiquidLineResultsOf(Calc);
    const Filling filling;
    Calc.CaseResult[result::ReynoldsNumber][ThisCase()] = results.Reynolds;
    ShowNumber(txtReynoldsNum(Calc.CaseIndex), results.Reynolds);
    ShowLineResults(results);
}

// Rounds the liquid's properties into the case in hand, in the units shown.
void frmLiqLineLoss::FillCase() {
    const std::size_t i = ThisCase();
    const int caseIndex = Calc.CaseIndex;
    double vaporPressure = 0;
    if (Calc.VaporPressure > 0) {
        Calc.VaporPressure = RoundedFour(Calc.VaporPressure);
        vaporPressure = ShownFigures(Calc.VaporPressure / Calc.UnitFactor[unit::VaporPressure]);
    }
    Calc.FlowingSG = RoundedFour(Calc.FlowingSG);
    const double gravity = ShownFigures(GravityShown(Calc.FlowingSG, unit::UserDensity));
    Calc.CaseInput[input::Viscosity][i] =
        ShownFigures(LiquidViscosityShown(Calc.FluidViscosity, Calc.FlowingSG));
    Calc.CaseInput[input::VaporPressure][i] = vaporPressure;
    Calc.CaseInput[input::FlowGravity][i] = gravity;
    Calc.Viscosity = Calc.FluidViscosity;
    StateIsDealtWith(caseIndex);
    ShowProperty(txtSGFlow(caseIndex), Calc.CaseInput[input::FlowGravity][i]);
    ShowProperty(txtViscosity(caseIndex), Calc.CaseInput[input::Viscosity][i]);
}

}  // namespace quillmetra
