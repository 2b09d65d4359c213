// See FluidForm.h: the entries, the questions about temperature and pressure, and what a fluid changes on the
// form. How one is picked is in FluidPicks.cpp.
#include "forms/FluidForm.h"

#include <algorithm>
#include <utility>

#include "core/Filling.h"
#include "core/PhysicalConstants.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidRanges.h"
#include "fluids/SteamTables.h"
#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "units/Border.h"

namespace quillmetra {

namespace {

// The line-loss programs say what has changed; the others do so for a saved record alone.
const char* StateTitle(const char* change) {
    const bool isNew = !program::IsLine(Calc.CurrentProgram) && !IsYes(Calc.BrowserOpen);
    return isNew ? "New Calculation" : change;
}
}  // namespace

void FluidForm::HookFluid() {
    mnuFluiProp.Click = [this] { mnuFluiProp_Click(); };
    mnuCase.Each([this](MenuItem& head, int i) { head.Click = [this, i] { mnuCase_Click(i); }; });
    for (std::size_t i = 0; i < Entries.size(); ++i) {
        const int caseIndex = static_cast<int>(i);
        const FluidEntries& entries = Entries[i];
        entries.Pure->Click = [this, caseIndex] { OpenPure(caseIndex); };
        entries.Mixture->Click = [this, caseIndex] { OpenMixture(caseIndex); };
        if (entries.Saturated == nullptr) continue;
        entries.Saturated->Click = [this, caseIndex] { PickSteam(caseIndex, words::Saturated); };
        entries.Superheated->Click = [this, caseIndex] { PickSteam(caseIndex, words::Superheated); };
    }
    cmdFluid.Describe(&lblFluid);
    cmdFluid.SetToolTip("Picks a fluid of the table, a mixture or steam for all cases");
    cmdFluid.TabStop = false;  // a click leaves the box in hand alone, as a menu does
    cmdFluid.Click = [this] { cmdFluid_Click(); };
    Fluids.cmdSelect.Click = [this] { cmdSelect_Click(); };
    Fluids.cmdCancel.Click = [this] { cmdCancel_Click(); };
    Fluids.lstFluid.DoubleClick = [this] { cmdSelect_Click(); };
    Mixture.cmdCalcPseudo.Click = [this] { cmdCalcPseudo_Click(); };
    Mixture.cmdClear.Click = [this] { cmdClear_Click(); };
    HookState();
}

void FluidForm::HookState() {
    for (std::size_t i = 0; i < Entries.size(); ++i) {
        const int caseIndex = static_cast<int>(i);
        TextBox& temperature = TemperatureBox(caseIndex);
        TextBox& pressure = PressureBox(caseIndex);
        for (TextBox* box : {&temperature, &pressure}) {
            box->GotFocus = [this, box] { EnterState(*box); };
        }
        temperature.LostFocus = [this, caseIndex, i, &temperature] {
            LeaveState(caseIndex, input::Temperature, temperature, Calc.PressureEntered[i] == words::Entered,
                       "Temperature Has Changed");
        };
        pressure.LostFocus = [this, caseIndex, i, &pressure] {
            LeaveState(caseIndex, input::Pressure, pressure, Calc.TemperatureEntered[i] == words::Entered,
                       "Pressure Has Changed");
        };
    }
}

void FluidForm::AppendFluidTabs() {
    TabOrder.insert(std::ranges::find(TabOrder, &cmdFormLayout), &cmdFluid);
    for (Control* control :
         std::initializer_list<Control*>{&Fluids.lstFluid, &Fluids.cmdSelect, &Fluids.cmdCancel}) {
        TabOrder.push_back(control);
    }
    Mixture.txtPercent.Each([this](TextBox& box, int) { TabOrder.push_back(&box); });
    TabOrder.push_back(&Mixture.cmdCalcPseudo);
    TabOrder.push_back(&Mixture.cmdClear);
}

// --- Entries ---------------------------------------------------------------------------------------------

bool FluidForm::HasState(int caseIndex) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    return Calc.TemperatureEntered[i] == words::Entered && Calc.PressureEntered[i] == words::Entered;
}

bool FluidForm::IsTemperatureEntered(int caseIndex) {
    return !Trim(TemperatureBox(caseIndex).Text()).empty();
}

// A pressure is entered when it is above a perfect vacuum. The entries of the case's fluid menu work when
// temperature and pressure are; saturated steam needs the pressure alone.
void FluidForm::NoteEntered(int caseIndex) {
    const auto i = static_cast<std::size_t>(caseIndex);
    Calc.TemperatureBlank[i] = Trim(TemperatureBox(caseIndex).Text()).empty() ? 1 : 0;
    Calc.TemperatureEntered[i] = IsTemperatureEntered(caseIndex) ? words::Entered : "";
    const bool known = Calc.PressureMode == words::Absolute || Calc.BaroPressure > 0;
    const double zero = known ? GaugeZero() : SeaLevelBarometer;
    const std::string& typed = PressureBox(caseIndex).Text();
    const bool pressure = !Trim(typed).empty() && Val(typed) * Calc.UnitFactor[unit::Pressure] + zero > 0;
    Calc.PressureEntered[i] = pressure ? words::Entered : "";

    const FluidEntries& entries = Entries[i];
    for (MenuItem* entry : {entries.Pure, entries.Mixture, entries.Superheated}) {
        if (entry != nullptr) entry->SetEnabled(HasState(caseIndex));
    }
    if (entries.Saturated != nullptr) entries.Saturated->SetEnabled(pressure);
}

bool FluidForm::CanPick(int caseIndex) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    return HasState(caseIndex) ||
           (Entries[i].Saturated != nullptr && Calc.PressureEntered[i] == words::Entered);
}

// A mixture that is being put together counts as picked, as a pure fluid does whose list is open. A name
// typed by hand has no entry.
void FluidForm::TickEntries() {
    const bool building = Mixture.fraComponent.Visible();
    const bool mixture = building || IsYes(Calc.MixtureFlag);
    const bool steam = !building && !Calc.SteamKind.empty();
    lblSteamKind.SetCaption(steam ? Calc.SteamKind + " steam" : "");
    lblSteamKind.SetVisible(steam);
    const bool ofTable = Fluids.IsOpen() || Calc.FluidDataSource == words::Loaded;
    for (const FluidEntries& entries : Entries) {
        entries.Pure->SetChecked(ofTable && !steam && !mixture && Calc.MixtureFlag == words::No);
        entries.Mixture->SetChecked(!steam && mixture);
        if (entries.Saturated == nullptr) continue;
        entries.Saturated->SetChecked(steam && Calc.SteamKind == words::Saturated);
        entries.Superheated->SetChecked(steam && Calc.SteamKind == words::Superheated);
    }
}

void FluidForm::ShowFluidEntries() {
    edited_ = nullptr;
    fluidHints_.fill({});
    titleTail_ = Calc.ProgramTitle.ends_with(TitleTail()) ? TitleTail() : "";
    CloseFluids();
    TickEntries();
    for (std::size_t i = 0; i < Entries.size(); ++i) NoteEntered(static_cast<int>(i));
}

void FluidForm::mnuFluiProp_Click() {
    bool any = false;
    for (int i = 0; i < static_cast<int>(Entries.size()); ++i) {
        NoteEntered(i);
        any = any || CanPick(i);
    }
    if (!any) TellNeedsState(NoCase);
}

void FluidForm::mnuCase_Click(int index) {
    Calc.CaseIndex = index;
    if (!CanPick(index)) TellNeedsState(index);
}

void FluidForm::TellNeedsState(int) { Tell("Need Pressure and Temperature to continue", "Fluid Properties"); }

void FluidForm::RenewFluids() {
    if (Calc.FluidDataSource != words::Loaded) return;
    for (int i = 0; i < CaseCount; ++i) {
        if (CalculateButton(i) == nullptr || !HasData(i)) continue;
        Calc.CaseIndex = i;
        UpdateFluidProperties();
    }
}

void FluidForm::CloseOverlays() {
    if (Fluids.IsOpen()) cmdCancel_Click();
}

// What the box in hand says now is no edit of the user's.
Handler FluidForm::KeepBeside() {
    return [this, former = CalculationForm::KeepBeside(), hints = fluidHints_, tail = titleTail_] {
        former();
        fluidHints_ = hints;
        titleTail_ = tail;
        if (edited_ != nullptr) textBefore_ = edited_->Text();
    };
}

// A fluid of the user's own is no mixture and no steam.
void FluidForm::FluidTyped() {
    fluidHints_.fill({});
    ShowHint("");
    if (!IsYes(Calc.MixtureFlag) && Calc.SteamKind.empty()) return TickEntries();
    Calc.MixtureFlag = words::No;
    Calc.SteamKind.clear();
    ShowTitle();
    TickEntries();
}

// A zero that was typed shows as one; a case whose temperature is blank has none.
void FluidForm::ReopenRecord() {
    const std::string former = Calc.SteamKind.empty() ? TitleTail() : "";
    if (Entries.front().Saturated != nullptr) FindSteamKind();
    if (!Calc.SteamKind.empty() && !Calc.ProgramTitle.ends_with(TitleTail())) {
        if (Calc.ProgramTitle.ends_with(former)) {
            Calc.ProgramTitle.resize(Calc.ProgramTitle.size() - former.size());
        }
        Calc.ProgramTitle += TitleTail();  // the database has no room for it
        Calc.ProgramTitleSaved = Calc.ProgramTitle;
    }
    for (std::size_t i = 0; i < Entries.size(); ++i) {
        if (Calc.TemperatureBlank[i] != 0) continue;
        const int caseIndex = static_cast<int>(i);
        if (Calc.CaseInput[input::Temperature][i] == 0) TemperatureBox(caseIndex).SetText("0");
        if (Calc.CaseInput[input::Pressure][i] == 0) PressureBox(caseIndex).SetText("0");
    }
}

// A record of an earlier version says "steam" in its fluid name alone: the normal case tells whether it is at
// saturation. The pressure is taken as a gauge pressure at sea level; it only chooses the word.
void FluidForm::FindSteamKind() {
    constexpr std::size_t normal = 1;
    const double pressure = Calc.CaseInput[input::Pressure][normal];
    if (!Calc.SteamKind.empty() || pressure <= 0) return;
    if (LowerCase(Calc.FluidName).find("steam") == std::string::npos) return;
    const Setting finding(Calc.SteamFindMode, words::FindSaturation, "");
    Calc.FlowPressure = pressure * Calc.UnitFactor[unit::Pressure] + SeaLevelBarometer;
    if (LookupSaturatedSteam()) {
        const bool same = Int(Calc.SaturationTemperature) == Int(Calc.CaseInput[input::Temperature][normal]);
        Calc.SteamKind = same ? words::Saturated : words::Superheated;
    }
}

// --- What a fluid changes on the form ----------------------------------------------------------------------

void FluidForm::ShowProperty(TextBox& box, double value) {
    ShowNumber(box, value);
    box.SetColours(box.BackColour(), SlotColour(InputSlot(box)));
}

// The tail of the former fluid goes.
void FluidForm::ShowTitle() {
    if (Calc.ProgramTitle.ends_with(titleTail_)) {
        Calc.ProgramTitle.resize(Calc.ProgramTitle.size() - titleTail_.size());
    }
    titleTail_ = TitleTail();
    Calc.ProgramTitle += titleTail_;
    SetCaption(Suite.VersionText + Calc.ProgramTitle);
}

// The fluid of the case in hand is another one, or the same at another state.
void FluidForm::InstallFluid(const std::string& name, bool isAnother) {
    Calc.FluidName = name;
    Calc.FluidDataSource = words::Loaded;
    {
        const Filling filling;
        ShowTitle();
        txtFluid.SetText(Calc.FluidName);
        txtFluid.SetColours(txtFluid.BackColour(), SlotColour(TextSlot(Calc.FluidName, Calc.FluidNameSaved)));
    }
    TickEntries();
    if (isAnother) {
        fluidHints_.fill({});
        // Nor does the former fluid's vapour pressure hold for the other cases.
        for (std::size_t i = 0; i < CaseCount; ++i) {
            if (i != ThisCase()) Calc.CaseInput[input::VaporPressure][i] = 0;
        }
        ClearAllCases();
    } else {
        ClearCase(Calc.CaseIndex);
    }
    fluidHints_[ThisCase()] = FluidHints();
    ShowHint(Sentences(FluidForm::Hints()));  // of the fluid alone: the line is not calculated yet
    PropertiesTaken();
}

// --- Temperature and pressure ------------------------------------------------------------------------------

// The question is about what the user changed, so the text that the box had when it was entered counts: an
// act in between may have stored the new one already. A focus that code takes away and gives back is no new
// entry.
void FluidForm::EnterState(TextBox& box) {
    if (std::exchange(edited_, &box) != &box) textBefore_ = box.Text();
}

void FluidForm::StateIsDealtWith(int caseIndex) {
    if (edited_ != nullptr && edited_->Index() == caseIndex) edited_ = nullptr;
}

void FluidForm::LeaveState(int caseIndex, std::size_t row, TextBox& box, bool otherEntered,
                           const char* title) {
    const bool wasEdited = std::exchange(edited_, nullptr) == &box;
    const double typed = Val(box.Text());
    const bool isNew =
        wasEdited && !Trim(box.Text()).empty() && (Trim(textBefore_).empty() || typed != Val(textBefore_));
    NoteEntered(caseIndex);
    if (!isNew) return;
    Calc.CaseInput[row][static_cast<std::size_t>(caseIndex)] = typed;
    if (!otherEntered) return;
    Calc.CaseIndex = caseIndex;
    if (Calc.FluidDataSource == words::Loaded) {
        if (!AskYesNo("Update Fluid Properties?", StateTitle(title))) return;
        if (UpdateFluidProperties() && Calc.SteamKind == words::Saturated && row == input::Temperature) {
            Tell("Saturated temperature is a function of saturated pressure", "Saturated Steam", Icon::Stop);
        }
    } else if (Suite.HideFluidReminder.empty()) {
        if (AskYesNo("Enter new Fluid Properties\n\nStop showing this message?", StateTitle(title))) {
            Suite.HideFluidReminder = words::Yes;
            SaveStandardConditions();
        }
    }
}

}  // namespace quillmetra
