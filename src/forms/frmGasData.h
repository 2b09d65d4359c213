// Program 5: the properties of a gas or of steam at temperature and pressure.
#pragma once

#include "forms/BaseConditions.h"
#include "forms/BasisLabels.h"
#include "forms/DataForm.h"
#include "forms/GasEntries.h"

namespace quillmetra {

class frmGasData : public DataForm, public GasEntries {
public:
    frmGasData();

    BasisLabels Basis{Picture1};
    Label lblRatioSH{Picture1, "lblRatioSH", "Ratio of specific heats"};
    ControlArray<TextBox> txtRatioSH{Picture1, "txtRatioSH", {0, 1, 2}};
    Label lblCompFactor{Picture1, "lblCompFactor", "Compressibility factor"};
    ControlArray<TextBox> txtCompFactor{Picture1, "txtCompFactor", {0, 1, 2}};
    Label lblReqdLatentHeat{Picture1, "lblReqdLatentHeat", "Latent heat"};
    ControlArray<TextBox> txtReqdLatentHeat{Picture1, "txtReqdLatentHeat", {0, 1, 2}};
    Label unReqdLatentHeat{Picture1, "unReqdLatentHeat"};
    Label lblLatentHeatBP{Picture1, "lblLatentHeatBP", "Latent heat at boiling point"};
    ControlArray<TextBox> txtLatentHeatBP{Picture1, "txtLatentHeatBP", {0, 1, 2}};
    Label unLatentHeatBP{Picture1, "unLatentHeatBP"};
    BaseConditions Base{*this};

    void CloseOverlays() override;

protected:
    bool CheckState() override;
    bool CheckPressureAlone() override;
    bool IsTemperatureEntered(int caseIndex) override;
    void FillCase() override;
    void BeginSteam() override;
    void ShowSteam() override;
    std::string TitleTail() const override;
    void PropertiesTaken() override;
    HintList Hints() const override;
    void ShowChoices() override;
};

}  // namespace quillmetra
