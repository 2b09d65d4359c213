// See LineLossForm.h: temperature and pressure as they are entered, and the fluid that goes with them.
#include <utility>

#include "core/Filling.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/LineLossForm.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "reports/FormRows.h"

namespace quillmetra {

namespace {
// A row of a fluid table is longer than this; a shorter text is the rest of something else.
constexpr std::size_t ShortestFluidRow = 25;
}  // namespace

void LineLossForm::HookFluid() {
    mnuFluiProp.Click = [this] { mnuFluiProp_Click(); };
    mnuCase.Each([this](MenuItem& head, int i) { head.Click = [this, i] { mnuCase_Click(i); }; });
    Liquids.cmdSelect.Click = [this] { cmdSelect_Click(); };
    Liquids.lstFluid.DoubleClick = [this] { cmdSelect_Click(); };
    txtTemp.Each([this](TextBox& box, int i) { box.LostFocus = [this, i] { txtTemp_LostFocus(i); }; });
    txtPressure.Each(
        [this](TextBox& box, int i) { box.LostFocus = [this, i] { txtPressure_LostFocus(i); }; });
    for (const auto* states : {&txtTemp, &txtPressure}) {
        states->Each([this](TextBox& box, int) { box.GotFocus = [this, &box] { EnterState(box); }; });
    }
}

bool LineLossForm::HasTempAndPressure(int caseIndex) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    return Calc.TemperatureEntered[i] == words::Entered && Calc.PressureEntered[i] == words::Entered;
}

// A temperature is entered when its box is not empty, a pressure when it is above a perfect vacuum. The
// entries of the case's fluid menu work when both are.
void LineLossForm::NoteEntered(int caseIndex) {
    const auto i = static_cast<std::size_t>(caseIndex);
    const bool blank = Trim(txtTemp(caseIndex).Text()).empty();
    Calc.TemperatureBlank[i] = blank ? 1 : 0;
    Calc.TemperatureEntered[i] = blank ? "" : words::Entered;
    const double barometer = Calc.PressureMode == words::Absolute ? 0
                             : Calc.BaroPressure > 0              ? Calc.BaroPressure
                                                                  : 14.7;
    const bool pressure = !Trim(txtPressure(caseIndex).Text()).empty() &&
                          Val(txtPressure(caseIndex).Text()) * Calc.UnitFactor[3] + barometer > 0;
    Calc.PressureEntered[i] = pressure ? words::Entered : "";
    PureEntries[i]->SetEnabled(HasTempAndPressure(caseIndex));
}

void LineLossForm::mnuFluiProp_Click() {
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    if (HasTempAndPressure(0) || HasTempAndPressure(1) || HasTempAndPressure(2)) return;
    Tell("Need Pressure and Temperature to continue", "Fluid Properties");
}

void LineLossForm::mnuCase_Click(int index) {
    Calc.CaseIndex = index;
    if (!HasTempAndPressure(index)) Tell("Need Pressure and Temperature to continue", "Fluid Properties");
}

void LineLossForm::OpenFluids(int caseIndex) {
    Calc.CaseIndex = caseIndex;
    if (!CheckForNewFluid()) return;
    Calc.MixtureFlag = words::No;
    Calc.FluidOk = words::FluidPicked;
    for (MenuItem* entry : PureEntries) entry->SetChecked(true);
    for (MenuItem* entry : MixtureEntries) entry->SetChecked(false);
    Liquids.Open(Calc.FluidType);
}

bool LineLossForm::CheckForNewFluid() {
    StoreForm();
    const double oldVaporPressure = std::exchange(Calc.CaseInput[8][ThisCase()], 0);
    const bool ok = CheckTempPressureOfCase();
    Calc.CaseInput[8][ThisCase()] = oldVaporPressure;
    return ok;
}

void LineLossForm::cmdSelect_Click() {
    if (Liquids.lstFluid.Selected() < 0) return;
    const std::string oldName = Calc.FluidName;
    const std::string oldRow =
        std::exchange(Calc.FluidRow, Liquids.lstFluid.Row(Liquids.lstFluid.Selected()));
    const bool taken = TakeFluid();
    Liquids.Close();
    if (!taken) {
        Calc.FluidRow = oldRow;  // the fluid in hand is still the former one, and may be renewed from its row
        return;
    }
    Calc.FluidName = Calc.SelectedFluidName;
    Calc.FluidDataSource = words::Loaded;
    {
        const Filling filling;
        txtFluid.SetText(Calc.FluidName);
        txtFluid.SetColours(txtFluid.BackColour(), SlotColour(TextSlot(Calc.FluidName, Calc.FluidNameSaved)));
    }
    if (Calc.FluidName == oldName) {
        ClearCase(Calc.CaseIndex);
    } else {
        // Nor does the former fluid's vapour pressure hold for the other cases.
        for (std::size_t i = 0; i < CaseCount; ++i) {
            if (i != ThisCase()) Calc.CaseInput[8][i] = 0;
        }
        ClearAllCases();
    }
    cmdCalculate.Each([](CommandButton& button, int) { button.SetEnabled(true); });
    cmdCalculate(Calc.CaseIndex).SetFocus();
}

void LineLossForm::UpdateFluidProperties() {
    if (Calc.MixtureFlag != words::Yes) Calc.FluidOk = words::FluidPicked;
    if (!CheckForNewFluid() || Calc.FluidRow.size() <= ShortestFluidRow) return;
    if (TakeFluid()) ClearCase(Calc.CaseIndex);
}

// The question is about what the user changed, so the text that the box had when it was entered counts: an
// act in between may have stored the new one already. A focus that code takes away and gives back is no new
// entry.
void LineLossForm::EnterState(TextBox& box) {
    if (std::exchange(edited_, &box) != &box) textBefore_ = box.Text();
}

void LineLossForm::StateIsDealtWith(int caseIndex) {
    if (edited_ != nullptr && edited_->Index() == caseIndex) edited_ = nullptr;
}

void LineLossForm::LeaveState(int caseIndex, std::size_t row, TextBox& box, bool otherEntered,
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
        if (AskYesNo("Update Fluid Properties?", title)) UpdateFluidProperties();
    } else if (Suite.HideFluidReminder.empty()) {
        if (AskYesNo("Enter new Fluid Properties\n\nStop showing this message?", title)) {
            Suite.HideFluidReminder = words::Yes;
            SaveStandardConditions();
        }
    }
}

void LineLossForm::txtTemp_LostFocus(int index) {
    LeaveState(index, 2, txtTemp(index),
               Calc.PressureEntered[static_cast<std::size_t>(index)] == words::Entered,
               "Temperature Has Changed");
}

void LineLossForm::txtPressure_LostFocus(int index) {
    LeaveState(index, 3, txtPressure(index),
               Calc.TemperatureEntered[static_cast<std::size_t>(index)] == words::Entered,
               "Pressure Has Changed");
}

}  // namespace quillmetra
