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
    {"cmdUnits", unit::LiquidFlow, unit::LiquidFlow},
    {"cmdUnits", unit::Temperature, unit::Temperature},
    {"cmdUnits", unit::Pressure, unit::Pressure},
    {"cmdUnits", unit::PressureDrop, unit::PressureDrop},
    {"cmdUnits", unit::LiquidDensity, unit::LiquidDensity},
    {"cmdUnits", unit::Viscosity, unit::Viscosity},
    {"cmdUnits", unit::PipeSize, unit::PipeSize},
    {"cmdUnits", unit::Length, unit::Length},
};
constexpr UnitControl GasLossUnits[] = {
    {"cmdUnits", unit::GasFlow, unit::GasFlow},
    {"cmdUnits", unit::Temperature, unit::Temperature},
    {"cmdUnits", unit::Pressure, unit::Pressure},
    {"cmdUnits", unit::PressureDrop, unit::PressureDrop},
    {"cmdUnits", unit::CritPressure, unit::CritPressure},
    {"cmdUnits", unit::CritTemperature, unit::CritTemperature},
    {"cmdUnits", unit::GasViscosity, unit::GasViscosity},
    {"cmdUnits", unit::PipeSize, unit::PipeSize},
    {"cmdUnits", unit::Length, unit::Length},
    {"unSonicVelocity", Single, unit::Velocity},
};
// Those that both line-loss forms have beside them.
constexpr UnitControl LineUnits[] = {
    {"unInletPipeElev", Single, unit::Length},  {"unOutletPipeElev", Single, unit::Length},
    {"unDropP100", Single, unit::PressureDrop}, {"unDestPress", Single, unit::Pressure},
    {"unVelocity", Single, unit::Velocity},     {"unEquivLen", Single, unit::Length},
};

constexpr UnitControl WaterHammerUnits[] = {
    {"cmdUnits", unit::LiquidFlow, unit::LiquidFlow}, {"cmdUnits", unit::Temperature, unit::Temperature},
    {"cmdUnits", unit::Pressure, unit::Pressure},     {"cmdUnits", unit::LiquidDensity, unit::LiquidDensity},
    {"cmdUnits", unit::PipeSize, unit::PipeSize},     {"cmdUnits", unit::Length, unit::Length},
    {"cmdUnits", unit::Modulus, unit::Modulus},       {"UnpipeWall", Single, unit::PipeSize},
    {"unLineModulus", Single, unit::Modulus},         {"unMaxAllowPressure", Single, unit::Pressure},
    {"unWaveVelocity", Single, unit::Velocity},       {"unPressureWave", Single, unit::Pressure},
    {"unSupportForce", Single, unit::Force},          {"unSelectedWave", Single, unit::Pressure},
    {"unSelectedForce", Single, unit::Force},
};

constexpr UnitControl LiquidDataUnits[] = {
    {"cmdUnits", unit::Temperature, unit::Temperature},
    {"cmdUnits", unit::Pressure, unit::Pressure},
    {"unCritPressure", Single, unit::CritPressure},
    {"unCritTemp", Single, unit::CritTemperature},
    {"unDensity", Single, unit::Density},
    {"unNormalBP", Single, unit::Temperature},
    {"unViscosity", Single, unit::Viscosity},
    {"unVapPressure", Single, unit::VaporPressure},
    {"unFlashPoint", Single, unit::Temperature},
    {"unBulkMod", Single, unit::Modulus},
};
constexpr UnitControl GasDataUnits[] = {
    {"cmdUnits", unit::Temperature, unit::Temperature}, {"cmdUnits", unit::Pressure, unit::Pressure},
    {"unNormalBP", Single, unit::Temperature},          {"unCritPressure", Single, unit::CritPressure},
    {"unCritTemp", Single, unit::CritTemperature},      {"unDensity", Single, unit::Density},
    {"unViscosity", Single, unit::Viscosity},           {"unVapPressure", Single, unit::VaporPressure},
    {"unReqdLatentHeat", Single, unit::LatentHeat},     {"unLatentHeatBP", Single, unit::LatentHeat},
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
    if (IsYes(Calc.UnitsConverted) || program::IsFluidData(program)) return {0, CaseCount - 1};
    return {Calc.CaseIndex, Calc.CaseIndex};
}

void ShowRows(Form& form, int program) {
    const auto [first, last] = CasesToShow(program);
    const bool results = !IsYes(Calc.HideResults);
    const bool converted = IsYes(Calc.UnitsConverted);
    for (const FormRow& row : FormRows(program)) {
        if (row.IsResult() && !results) continue;
        for (int i = row.PerCase ? first : Calc.CaseIndex; i <= (row.PerCase ? last : Calc.CaseIndex); ++i) {
            if (RowStands(row, i)) ShowRow(form, row, i, converted);
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
    const bool source = Calc.PressureDirection == direction::Backwards;
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
    Named(form, "cmdUnits", unit::LiquidDensity).SetVisible(density);
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
    SetText(Named(form, "txtBy"), OrPrompt(Calc.CaseText[text::CalcBy], words::ByPrompt));
    SetText(Named(form, "cmdDate"), OrPrompt(Calc.CaseText[text::CalcDate], "Date"));
    SetText(Named(form, "txtApprov"), OrPrompt(Calc.CaseText[text::ApprovedBy], words::ApprovedPrompt));
    SetText(Named(form, "txtComments", 0), Calc.HeadingText[heading::Note1]);
    SetText(Named(form, "txtComments", 1), Calc.HeadingText[heading::Note2]);
}

void ShowPipeName(Form& form) {
    Control& box = Named(form, "txtPipeName");
    SetText(box, Calc.PipeName);
    constexpr int plainText = 4;
    PaintValue(box, plainText);
}

// What both line-loss forms show alike.
void ShowLine(Form& form, int program) {
    ShowPipeName(form);
    ShowBasis(form);
    ShowUnits(form, LineUnits);
    Named(form, "lblDropP100").SetCaption("Loss per 100 " + Calc.UnitName[unit::Length]);
    Named(form, "cmdMatl").SetCaption(Calc.PipeMaterial);
    Named(form, "cmdService").SetCaption(Calc.Service.empty() ? words::NoService : Calc.Service);
    ShowTick(form, "chkEntrance", pipe::Entrance);
    ShowTick(form, "chkExit", pipe::Exit);
    ShowRows(form, program);
    ShowSignatures(form);
}

}  // namespace

void PaintTick(CheckBox& box, double shown) {
    constexpr int frameText = 2;  // a tick stands on the frame, not in an input box
    const int slot = ValueSlot(box.Checked() ? pipe::Ticked : pipe::NotTicked, shown);
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
    ShowLine(form, program::LiquidLine);
}

void ShowGasLoss() {
    const Filling filling;
    Form& form = LoadForm("frmGasLineLoss");
    ShowIdentity(form);
    ShowUnits(form, GasLossUnits);
    ShowDirection(form, true);
    ShowLine(form, program::GasLine);
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
    if (!basis.Caption().empty() || Calc.HammerResult[wave::CriticalTime] > 0)
        basis.SetCaption(Calc.LiquidBasis);
    Control& material = Named(form, "txtPipeMatl");
    SetText(material, Calc.PipeMaterial);
    PaintValue(material, TextSlot(Calc.PipeMaterial, Calc.PipeMaterialSaved));
    ShowPipeName(form);
    ShowRows(form, program::WaterHammer);
    ShowSignatures(form);
}

void ShowReportBasis() {
    if (Calc.CurrentProgram == program::LiquidData) ShowBasis(LoadForm("frmGasLineLoss"));
}

void ShowLiquidData() {
    const Filling filling;
    Form& form = LoadForm("frmLiqData");
    ShowIdentity(form);
    ShowBasis(form);
    ShowReportBasis();
    ShowUnits(form, LiquidDataUnits);
    const bool density = Calc.LiquidDensityMode == words::Density;
    Named(form, "lblSGFTP")
        .SetCaption(density ? "Density @ FTP    " + Calc.UnitName[unit::Density] : "Specific gravity @ FTP");
    Named(form, "lblSGBase")
        .SetCaption(density ? "Density @ Base    " + Calc.UnitName[unit::Density]
                            : "Specific gravity @ Base");
    ShowRows(form, program::LiquidData);
    ShowSignatures(form);
}

void ShowGasData() {
    const Filling filling;
    Form& form = LoadForm("frmGasData");
    ShowIdentity(form);
    ShowBasis(form);
    ShowUnits(form, GasDataUnits);
    ShowRows(form, program::GasData);
    ShowSignatures(form);
}

void ShowCalculation() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    if (program == nullptr) return;
    if (Calc.ProgramTitle.empty()) Calc.ProgramTitle = program->Title;
    Calc.MethodText = program->Method;
    switch (program->Number) {
        case program::LiquidLine: ShowLiquidLoss(); break;
        case program::GasLine: ShowGasLoss(); break;
        case program::WaterHammer: ShowWaterHammer(); break;
        case program::LiquidData: ShowLiquidData(); break;
        case program::GasData: ShowGasData(); break;
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
    if (program::IsFluidData(Calc.CurrentProgram)) {
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
