// Program 5: the properties of a gas or of steam at temperature and pressure.
#pragma once

#include "forms/BaseConditions.h"
#include "forms/BasisLabels.h"
#include "forms/DataForm.h"

namespace quillmetra {

class frmGasData : public DataForm {
public:
    frmGasData();

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
    MenuItem mnuSuperSteam2{mnuCase(1), "mnuSuperSteam2", "Super&heated steam"};
    MenuItem mnuSuperSteam3{mnuCase(2), "mnuSuperSteam3", "Super&heated steam"};

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
    void ParseFluid() override;
    bool CalcMixture() override;
    bool FillFluid() override;
    void BeginSteam() override;
    void ShowSteam() override;
    std::string TitleTail() const override;
    void PropertiesTaken() override;
    void ShowChoices() override;
};

}  // namespace quillmetra
