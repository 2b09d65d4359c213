// See LineLossForm.h.
#include "forms/LineLossForm.h"

#include <utility>

#include "core/Programs.h"
#include "core/Words.h"
#include "forms/DataCheck.h"
#include "forms/LineServices.h"
#include "lineloss/Friction.h"
#include "lineloss/LineRanges.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "tables/PipeSizes.h"
#include "units/Border.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

LineLossForm::LineLossForm(const Names& names, std::initializer_list<int> rows)
    : FluidForm(names), cmdUnits(Picture1, "cmdUnits", rows, "") {
    for (int i = 0; i < CaseCount; ++i) {
        lblCase(i).SetCaption(words::Cases[static_cast<std::size_t>(i)]);
        cmdCalculate(i).SetCaption(words::Cases[static_cast<std::size_t>(i)]);
        cmdCalculate(i).SetToolTip(std::string("Calculates the ") +
                                   words::Cases[static_cast<std::size_t>(i)] + " case");
    }
    chkEntrance.SetToolTip("Allows for a large reduction in line size");
    chkExit.SetToolTip("Allows for a large increase in line size");
    lstMatl.SetVisible(false);
    lstMatl.Describe(&lblMatl);
    cmdMatl.Describe(&lblMatl);
    optDestination.SetChecked(true);
    HookUnits(cmdUnits);
    HookPipe(txtPipeName, lblInletPipeID, {&txtInletPipeID});
}

void LineLossForm::Assemble() {
    pltLine.ColourGroup = 4;  // as the results
    HookLine();
    HookService();
    HookFluid();
    DescribeRows();
    OrderTabs();
}

// Tab follows the reading order of the data: what names the calculation, the line, then case by case
// downwards, each with its calculate button, and the signatures; unit buttons come last.
void LineLossForm::OrderTabs() {
    TabOrder = {&txtTagNum,        &txtFluid,          &txtInletPipeLen, &txtInletPipeID, &cmdPipeID,
                &txtInletPipeElev, &txtOutletPipeElev, &txtPipeCond,     &cmdMatl,        &lstMatl,
                &txtInletGate,     &txtInletGlobe,     &txtInletCheck,   &txtInlet90Deg,  &txtInlet45Deg,
                &txtInletThru,     &txtInletBranch,    &chkEntrance,     &chkExit,        &cmdService,
                &optDestination,   &optSource,         &cmdSizes,        &cmdFlowFor};
    for (int i = 0; i < CaseCount; ++i) {
        for (const CaseBoxes boxes : BoxesOfACase()) {
            TabOrder.push_back(&(*boxes)(i));
        }
        TabOrder.push_back(&cmdCalculate(i));
    }
    TabOrder.push_back(&cmdCalculateAll);
    for (Control* control : std::initializer_list<Control*>{&txtBy, &txtApprov, &cmdDate, &txtComments(0),
                                                            &txtComments(1), &cmdFormLayout}) {
        TabOrder.push_back(control);
    }
    cmdUnits.Each([this](CommandButton& button, int) { TabOrder.push_back(&button); });
    TabOrder.push_back(&pltLine);
    AppendFluidTabs();
}

void LineLossForm::HookLine() {
    cmdCalculate.Each(
        [this](CommandButton& button, int i) { button.Click = [this, i] { cmdCalculate_Click(i); }; });
    cmdCalculateAll.SetToolTip(CalculateAllTip);
    cmdCalculateAll.Click = [this] { CalculateAll(); };
    cmdPipeID.Click = [this] { OpenPipeSizes(); };
    cmdSizes.SetToolTip("What the case in hand comes to in each pipe of a table");
    cmdSizes.Click = [this] { cmdSizes_Click(); };
    cmdFlowFor.SetToolTip("The flow that the line carries between two pressures");
    cmdFlowFor.Click = [this] { cmdFlowFor_Click(); };
    cmdMatl.Click = [this] { cmdMatl_Click(); };
    lstMatl.DoubleClick = [this] { lstMatl_DoubleClick(); };
    lstMatl.KeyPress = [this](Key& key) {
        key.Handled = key.Name == keys::Enter || key.Name == keys::Escape;
        if (key.Name == keys::Enter) lstMatl_DoubleClick();
        if (key.Name == keys::Escape) cmdMatl_Click();
    };
    for (CheckBox* tick : {&chkEntrance, &chkExit}) {
        tick->Click = [this, tick] {
            PaintTick(*tick, Calc.PipeDataShown[tick == &chkEntrance ? pipe::Entrance : pipe::Exit]);
            ClearAllCases();
        };
    }
    optDestination.Click = [this] { optDestination_Click(); };
    optSource.Click = [this] { optSource_Click(); };
}

void LineLossForm::ShowChoices() {
    for (Control* control : std::initializer_list<Control*>{&lblEquivLen, &txtEquivLen}) {
        control->SetToolTip(
            "Of the case calculated last, with its equipment and elevation as length of pipe");
    }
    lstMatl.SetVisible(false);
    ShowFluidEntries();
    if (Calc.PressureDirection == direction::Backwards) {
        optSource.SetChecked(true);
        lblDestPress.SetCaption("Source pressure");
    } else {
        Calc.PressureDirection = direction::Forwards;
        optDestination.SetChecked(true);
        lblDestPress.SetCaption("Destination pressure");
    }
}

void LineLossForm::StoreOwn() {
    Calc.PipeData[pipe::Entrance] = chkEntrance.Checked() ? 2 : 1;
    Calc.EntranceK = chkEntrance.Checked() ? EntranceResistance : 0;
    Calc.PipeData[pipe::Exit] = chkExit.Checked() ? 2 : 1;
    Calc.ExitK = chkExit.Checked() ? ExitResistance : 0;
    for (int i = 0; i < CaseCount; ++i) NoteEntered(i);
    cmdUnits.Each([](const CommandButton& button, int row) {
        // Row 6 keeps its unit while it is hidden; a caption is empty before the first refresh.
        if (row != 6 && !button.Caption().empty())
            Calc.UnitName[static_cast<std::size_t>(row)] = button.Caption();
    });
    if (!unVelocity.Caption().empty()) Calc.UnitName[unit::Velocity] = unVelocity.Caption();
    Calc.PipeMaterial = cmdMatl.Caption();
    Calc.CaseText[text::PipeMaterial] = Calc.CaseUnitsText[printed::PipeMaterial] = Calc.PipeMaterial;
}

// --- Calculation ---------------------------------------------------------------------------------------

// Takes the line into the working layer, test by test in the order of the form.
bool LineLossForm::CheckLine(Wanted wanted) {
    constexpr double longestLine = 10000000;  // ft
    const UnitFactors& factor = Calc.UnitFactor;
    Calc.PipeLength[TheLine] = Calc.PipeData[pipe::Length] * factor[unit::Length];
    if (!(Calc.PipeLength[TheLine] > 0)) return RefuseData("Length must be > zero ", txtInletPipeLen);
    if (Calc.PipeLength[TheLine] >= longestLine)
        return RefuseData("Length must be < 10000000 ft", txtInletPipeLen);
    Calc.PipeId[TheLine] = Calc.PipeData[pipe::InsideDiameter] * factor[unit::PipeSize];
    if (wanted != Wanted::NoDiameter && !(Calc.PipeId[TheLine] > 0))
        return RefuseData("Pipe inside diameter must be > zero ", txtInletPipeID);

    Calc.Elevation[LineStart] = Calc.PipeData[pipe::StartElevation] * factor[unit::Length];
    Calc.Elevation[LineEnd] = Calc.CaseInput[input::EndElevation][0] * factor[unit::Length];
    Calc.GateValves = Calc.FittingCount[fitting::GateValves];
    Calc.GlobeValves = Calc.FittingCount[fitting::GlobeValves];
    Calc.CheckValves = Calc.FittingCount[fitting::CheckValves];
    Calc.Ells90 = Calc.FittingCount[fitting::Ells90];
    Calc.Ells45 = Calc.FittingCount[fitting::Ells45];
    Calc.ThruTees = Calc.FittingCount[fitting::ThruTees];
    Calc.BranchTees = Calc.FittingCount[fitting::BranchTees];
    if (Calc.PipeFouling > 100 || Calc.PipeFouling < 0) {
        return RefuseData("Condition must be between 0 and 100", txtPipeCond);
    }
    return true;
}

// Takes the working layer from the display layer, test by test in the order of the form.
bool LineLossForm::CheckData(Wanted wanted) {
    const std::size_t i = ThisCase();
    Calc.DataOk = words::No;
    if (!CheckState() || !CheckLine(wanted)) return false;
    Calc.SourcePressure[TheLine] = PressureIn(Calc.CaseInput[input::Pressure][i]);
    if (!CheckSourcePressure()) return false;
    Calc.EquipLoss[TheLine] = Calc.CaseInput[input::EquipLoss][i] * Calc.UnitFactor[unit::PressureDrop];
    if (!CheckFluid(wanted)) return false;
    ShowCalculation();
    Calc.DataOk = words::Yes;
    return true;
}

void LineLossForm::cmdCalculate_Click(int index) {
    Calc.CaseIndex = index;
    StoreForm();
    if (!CheckData()) return;
    Calc.PipeIndex = 1;
    try {
        if (!CalculateCase()) return;
    } catch (const RuntimeError& error) {
        if (!TellNoResult(error)) throw;
        return;
    }
    ShowCalculated();
    txtBy.SetFocus();
    Calc.CalculatedFlag = words::Yes;
}

bool LineLossForm::HasData(int caseIndex) {
    const auto isEmpty = [](const TextBox& box) { return Trim(box.Text()).empty(); };
    return !isEmpty(txtFlow(caseIndex)) && !isEmpty(txtTemp(caseIndex)) && !isEmpty(txtPressure(caseIndex));
}

// --- The dialogs that try the line -------------------------------------------------------------------------

int LineLossForm::CaseToTry() {
    if (HasData(Calc.CaseIndex)) return Calc.CaseIndex;
    for (int i = 0; i < CaseCount; ++i) {
        if (HasData(i)) return i;
    }
    return Calc.CaseIndex;
}

bool LineLossForm::TakeCase(int caseIndex, Wanted wanted) {
    Calc.CaseIndex = caseIndex;
    StoreForm();
    if (!CheckData(wanted)) return false;
    Calc.PipeIndex = 1;
    return true;
}

bool LineLossForm::TakeOtherCase(int caseIndex, Wanted wanted) {
    const int before = Calc.CaseIndex;
    if (TakeCase(caseIndex, wanted)) return true;
    TakeCase(before, wanted);
    return false;
}

void LineLossForm::TakePipe(const std::string& listLine) {
    if (const Program* program = FindProgram(Calc.CurrentProgram)) Calc.MessageText = program->PipeWord;
    TakePipeRow(listLine);
    ReturnPipeSize(PipeNameOf(listLine));
}

LineLossForm* OpenLine() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    return program == nullptr ? nullptr : dynamic_cast<LineLossForm*>(LoadedForm(program->Form));
}

void LineLossForm::cmdSizes_Click() {
    if (TakeCase(CaseToTry(), Wanted::NoDiameter)) ShowForm("frmSizes", Modal::Yes);
}

void LineLossForm::cmdFlowFor_Click() {
    const int caseIndex = HasState(Calc.CaseIndex) ? Calc.CaseIndex : CaseToTry();
    if (TakeCase(caseIndex, Wanted::NoFlow)) ShowForm("frmLineFlow", Modal::Yes);
}

void LineLossForm::ShowLineResults(const LineResults& results) {
    const int i = Calc.CaseIndex;
    Calc.CaseResult[result::FinalPressure][ThisCase()] = results.FinalPressure;
    Calc.CaseResult[result::LossPer100][ThisCase()] = results.LossPer100;
    Calc.CaseResult[result::Velocity][ThisCase()] = results.Velocity;
    Calc.CaseResult[result::EquivLength][0] = results.EquivLength;
    ShowNumber(txtDestPress(i), results.FinalPressure);
    ShowNumber(txtDropP100(i), results.LossPer100);
    ShowNumber(txtVelocity(i), results.Velocity);
    ShowNumber(txtEquivLen, results.EquivLength);
    if (Calc.EquivLength == 0) txtDropP100(i).SetText("");  // nothing to spread the loss over
    Calc.ResultsClearable[ThisCase()] = words::Yes;
}

// After a fluid was picked the case is calculated from its button.
void LineLossForm::FluidTaken() {
    cmdCalculate.Each([](CommandButton& button, int) { button.SetEnabled(true); });
    cmdCalculate(Calc.CaseIndex).SetFocus();
}

HintList LineLossForm::Hints() const {
    return Together(Together(FluidForm::Hints(), LineHints()), ServiceHints(Calc.CaseIndex));
}

// A case that has been calculated has a velocity.
void LineLossForm::Recalculate() {
    if (IsYes(Calc.CalculatedFlag) && Calc.CaseResult[result::Velocity][ThisCase()] > 0) {
        cmdCalculate_Click(Calc.CaseIndex);
    }
}

void LineLossForm::DrawResults() {
    for (int i = 0; i < CaseCount; ++i) {
        PlotDrawing& drawing = drawn_[static_cast<std::size_t>(i)];
        const bool hasResults = StandingResult(result::Velocity, i) > 0;
        hasResults ? ShowFigures(i) : BlankFigures(i);
        drawing = hasResults ? DrawingOf(i) : PlotDrawing{};
        drawing.Title = SpokenCaption(lblCase(i).Caption()) + " case";
    }
    DrawCases();
}

Handler LineLossForm::KeepBeside() {
    return [this, former = FluidForm::KeepBeside()] {
        former();
        lstMatl.SetVisible(false);
        PaintTick(chkEntrance, Calc.PipeDataShown[pipe::Entrance]);
        PaintTick(chkExit, Calc.PipeDataShown[pipe::Exit]);
    };
}

void LineLossForm::ResultsBlanked(int caseIndex) {
    BlankFigures(caseIndex);
    drawn_[static_cast<std::size_t>(caseIndex)] = {};
    DrawCases();
}

void LineLossForm::DrawCases() {
    PlotDrawing all = AllCasesOf({drawn_.begin(), drawn_.end()});
    if (all.Series.empty()) return pltLine.Clear();
    pltLine.Draw(std::move(all));
}

// --- The line ------------------------------------------------------------------------------------------

void LineLossForm::cmdMatl_Click() {
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

void LineLossForm::lstMatl_DoubleClick() {
    const int row = lstMatl.Selected();
    if (row < 0) return;
    Calc.PipeMaterialNumber = row + 1;
    Calc.PipeMaterial = lstMatl.Row(row);
    cmdMatl.SetCaption(Calc.PipeMaterial);
    lstMatl.SetVisible(false);
    cmdMatl.SetFocus();
    ClearAllCases();
}

void LineLossForm::HookService() {
    cmdService.Describe(&lblService);
    cmdService.SetToolTip("What the velocity and the loss of the line should keep to; a list drops");
    cmdService.Lines = [this] {
        DropLines lines;
        for (const LineCriterion& each : ServicesOffered(*this))
            lines.push_back({.Text = each.Service, .InForce = each.Service == cmdService.Caption()});
        return lines;
    };
    cmdService.Take = [this](int line) { TakeService(cmdService.Lines().at(At(line)).Text); };
}

void LineLossForm::TakeService(const std::string& service) {
    if (service == cmdService.Caption()) return;
    Calc.Service = service == words::NoService ? "" : service;
    Calc.ChangedFlag = words::No;
    cmdService.SetCaption(service);
    std::vector<TextOfCase> hints;
    for (int i = 0; i < CaseCount; ++i) {
        if (StandingResult(result::Velocity, i) > 0)
            hints.emplace_back(CaseName(i), Sentences(ServiceHints(i)));
    }
    ShowHints(hints);
}

void LineLossForm::optDestination_Click() {
    Calc.PressureDirection = direction::Forwards;
    lblPressure.SetCaption("Source pressure");
    lblDestPress.SetCaption("Destination pressure");
    ClearAllCases();
}

void LineLossForm::optSource_Click() {
    Calc.PressureDirection = direction::Backwards;
    lblPressure.SetCaption("Destination pressure");
    lblDestPress.SetCaption("Source pressure");
    ClearAllCases();
}

}  // namespace quillmetra
