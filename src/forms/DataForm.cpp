// See DataForm.h.
#include "forms/DataForm.h"

#include "core/Filling.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {
constexpr std::array<const char*, CaseCount> CaseMenus = {"&Case 1", "C&ase 2", "Ca&se 3"};
}

DataForm::DataForm(const Names& names) : FluidForm(names) {
    for (int i = 0; i < CaseCount; ++i) {
        const auto word = static_cast<std::size_t>(i);
        lblCase(i).SetCaption("Case " + std::to_string(i + 1));
        mnuCase(i).SetCaption(CaseMenus[word]);
        cmdOK(i).SetCaption(words::Cases[word]);
        cmdOK(i).Describe(&lblCase(i));
        cmdOK(i).SetToolTip("Finds the properties of the fluid in hand for Case " + std::to_string(i + 1));
        cmdOK(i).Click = [this, i] { cmdOK_Click(i); };
    }
    cmdCalculateAll.SetToolTip(CalculateAllTip);
    cmdCalculateAll.Click = [this] { CalculateAll(); };
    HookUnits(cmdUnits);
}

void DataForm::Assemble() {
    HookFluid();
    DescribeRows();
    TabOrder = {&txtTagNum, &txtFluid};
    for (int i = 0; i < CaseCount; ++i) {
        for (Control* control : std::initializer_list<Control*>{&txtTemp(i), &txtPressure(i), &cmdOK(i)}) {
            TabOrder.push_back(control);
        }
    }
    for (Control* control : std::initializer_list<Control*>{
             &cmdCalculateAll, &txtBy, &txtApprov, &cmdDate, &txtComments(0), &txtComments(1), &cmdFormLayout,
             &cmdUnits(unit::Temperature), &cmdUnits(unit::Pressure)}) {
        TabOrder.push_back(control);
    }
    AppendFluidTabs();
}

void DataForm::ShowChoices() { ShowFluidEntries(); }

void DataForm::StoreOwn() {
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
}

// A temperature of exactly zero counts as none.
bool DataForm::IsTemperatureEntered(int caseIndex) { return Val(txtTemp(caseIndex).Text()) != 0; }

void DataForm::TellNeedsState(int caseIndex) {
    if (caseIndex == NoCase) return;  // each case tells for itself
    Tell(cmdOK(caseIndex).Caption() + " Case \nNeed the pressure and temperature", "Fluid Properties");
}

bool DataForm::CheckState() {
    StoreForm();
    Calc.TempPressureOk = words::No;
    RestoreStandardConditions();
    const std::size_t i = ThisCase();
    Calc.FlowTemperature = TemperatureIn(Calc.CaseInput[input::Temperature][i]);
    TakePressure(i);
    NoteEntered(Calc.CaseIndex);
    if (!HasState(Calc.CaseIndex)) return false;
    if (!IsAboveAbsoluteZero(Calc.FlowTemperature)) {
        return RefuseData(
            "Flow Temperature must be greater than " + Str(AbsoluteZeroIn(Calc.UnitName[unit::Temperature])),
            txtTemp(Calc.CaseIndex));
    }
    Calc.TempPressureOk = words::Yes;
    return true;
}

// Saturated steam finds its temperature by itself.
bool DataForm::HasData(int caseIndex) {
    NoteEntered(caseIndex);
    const bool hasPressure = !Trim(txtPressure(caseIndex).Text()).empty();
    const bool hasTemperature = !Trim(txtTemp(caseIndex).Text()).empty();
    return hasPressure && (hasTemperature || (Calc.SteamKind == words::Saturated && CanPick(caseIndex)));
}

void DataForm::cmdOK_Click(int index) {
    Calc.CaseIndex = index;
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    const bool enough = HasState(index) || (Calc.SteamKind == words::Saturated && CanPick(index));
    if (!enough) return TellNeedsState(index);
    if (Calc.FluidDataSource != words::Loaded)
        return SetStatus("Pick a fluid first, in the menu Fluid properties");
    UpdateFluidProperties();
}

void DataForm::Store(std::initializer_list<Property> properties) {
    for (const Property& property : properties) ShownFigures(property.Value);
    for (const Property& property : properties) {
        Calc.CaseInput[property.Row][ThisCase()] = RoundedFour(property.Value);
    }
}

// The properties are the results: they stand from now on, and the refresh shows them.
void DataForm::PropertiesTaken() {
    Calc.DataOk = words::Yes;
    Calc.CalculatedFlag = words::Yes;
    Calc.ResultsClearable[ThisCase()] = words::Yes;
    ShowCalculated();
}

void DataForm::FluidTaken() { txtBy.SetFocus(); }

}  // namespace quillmetra
