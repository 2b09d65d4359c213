// See frmGasData.h.
#include "forms/frmGasData.h"

#include "core/Filling.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "units/Border.h"
#include "units/CorrelationRange.h"
#include "units/StandardRange.h"
#include "units/Temperature.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// This program alone takes a temperature of exactly this for one that is not entered: it keeps the one
// before, whatever it was. It stands so.
constexpr double SkippedTemperature = 1;

}  // namespace

frmGasData::frmGasData()
    : DataForm({.Program = 5,
                .Form = "frmGasData",
                .FluidMenu = "mnuFluidProp",
                .ListFrame = "fraGasData",
                .ListCaption = "Gases"}),
      GasEntries(mnuCase) {
    SetCaption("Gas properties at temperature and pressure");
    Entries = ByCase();
    Base.Changed = [this] { ClearAllCases(); };
    Assemble();
    Base.AppendTabs();
}

void frmGasData::CloseOverlays() {
    if (Base.fraSTP.Visible()) Base.cmdCancelSTP_Click();
    DataForm::CloseOverlays();
}

void frmGasData::ShowChoices() {
    Base.Close();
    DataForm::ShowChoices();
}

// --- State -------------------------------------------------------------------------------------------------

bool frmGasData::CheckPressureAlone() {
    RestoreStandardConditions();
    TakePressure(ThisCase());
    if (Calc.PressureMode != words::Absolute || Calc.FlowPressure > 0) return true;
    return RefuseData("Flow pressure must be greater than zero", txtPressure(Calc.CaseIndex));
}

bool frmGasData::CheckState() {
    const double before = Calc.FlowTemperature;
    StoreForm();
    if (!CheckPressureAlone() || !DataForm::CheckState()) return false;
    if (Calc.CaseInput[input::Temperature][ThisCase()] == SkippedTemperature) Calc.FlowTemperature = before;
    return true;
}

bool frmGasData::IsTemperatureEntered(int caseIndex) {
    const auto i = static_cast<std::size_t>(caseIndex);
    if (Val(txtTemp(caseIndex).Text()) == SkippedTemperature)
        return Calc.TemperatureEntered[i] == words::Entered;
    return DataForm::IsTemperatureEntered(caseIndex);
}

// --- The gas -----------------------------------------------------------------------------------------------

// The mixture rule has left a mixture's latent heat in its row.
void frmGasData::FillCase() {
    const bool mixture = IsYes(Calc.MixtureFlag);
    const UnitFactors& factor = Calc.UnitFactor;
    Store({{input::BoilingPoint, TemperatureShown(Calc.NormalBoilingPoint)},
           {input::BoilingLatentHeat, Calc.LatentHeatBP / factor[unit::LatentHeat]},
           {13, mixture ? Calc.CaseInput[input::LatentHeat][ThisCase()]
                        : Calc.LatentHeatAtFlow / factor[unit::LatentHeat]},
           {input::VaporPressure, Calc.VaporPressure / factor[unit::VaporPressure]},
           {input::RatioSpecificHeats, Calc.RatioSpecificHeats},
           {input::MolecularWeight, Calc.MolecularWeight},
           {input::Viscosity, GasViscosityShown(Calc.FluidViscosity, Calc.MolecularWeight)},
           {input::CritPressure, Calc.CritPressure / factor[unit::CritPressure]},
           {input::CritTemperature, CritTemperatureShown(Calc.CritTemperature)},
           {input::Density, Calc.Density / factor[unit::Density]},
           {input::CompressFactor, Calc.CompressFactor}});
}

// --- Steam -------------------------------------------------------------------------------------------------

void frmGasData::BeginSteam() {
    const Filling filling;
    if (Calc.SteamKind == words::Superheated) txtFluid.SetText("Sup Steam");
}

// Beside the rows of the look-up: the boiling point and the latent heats. Steam has no compressibility factor
// here, and its vapor pressure is its own.
void frmGasData::ShowSteam() {
    const bool found = Calc.CaseInput[input::MolecularWeight][ThisCase()] != 0;
    const double heat = Calc.UnitFactor[unit::LatentHeat];
    Store({{input::CompressFactor, 0},
           {input::BoilingPoint, found ? TemperatureShown(Calc.NormalBoilingPoint) : 0},
           {input::VaporPressure, 0},
           {input::LatentHeat, found ? Calc.LatentHeatAtFlow / heat : 0},
           {input::BoilingLatentHeat, found ? Calc.LatentHeatBP / heat : 0}});
    if (Calc.SteamKind == words::Saturated)
        ShowProperty(txtTemp(Calc.CaseIndex), Calc.CaseInput[input::Temperature][ThisCase()]);
}

std::string frmGasData::TitleTail() const {
    if (Calc.SteamKind.empty()) return " - Gas Flow";
    return " - " + Calc.SteamKind + " Steam";
}

HintList frmGasData::Hints() const { return Together(DataForm::Hints(), StandardConditionsHints()); }

void frmGasData::PropertiesTaken() {
    Calc.FluidKind = Calc.SteamKind.empty() ? words::Gas : "";
    DataForm::PropertiesTaken();
}

}  // namespace quillmetra
