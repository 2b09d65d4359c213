// See frmCalcOptions.h.
#include "forms/frmCalcOptions.h"

#include <cmath>

#include "core/Filling.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/ColourSchemes.h"
#include "forms/PanelReturn.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"
#include "reports/FormRefresh.h"
#include "units/CorrelationRange.h"
#include "units/NamedUnitSets.h"
#include "units/Rounding.h"
#include "units/StandardRange.h"
#include "units/UnitCatalogue.h"
#include "units/UnitChange.h"
#include "units/UserUnits.h"

namespace quillmetra {

namespace {

constexpr const char* Psia = "psia";
constexpr const char* Kilopascal = "kPaa";

struct WordOption {
    const OptionButton& Option;
    const char* Word;
};

std::string PickedWord(std::initializer_list<WordOption> options) {
    for (const WordOption& each : options) {
        if (each.Option.Checked()) return each.Word;
    }
    return "";
}

}  // namespace

frmCalcOptions::frmCalcOptions() : SuiteForm("frmCalcOptions") {
    Fixed = true;
    DefaultButton = &cmdOKOptions;
    CancelButton = &cmdCancelOptions;
    txtSTPBaro.IsNumber = true;
    txtSTPBaro.ColourGroup = 4;
    txtSTPBaro.Describe(&lblSTPBaro, &cmdBaroPress);
    optKeepFigures.SetToolTip("A calculation whose figures are not rounded is not printed until they are");
    fraCalcInputData.SetVisible(false);
    fraCalcOptions.SetVisible(false);
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind == ControlKind::Frame || kind == ControlKind::Label || kind == ControlKind::OptionButton) {
            control->ColourGroup = 3;
        }
        if (kind != ControlKind::OptionButton) continue;
        const bool ofCalculation = control->Container() == &fraCalcOptions;
        control->DoubleClick = [this, ofCalculation] {
            if (!ofCalculation || IsYes(Calc.MixtureMarker)) CloseCalcOpts();
        };
    }
    txtSTPBaro.KeyPress = [](Key& key) {
        const bool isNumber = key.Name[0] == '.' || (key.Name[0] >= '0' && key.Name[0] <= '9');
        key.Handled = CharacterCount(key.Name) == 1 && !isNumber;
    };
    cmdBaroPress.Click = [this] { cmdBaroPress_Click(); };
    cmdReviewUnits.Click = [this] { cmdReviewUnits_Click(); };
    cmdChangeUnits.Click = [this] { cmdChangeUnits_Click(); };
    cmdBootUpUnits.Click = [this] { cmdBootUpUnits_Click(); };
    cmdOKOptions.Click = [this] { CloseCalcOpts(); };
    cmdCancelOptions.Click = [this] { cmdCancelOptions_Click(); };
}

bool frmCalcOptions::IsLiquid() const { return Calc.FluidType == words::Liquid; }
int& frmCalcOptions::UnitSet() const { return IsLiquid() ? Calc.LiquidUnitSet : Calc.GasUnitSet; }

void frmCalcOptions::Load() {
    ApplyColours(*this);
    Calc.OptionsLoaded = words::Loaded;
    if (!(Calc.BaroPressure > 0)) Calc.BaroPressure = SeaLevelBarometer;
    opened_ = Calc;
    SetCaption(Suite.VersionText + "Calculation options");
    ShowOptions();
}

void frmCalcOptions::ShowOptions() {
    fraUnits.SetCaption(Calc.FluidType + " - Unit options");
    OptLeaveAsIs.SetCaption("Currently - " + Calc.UnitSetName);
    OptionButton* const sets[] = {&OptLeaveAsIs,   &optMassEnglishUnits, &optVolEnglishUnits,
                                  &optMassSIUnits, &optVolSIUnits,       &optUserUnits};
    const int set = UnitSet();
    sets[set >= 0 && set <= UserUnitSet ? set : 0]->SetChecked(true);
    (Calc.PressureMode == words::Absolute ? optAbsolutePressure : OptGaugePress).SetChecked(true);
    (Calc.LiquidDensityMode == words::Density ? optLiqDensity : optLiqSG).SetChecked(true);
    fraDensity.SetVisible(program::TakesDensity(Calc.CurrentProgram));
    optManInput.SetChecked(Calc.DataMode == words::ManualData);
    optFileData.SetChecked(Calc.DataMode == words::FileData);
    optCalcDensity.SetChecked(Calc.DataMode == words::DensityData);
    optCalcDensity.SetEnabled(!IsLiquid());
    optPressureDrop.SetChecked(Calc.CalcMode == words::PressureDrop);
    OptCalcFlowrate.SetChecked(Calc.CalcMode == words::FlowRate);
    OptCalcValveSz.SetChecked(Calc.CalcMode == words::ValveSize);
    optAskRounding.SetChecked(Suite.ConvertedFigures == Figures::Ask);
    optRoundFigures.SetChecked(Suite.ConvertedFigures == Figures::Round);
    optKeepFigures.SetChecked(Suite.ConvertedFigures == Figures::Keep);
    ShowBarometer();
}

void frmCalcOptions::ShowBarometer() {
    const bool si = Calc.UnitSystem == words::SI;
    cmdBaroPress.SetCaption(si ? Kilopascal : Psia);
    barometerShown_ = Str(si ? RoundedFour(Calc.BaroPressure / PsiPerKPa) : Calc.BaroPressure);
    txtSTPBaro.SetText(barometerShown_);
}

void frmCalcOptions::cmdBaroPress_Click() {
    const bool untouched = txtSTPBaro.Text() == barometerShown_;
    const double value = Val(txtSTPBaro.Text());
    const bool toKilopascal = cmdBaroPress.Caption() == Psia;
    cmdBaroPress.SetCaption(toKilopascal ? Kilopascal : Psia);
    txtSTPBaro.SetText(Str(RoundedFour(toKilopascal ? value / PsiPerKPa : value * PsiPerKPa)));
    if (untouched) barometerShown_ = txtSTPBaro.Text();
}

// The record's own value, unless the user typed another: the box shows a rounded number.
double frmCalcOptions::BarometerInPsia() const {
    const double typed = Val(txtSTPBaro.Text());
    if (txtSTPBaro.Text() == barometerShown_ || !(typed > 0)) return Calc.BaroPressure;
    return cmdBaroPress.Caption() == Kilopascal ? RoundedFour(typed * PsiPerKPa) : typed;
}

// A new calculation reads the barometer from the file of the standard conditions, when there is one.
bool frmCalcOptions::TakeBarometer() {
    const double barometer = BarometerInPsia();
    const double inKilopascal = barometer / PsiPerKPa;
    if (barometer == Calc.BaroPressure || !std::isfinite(inKilopascal)) return false;
    Calc.BaroPressure = barometer;
    Calc.CaseInput[input::Barometer][0] =
        Calc.UnitName[unit::Barometer] == Kilopascal ? RoundedSix(inKilopascal) : barometer;
    opened_.CaseInput[input::Barometer] =
        Calc.CaseInput[input::Barometer];  // a new barometer outlasts the panel's Cancel
    SaveStandardConditions();
    return true;
}

std::string frmCalcOptions::BarometerNote(bool taken) const {
    const std::string& text = txtSTPBaro.Text();
    const std::string readAs = text == barometerShown_ ? "" : ReadAs(text);
    return Sentences(readAs.empty() ? "" : readAs + ".", taken ? FileConditionsNote() : "");
}

std::string frmCalcOptions::PressureChoice() const {
    return optAbsolutePressure.Checked() ? words::Absolute : words::Gauge;
}

std::string frmCalcOptions::DensityChoice() const {
    return optLiqDensity.Checked() ? words::Density : words::Gravity;
}

std::string frmCalcOptions::DataChoice() const {
    return PickedWord({{optManInput, words::ManualData},
                       {optFileData, words::FileData},
                       {optCalcDensity, words::DensityData}});
}

std::string frmCalcOptions::CalcChoice() const {
    return PickedWord({{optPressureDrop, words::PressureDrop},
                       {OptCalcFlowrate, words::FlowRate},
                       {OptCalcValveSz, words::ValveSize}});
}

Figures frmCalcOptions::FiguresChoice() const {
    if (optRoundFigures.Checked()) return Figures::Round;
    return optKeepFigures.Checked() ? Figures::Keep : Figures::Ask;
}

int frmCalcOptions::SetChoice() const {
    const OptionButton* const sets[] = {&optMassEnglishUnits, &optVolEnglishUnits, &optMassSIUnits,
                                        &optVolSIUnits, &optUserUnits};
    for (int set = 1; set <= UserUnitSet; ++set) {
        if (sets[set - 1]->Checked()) return set;
    }
    return 0;
}

// --- OK ------------------------------------------------------------------------------------------------

bool frmCalcOptions::ApplySet() {
    const int set = SetChoice();
    if (set == 0) return true;
    if (set == UserUnitSet) ReadUserUnitSets();
    if (!ApplyNamedUnitSet(set)) {
        Tell("User unit file is empty, please make and save", "Units file");
        return false;
    }
    UnitSet() = set;
    return true;
}

void frmCalcOptions::CloseCalcOpts() {
    if (IsYes(Calc.NoConversion) &&
        !AskYesNo("Option 'Change units no conversion' was selected\n\nOK?", "Change Units")) {
        Calc.NoConversion.clear();
        return;
    }
    UnitChange change;
    if (!ApplySet()) return;
    ChooseFigures(FiguresChoice());
    const std::string note = TakeOptions(change);
    InstallOptions();
    CalculationForm* const form = OpenCalculation();
    if (form != nullptr && !note.empty()) form->SetStatus(note);
}

std::string frmCalcOptions::TakeOptions(UnitChange& change) {
    const Filling filling;
    change.PressureMode = PressureChoice();
    if (IsLiquid()) change.DensityMode = DensityChoice();
    Calc.DataMode = DataChoice();
    Calc.CalcMode = CalcChoice();
    ConvertToNewUnits(change);
    const bool newBarometer = TakeBarometer();
    if (newBarometer) BlankAllResults();
    ComposeHeading();
    if (Calc.PressureMode == PressureChoice()) return BarometerNote(newBarometer);
    return Calc.UnitName[unit::Pressure] + " is neither gauge nor absolute: the pressures stay as they were";
}

void frmCalcOptions::InstallOptions() {
    UnloadForm(Name());
    ReturnToCalculation();
}

// --- The other buttons ---------------------------------------------------------------------------------

void frmCalcOptions::cmdBootUpUnits_Click() {
    // The modes of the panel are written, but the record keeps its own until OK converts it.
    CalcRecord before = Calc;
    const bool absolute = PressureChoice() == words::Absolute;
    Calc.PressureMode = PressureChoice();
    if (!Calc.UnitName[unit::Pressure].empty()) Calc.UnitName[unit::Pressure].back() = absolute ? 'a' : 'g';
    std::string question = "Use the the current unit display for bootup?\n\n";
    question += absolute ? "It uses absolute pressure instead of gauge pressure"
                         : "It uses gauge pressure instead of absolute pressure";
    if (IsLiquid()) {
        Calc.LiquidDensityMode = DensityChoice();
        question += optLiqDensity.Checked() ? "\nand liquid density instead of specific gravity"
                                            : "\nand liquid specific gravity instead of density";
    }
    bool newBarometer = false;
    if (AskYesNo(question + "\nSave?", "New boot up Configuration for " + Calc.FluidType)) {
        newBarometer = TakeBarometer();
        TakeBootUpUnits();
        const std::string note = BarometerNote(newBarometer);
        if (!ReadAs(txtSTPBaro.Text()).empty()) txtSTPBaro.SetText(Str(Val(txtSTPBaro.Text())));
        SaveUserUnits(*this);
        if (!note.empty()) SetStatus(Sentences(Status() + ".", note));
        before.LiquidUnitSet = Calc.LiquidUnitSet;
        before.GasUnitSet = Calc.GasUnitSet;
        before.BaroPressure = Calc.BaroPressure;
        before.CaseInput[input::Barometer] = Calc.CaseInput[input::Barometer];
    }
    Calc = before;
    if (newBarometer) BlankAllResults();
}

// Units that belong to no named set become the user's set. A gas keeps its own set throughout, and the first
// named set of a gas becomes the user's too.
void frmCalcOptions::TakeBootUpUnits() {
    int& set = UnitSet();
    if (set == 0 || (!IsLiquid() && set == 1)) set = UserUnitSet;
    if (!IsLiquid() || set == UserUnitSet) StoreUserUnitSet();
}

void frmCalcOptions::cmdChangeUnits_Click() {
    if (!AskYesNo("For one selection, this will install any other unit\noption without converting the data.",
                  "If data is downloaded to the wrong units")) {
        return;
    }
    Tell("Select required units and click 'OK' ", "Change Units");
    Calc.FormLoading = words::Yes;
    Calc.NoConversion = words::Yes;
}

void frmCalcOptions::cmdReviewUnits_Click() {
    HideForm(Name());
    ShowForm("frmUnits");
}

// Takes the record back as the panel found it; what the panel never touches stays.
void frmCalcOptions::ResetOptionData() {
    Calc.CaseInput = opened_.CaseInput;
    Calc.UnitFactor = opened_.UnitFactor;
    Calc.UnitName = opened_.UnitName;
    Calc.PipeData = opened_.PipeData;
    Calc.FittingCount = opened_.FittingCount;
    Calc.HammerResult = opened_.HammerResult;
    Calc.CaseUnitsText = opened_.CaseUnitsText;
    Calc.CaseText = opened_.CaseText;
    Calc.ChosenUnitRowNames = opened_.ChosenUnitRowNames;
    Calc.NoteText = opened_.NoteText;
    Calc.UnitNamePrevious = opened_.UnitNamePrevious;
    Calc.HeadingText = opened_.HeadingText;
    Calc.CaseResult = opened_.CaseResult;
    Calc.FluidPercent = opened_.FluidPercent;
    Calc.FluidData = opened_.FluidData;
    Calc.PressureDirection = opened_.PressureDirection;
    Calc.LiquidBasis = opened_.LiquidBasis;
    Calc.Basis = opened_.Basis;
}

void frmCalcOptions::cmdCancelOptions_Click() {
    ResetOptionData();
    Calc.CalcMode = opened_.CalcMode;
    Calc.DataMode = opened_.DataMode;
    Calc.LiquidUnitSet = opened_.LiquidUnitSet;
    Calc.GasUnitSet = opened_.GasUnitSet;
    Calc.PressureMode = opened_.PressureMode;
    Calc.LiquidDensityMode = opened_.LiquidDensityMode;
    InstallOptions();
}

}  // namespace quillmetra
