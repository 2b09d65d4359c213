// See FluidForm.h: how a pure fluid, a mixture or steam is picked for the case in hand.
#include <utility>

#include "core/Filling.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "fluids/Mixtures.h"
#include "fluids/SteamTables.h"
#include "forms/FluidForm.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

namespace {
// A row of a fluid table is longer than this; a shorter text is the rest of something else.
constexpr std::size_t ShortestFluidRow = 25;
constexpr const char* MixtureName = "Mixture";
constexpr const char* SteamName = "Steam";
}  // namespace

FluidForm::FluidChoice FluidForm::ChoiceInForce() {
    return {Calc.MixtureFlag, Calc.FluidOk,      Calc.SteamKind,   Calc.FluidRow,
            Calc.FluidData,   Calc.FluidPercent, Calc.MixtureCount};
}

void FluidForm::Restore(const FluidChoice& choice) {
    Calc.MixtureFlag = choice.MixtureFlag;
    Calc.FluidOk = choice.FluidOk;
    Calc.SteamKind = choice.SteamKind;
    Calc.FluidRow = choice.FluidRow;
    Calc.FluidData = choice.Data;
    Calc.FluidPercent = choice.Percents;
    Calc.MixtureCount = choice.MixtureCount;
    TickEntries();
}

// Before a fluid is picked or renewed the vapour pressure of the old one does not count.
bool FluidForm::CheckForNewFluid() {
    StoreForm();
    const double oldVaporPressure = std::exchange(Calc.CaseInput[input::VaporPressure][ThisCase()], 0);
    const bool ok = CheckState();
    Calc.CaseInput[input::VaporPressure][ThisCase()] = oldVaporPressure;
    return ok;
}

void FluidForm::CloseFluids() {
    Mixture.Close();
    Fluids.Close();
}

void FluidForm::cmdSelect_Click() {
    if (Fluids.lstFluid.Selected() < 0) return;
    Mixture.fraComponent.Visible() ? PickComponent() : PickPure();
}

void FluidForm::cmdCancel_Click() {
    CloseFluids();
    Restore(before_);
}

// --- Properties ------------------------------------------------------------------------------------------

namespace {
bool IsGas() { return Calc.FluidType == words::Gas; }
}  // namespace

void FluidForm::ParseFluid() { IsGas() ? ParseGasRow() : ParseLiquidRow(); }

bool FluidForm::CalcMixture() {
    constexpr int gasData = 5;
    if (!IsGas()) return CalcLiquidMixture();
    return Calc.CurrentProgram == gasData ? CalcGasMixtureForData() : CalcGasMixtureForLine();
}

bool FluidForm::FillFluid() {
    if (!(IsGas() ? ProcessGasData() : ProcessLiquidData())) return false;
    try {
        const Filling filling;
        FillCase();
    } catch (const RuntimeError&) {
        return IsGas() ? TellGasNotCalculated() : TellNotCalculated();
    }
    return true;
}

// --- Pure fluids -------------------------------------------------------------------------------------------

void FluidForm::OpenPure(int caseIndex) {
    Calc.CaseIndex = caseIndex;
    if (!CheckForNewFluid()) return;
    before_ = ChoiceInForce();
    Calc.MixtureFlag = words::No;
    Calc.SteamKind.clear();
    Calc.FluidOk = words::FluidPicked;
    Fluids.Open(Calc.FluidType);
    TickEntries();
}

void FluidForm::PickPure() {
    const std::string oldName = Calc.FluidName;
    Calc.FluidRow = Fluids.lstFluid.Row(Fluids.lstFluid.Selected());
    ParseFluid();
    const bool taken = FillFluid();
    CloseFluids();
    if (!taken) {
        Restore(before_);  // the fluid in hand is still the former one, and may be renewed from its row
        return;
    }
    InstallFluid(Calc.SelectedFluidName, Calc.SelectedFluidName != oldName);
    FluidTaken();
}

bool FluidForm::UpdateFluidProperties() {
    if (!Calc.SteamKind.empty()) return UpdateSteam();
    const bool mixture = IsYes(Calc.MixtureFlag);
    Calc.FluidOk = mixture ? "" : words::FluidPicked;
    if (!CheckForNewFluid() || !(mixture ? FillMixture() : RenewPure())) return false;
    InstallFluid(mixture ? MixtureName : Calc.FluidName, false);
    if (mixture) Recalculate();
    return true;
}

bool FluidForm::UpdateSteam() {
    const bool saturated = Calc.SteamKind == words::Saturated;
    StoreForm();
    if (!(saturated ? CheckPressureAlone() : CheckState()) || !TakeSteam(true)) return false;
    InstallFluid(SteamName, false);
    return true;
}

// The row of a saved fluid may be gone from its table, or the table itself; it may also be back by now.
bool FluidForm::RenewPure() {
    if (Calc.FluidRow.size() <= ShortestFluidRow) FindFluidRow();
    if (Calc.FluidRow.size() <= ShortestFluidRow) {
        if (!AskYesNo(Calc.FluidName + " is not in " + Calc.FluidType + ".txt\nKeep the old properties?",
                      "Fluid Properties", Icon::None, Answer::No)) {
            BlankFluid();
        }
        return false;
    }
    ParseFluid();
    return FillFluid();
}

void FluidForm::BlankFluid() {
    constexpr std::size_t vaporPressure = 8, density = 9;  // the line forms have no boxes for them
    Calc.CaseInput[vaporPressure][ThisCase()] = Calc.CaseInput[density][ThisCase()] = 0;
    for (TextBox* box : FluidBoxes(Calc.CaseIndex)) box->SetText("");
    fluidHints_[ThisCase()].clear();
    ClearCase(Calc.CaseIndex);
}

// --- Mixtures ----------------------------------------------------------------------------------------------

// A mixture that is loaded is opened as it is, to be changed; another fluid gives way to an empty one.
void FluidForm::OpenMixture(int caseIndex) {
    Calc.CaseIndex = caseIndex;
    if (!CheckForNewFluid()) return;
    before_ = ChoiceInForce();
    Fluids.Open(Calc.FluidType);
    Calc.FluidOk.clear();
    if (!IsYes(Calc.MixtureFlag)) {
        Calc.FluidData.fill("");
        Calc.FluidPercent.fill(0);
        Calc.MixtureCount = 0;
    }
    Mixture.Open();
    TickEntries();
}

void FluidForm::PickComponent() {
    Mixture.StorePercents();
    Mixture.Show(AddComponent(Fluids.lstFluid.Row(Fluids.lstFluid.Selected())));
}

void FluidForm::cmdClear_Click() { Mixture.ClearPercents(); }

// A mixture that is not to be had leaves its components as they were.
bool FluidForm::FillMixture() {
    const FluidChoice components = ChoiceInForce();
    Calc.SteamKind.clear();
    if (!CalcMixture() || !FillFluid()) {
        Restore(components);
        return false;
    }
    Calc.FluidRow.clear();  // it is that of a component
    return true;
}

void FluidForm::cmdCalcPseudo_Click() {
    Mixture.StorePercents();
    if (!Mixture.CheckPercents() || !FillMixture()) return;
    CloseFluids();
    InstallFluid(MixtureName, true);
    FluidTaken();
    Recalculate();
}

// --- Steam -------------------------------------------------------------------------------------------------

void FluidForm::PickSteam(int caseIndex, const char* kind) {
    Calc.CaseIndex = caseIndex;
    StoreForm();
    if (!(kind == std::string_view(words::Saturated) ? CheckPressureAlone() : CheckState())) return;
    before_ = ChoiceInForce();
    const std::string oldName = Calc.FluidName;
    const bool wasSteam = !Calc.SteamKind.empty();
    Calc.SteamKind = kind;
    Calc.MixtureFlag = words::No;
    Calc.FluidOk = words::FluidPicked;
    if (!TakeSteam(wasSteam)) {
        Restore(before_);
        return;
    }
    Calc.FluidRow.clear();  // steam has none
    InstallFluid(SteamName, oldName != SteamName);
    FluidTaken();
}

// Steam that is not to be had clears the properties of steam before it, but not those of another fluid.
bool FluidForm::TakeSteam(bool wasSteam) {
    const auto inputs = Calc.CaseInput;
    BeginSteam();
    const SteamOutcome outcome = GetSteamData();
    {
        const Filling filling;
        txtFluid.SetText(Calc.FluidName);
        if (outcome == SteamOutcome::NoPressure || outcome == SteamOutcome::Refused) return false;
        if (outcome == SteamOutcome::Cleared && !wasSteam) {
            Calc.CaseInput = inputs;
            return false;
        }
        ShowSteam();
    }
    StateIsDealtWith(Calc.CaseIndex);
    NoteEntered(Calc.CaseIndex);
    if (outcome == SteamOutcome::Found) return true;
    ClearCase(Calc.CaseIndex);
    return false;
}

}  // namespace quillmetra
