// The options of a calculation: unit set, gauge or absolute pressure, gravity or density, barometer. On OK
// the data of the record are converted to the new settings.
#pragma once

#include <string>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "forms/SuiteForm.h"

namespace quillmetra {

class UnitChange;

class frmCalcOptions : public SuiteForm {
public:
    frmCalcOptions();

    void Load() override;
    void CloseBox() override { cmdCancelOptions_Click(); }

    Frame fraUnits{*this, "fraUnits"};
    OptionButton OptLeaveAsIs{fraUnits, "OptLeaveAsIs"};
    OptionButton optMassEnglishUnits{fraUnits, "optMassEnglishUnits", "English mass units"};
    OptionButton optVolEnglishUnits{fraUnits, "optVolEnglishUnits", "English volume units"};
    OptionButton optMassSIUnits{fraUnits, "optMassSIUnits", "SI mass units"};
    OptionButton optVolSIUnits{fraUnits, "optVolSIUnits", "SI volume units"};
    OptionButton optUserUnits{fraUnits, "optUserUnits", "User file units"};

    Frame fraPressure{*this, "fraPressure", "Pressure"};
    OptionButton OptGaugePress{fraPressure, "OptGaugePress", "Gauge pressure"};
    OptionButton optAbsolutePressure{fraPressure, "optAbsolutePressure", "Absolute pressure"};
    Label lblSTPBaro{fraPressure, "lblSTPBaro", "&Barometric pressure"};
    TextBox txtSTPBaro{fraPressure, "txtSTPBaro"};
    CommandButton cmdBaroPress{fraPressure, "cmdBaroPress", "psia"};

    Frame fraDensity{*this, "fraDensity", "Liquid density"};
    OptionButton optLiqSG{fraDensity, "optLiqSG", "Specific gravity"};
    OptionButton optLiqDensity{fraDensity, "optLiqDensity", "Density"};

    // What becomes of the numbers that a change of units converts; it holds for all calculations.
    Frame fraConverted{*this, "fraConverted", "Converted figures"};
    OptionButton optAskRounding{fraConverted, "optAskRounding", "Ask whether to round"};
    OptionButton optRoundFigures{fraConverted, "optRoundFigures", "Round to six figures"};
    OptionButton optKeepFigures{fraConverted, "optKeepFigures", "Keep all digits"};

    // No event of the suite shows these two; their words are kept as stored.
    Frame fraCalcInputData{*this, "fraCalcInputData", "Data source"};
    OptionButton optManInput{fraCalcInputData, "optManInput", "Manual input"};
    OptionButton optFileData{fraCalcInputData, "optFileData", "Data from file"};
    OptionButton optCalcDensity{fraCalcInputData, "optCalcDensity", "Calculate density"};
    Frame fraCalcOptions{*this, "fraCalcOptions", "Calculation"};
    OptionButton optPressureDrop{fraCalcOptions, "optPressureDrop", "Calculate Pressure drop"};
    OptionButton OptCalcFlowrate{fraCalcOptions, "OptCalcFlowrate", "Calculate flowrate"};
    OptionButton OptCalcValveSz{fraCalcOptions, "OptCalcValveSz", "Calculate data"};

    CommandButton cmdReviewUnits{*this, "cmdReviewUnits", "&Review units"};
    CommandButton cmdChangeUnits{*this, "cmdChangeUnits", "&Change units no conversion"};
    CommandButton cmdBootUpUnits{*this, "cmdBootUpUnits", "&Save as unit defaults"};
    CommandButton cmdOKOptions{*this, "cmdOKOptions", "OK"};
    CommandButton cmdCancelOptions{*this, "cmdCancelOptions", "Cancel"};

    // Takes the options into the record, converts it and closes the panel; what OK and every double click do.
    void CloseCalcOpts();
    void cmdBaroPress_Click();
    void cmdBootUpUnits_Click();
    void cmdChangeUnits_Click();
    void cmdReviewUnits_Click();
    void cmdCancelOptions_Click();

private:
    bool IsLiquid() const;
    int& UnitSet() const;
    void ShowOptions();
    void ShowBarometer();
    // The word of the option that is on; empty for none.
    std::string PressureChoice() const;
    std::string DensityChoice() const;
    std::string DataChoice() const;
    std::string CalcChoice() const;
    Figures FiguresChoice() const;
    // The number of the set that is picked, 0 for "leave as is".
    int SetChoice() const;
    double BarometerInPsia() const;
    // Takes the barometer of the box into the record and the file; true when it is another one.
    bool TakeBarometer();
    // What the status line has to say of the barometer that was taken from the box.
    std::string BarometerNote(bool taken) const;
    // Applies the picked unit set; false when the user's file is empty, which it says.
    bool ApplySet();
    // The options and the converted record onto the form; what its status line then has to say.
    std::string TakeOptions(UnitChange& change);
    void TakeBootUpUnits();
    void ResetOptionData();
    void InstallOptions();

    CalcRecord opened_;  // the record as the panel found it, for Cancel
    std::string barometerShown_;
};

}  // namespace quillmetra
