// Program 2: the pressure at the far end of a gas or steam line, for three cases, and whether it chokes.
#pragma once

#include "forms/BaseConditions.h"
#include "forms/LineLossForm.h"
#include "lineloss/GasLineLoss.h"

namespace quillmetra {

class frmGasLineLoss : public LineLossForm {
public:
    frmGasLineLoss();

    MenuItem mnuPureGases1{mnuCase(0), "mnuPureGases1", "&Pure gas"};
    MenuItem mnuPureGases2{mnuCase(1), "mnuPureGases2", "&Pure gas"};
    MenuItem mnuPureGases3{mnuCase(2), "mnuPureGases3", "&Pure gas"};
    MenuItem mnuMixtures1{mnuCase(0), "mnuMixtures1", "&Mixture"};
    MenuItem mnuMixtures2{mnuCase(1), "mnuMixtures2", "&Mixture"};
    MenuItem mnuMixtures3{mnuCase(2), "mnuMixtures3", "&Mixture"};
    MenuItem mnuSatSteam1{mnuCase(0), "mnuSatSteam1", "&Saturated steam"};
    MenuItem mnuSatSteam2{mnuCase(1), "mnuSatSteam2", "&Saturated steam"};
    MenuItem mnuSatSteam3{mnuCase(2), "mnuSatSteam3", "&Saturated steam"};
    MenuItem mnuSupersteam1{mnuCase(0), "mnuSupersteam1", "Super&heated steam"};
    MenuItem mnuSupersteam2{mnuCase(1), "mnuSupersteam2", "Super&heated steam"};
    MenuItem mnuSupersteam3{mnuCase(2), "mnuSupersteam3", "Super&heated steam"};

    Label lblMW{Picture1, "lblMW", "Molecular weight"};
    ControlArray<TextBox> txtMW{Picture1, "txtMW", {0, 1, 2}};
    Label lblRatioSH{Picture1, "lblRatioSH", "Ratio of specific heats"};
    ControlArray<TextBox> txtRatioSH{Picture1, "txtRatioSH", {0, 1, 2}};
    Label lblCritTemp{Picture1, "lblCritTemp", "Critical temperature"};
    ControlArray<TextBox> txtCritTemp{Picture1, "txtCritTemp", {0, 1, 2}};
    Label lblCritPressure{Picture1, "lblCritPressure", "Critical pressure"};
    ControlArray<TextBox> txtCritPressure{Picture1, "txtCritPressure", {0, 1, 2}};
    Label lblSonicVelocity{Picture1, "lblSonicVelocity", "Sonic velocity"};
    ControlArray<TextBox> txtSonicVelocity{Picture1, "txtSonicVelocity", {0, 1, 2}};
    Label unSonicVelocity{Picture1, "unSonicVelocity"};
    BaseConditions Base{*this};

    void CloseOverlays() override;

protected:
    std::vector<CaseBoxes> BoxesOfACase() const override;
    bool CheckState() override;
    bool CheckPressureAlone() override;
    bool CheckSourcePressure() override;
    bool CheckFluid() override;
    bool CalculateCase() override;
    void ParseFluid() override;
    bool CalcMixture() override;
    bool FillFluid() override;
    void ShowSteam() override;
    void ShowChoices() override;

private:
    void ShowResults(const GasLineResults& results);
    void FillCase();
    void ShowFluidRows();
};

}  // namespace quillmetra
