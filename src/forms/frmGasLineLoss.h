// Program 2: the pressure at the far end of a gas or steam line, for three cases, and whether it chokes.
#pragma once

#include <memory>

#include "forms/BaseConditions.h"
#include "forms/CaseFigures.h"
#include "forms/GasEntries.h"
#include "forms/LineLossForm.h"
#include "lineloss/GasLineLoss.h"

namespace quillmetra {

// The places of a line that its picture shows: a march has a step a foot, and no screen that many dots.
class GasLinePicture {
public:
    void Take(const GasStation& station);
    // After the last step, which may have stopped the march anywhere.
    void Complete();
    // From the source on.
    const std::vector<GasStation>& Stations() const { return stations_; }

private:
    static constexpr int MostStations = 200;
    std::vector<GasStation> stations_;
    GasStation last_{};
    double next_ = 0;
};

class frmGasLineLoss : public LineLossForm, public GasEntries {
public:
    frmGasLineLoss();

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
    GasRows Figures{Picture1};
    BaseConditions Base{*this};

    void CloseOverlays() override;
    Handler KeepBeside() override;

protected:
    std::vector<CaseBoxes> BoxesOfACase() const override;
    bool CheckState() override;
    bool CheckPressureAlone() override;
    bool CheckSourcePressure() override;
    bool CheckFluid(Wanted wanted) override;
    bool CalculateCase() override;
    HintList Hints() const override;
    PlotDrawing DrawingOf(int caseIndex) const override;
    void ShowFigures(int caseIndex) override { Figures.Show(caseIndex, GasFiguresOf(caseIndex)); }
    void BlankFigures(int caseIndex) override { Figures.Blank(caseIndex); }
    void FillCase() override;
    std::vector<TextBox*> FluidBoxes(int caseIndex) override;
    void ShowSteam() override;
    void ShowChoices() override;

private:
    void ShowResults(const GasLineResults& results);
    void ShowFluidRows();

    Row<std::shared_ptr<const GasLinePicture>, CaseCount>
        pictures_;  // null for none; the history shares them
};

}  // namespace quillmetra
