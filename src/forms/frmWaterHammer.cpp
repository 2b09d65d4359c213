// See frmWaterHammer.h: the form's life, its liquid and its pipe. The calculation is in WaterHammerCase.cpp.
#include "forms/frmWaterHammer.h"

#include "core/Filling.h"
#include "core/Words.h"
#include "fluids/LiquidCorrelations.h"
#include "forms/ListTables.h"
#include "hammer/PipeModulus.h"
#include "platform/Arithmetic.h"
#include "platform/Dialogs.h"
#include "records/TextLengths.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "tables/TableFiles.h"
#include "units/Border.h"
#include "units/Conversion.h"
#include "units/ProgramConversion.h"
#include "units/Rounding.h"

namespace quillmetra {

frmWaterHammer::frmWaterHammer()
    : FluidForm({.Program = 3,
                 .Form = "frmWaterHammer",
                 .FluidMenu = "mnuFluidProp",
                 .ListFrame = "fraLiquidData",
                 .ListCaption = "Liquids",
                 .Cases = OneCase}),
      Moduli(*this, {.Frame = "fraModulus",
                     .Caption = "Modulus of elasticity",
                     .List = "lstModulus",
                     .Select = "cmdSelectModulus",
                     .Cancel = "cmdCancelModulus",
                     .SelectCaption = "Select m&odulus"}) {
    SetCaption("Water Hammer Closing Time, Pressure Rise and Support Force");
    lblFluid.SetCaption("Liquid name");
    txtSelectedTime.SetToolTip(
        "A time below the critical one gives more than the full pressure rise, which no valve can cause");
    lblLiqTestBasis.SetToolTip("The basis of the flow: mass or volume");
    txtPipeMatl.MaxLength = longest::Material;
    txtPipeMatl.Describe(&lblPipeMatl);
    txtPipeMatl.Change = [this] { ClearAllCases(); };
    pltClosing.ColourGroup = 4;  // as the results
    ShowAsTable(Moduli.List, table::Modulus);
    Entries = {{&mnuPureLiquids, &mnuMixtures}};
    HookUnits(cmdUnits);
    HookPipe(txtPipeName, lblPipeID, {&txtPipeID, &txtPipeWall});
    HookFluid();
    DescribeRows();
    for (TextBox* box : {&txtSelectedWave, &txtSelectedForce}) {
        box->Describe(box->LabelControl(), box->UnitControl(), "selected time");
    }
    OrderTabs();

    Alias("cmdCalculateAll", cmdCalculateliq);  // it has one case
    cmdCalculateliq.SetToolTip("Calculates the closing times (F5)");
    cmdCalculateliq.Click = [this] { cmdCalculateliq_Click(); };
    cmdPipeID.Click = [this] { OpenPipeSizes(); };
    cmdPipeMatl.Click = [this] { cmdPipeMatl_Click(); };
    Moduli.List.DoubleClick = [this] { cmdSelectModulus_Click(); };
    Moduli.cmdSelect.Click = [this] { cmdSelectModulus_Click(); };
    Moduli.cmdCancel.Click = [this] { Moduli.Close(); };
}

void frmWaterHammer::OrderTabs() {
    TabOrder = {&txtTagNum,       &txtFluid,        &txtMaxLiqFlow, &txtFlowTemp,    &txtOperPressure,
                &txtSGFlow,       &txtBulkModulus,  &txtLineLength, &txtPipeID,      &cmdPipeID,
                &txtPipeWall,     &txtPipeMatl,     &cmdPipeMatl,   &txtLineModulus, &txtMaxAllowPressure,
                &txtSelectedTime, &cmdCalculateliq, &txtBy,         &txtApprov,      &cmdDate,
                &txtComments(0),  &txtComments(1),  &cmdFormLayout};
    cmdUnits.Each([this](CommandButton& button, int) { TabOrder.push_back(&button); });
    TabOrder.push_back(&pltClosing);
    AppendFluidTabs();
    for (Control* control :
         std::initializer_list<Control*>{&Moduli.List, &Moduli.cmdSelect, &Moduli.cmdCancel})
        TabOrder.push_back(control);
}

// The material of a fresh record is that of the line-loss programs, whose list has no moduli.
void frmWaterHammer::BeginRecord() {
    Calc.PipeMaterial.clear();
    Calc.PipeMaterialSaved.clear();
}

int frmWaterHammer::InputSlot(const Control& box) const {
    if (&box == &txtPipeMatl) return TextSlot(txtPipeMatl.Text(), Calc.PipeMaterialSaved);
    return FluidForm::InputSlot(box);
}

void frmWaterHammer::StoreOwn() {
    NoteEntered(0);
    Calc.PipeMaterial = Calc.CaseText[text::PipeMaterial] = Calc.CaseUnitsText[printed::PipeMaterial] =
        txtPipeMatl.Text();
}

void frmWaterHammer::CloseOverlays() {
    Moduli.Close();
    FluidForm::CloseOverlays();
}

void frmWaterHammer::ShowChoices() {
    Calc.CaseIndex = 0;
    if (!IsYes(Calc.MixtureFlag)) Calc.FluidOk = words::FluidPicked;  // not "OK", as the others have it
    Moduli.Close();
    ShowFluidEntries();
    lblLiqTestBasis.SetCaption("");
    ShowSelectedTime(Calc.CaseInput[input::SelectedTime][0] > 0);
}

void frmWaterHammer::ShowSelectedTime(bool visible) {
    for (Control* control :
         std::initializer_list<Control*>{&lblSelectedTime, &txtSelectedTime, &unSelectedTime})
        control->SetVisible(visible);
}

void frmWaterHammer::TellNeedsState(int) {
    Tell("Need Pressure and Temperature to continue", "Fluid Properties", Icon::Stop);
}

// --- The liquid ------------------------------------------------------------------------------------------

// Gravity and bulk modulus, rounded, in the units shown. A liquid whose modulus is not known leaves its box
// blank.
void frmWaterHammer::FillCase() {
    const double gravity = ShownFigures(GravityShown(Calc.FlowingSG, unit::LiquidDensity));
    Calc.BulkModulus = BulkModulusAt(Calc.BulkModulusBase, Calc.BulkModulusSlope, Calc.FlowPressure);
    const double modulus = ShownFigures(Calc.BulkModulus / Calc.UnitFactor[unit::Modulus]);
    Calc.CaseInput[input::FlowGravity][0] = gravity;
    Calc.CaseInput[input::Modulus][column::OfLiquid] = modulus > 0 ? modulus : 0;
    StateIsDealtWith(Control::NoIndex);
    ShowProperty(txtSGFlow, gravity);
    ShowProperty(txtBulkModulus, Calc.CaseInput[input::Modulus][column::OfLiquid]);
    if (modulus <= 0) txtBulkModulus.SetText("");
}

void frmWaterHammer::FluidTaken() {
    cmdCalculateliq.SetFocus();
    if (!IsYes(Calc.MixtureFlag)) Recalculate();  // that of a mixture follows by itself
}

void frmWaterHammer::Recalculate() {
    if (IsYes(Calc.HammerCalculated)) cmdCalculateliq_Click();
}

// --- The pipe --------------------------------------------------------------------------------------------

void frmWaterHammer::cmdPipeMatl_Click() {
    StoreForm();
    if (Calc.TemperatureEntered[0] != words::Entered) {
        Tell("Need the  temperature", "Elastic modulus calculation");
        txtFlowTemp.SetFocus();
        return;
    }
    if (!CheckTempPressure()) return;
    std::vector<std::string> rows;
    try {
        rows = ReadTable(table::Modulus);
    } catch (const RuntimeError&) {
        Tell("File " + std::string(table::Modulus.FileName), Calc.ProgramTitle, Icon::Stop);
    }
    const int current = rows.empty() ? -1 : FindTableRow(rows, Calc.PipeMaterial);
    Moduli.Open(std::move(rows), current);
}

void frmWaterHammer::cmdSelectModulus_Click() {
    if (Moduli.List.Selected() < 0) return;
    const TableFields fields = SplitTableLine(table::Modulus, Moduli.Picked());
    Moduli.Close();
    const bool loaded = LoadPipeModulus(fields);
    txtPipeMatl.SetText(Calc.PipeMaterial);
    txtLineModulus.SetText("");
    if (loaded) ShowNumber(txtLineModulus, Calc.CaseInput[input::Modulus][column::OfPipe]);
}

}  // namespace quillmetra
