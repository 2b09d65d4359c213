// Program 1: the pressure at the far end of a liquid line, for three cases.
#pragma once

#include "forms/CaseFigures.h"
#include "forms/LineLossForm.h"

namespace quillmetra {

class frmLiqLineLoss : public LineLossForm {
public:
    frmLiqLineLoss();

    MenuItem mnuPureLiquid1{mnuCase(0), "mnuPureLiquid1", "&Pure liquid"};
    MenuItem mnuPureLiquid2{mnuCase(1), "mnuPureLiquid2", "&Pure liquid"};
    MenuItem mnuPureLiquid3{mnuCase(2), "mnuPureLiquid3", "&Pure liquid"};
    MenuItem mnuMixture1{mnuCase(0), "mnuMixture1", "&Mixture"};
    MenuItem mnuMixture2{mnuCase(1), "mnuMixture2", "&Mixture"};
    MenuItem mnuMixture3{mnuCase(2), "mnuMixture3", "&Mixture"};

    Label lblSGFlow{Picture1, "lblSGFlow", "Specific gravity @ FTP"};
    ControlArray<TextBox> txtSGFlow{Picture1, "txtSGFlow", {0, 1, 2}};
    Label lblReynoldsNum{Picture1, "lblReynoldsNum", "Reynolds number"};
    ControlArray<TextBox> txtReynoldsNum{Picture1, "txtReynoldsNum", {0, 1, 2}};
    LiquidRows Figures{Picture1};
    CheckBox chkLossParts{Picture1, "chkLossParts", "Loss &in parts"};

    bool Remembers(const Control& control) const override;
    Handler KeepBeside() override;

protected:
    std::vector<CaseBoxes> BoxesOfACase() const override;
    bool CheckFluid(Wanted wanted) override;
    bool CheckSourcePressure() override;
    bool CalculateCase() override;
    PlotDrawing DrawingOf(int caseIndex) const override;
    void ShowFigures(int caseIndex) override { Figures.Show(caseIndex, LiquidFiguresOf(caseIndex)); }
    void BlankFigures(int caseIndex) override { Figures.Blank(caseIndex); }
    bool CheckState() override;
    void FillCase() override;
    std::vector<TextBox*> FluidBoxes(int caseIndex) override {
        return {&txtSGFlow(caseIndex), &txtViscosity(caseIndex)};
    }

private:
    void ShowResults();
};

}  // namespace quillmetra
