// See FluidForm.h: how a pure fluid, a mixture or steam is picked for the case in hand.
#include <algorithm>
#include <utility>

#include "core/Filling.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "fluids/Mixtures.h"
#include "fluids/SteamTables.h"
#include "forms/FluidForm.h"
#include "forms/frmFluid.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {
// A row of a fluid table is longer than this; a shorter text is the rest of something else.
constexpr std::size_t ShortestFluidRow = 25;
constexpr const char* MixtureName = "Mixture";
constexpr const char* SteamName = "Steam";
}  // namespace

namespace {
// In the place of those that the record has.
void SetComponents(const std::vector<FluidPart>& parts) {
    Calc.FluidData.fill("");
    Calc.FluidPercent.fill(0);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        Calc.FluidData[i] = parts[i].Row;
        Calc.FluidPercent[i] = parts[i].Percent;
    }
    Calc.MixtureCount = std::min(static_cast<int>(parts.size()), MostComponents - 1);
}
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
    if (Mixture.fraComponent.Visible()) return PickComponent();
    TakePure(Fluids.Picked());
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

bool FluidForm::BeginPure(int caseIndex) {
    Calc.CaseIndex = caseIndex;
    if (!CheckForNewFluid()) return false;
    before_ = ChoiceInForce();
    Calc.MixtureFlag = words::No;
    Calc.SteamKind.clear();
    Calc.FluidOk = words::FluidPicked;
    return true;
}

void FluidForm::OpenPure(int caseIndex) {
    if (!BeginPure(caseIndex)) return;
    Fluids.Open(Calc.FluidType);
    TickEntries();
}

bool FluidForm::TakePure(const std::string& row) {
    const std::string oldName = Calc.FluidName;
    Calc.FluidRow = row;
    ParseFluid();
    const bool taken = FillFluid();
    CloseFluids();
    if (!taken) {
        Restore(before_);  // the fluid in hand is still the former one, and may be renewed from its row
        return false;
    }
    InstallFluid(Calc.SelectedFluidName, Calc.SelectedFluidName != oldName);
    FluidTaken();
    return true;
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
bool FluidForm::BeginMixture(int caseIndex) {
    Calc.CaseIndex = caseIndex;
    if (!CheckForNewFluid()) return false;
    before_ = ChoiceInForce();
    Calc.FluidOk.clear();
    if (!IsYes(Calc.MixtureFlag)) SetComponents({});
    return true;
}

void FluidForm::OpenMixture(int caseIndex) {
    if (!BeginMixture(caseIndex)) return;
    Fluids.Open(Calc.FluidType);
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

bool FluidForm::TakeMixture() {
    if (!Mixture.CheckPercents() || !FillMixture()) return false;
    CloseFluids();
    InstallFluid(MixtureName, true);
    FluidTaken();
    Recalculate();
    return true;
}

void FluidForm::cmdCalcPseudo_Click() {
    Mixture.StorePercents();
    TakeMixture();
}

// --- Steam -------------------------------------------------------------------------------------------------

bool FluidForm::PickSteam(int caseIndex, const char* kind) {
    Calc.CaseIndex = caseIndex;
    StoreForm();
    if (!(kind == std::string_view(words::Saturated) ? CheckPressureAlone() : CheckState())) return false;
    before_ = ChoiceInForce();
    const std::string oldName = Calc.FluidName;
    const bool wasSteam = !Calc.SteamKind.empty();
    Calc.SteamKind = kind;
    Calc.MixtureFlag = words::No;
    Calc.FluidOk = words::FluidPicked;
    if (!TakeSteam(wasSteam)) {
        Restore(before_);
        return false;
    }
    Calc.FluidRow.clear();  // steam has none
    InstallFluid(SteamName, oldName != SteamName);
    FluidTaken();
    return true;
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

// --- The dialog of the fluid
// ---------------------------------------------------------------------------------

void FluidForm::cmdFluid_Click() {
    for (int i = 0; i < FluidCases(); ++i) NoteEntered(i);
    auto& dialog = static_cast<frmFluid&>(LoadForm("frmFluid"));
    dialog.Open(*this);
    ShowForm(dialog.Name(), Modal::Yes);
}

FluidPick FluidForm::PickInForce() {
    if (!Calc.SteamKind.empty()) {
        const bool saturated = Calc.SteamKind == words::Saturated;
        return {.What = saturated ? FluidPick::Kind::Saturated : FluidPick::Kind::Superheated};
    }
    FluidPick pick{.Name = Calc.FluidName};
    if (!IsYes(Calc.MixtureFlag)) return pick;
    pick.What = FluidPick::Kind::Mixture;
    for (std::size_t i = 0; i < static_cast<std::size_t>(ComponentCount()); ++i) {
        pick.Parts.push_back({Calc.FluidData[i], Calc.FluidPercent[i]});
    }
    return pick;
}

std::string FluidForm::LackOf(int caseIndex, FluidPick::Kind kind) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    const bool temperature =
        kind == FluidPick::Kind::Saturated || Calc.TemperatureEntered[i] == words::Entered;
    const bool pressure = Calc.PressureEntered[i] == words::Entered;
    if (temperature && pressure) return "";
    if (!temperature && !pressure) return "needs temperature and pressure";
    return temperature ? "needs the pressure" : "needs the temperature";
}

bool FluidForm::Pick(int caseIndex, const FluidPick& pick) {
    switch (pick.What) {
        case FluidPick::Kind::Pure: return BeginPure(caseIndex) && TakePure(pick.Row);
        case FluidPick::Kind::Mixture: return PickMixture(caseIndex, pick.Parts);
        case FluidPick::Kind::Saturated: return PickSteam(caseIndex, words::Saturated);
        default: return PickSteam(caseIndex, words::Superheated);
    }
}

// Where a mixture that is refused is given up, as by Cancel: its components are still in the dialog.
bool FluidForm::PickMixture(int caseIndex, const std::vector<FluidPart>& parts) {
    if (!BeginMixture(caseIndex)) return false;
    SetComponents(parts);
    if (TakeMixture()) return true;
    Restore(before_);
    return false;
}

// The number of a case is its key: the letters of the data forms' menus are taken in the dialog.
std::string FluidForm::CaptionOfCase(int caseIndex) const {
    if (!mnuCase.Has(caseIndex)) return "&Operating state";
    std::string caption = mnuCase(caseIndex).Caption();
    if (!IsDigit(caption.back())) return caption;
    std::erase(caption, '&');
    caption.insert(caption.end() - 1, '&');
    return caption;
}

}  // namespace quillmetra
