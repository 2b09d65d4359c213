// Program 3: the pressure wave that a closing valve sends back through a liquid line, and how slowly the
// valve must close. One case alone, which is case 0 of the record.
#pragma once

#include "forms/BasisLabels.h"
#include "forms/FluidForm.h"
#include "forms/PickList.h"
#include "platform/Plot.h"

namespace quillmetra {

class frmWaterHammer : public FluidForm {
public:
    frmWaterHammer();

    MenuItem mnuPureLiquids{mnuFluiProp, "mnuPureLiquids", "&Pure liquid"};
    MenuItem mnuMixtures{mnuFluiProp, "mnuMixtures", "&Mixture"};

    BasisLabels Basis{Picture1};

    // The liquid
    Label lblMaxLiqFlow{Picture1, "lblMaxLiqFlow", "Maximum flow"};
    TextBox txtMaxLiqFlow{Picture1, "txtMaxLiqFlow"};
    Label lblFlowBasis{Picture1, "lblFlowBasis", "Flow basis"};
    Label lblLiqTestBasis{Picture1, "lblLiqTestBasis"};
    Label lblFlowTemp{Picture1, "lblFlowTemp", "Flow temperature"};
    TextBox txtFlowTemp{Picture1, "txtFlowTemp"};
    Label lblOperPressure{Picture1, "lblOperPressure", "Operating pressure"};
    TextBox txtOperPressure{Picture1, "txtOperPressure"};
    Label lblSGFlow{Picture1, "lblSGFlow", "Specific gravity @ FTP"};
    TextBox txtSGFlow{Picture1, "txtSGFlow"};
    Label lblBulkModulus{Picture1, "lblBulkModulus", "Liquid bulk modulus"};
    TextBox txtBulkModulus{Picture1, "txtBulkModulus"};

    // The line
    Label lblLineLength{Picture1, "lblLineLength", "Line length"};
    TextBox txtLineLength{Picture1, "txtLineLength"};
    Label lblPipeID{Picture1, "lblPipeID", "Pipe inside diameter"};
    TextBox txtPipeID{Picture1, "txtPipeID"};
    CommandButton cmdPipeID{Picture1, "cmdPipeID", "&Pipe size"};
    TextBox txtPipeName{Picture1, "txtPipeName"};  // of the table, as long as it is that one
    Label lblPipeWall{Picture1, "lblPipeWall", "Pipe wall thickness"};
    TextBox txtPipeWall{Picture1, "txtPipeWall"};
    Label UnpipeWall{Picture1, "UnpipeWall"};
    Label lblPipeMatl{Picture1, "lblPipeMatl", "Pipe material"};
    TextBox txtPipeMatl{Picture1, "txtPipeMatl"};
    CommandButton cmdPipeMatl{Picture1, "cmdPipeMatl", "Pipe &material"};
    Label lblLineModulus{Picture1, "lblLineModulus", "Pipe modulus"};
    TextBox txtLineModulus{Picture1, "txtLineModulus"};
    Label unLineModulus{Picture1, "unLineModulus"};
    Label lblMaxAllowPressure{Picture1, "lblMaxAllowPressure", "Maximum allowable pressure"};
    TextBox txtMaxAllowPressure{Picture1, "txtMaxAllowPressure"};
    Label unMaxAllowPressure{Picture1, "unMaxAllowPressure"};
    ControlArray<DropButton> cmdUnits{Picture1, "cmdUnits", {1, 2, 3, 6, 18, 25, 27}, ""};

    CommandButton cmdCalculateliq{Picture1, "cmdCalculateliq", "&Calculate"};

    // Closing in the critical time or less, and the shortest closing time for the allowable pressure
    Label lblCriticalTime{Picture1, "lblCriticalTime", "Critical closing time"};
    TextBox txtCriticalTime{Picture1, "txtCriticalTime"};
    Label unCriticalTime{Picture1, "unCriticalTime", "secs"};
    Label lblWaveVelocity{Picture1, "lblWaveVelocity", "Wave velocity"};
    TextBox txtWaveVelocity{Picture1, "txtWaveVelocity"};
    Label unWaveVelocity{Picture1, "unWaveVelocity"};
    Label lblPressureWave{Picture1, "lblPressureWave", "Pressure wave"};
    TextBox txtPressureWave{Picture1, "txtPressureWave"};
    Label unPressureWave{Picture1, "unPressureWave"};
    Label lblSupportForce{Picture1, "lblSupportForce", "Pipe support force"};
    TextBox txtSupportForce{Picture1, "txtSupportForce"};
    Label unSupportForce{Picture1, "unSupportForce"};
    Label lblCloseTime{Picture1, "lblCloseTime", "Minimum closing time"};
    TextBox txtCloseTime{Picture1, "txtCloseTime"};
    Label unCloseTime{Picture1, "unCloseTime", "secs"};

    // A closing time of the user's own, asked for once the others are known
    Label lblSelectedTime{Picture1, "lblSelectedTime", "Selected closing time"};
    TextBox txtSelectedTime{Picture1, "txtSelectedTime"};
    Label unSelectedTime{Picture1, "unSelectedTime", "secs"};
    Label lblSelectedWave{Picture1, "lblSelectedWave", "Pressure wave"};
    TextBox txtSelectedWave{Picture1, "txtSelectedWave"};
    Label unSelectedWave{Picture1, "unSelectedWave"};
    Label lblSelectedForce{Picture1, "lblSelectedForce", "Pipe support force"};
    TextBox txtSelectedForce{Picture1, "txtSelectedForce"};
    Label unSelectedForce{Picture1, "unSelectedForce"};
    Plot pltClosing{Picture1, "pltClosing"};  // the pressure wave against the closing time

    PickList Moduli;

    void CloseOverlays() override;
    void cmdCalculateliq_Click();
    void cmdPipeMatl_Click();
    void cmdSelectModulus_Click();

protected:
    TextBox& TemperatureBox(int) override { return txtFlowTemp; }
    HintList Hints() const override;
    TextBox& PressureBox(int) override { return txtOperPressure; }
    bool CheckState() override { return CheckTempPressure(); }
    void FillCase() override;
    std::vector<TextBox*> FluidBoxes(int) override { return {&txtSGFlow, &txtBulkModulus}; }
    void FluidTaken() override;
    void Recalculate() override;
    void TellNeedsState(int caseIndex) override;
    int InputSlot(const Control& box) const override;
    void BeginRecord() override;
    void StoreOwn() override;
    void ShowChoices() override;
    void ResultsBlanked(int) override { pltClosing.Clear(); }
    void DrawResults() override;
    CommandButton& CalculateAllButton() override { return cmdCalculateliq; }
    Control* CalculateButton(int caseIndex) override { return caseIndex == 0 ? &cmdCalculateliq : nullptr; }

private:
    void OrderTabs();
    void ShowSelectedTime(bool visible);

    // Takes FlowTemperature, EnteredPressure and FlowPressure, and sets TempPressureOk.
    bool CheckTempPressure();
    // Takes the whole working layer, test by test in the order of the form; sets DataOk.
    bool CheckHammerData();
    bool CheckFlow();
    bool CheckLine();
    bool CheckSelectedTime();
    void ShowResults(bool selected);
};

}  // namespace quillmetra
