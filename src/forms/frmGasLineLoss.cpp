// See frmGasLineLoss.h.
#include "forms/frmGasLineLoss.h"

#include <algorithm>

#include "core/Filling.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "platform/Arithmetic.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "units/Border.h"
#include "units/CorrelationRange.h"
#include "units/Rounding.h"
#include "units/StandardRange.h"
#include "units/Temperature.h"
#include "units/Viscosity.h"

namespace quillmetra {

void GasLinePicture::Take(const GasStation& station) {
    last_ = station;
    if (station.Part < next_ && station.Part < 1) return;
    stations_.push_back(station);
    next_ = station.Part + 1.0 / MostStations;
}

// A line calculated from its end was walked from there.
void GasLinePicture::Complete() {
    if (!stations_.empty() && last_.Part > stations_.back().Part) stations_.push_back(last_);
    if (Calc.PressureDirection != direction::Backwards) return;
    std::reverse(stations_.begin(), stations_.end());
    for (GasStation& station : stations_) station.Part = 1 - station.Part;
}

frmGasLineLoss::frmGasLineLoss()
    : LineLossForm({.Program = 2,
                    .Form = "frmGasLineLoss",
                    .FluidMenu = "mnuFluidProp",
                    .ListFrame = "fraGasData",
                    .ListCaption = "Gases"},
                   {unit::GasFlow, unit::Temperature, unit::Pressure, unit::PressureDrop, unit::CritPressure,
                    unit::CritTemperature, unit::GasViscosity, unit::PipeSize, unit::Length}),
      GasEntries(mnuCase) {
    Entries = ByCase();
    Base.Changed = [this] { ClearAllCases(); };
    Assemble();
    Base.AppendTabs();
}

std::vector<LineLossForm::CaseBoxes> frmGasLineLoss::BoxesOfACase() const {
    return {&txtFlow,     &txtTemp,         &txtPressure,  &txtMW,   &txtRatioSH,
            &txtCritTemp, &txtCritPressure, &txtViscosity, &txtEquip};
}

void frmGasLineLoss::CloseOverlays() {
    if (Base.fraSTP.Visible()) Base.cmdCancelSTP_Click();
    LineLossForm::CloseOverlays();
}

Handler frmGasLineLoss::KeepBeside() {
    return [this, former = LineLossForm::KeepBeside(), pictures = pictures_] {
        former();
        pictures_ = pictures;
    };
}

void frmGasLineLoss::ShowChoices() {
    Base.Close();
    LineLossForm::ShowChoices();
}

// --- Checks ------------------------------------------------------------------------------------------------

bool frmGasLineLoss::CheckState() {
    return CheckTempPressure(*this, {txtTemp(Calc.CaseIndex), txtPressure(Calc.CaseIndex)}, GasRules);
}

bool frmGasLineLoss::CheckPressureAlone() { return CheckPressure(txtPressure(Calc.CaseIndex), GasRules); }

// A source pressure of zero passes: the march then tells where it ends.
bool frmGasLineLoss::CheckSourcePressure() {
    if (!(Calc.SourcePressure[TheLine] < 0)) return true;
    return RefuseData("Absolute Source Pressure must be greater than zero", txtPressure(Calc.CaseIndex));
}

bool frmGasLineLoss::CheckFluid(Wanted wanted) {
    const int caseIndex = Calc.CaseIndex;
    const std::size_t i = ThisCase();
    const UnitFactors& factor = Calc.UnitFactor;

    Calc.CritPressure = Calc.CaseInput[input::CritPressure][i] * factor[unit::CritPressure];
    if (!(Calc.CritPressure > 0)) {
        return RefuseData("Critical pressure must be greater than zero", txtCritPressure(caseIndex));
    }
    Calc.CritTemperature = CritTemperatureIn(Calc.CaseInput[input::CritTemperature][i]);
    if (!IsAboveZeroDegR(Calc.CritTemperature) || Trim(txtCritTemp(caseIndex).Text()).empty()) {
        return RefuseData("Critical Temperature must be greater than " +
                              Str(AbsoluteZeroIn(Calc.UnitName[unit::CritTemperature])),
                          txtCritTemp(caseIndex), Icon::None);
    }
    Calc.MolecularWeight = Calc.CaseInput[input::MolecularWeight][i];
    if (!(Calc.MolecularWeight > 0)) {
        return RefuseData("Molecular weight must be greater than zero", txtMW(caseIndex));
    }
    Calc.MassFlow = GasFlowIn(Calc.CaseInput[input::GasFlow][i], Calc.MolecularWeight);
    if (wanted != Wanted::NoFlow && !(Calc.MassFlow > 0)) {
        return RefuseData("Flow must be greater than zero", txtFlow(caseIndex), Icon::None);
    }
    Calc.RatioSpecificHeats = Calc.CaseInput[input::RatioSpecificHeats][i];
    if (!(Calc.RatioSpecificHeats > 0)) {
        return RefuseData("Ratio of specific heats must be greater than zero", txtRatioSH(caseIndex));
    }
    Calc.Viscosity = GasViscosityIn(Calc.CaseInput[input::Viscosity][i], Calc.MolecularWeight);
    if (!(Calc.Viscosity > 0)) {
        return RefuseData("Viscosity must be greater than zero", txtViscosity(caseIndex));
    }
    return true;
}

HintList frmGasLineLoss::Hints() const { return Together(LineLossForm::Hints(), StandardConditionsHints()); }

// --- Calculation -------------------------------------------------------------------------------------------

bool frmGasLineLoss::CalculateCase() {
    GasLinePicture picture;
    CalcGasFriction();
    if (!CalcGasProfile([&picture](const GasStation& station) { picture.Take(station); })) return false;
    ShowResults(GasLineResultsOf(Calc));
    picture.Complete();
    pictures_[ThisCase()] = std::make_shared<const GasLinePicture>(std::move(picture));
    return true;
}

// Nothing of a saved record, which has the two ends of a line that is curved, nor of a line whose inlet is
// sonic.
PlotDrawing frmGasLineLoss::DrawingOf(int caseIndex) const {
    const auto& picture = pictures_[static_cast<std::size_t>(caseIndex)];
    if (picture == nullptr) return {};
    const std::vector<GasStation>& stations = picture->Stations();
    std::vector<double> lengths, pressures, velocities, sonic;
    for (const GasStation& station : stations) {
        lengths.push_back(station.Part * Calc.PipeData[pipe::Length]);
        pressures.push_back(PressureShown(station.Pressure));
        velocities.push_back(station.Velocity / Calc.UnitFactor[unit::Velocity]);
        sonic.push_back(station.SonicVelocity / Calc.UnitFactor[unit::Velocity]);
    }
    if (stations.size() < 2) return {};
    return {.Title = {},
            .Bottom = {"Length", Calc.UnitName[unit::Length]},
            .Left = {"Pressure", Calc.UnitName[unit::Pressure]},
            .Right = {"Velocity", Calc.UnitName[unit::Velocity]},
            .Series = {{"Pressure", lengths, pressures},
                       {"Velocity", lengths, velocities, true},
                       {"Sonic velocity", lengths, sonic, true, true}},
            .Marks = {}};
}

void frmGasLineLoss::ShowResults(const GasLineResults& results) {
    const Filling filling;
    const int i = Calc.CaseIndex;
    Calc.CaseResult[result::SonicVelocity][ThisCase()] = results.SonicVelocity;
    ShowNumber(txtSonicVelocity(i), results.SonicVelocity);
    ShowLineResults(results);
    if (Calc.EquivLength == 0) txtEquivLen.SetText("");
    if (!results.IsSonic) return;
    txtDestPress(i).SetText("");
    txtDropP100(i).SetText("");
}

// --- The gas -----------------------------------------------------------------------------------------------

// Rounds the gas's properties into the case in hand, in the units shown.
void frmGasLineLoss::FillCase() {
    const std::size_t i = ThisCase();
    const UnitFactors& factor = Calc.UnitFactor;
    Calc.RatioSpecificHeats = ShownFigures(Calc.RatioSpecificHeats);
    const double weight = CheckFinite(Calc.MolecularWeight);
    const double viscosity = ShownFigures(GasViscosityShown(Calc.FluidViscosity, Calc.MolecularWeight));
    const double critPressure = ShownFigures(Calc.CritPressure / factor[unit::CritPressure]);
    const double critTemperature = ShownFigures(CritTemperatureShown(Calc.CritTemperature));
    const double density = ShownFigures(Calc.Density / factor[unit::Density]);

    Calc.CaseInput[input::MolecularWeight][i] = weight;
    Calc.CaseInput[input::Viscosity][i] = viscosity;
    Calc.CaseInput[input::Density][i] = density;
    Calc.CaseInput[input::RatioSpecificHeats][i] = Calc.RatioSpecificHeats;
    Calc.CaseInput[input::CritPressure][i] = critPressure;
    Calc.CaseInput[input::CritTemperature][i] = critTemperature;
    Calc.Viscosity = Calc.FluidViscosity;
    StateIsDealtWith(Calc.CaseIndex);
    ShowFluidRows();
}

void frmGasLineLoss::ShowFluidRows() {
    const int i = Calc.CaseIndex;
    ShowProperty(txtMW(i), Calc.CaseInput[input::MolecularWeight][ThisCase()]);
    ShowProperty(txtRatioSH(i), Calc.CaseInput[input::RatioSpecificHeats][ThisCase()]);
    ShowProperty(txtCritTemp(i), Calc.CaseInput[input::CritTemperature][ThisCase()]);
    ShowProperty(txtCritPressure(i), Calc.CaseInput[input::CritPressure][ThisCase()]);
    ShowProperty(txtViscosity(i), Calc.CaseInput[input::Viscosity][ThisCase()]);
}

std::vector<TextBox*> frmGasLineLoss::FluidBoxes(int caseIndex) {
    return {&txtMW(caseIndex), &txtRatioSH(caseIndex), &txtCritTemp(caseIndex), &txtCritPressure(caseIndex),
            &txtViscosity(caseIndex)};
}

// The look-up leaves rows of 0 when it has cleared them.
void frmGasLineLoss::ShowSteam() {
    const int i = Calc.CaseIndex;
    if (Calc.CaseInput[input::MolecularWeight][ThisCase()] == 0) {
        for (TextBox* box : FluidBoxes(i)) box->SetText("");
        return;
    }
    if (Calc.SteamKind == words::Saturated)
        ShowProperty(txtTemp(i), Calc.CaseInput[input::Temperature][ThisCase()]);
    ShowFluidRows();
}

}  // namespace quillmetra
