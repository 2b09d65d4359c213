// See FormRefresh.h.
#include "reports/FormRefresh.h"

#include <cmath>
#include <span>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Arithmetic.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "units/ProgramConversion.h"

namespace quillmetra {

namespace {

Control& Named(Form& form, std::string_view name, int index = Control::NoIndex) {
    Control* const control = form.Find(name, index);
    if (control == nullptr) throw failure::NoSuchControl(name);
    return *control;
}

void SetText(Control& control, const std::string& text) {
    if (control.Kind() == ControlKind::TextBox) {
        static_cast<TextBox&>(control).SetText(text);
    } else {
        control.SetCaption(text);
    }
}

void PaintValue(Control& control, int slot) {
    control.SetColours(control.BackColour(), Suite.Colours.at(static_cast<std::size_t>(slot)));
}

// A captioned control that shows the name of a unit row.
struct UnitControl {
    const char* Control;
    int Index;
    int UnitRow;
};

constexpr int Single = Control::NoIndex;
constexpr UnitControl LiquidLossUnits[] = {
    {"cmdUnits", 1, 1}, {"cmdUnits", 2, 2}, {"cmdUnits", 3, 3},   {"cmdUnits", 4, 4},
    {"cmdUnits", 6, 6}, {"cmdUnits", 7, 7}, {"cmdUnits", 18, 18}, {"cmdUnits", 25, 25},
};
constexpr UnitControl GasLossUnits[] = {
    {"cmdUnits", 0, 0},   {"cmdUnits", 2, 2},
    {"cmdUnits", 3, 3},   {"cmdUnits", 4, 4},
    {"cmdUnits", 11, 11}, {"cmdUnits", 12, 12},
    {"cmdUnits", 13, 13}, {"cmdUnits", 18, 18},
    {"cmdUnits", 25, 25}, {"unSonicVelocity", Single, 20},
};
// Those that both line-loss forms have beside them.
constexpr UnitControl LineUnits[] = {
    {"unInletPipeElev", Single, 25}, {"unOutletPipeElev", Single, 25}, {"unDropP100", Single, 4},
    {"unDestPress", Single, 3},      {"unVelocity", Single, 20},       {"unEquivLen", Single, 25},
};

constexpr UnitControl WaterHammerUnits[] = {
    {"cmdUnits", 1, 1},
    {"cmdUnits", 2, 2},
    {"cmdUnits", 3, 3},
    {"cmdUnits", 6, 6},
    {"cmdUnits", 18, 18},
    {"cmdUnits", 25, 25},
    {"cmdUnits", 27, 27},
    {"UnpipeWall", Single, 18},
    {"unLineModulus", Single, 27},
    {"unMaxAllowPressure", Single, 3},
    {"unWaveVelocity", Single, 20},
    {"unPressureWave", Single, 3},
    {"unSupportForce", Single, 0},
    {"unSelectedWave", Single, 3},
    {"unSelectedForce", Single, 0},
};

constexpr UnitControl LiquidDataUnits[] = {
    {"cmdUnits", 2, 2},         {"cmdUnits", 3, 3},           {"unCritPressure", Single, 11},
    {"unCritTemp", Single, 12}, {"unDensity", Single, 9},     {"unNormalBP", Single, 2},
    {"unViscosity", Single, 7}, {"unVapPressure", Single, 8}, {"unFlashPoint", Single, 2},
    {"unBulkMod", Single, 27},
};
constexpr UnitControl GasDataUnits[] = {
    {"cmdUnits", 2, 2},
    {"cmdUnits", 3, 3},
    {"unNormalBP", Single, 2},
    {"unCritPressure", Single, 11},
    {"unCritTemp", Single, 12},
    {"unDensity", Single, 9},
    {"unViscosity", Single, 7},
    {"unVapPressure", Single, 8},
    {"unReqdLatentHeat", Single, 16},
    {"unLatentHeatBP", Single, 16},
};

// After a conversion a text that one of the first two rules leaves standing would be a number in the former
// unit. Of a property nothing below zero is shown.
void ShowConverted(Control& control, const FormRow& row, double value) {
    if (value > 0 || (row.IsResult() && value != 0) || Val(control.Text()) == Val(Str(value))) return;
    SetText(control, value == 0 ? "" : Str(value));
}

void ShowRow(Form& form, const FormRow& row, int caseIndex, bool converted) {
    Control& control = RowControl(form, row, caseIndex);
    double& value = LiveValue(row, caseIndex);
    const bool mayStay = !row.IsResult() || row.From == Source::Property;
    if (converted && mayStay && row.Rule != ShowRule::LegalZero) ShowConverted(control, row, value);
    switch (row.Rule) {
        case ShowRule::Positive:
            if (value > 0) ShowNumber(control, value);
            break;
        case ShowRule::Signed:
            if (value != 0) ShowNumber(control, value);
            break;
        case ShowRule::LegalZero:
            if (std::abs(value) < 1e-06) value = 0;
            if (value != 0 || !control.Text().empty()) ShowNumber(control, value);
            break;
    }
    PaintValue(control, ValueSlot(value, ShownValue(row, caseIndex)));
}

void ShowTick(Form& form, const char* name, std::size_t flag) {
    auto& box = static_cast<CheckBox&>(Named(form, name));
    box.SetChecked(Calc.PipeData[flag] > 1.1);
    PaintTick(box, Calc.PipeDataShown[flag]);
}

// The line-loss forms refresh all three cases after a conversion, else the one in hand; the fluid data forms
// always all.
std::pair<int, int> CasesToShow(int program) {
    if (Calc.UnitsConverted == words::Yes || program > 3) return {0, CaseCount - 1};
    return {Calc.CaseIndex, Calc.CaseIndex};
}

// A result of the line is one number for all cases.
bool Stands(const FormRow& row, int caseIndex) {
    if (row.From == Source::CaseResult && !row.PerCase) return LineResultStands();
    return !row.IsResult() || ResultsStand(caseIndex);
}

void ShowRows(Form& form, int program) {
    const auto [first, last] = CasesToShow(program);
    const bool results = Calc.HideResults != words::Yes;
    const bool converted = Calc.UnitsConverted == words::Yes;
    for (const FormRow& row : FormRows(program)) {
        if (row.IsResult() && !results) continue;
        for (int i = row.PerCase ? first : Calc.CaseIndex; i <= (row.PerCase ? last : Calc.CaseIndex); ++i) {
            if (Stands(row, i)) ShowRow(form, row, i, converted);
        }
    }
    Calc.UnitsConverted.clear();
}

void ShowUnits(Form& form, std::span<const UnitControl> units) {
    for (const UnitControl& unit : units) {
        Named(form, unit.Control, unit.Index)
            .SetCaption(Calc.UnitName[static_cast<std::size_t>(unit.UnitRow)]);
    }
}

// The given pressure and the one calculated. When the destination is given, the liquid form leaves its
// result label as the click of optSource wrote it.
void ShowDirection(Form& form, bool swapsResult) {
    const bool source = Calc.PressureDirection == 2;
    Named(form, "lblPressure").SetCaption(source ? "Destination pressure" : "Source pressure");
    if (source && !swapsResult) return;
    Named(form, "lblDestPress").SetCaption(source ? "Source pressure" : "Destination pressure");
}

void ShowDensityMode(Form& form, const char* gravityTip) {
    const bool density = Calc.LiquidDensityMode == words::Density;
    Named(form, "lblSGFlow").SetCaption(density ? "Flowing density" : "Specific gravity @ FTP");
    for (const int i : {Single, 0, 1, 2}) {
        if (Control* box = form.Find("txtSGFlow", i)) {
            box->SetToolTip(density ? " Enter flowing density" : gravityTip);
        }
    }
    Named(form, "cmdUnits", 6).SetVisible(density);
}

// The boxes of the two names and the date show their prompt while they are empty.
std::string OrPrompt(const std::string& text, const char* prompt) { return text.empty() ? prompt : text; }

void ShowBasis(Form& form) {
    Named(form, "lblSetupSelections").SetCaption(Calc.UnitsTitle);
    Named(form, "lblCalcSource").SetCaption(Calc.MethodText);
}

void ShowIdentity(Form& form) {
    form.SetCaption(Suite.VersionText + Calc.ProgramTitle);
    SetText(Named(form, "txtTagNum"), Calc.Tag);
    Control& fluid = Named(form, "txtFluid");
    SetText(fluid, Calc.FluidName);
    PaintValue(fluid, TextSlot(Calc.FluidName, Calc.FluidNameSaved));
}

void ShowSignatures(Form& form) {
    SetText(Named(form, "txtBy"), OrPrompt(Calc.CaseText[8], words::ByPrompt));
    SetText(Named(form, "cmdDate"), OrPrompt(Calc.CaseText[10], "Date"));
    SetText(Named(form, "txtApprov"), OrPrompt(Calc.CaseText[9], words::ApprovedPrompt));
    SetText(Named(form, "txtComments", 0), Calc.HeadingText[8]);
    SetText(Named(form, "txtComments", 1), Calc.HeadingText[9]);
}

// What both line-loss forms show alike.
void ShowLine(Form& form, int program) {
    ShowBasis(form);
    ShowUnits(form, LineUnits);
    Named(form, "lblDropP100").SetCaption("Loss per 100 " + Calc.UnitName[25]);
    Named(form, "cmdMatl").SetCaption(Calc.PipeMaterial);
    ShowTick(form, "chkEntrance", 4);
    ShowTick(form, "chkExit", 5);
    ShowRows(form, program);
    ShowSignatures(form);
}

}  // namespace

void PaintTick(CheckBox& box, double shown) {
    constexpr int frameText = 2;  // a tick stands on the frame, not in an input box
    const int slot = ValueSlot(box.Checked() ? 2 : 1, shown);
    PaintValue(box, slot == 4 ? frameText : slot);
}

void ShowNumber(Control& control, double value) { SetText(control, Str(CheckFinite(value))); }

void ShowLiquidLoss() {
    const Filling filling;
    Form& form = LoadForm("frmLiqLineLoss");
    ShowIdentity(form);
    ShowUnits(form, LiquidLossUnits);
    ShowDirection(form, false);
    ShowDensityMode(form, "Specific gravity @ FTPy");
    ShowLine(form, 1);
}

void ShowGasLoss() {
    const Filling filling;
    Form& form = LoadForm("frmGasLineLoss");
    ShowIdentity(form);
    ShowUnits(form, GasLossUnits);
    ShowDirection(form, true);
    ShowLine(form, 2);
}

void ShowWaterHammer() {
    const Filling filling;
    Form& form = LoadForm("frmWaterHammer");
    ShowIdentity(form);
    ShowBasis(form);
    SetForceUnit();  // it goes by the unit of the pipe
    ShowUnits(form, WaterHammerUnits);
    ShowDensityMode(form, " Enter Specific gravity @ FTP");
    // The basis shows from the first calculation on, which a record that is opened again has behind it.
    Control& basis = Named(form, "lblLiqTestBasis");
    if (!basis.Caption().empty() || Calc.HammerResult[12] > 0) basis.SetCaption(Calc.LiquidBasis);
    Control& material = Named(form, "txtPipeMatl");
    SetText(material, Calc.PipeMaterial);
    PaintValue(material, TextSlot(Calc.PipeMaterial, Calc.PipeMaterialSaved));
    ShowRows(form, 3);
    ShowSignatures(form);
}

// The form has no place for units' title and source; the report of this program reads them on the gas form.
void ShowLiquidData() {
    const Filling filling;
    Form& form = LoadForm("frmLiqData");
    ShowIdentity(form);
    ShowBasis(LoadForm("frmGasLineLoss"));
    ShowUnits(form, LiquidDataUnits);
    const bool density = Calc.LiquidDensityMode == words::Density;
    Named(form, "lblSGFTP")
        .SetCaption(density ? "Density @ FTP    " + Calc.UnitName[9] : "Specific gravity @ FTP");
    Named(form, "lblSGBase")
        .SetCaption(density ? "Density @ Base    " + Calc.UnitName[9] : "Specific gravity @ Base");
    ShowRows(form, 4);
    ShowSignatures(form);
}

void ShowGasData() {
    const Filling filling;
    Form& form = LoadForm("frmGasData");
    ShowIdentity(form);
    ShowBasis(form);
    ShowUnits(form, GasDataUnits);
    ShowRows(form, 5);
    ShowSignatures(form);
}

void ShowCalculation() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    if (program == nullptr) return;
    if (Calc.ProgramTitle.empty()) Calc.ProgramTitle = program->Title;
    Calc.MethodText = program->Method;
    switch (program->Number) {
        case 1: ShowLiquidLoss(); break;
        case 2: ShowGasLoss(); break;
        case 3: ShowWaterHammer(); break;
        case 4: ShowLiquidData(); break;
        case 5: ShowGasData(); break;
        default: break;
    }
}

void ComposeHeading() {
    struct Choice {
        const char* Mode;
        const char* Words;
    };
    static constexpr Choice dataModes[] = {{words::FileData, ", all calculations"},
                                           {words::DensityData, ", basic plus calculate density"},
                                           {words::ManualData, ", basic calculation"}};
    static constexpr Choice calcModes[] = {{words::PressureDrop, ", calculate Pressure drop"},
                                           {words::FlowRate, ", calculate flowrate"},
                                           {words::ValveSize, ", calculate data"},
                                           {"", ", calculate data"}};
    constexpr int lastLineProgram = 3;
    if (Calc.CurrentProgram > lastLineProgram) {
        Calc.UnitsTitle = Calc.UnitSystem + " units, calculate data";
        return ShowCalculation();
    }
    Calc.UnitsTitle = Calc.UnitSetName;
    for (const Choice& choice : dataModes) {
        if (Calc.DataMode == choice.Mode) Calc.UnitsTitle += choice.Words;
    }
    for (const Choice& choice : calcModes) {
        if (Calc.CalcMode == choice.Mode) Calc.UnitsTitle += choice.Words;
    }
    ShowCalculation();
}

}  // namespace quillmetra
