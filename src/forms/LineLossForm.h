// What the line-loss programs of liquid and gas share: the line and its fittings, the direction, three cases
// of flow, temperature and pressure, and the way from a press of a calculate button to the results.
#pragma once

#include <vector>

#include "core/CalcRecord.h"
#include "forms/BasisLabels.h"
#include "forms/FluidForm.h"
#include "lineloss/LineResults.h"
#include "platform/Plot.h"

namespace quillmetra {

class LineLossForm : public FluidForm {
public:
    // rows: the unit rows that have a button.
    LineLossForm(const Names& names, std::initializer_list<int> rows);

    BasisLabels Basis{Picture1};

    // The line
    Label lblInletPipeLen{Picture1, "lblInletPipeLen", "Length"};
    TextBox txtInletPipeLen{Picture1, "txtInletPipeLen"};
    Label lblInletPipeID{Picture1, "lblInletPipeID", "Inside diameter"};
    TextBox txtInletPipeID{Picture1, "txtInletPipeID"};
    CommandButton cmdPipeID{Picture1, "cmdPipeID", "&Pipe size"};
    CommandButton cmdSizes{Picture1, "cmdSizes", "Si&zes..."};
    TextBox txtPipeName{Picture1, "txtPipeName"};  // of the table, as long as it is that one
    Label lblInletPipeElev{Picture1, "lblInletPipeElev", "Start elevation"};
    TextBox txtInletPipeElev{Picture1, "txtInletPipeElev"};
    Label unInletPipeElev{Picture1, "unInletPipeElev"};
    Label lblOutletPipeElev{Picture1, "lblOutletPipeElev", "End elevation"};
    TextBox txtOutletPipeElev{Picture1, "txtOutletPipeElev"};
    Label unOutletPipeElev{Picture1, "unOutletPipeElev"};
    Label lblPipeCond{Picture1, "lblPipeCond", "Pipe % fouling. New=0"};
    TextBox txtPipeCond{Picture1, "txtPipeCond"};
    Label lblMatl{Picture1, "lblMatl", "Pipe material"};
    CommandButton cmdMatl{Picture1, "cmdMatl", "Steel"};
    ListBox lstMatl{Picture1, "lstMatl"};

    // Valves and fittings
    Label lblInletGate{Picture1, "lblInletGate", "Gate"};
    TextBox txtInletGate{Picture1, "txtInletGate"};
    Label lblInletGlobe{Picture1, "lblInletGlobe", "Globe"};
    TextBox txtInletGlobe{Picture1, "txtInletGlobe"};
    Label lblInletCheck{Picture1, "lblInletCheck", "Check"};
    TextBox txtInletCheck{Picture1, "txtInletCheck"};
    Label lblInlet90Deg{Picture1, "lblInlet90Deg", "90 deg ell"};
    TextBox txtInlet90Deg{Picture1, "txtInlet90Deg"};
    Label lblInlet45Deg{Picture1, "lblInlet45Deg", "45 deg ell"};
    TextBox txtInlet45Deg{Picture1, "txtInlet45Deg"};
    Label lblInletThru{Picture1, "lblInletThru", "Thru tee"};
    TextBox txtInletThru{Picture1, "txtInletThru"};
    Label lblInletBranch{Picture1, "lblInletBranch", "Branch tee"};
    TextBox txtInletBranch{Picture1, "txtInletBranch"};
    CheckBox chkEntrance{Picture1, "chkEntrance", "Entrance"};
    CheckBox chkExit{Picture1, "chkExit", "Exit"};
    Label lblService{Picture1, "lblService", "Service"};
    DropButton cmdService{Picture1, "cmdService", ""};
    OptionButton optDestination{Picture1, "optDestination", "Calculate destination pressure"};
    OptionButton optSource{Picture1, "optSource", "Calculate source pressure"};

    // The three cases
    ControlArray<Label> lblCase{Picture1, "lblCase", {0, 1, 2}, ""};
    Label lblFlow{Picture1, "lblFlow", "Flow"};
    ControlArray<TextBox> txtFlow{Picture1, "txtFlow", {0, 1, 2}};
    Label lblTemp{Picture1, "lblTemp", "Temperature"};
    ControlArray<TextBox> txtTemp{Picture1, "txtTemp", {0, 1, 2}};
    Label lblPressure{Picture1, "lblPressure", "Source pressure"};
    ControlArray<TextBox> txtPressure{Picture1, "txtPressure", {0, 1, 2}};
    Label lblViscosity{Picture1, "lblViscosity", "Viscosity"};
    ControlArray<TextBox> txtViscosity{Picture1, "txtViscosity", {0, 1, 2}};
    Label lblEquip{Picture1, "lblEquip", "Equipment loss"};
    ControlArray<TextBox> txtEquip{Picture1, "txtEquip", {0, 1, 2}};
    ControlArray<CommandButton> cmdCalculate{Picture1, "cmdCalculate", {0, 1, 2}, ""};
    CommandButton cmdCalculateAll{Picture1, "cmdCalculateAll", "&Calculate all"};
    CommandButton cmdFlowFor{Picture1, "cmdFlowFor", "Flo&w for these pressures..."};
    ControlArray<DropButton> cmdUnits;

    // Results
    Label lblDropP100{Picture1, "lblDropP100", "Loss per 100 "};
    ControlArray<TextBox> txtDropP100{Picture1, "txtDropP100", {0, 1, 2}};
    Label unDropP100{Picture1, "unDropP100"};
    Label lblDestPress{Picture1, "lblDestPress", "Destination pressure"};
    ControlArray<TextBox> txtDestPress{Picture1, "txtDestPress", {0, 1, 2}};
    Label unDestPress{Picture1, "unDestPress"};
    Label lblVelocity{Picture1, "lblVelocity", "Velocity"};
    ControlArray<TextBox> txtVelocity{Picture1, "txtVelocity", {0, 1, 2}};
    Label unVelocity{Picture1, "unVelocity"};
    Label lblEquivLen{Picture1, "lblEquivLen", "Equivalent length"};
    TextBox txtEquivLen{Picture1, "txtEquivLen"};
    Label unEquivLen{Picture1, "unEquivLen"};
    Label lblEquivOf{Picture1, "lblEquivOf", "last case"};
    Plot pltLine{Picture1, "pltLine"};  // what goes on along the line, in each case with results

    Handler KeepBeside() override;

    bool HasData(int caseIndex) override;
    void cmdCalculate_Click(int index);
    void cmdSizes_Click();
    void cmdFlowFor_Click();
    void cmdMatl_Click();
    void lstMatl_DoubleClick();
    void optDestination_Click();
    void optSource_Click();

    // For the dialogs that try the line of a case. Makes the case that in hand and checks its data as its
    // button does, telling what is wrong, but for what is sought.
    enum class Wanted { All, NoFlow, NoDiameter };
    int CaseToTry();  // that in hand, or the first one that has its data
    bool TakeCase(int caseIndex, Wanted wanted = Wanted::All);
    // Instead of that in hand, which is taken again when the other one is refused.
    bool TakeOtherCase(int caseIndex, Wanted wanted);
    using FluidForm::HasState;
    // The row of the pipe size lookup, as if it had been taken there.
    void TakePipe(const std::string& listLine);
    // A row of the criteria by its name, or words::NoService. The results stand, and what of them is beyond
    // it is told.
    void TakeService(const std::string& service);

protected:
    using CaseBoxes = const ControlArray<TextBox>*;

    // The boxes of a case from the top, in the order of Tab.
    virtual std::vector<CaseBoxes> BoxesOfACase() const = 0;
    // The check after that of the line and of temperature and pressure, in the order of the form.
    virtual bool CheckFluid(Wanted wanted) = 0;
    virtual bool CheckSourcePressure() = 0;
    // Runs the calculation of the checked case and shows its results; false when there are none.
    virtual bool CalculateCase() = 0;
    TextBox& TemperatureBox(int caseIndex) override { return txtTemp(caseIndex); }
    HintList Hints() const override;
    TextBox& PressureBox(int caseIndex) override { return txtPressure(caseIndex); }
    void FluidTaken() override;
    void Recalculate() override;
    void StoreOwn() override;
    void ShowChoices() override;
    void ResultsBlanked(int caseIndex) override;
    void DrawResults() override;
    // The line of a case whose results stand; without series when the form knows nothing to draw of it.
    virtual PlotDrawing DrawingOf(int caseIndex) const = 0;
    // What follows from the results of a case.
    virtual void ShowFigures(int caseIndex) = 0;
    virtual void BlankFigures(int caseIndex) = 0;
    CommandButton& CalculateAllButton() override { return cmdCalculateAll; }
    Control* CalculateButton(int caseIndex) override { return &cmdCalculate(caseIndex); }

    // The results that both lines have, to the record and to their boxes.
    void ShowLineResults(const LineResults& results);

    // To be called by the form when its own controls stand.
    void Assemble();

private:
    void OrderTabs();
    void DrawCases();
    void HookLine();
    void HookService();
    bool CheckData(Wanted wanted = Wanted::All);
    bool CheckLine(Wanted wanted);

    Row<PlotDrawing, CaseCount> drawn_;  // of each case, empty without results
};

// The form of the line in hand; null when none is open.
LineLossForm* OpenLine();

}  // namespace quillmetra
