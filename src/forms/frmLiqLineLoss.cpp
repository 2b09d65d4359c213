// See frmLiqLineLoss.h.
#include "forms/frmLiqLineLoss.h"

#include "core/Filling.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/LiquidData.h"
#include "forms/ColourSchemes.h"
#include "forms/DataCheck.h"
#include "lineloss/Friction.h"
#include "lineloss/LiquidLineLoss.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "tables/PipeSizes.h"
#include "units/Rounding.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

constexpr const char* CaseWords[CaseCount] = {"Maximum", "Normal", "Minimum"};
// A row of a fluid table is longer than this; a shorter text is the rest of something else.
constexpr std::size_t ShortestFluidRow = 25;

std::size_t ThisCase() { return static_cast<std::size_t>(Calc.CaseIndex); }

}  // namespace

frmLiqLineLoss::frmLiqLineLoss()
    : CalculationForm({.Program = 1,
                       .Form = "frmLiqLineLoss",
                       .FluidMenu = "mnuFluiProp",
                       .ListFrame = "fraLiquidData",
                       .ListCaption = "Liquids"}) {
    for (int i = 0; i < CaseCount; ++i) {
        lblCase(i).SetCaption(CaseWords[i]);
        cmdCalculate(i).SetCaption(CaseWords[i]);
        cmdCalculate(i).SetToolTip(std::string("Calculates the ") + CaseWords[i] + " case");
    }
    chkEntrance.SetToolTip("Allows for a large reduction in line size");
    chkExit.SetToolTip("Allows for a large increase in line size");
    lstMatl.SetVisible(false);
    lstMatl.Describe(&lblMatl);
    cmdMatl.Describe(&lblMatl);
    optDestination.SetChecked(true);
    cmdUnits.Each([this](CommandButton& button, int) {
        button.SetToolTip("The unit of this row; click to change units");
        button.Click = [this] { OpenPanel("frmUnits"); };
    });
    // Mixtures are yet to come.
    for (MenuItem* mixture : {&mnuMixture1, &mnuMixture2, &mnuMixture3}) mixture->SetEnabled(false);
    for (MenuItem* pure : {&mnuPureLiquid1, &mnuPureLiquid2, &mnuPureLiquid3}) pure->SetEnabled(false);
    Hook();
    DescribeRows();
    OrderTabs();
}

// Tab follows the reading order of the data: what names the calculation, the line, then case by case
// downwards, each with its calculate button, and the signatures; unit buttons come last.
void frmLiqLineLoss::OrderTabs() {
    TabOrder = {&txtTagNum,        &txtFluid,          &txtInletPipeLen, &txtInletPipeID, &cmdPipeID,
                &txtInletPipeElev, &txtOutletPipeElev, &txtPipeCond,     &cmdMatl,        &lstMatl,
                &txtInletGate,     &txtInletGlobe,     &txtInletCheck,   &txtInlet90Deg,  &txtInlet45Deg,
                &txtInletThru,     &txtInletBranch,    &chkEntrance,     &chkExit,        &optDestination,
                &optSource};
    for (int i = 0; i < CaseCount; ++i) {
        for (const auto* boxes : {&txtFlow, &txtTemp, &txtPressure, &txtSGFlow, &txtViscosity, &txtEquip}) {
            TabOrder.push_back(&(*boxes)(i));
        }
        TabOrder.push_back(&cmdCalculate(i));
    }
    for (Control* control : std::initializer_list<Control*>{&txtBy, &txtApprov, &cmdDate, &txtComments(0),
                                                            &txtComments(1), &cmdFormLayout}) {
        TabOrder.push_back(control);
    }
    cmdUnits.Each([this](CommandButton& button, int) { TabOrder.push_back(&button); });
    for (Control* control :
         std::initializer_list<Control*>{&Liquids.lstFluid, &Liquids.cmdSelect, &Liquids.cmdCancel}) {
        TabOrder.push_back(control);
    }
}

void frmLiqLineLoss::Hook() {
    cmdCalculate.Each(
        [this](CommandButton& button, int i) { button.Click = [this, i] { cmdCalculate_Click(i); }; });
    cmdPipeID.Click = [this] { cmdPipeID_Click(); };
    cmdMatl.Click = [this] { cmdMatl_Click(); };
    lstMatl.DoubleClick = [this] { lstMatl_DoubleClick(); };
    lstMatl.KeyPress = [this](Key& key) {
        key.Handled = key.Name == "Enter" || key.Name == "Escape";
        if (key.Name == "Enter") lstMatl_DoubleClick();
        if (key.Name == "Escape") cmdMatl_Click();
    };
    for (CheckBox* tick : {&chkEntrance, &chkExit}) {
        tick->Click = [this, tick] {
            PaintTick(*tick, Calc.PipeDataShown[tick == &chkEntrance ? 4 : 5]);
            ClearAllCases();
        };
    }
    optDestination.Click = [this] { optDestination_Click(); };
    optSource.Click = [this] { optSource_Click(); };
    mnuFluiProp.Click = [this] { mnuFluiProp_Click(); };
    mnuCase.Each([this](MenuItem& head, int i) { head.Click = [this, i] { mnuCase_Click(i); }; });
    mnuPureLiquid1.Click = [this] { mnuPureLiquid_Click(0); };
    mnuPureLiquid2.Click = [this] { mnuPureLiquid_Click(1); };
    mnuPureLiquid3.Click = [this] { mnuPureLiquid_Click(2); };
    Liquids.cmdSelect.Click = [this] { cmdSelect_Click(); };
    Liquids.lstFluid.DoubleClick = [this] { cmdSelect_Click(); };
    txtTemp.Each([this](TextBox& box, int i) { box.LostFocus = [this, i] { txtTemp_LostFocus(i); }; });
    txtPressure.Each(
        [this](TextBox& box, int i) { box.LostFocus = [this, i] { txtPressure_LostFocus(i); }; });
    for (const auto* states : {&txtTemp, &txtPressure}) {
        states->Each([this](TextBox& box, int) { box.GotFocus = [this, &box] { EnterState(box); }; });
    }
}

void frmLiqLineLoss::ShowChoices() {
    edited_ = nullptr;
    lstMatl.SetVisible(false);
    const bool mixture = Calc.MixtureFlag == words::Yes;
    for (MenuItem* entry : {&mnuMixture1, &mnuMixture2, &mnuMixture3}) entry->SetChecked(mixture);
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    if (Calc.PressureDirection == 2) {
        optSource.SetChecked(true);
        lblDestPress.SetCaption("Source pressure");
    } else {
        Calc.PressureDirection = 1;
        optDestination.SetChecked(true);
        lblDestPress.SetCaption("Destination pressure");
    }
}

void frmLiqLineLoss::StoreOwn() {
    Calc.PipeData[4] = chkEntrance.Checked() ? 2 : 1;
    Calc.EntranceK = chkEntrance.Checked() ? 1.5 : 0;
    Calc.PipeData[5] = chkExit.Checked() ? 2 : 1;
    Calc.ExitK = chkExit.Checked() ? 2.7 : 0;
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    cmdUnits.Each([](const CommandButton& button, int row) {
        // Row 6 keeps its unit while it is hidden; a caption is empty before the first refresh.
        if (row != 6 && !button.Caption().empty())
            Calc.UnitName[static_cast<std::size_t>(row)] = button.Caption();
    });
    if (!unVelocity.Caption().empty()) Calc.UnitName[20] = unVelocity.Caption();
    Calc.PipeMaterial = cmdMatl.Caption();
    Calc.CaseText[5] = Calc.CaseUnitsText[5] = Calc.PipeMaterial;
}

// --- Calculation ---------------------------------------------------------------------------------------

bool frmLiqLineLoss::CheckTempPressureOfCase() {
    return CheckTempPressure(*this, {txtTemp(Calc.CaseIndex), txtPressure(Calc.CaseIndex)});
}

// Takes the working layer from the display layer, test by test in the order of the form.
bool frmLiqLineLoss::CheckData() {
    constexpr double longestLine = 10000000;  // ft
    const int caseIndex = Calc.CaseIndex;
    const std::size_t i = ThisCase();
    const UnitFactors& factor = Calc.UnitFactor;
    Calc.DataOk = words::No;
    if (!CheckTempPressureOfCase()) return false;

    Calc.PipeLength[1] = Calc.PipeData[1] * factor[25];
    if (!(Calc.PipeLength[1] > 0)) return RefuseData("Length must be > zero ", txtInletPipeLen);
    if (Calc.PipeLength[1] >= longestLine) return RefuseData("Length must be < 10000000 ft", txtInletPipeLen);
    Calc.PipeId[1] = Calc.PipeData[2] * factor[18];
    if (!(Calc.PipeId[1] > 0)) return RefuseData("Pipe inside diameter must be > zero ", txtInletPipeID);

    Calc.Elevation[1] = Calc.PipeData[3] * factor[25];
    Calc.Elevation[2] = Calc.CaseInput[25][0] * factor[25];
    Calc.GateValves = Calc.FittingCount[1];
    Calc.GlobeValves = Calc.FittingCount[2];
    Calc.CheckValves = Calc.FittingCount[3];
    Calc.Ells90 = Calc.FittingCount[4];
    Calc.Ells45 = Calc.FittingCount[5];
    Calc.ThruTees = Calc.FittingCount[6];
    Calc.BranchTees = Calc.FittingCount[7];
    if (Calc.PipeFouling > 100 || Calc.PipeFouling < 0) {
        return RefuseData("Condition must be between 0 and 100", txtPipeCond);
    }

    Calc.SourcePressure[1] = Calc.CaseInput[3][i] * factor[3];
    if (Calc.PressureMode != words::Absolute) Calc.SourcePressure[1] += Calc.BaroPressure;
    if (!(Calc.SourcePressure[1] > 0)) {
        return RefuseData("Absolute Source Pressure must be greater than zero", txtPressure(caseIndex));
    }
    Calc.EquipLoss[1] = Calc.CaseInput[4][i] * factor[4];

    if (Calc.LiquidDensityMode == words::Density) {
        Calc.FlowingSG = Calc.CaseInput[6][i] * factor[6] / 62.366;
        if (!(Calc.FlowingSG > 0)) {
            return RefuseData("Flowing Density must be greater than zero", txtSGFlow(caseIndex));
        }
    } else {
        Calc.FlowingSG = Calc.CaseInput[6][i];
        if (!(Calc.FlowingSG > 0)) {
            return RefuseData("Flowing specific gravity must be greater than zero", txtSGFlow(caseIndex));
        }
    }

    Calc.MassFlow = Calc.CaseInput[1][i] * factor[1];
    if (Calc.LiquidBasis == words::Volume) Calc.MassFlow = Calc.MassFlow * Calc.FlowingSG * 8.3378;
    if (!(Calc.MassFlow > 0)) return RefuseData("Flow must be greater than zero", txtFlow(caseIndex));

    Calc.Viscosity = Calc.CaseInput[7][i] * factor[7];
    if (const double kinematic = CentistokesPerUnit(Calc.UnitName[7]); kinematic > 0) {
        Calc.Viscosity = Calc.Viscosity * Calc.FlowingSG * kinematic;
    }
    if (!(Calc.Viscosity > 0))
        return RefuseData("Viscosity must be greater than zero", txtViscosity(caseIndex));

    ShowCalculation();
    Calc.DataOk = words::Yes;
    return true;
}

void frmLiqLineLoss::cmdCalculate_Click(int index) {
    Calc.CaseIndex = index;
    StoreForm();
    if (!CheckData()) return;
    Calc.PipeIndex = 1;
    CalcFriction();
    CalcFinalPressure();
    if (Calc.FlowPressure == 0) return;  // the line cannot deliver; the user has been told
    Calc.FinalPressure = Calc.FlowPressure;
    ShowResults();
    MarkCalculated();
    ShowCalculation();
    txtBy.SetFocus();
    Calc.CalculatedFlag = words::Yes;
}

void frmLiqLineLoss::ShowResults() {
    const LiquidLineResults results = LiquidLineResultsOf(Calc);
    const Filling filling;
    const int i = Calc.CaseIndex;
    Calc.CaseResult[1][ThisCase()] = results.FinalPressure;
    Calc.CaseResult[0][ThisCase()] = results.LossPer100;
    Calc.CaseResult[2][ThisCase()] = results.Velocity;
    Calc.CaseResult[4][ThisCase()] = results.Reynolds;
    Calc.CaseResult[5][0] = results.EquivLength;
    ShowNumber(txtDestPress(i), results.FinalPressure);
    ShowNumber(txtDropP100(i), results.LossPer100);
    ShowNumber(txtVelocity(i), results.Velocity);
    ShowNumber(txtReynoldsNum(i), results.Reynolds);
    ShowNumber(txtEquivLen, results.EquivLength);
    if (Calc.EquivLength == 0) txtDropP100(i).SetText("");  // nothing to spread the loss over
    Calc.ResultsClearable[ThisCase()] = words::Yes;
}

// --- The line ------------------------------------------------------------------------------------------

void frmLiqLineLoss::cmdPipeID_Click() {
    StoreForm();
    Calc.MessageText = words::PipeLiquidLoss;
    PreparePipeUnits();
}

void frmLiqLineLoss::cmdMatl_Click() {
    if (lstMatl.Visible()) {
        lstMatl.SetVisible(false);
        cmdMatl.SetFocus();
        return;
    }
    lstMatl.SetRows({Calc.PipeMaterialName.begin() + 1, Calc.PipeMaterialName.end()});
    lstMatl.Preselect(Calc.PipeMaterialNumber - 1);
    lstMatl.SetVisible(true);
    lstMatl.SetFocus();
}

void frmLiqLineLoss::lstMatl_DoubleClick() {
    const int row = lstMatl.Selected();
    if (row < 0) return;
    Calc.PipeMaterialNumber = row + 1;
    Calc.PipeMaterial = lstMatl.Row(row);
    cmdMatl.SetCaption(Calc.PipeMaterial);
    lstMatl.SetVisible(false);
    cmdMatl.SetFocus();
    ClearAllCases();
}

void frmLiqLineLoss::optDestination_Click() {
    Calc.PressureDirection = 1;
    lblPressure.SetCaption("Source pressure");
    lblDestPress.SetCaption("Destination pressure");
    ClearAllCases();
}

void frmLiqLineLoss::optSource_Click() {
    Calc.PressureDirection = 2;
    lblPressure.SetCaption("Destination pressure");
    lblDestPress.SetCaption("Source pressure");
    ClearAllCases();
}

// --- The fluid -----------------------------------------------------------------------------------------

bool frmLiqLineLoss::HasTempAndPressure(int caseIndex) const {
    const auto i = static_cast<std::size_t>(caseIndex);
    return Calc.TemperatureEntered[i] == words::Entered && Calc.PressureEntered[i] == words::Entered;
}

// A temperature is entered when its box is not empty, a pressure when it is above a perfect vacuum. The
// entries of the case's fluid menu work when both are.
void frmLiqLineLoss::NoteEntered(int caseIndex) {
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
    MenuItem* const entries[] = {&mnuPureLiquid1, &mnuPureLiquid2, &mnuPureLiquid3};
    entries[i]->SetEnabled(HasTempAndPressure(caseIndex));
}

void frmLiqLineLoss::mnuFluiProp_Click() {
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    if (HasTempAndPressure(0) || HasTempAndPressure(1) || HasTempAndPressure(2)) return;
    Tell("Need Pressure and Temperature to continue", "Fluid Properties");
}

void frmLiqLineLoss::mnuCase_Click(int index) {
    Calc.CaseIndex = index;
    if (!HasTempAndPressure(index)) Tell("Need Pressure and Temperature to continue", "Fluid Properties");
}

void frmLiqLineLoss::mnuPureLiquid_Click(int index) {
    Calc.CaseIndex = index;
    if (!CheckForNewFluid()) return;
    Calc.MixtureFlag = words::No;
    Calc.FluidOk = words::FluidPicked;
    for (MenuItem* entry : {&mnuPureLiquid1, &mnuPureLiquid2, &mnuPureLiquid3}) entry->SetChecked(true);
    for (MenuItem* entry : {&mnuMixture1, &mnuMixture2, &mnuMixture3}) entry->SetChecked(false);
    Liquids.Open(words::Liquid);
}

bool frmLiqLineLoss::CheckForNewFluid() {
    StoreForm();
    const double oldVaporPressure = std::exchange(Calc.CaseInput[8][ThisCase()], 0);
    const bool ok = CheckTempPressureOfCase();
    Calc.CaseInput[8][ThisCase()] = oldVaporPressure;
    return ok;
}

void frmLiqLineLoss::cmdSelect_Click() {
    if (Liquids.lstFluid.Selected() < 0) return;
    const std::string oldName = Calc.FluidName;
    const std::string oldRow =
        std::exchange(Calc.FluidRow, Liquids.lstFluid.Row(Liquids.lstFluid.Selected()));
    const bool taken = TakeLiquid();
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

bool frmLiqLineLoss::TakeLiquid() {
    ParseLiquidRow();
    if (!ProcessLiquidData()) return false;
    try {
        FillCase();
    } catch (const RuntimeError&) {
        return TellNotCalculated();
    }
    return true;
}

// Rounds the liquid's properties into the case in hand, in the units shown. Nothing is stored when one of
// them is not finite in its unit.
void frmLiqLineLoss::FillCase() {
    const Filling filling;
    const std::size_t i = ThisCase();
    const int caseIndex = Calc.CaseIndex;
    double vaporPressure = 0;
    if (Calc.VaporPressure > 0) {
        Calc.VaporPressure = RoundedFour(Calc.VaporPressure);
        vaporPressure = CheckFinite(RoundedFour(Calc.VaporPressure / Calc.UnitFactor[8]));
    }
    Calc.FlowingSG = RoundedFour(Calc.FlowingSG);
    const double gravity = CheckFinite(Calc.LiquidDensityMode == words::Density
                                           ? RoundedFour(Calc.FlowingSG / Calc.UnitFactor[5] * 62.366)
                                           : Calc.FlowingSG);
    double viscosity = Calc.FluidViscosity / Calc.UnitFactor[7];
    if (const double kinematic = CentistokesPerUnit(Calc.UnitName[7]); kinematic > 0) {
        viscosity = viscosity / Calc.FlowingSG / kinematic;
    }
    Calc.CaseInput[7][i] = CheckFinite(RoundedFour(viscosity));
    Calc.CaseInput[8][i] = vaporPressure;
    Calc.CaseInput[6][i] = gravity;
    Calc.Viscosity = Calc.FluidViscosity;
    if (edited_ != nullptr && edited_->Index() == caseIndex) edited_ = nullptr;
    ShowNumber(txtSGFlow(caseIndex), Calc.CaseInput[6][i]);
    ShowNumber(txtViscosity(caseIndex), Calc.CaseInput[7][i]);
}

void frmLiqLineLoss::UpdateFluidProperties() {
    if (Calc.MixtureFlag != words::Yes) Calc.FluidOk = words::FluidPicked;
    if (!CheckForNewFluid() || Calc.FluidRow.size() <= ShortestFluidRow) return;
    if (TakeLiquid()) ClearCase(Calc.CaseIndex);
}

// The question is about what the user changed, so the text that the box had when it was entered counts: an
// act in between may have stored the new one already. A focus that code takes away and gives back is no new
// entry.
void frmLiqLineLoss::EnterState(TextBox& box) {
    if (std::exchange(edited_, &box) != &box) textBefore_ = box.Text();
}

void frmLiqLineLoss::LeaveState(int caseIndex, std::size_t row, TextBox& box, bool otherEntered,
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

void frmLiqLineLoss::txtTemp_LostFocus(int index) {
    LeaveState(index, 2, txtTemp(index),
               Calc.PressureEntered[static_cast<std::size_t>(index)] == words::Entered,
               "Temperature Has Changed");
}

void frmLiqLineLoss::txtPressure_LostFocus(int index) {
    LeaveState(index, 3, txtPressure(index),
               Calc.TemperatureEntered[static_cast<std::size_t>(index)] == words::Entered,
               "Pressure Has Changed");
}

}  // namespace quillmetra
