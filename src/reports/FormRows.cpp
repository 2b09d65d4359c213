// See FormRows.h.
#include "reports/FormRows.h"

#include <algorithm>
#include <array>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

constexpr int Single = Control::NoIndex;
constexpr bool Each = true;   // one for each case
constexpr bool Once = false;  // one for all cases

// The line, as both line-loss forms have it.
constexpr std::array LineRows = std::to_array<FormRow>({
    {"txtInletPipeLen", Source::PipeData, pipe::Length, ShowRule::Positive, Once, "lblInletPipeLen",
     "cmdUnits", unit::Length},
    {"txtInletPipeID", Source::PipeData, pipe::InsideDiameter, ShowRule::Positive, Once, "lblInletPipeID",
     "cmdUnits", unit::PipeSize},
    {"txtInletPipeElev", Source::PipeData, pipe::StartElevation, ShowRule::Signed, Once, "lblInletPipeElev",
     "unInletPipeElev", Single},
    {"txtOutletPipeElev", Source::CaseInput, input::EndElevation, ShowRule::Signed, Once, "lblOutletPipeElev",
     "unOutletPipeElev", Single},
    {"txtPipeCond", Source::PipeFouling, 0, ShowRule::Positive, Once, "lblPipeCond", "", Single},
    {"txtInletGate", Source::FittingCount, fitting::GateValves, ShowRule::Signed, Once, "lblInletGate", "",
     Single},
    {"txtInletGlobe", Source::FittingCount, fitting::GlobeValves, ShowRule::Signed, Once, "lblInletGlobe", "",
     Single},
    {"txtInletCheck", Source::FittingCount, fitting::CheckValves, ShowRule::Signed, Once, "lblInletCheck", "",
     Single},
    {"txtInlet90Deg", Source::FittingCount, fitting::Ells90, ShowRule::Signed, Once, "lblInlet90Deg", "",
     Single},
    {"txtInlet45Deg", Source::FittingCount, fitting::Ells45, ShowRule::Signed, Once, "lblInlet45Deg", "",
     Single},
    {"txtInletThru", Source::FittingCount, fitting::ThruTees, ShowRule::Signed, Once, "lblInletThru", "",
     Single},
    {"txtInletBranch", Source::FittingCount, fitting::BranchTees, ShowRule::Signed, Once, "lblInletBranch",
     "", Single},
});

template <std::size_t A, std::size_t B>
constexpr std::array<FormRow, A + B> Joined(const std::array<FormRow, A>& first,
                                            const std::array<FormRow, B>& second) {
    std::array<FormRow, A + B> rows{};
    std::copy(first.begin(), first.end(), rows.begin());
    std::copy(second.begin(), second.end(), rows.begin() + A);
    return rows;
}

constexpr auto LiquidLossRows =
    Joined(LineRows, std::to_array<FormRow>({
                         {"txtFlow", Source::CaseInput, input::LiquidFlow, ShowRule::Positive, Each,
                          "lblFlow", "cmdUnits", unit::LiquidFlow},
                         {"txtTemp", Source::CaseInput, input::Temperature, ShowRule::LegalZero, Each,
                          "lblTemp", "cmdUnits", unit::Temperature},
                         {"txtPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Each,
                          "lblPressure", "cmdUnits", unit::Pressure},
                         {"txtSGFlow", Source::CaseInput, input::FlowGravity, ShowRule::Positive, Each,
                          "lblSGFlow", "cmdUnits", unit::LiquidDensity},
                         {"txtViscosity", Source::CaseInput, input::Viscosity, ShowRule::Positive, Each,
                          "lblViscosity", "cmdUnits", unit::Viscosity},
                         {"txtEquip", Source::CaseInput, input::EquipLoss, ShowRule::Positive, Each,
                          "lblEquip", "cmdUnits", unit::PressureDrop},
                         {"txtDropP100", Source::CaseResult, result::LossPer100, ShowRule::Positive, Each,
                          "lblDropP100", "unDropP100", Single},
                         {"txtDestPress", Source::CaseResult, result::FinalPressure, ShowRule::LegalZero,
                          Each, "lblDestPress", "unDestPress", Single},
                         {"txtVelocity", Source::CaseResult, result::Velocity, ShowRule::Positive, Each,
                          "lblVelocity", "unVelocity", Single},
                         {"txtReynoldsNum", Source::CaseResult, result::ReynoldsNumber, ShowRule::Positive,
                          Each, "lblReynoldsNum", "", Single},
                         {"txtEquivLen", Source::CaseResult, result::EquivLength, ShowRule::Positive, Once,
                          "lblEquivLen", "unEquivLen", Single},
                     }));

constexpr auto GasLossRows = Joined(
    LineRows,
    std::to_array<FormRow>({
        {"txtFlow", Source::CaseInput, input::GasFlow, ShowRule::Positive, Each, "lblFlow", "cmdUnits",
         unit::GasFlow},
        {"txtTemp", Source::CaseInput, input::Temperature, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits",
         unit::Temperature},
        {"txtPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Each, "lblPressure",
         "cmdUnits", unit::Pressure},
        {"txtMW", Source::CaseInput, input::MolecularWeight, ShowRule::Positive, Each, "lblMW", "", Single},
        {"txtRatioSH", Source::CaseInput, input::RatioSpecificHeats, ShowRule::Positive, Each, "lblRatioSH",
         "", Single},
        {"txtCritTemp", Source::CaseInput, input::CritTemperature, ShowRule::LegalZero, Each, "lblCritTemp",
         "cmdUnits", unit::CritTemperature},
        {"txtCritPressure", Source::CaseInput, input::CritPressure, ShowRule::Positive, Each,
         "lblCritPressure", "cmdUnits", unit::CritPressure},
        {"txtViscosity", Source::CaseInput, input::Viscosity, ShowRule::Positive, Each, "lblViscosity",
         "cmdUnits", unit::GasViscosity},
        {"txtEquip", Source::CaseInput, input::EquipLoss, ShowRule::Positive, Each, "lblEquip", "cmdUnits",
         unit::PressureDrop},
        {"txtDropP100", Source::CaseResult, result::LossPer100, ShowRule::Positive, Each, "lblDropP100",
         "unDropP100", Single},
        {"txtDestPress", Source::CaseResult, result::FinalPressure, ShowRule::LegalZero, Each, "lblDestPress",
         "unDestPress", Single},
        {"txtVelocity", Source::CaseResult, result::Velocity, ShowRule::Positive, Each, "lblVelocity",
         "unVelocity", Single},
        {"txtSonicVelocity", Source::CaseResult, result::SonicVelocity, ShowRule::Positive, Each,
         "lblSonicVelocity", "unSonicVelocity", Single},
        {"txtEquivLen", Source::CaseResult, result::EquivLength, ShowRule::Positive, Once, "lblEquivLen",
         "unEquivLen", Single},
    }));

constexpr FormRow WaterHammerRows[] = {
    {"txtMaxLiqFlow", Source::CaseInput, input::LiquidFlow, ShowRule::Positive, Once, "lblMaxLiqFlow",
     "cmdUnits", unit::LiquidFlow},
    {"txtFlowTemp", Source::CaseInput, input::Temperature, ShowRule::LegalZero, Once, "lblFlowTemp",
     "cmdUnits", unit::Temperature},
    {"txtOperPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Once, "lblOperPressure",
     "cmdUnits", unit::Pressure},
    {"txtSGFlow", Source::CaseInput, input::FlowGravity, ShowRule::Positive, Once, "lblSGFlow", "cmdUnits",
     unit::LiquidDensity},
    {"txtBulkModulus", Source::CaseInput, input::Modulus, ShowRule::Positive, Once, "lblBulkModulus",
     "cmdUnits", unit::Modulus},
    {"txtLineLength", Source::CaseInput, input::LineLength, ShowRule::Positive, Once, "lblLineLength",
     "cmdUnits", unit::Length},
    {"txtPipeID", Source::CaseInput, input::PipeSize, ShowRule::Positive, Once, "lblPipeID", "cmdUnits",
     unit::PipeSize},
    {"txtPipeWall", Source::CaseInput, input::PipeSize, ShowRule::Positive, Once, "lblPipeWall", "UnpipeWall",
     Single, column::Wall},
    {"txtLineModulus", Source::CaseInput, input::Modulus, ShowRule::Positive, Once, "lblLineModulus",
     "unLineModulus", Single, column::OfPipe},
    {"txtMaxAllowPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Once,
     "lblMaxAllowPressure", "unMaxAllowPressure", Single, column::Allowable},
    {"txtSelectedTime", Source::CaseInput, input::SelectedTime, ShowRule::Positive, Once, "lblSelectedTime",
     "unSelectedTime", Single},
    {"txtCriticalTime", Source::HammerResult, wave::CriticalTime, ShowRule::Positive, Once, "lblCriticalTime",
     "unCriticalTime", Single},
    {"txtWaveVelocity", Source::HammerResult, wave::Velocity, ShowRule::Positive, Once, "lblWaveVelocity",
     "unWaveVelocity", Single},
    {"txtPressureWave", Source::HammerResult, wave::Pressure, ShowRule::LegalZero, Once, "lblPressureWave",
     "unPressureWave", Single},
    {"txtSupportForce", Source::HammerResult, wave::Force, ShowRule::Positive, Once, "lblSupportForce",
     "unSupportForce", Single},
    {"txtCloseTime", Source::HammerResult, wave::MinimumTime, ShowRule::Positive, Once, "lblCloseTime",
     "unCloseTime", Single},
    {"txtSelectedWave", Source::HammerResult, wave::SelectedPressure, ShowRule::LegalZero, Once,
     "lblSelectedWave", "unSelectedWave", Single},
    {"txtSelectedForce", Source::HammerResult, wave::SelectedForce, ShowRule::Positive, Once,
     "lblSelectedForce", "unSelectedForce", Single},
};

constexpr FormRow LiquidDataRows[] = {
    {"txtTemp", Source::CaseInput, input::Temperature, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits",
     unit::Temperature},
    {"txtPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits",
     unit::Pressure},
    {"txtMW", Source::Property, input::LiquidWeight, ShowRule::Positive, Each, "lblMW", "", Single},
    {"txtSGFTP", Source::Property, input::FlowGravity, ShowRule::Positive, Each, "lblSGFTP", "", Single},
    {"txtSGBase", Source::Property, input::StandardGravity, ShowRule::Positive, Each, "lblSGBase", "",
     Single},
    {"txtCritPressure", Source::Property, input::CritPressure, ShowRule::Positive, Each, "lblCritPressure",
     "unCritPressure", Single},
    {"txtCritTemp", Source::Property, input::CritTemperature, ShowRule::Signed, Each, "lblCritTemp",
     "unCritTemp", Single},
    {"txtDensity", Source::Property, input::Density, ShowRule::Positive, Each, "lblDensity", "unDensity",
     Single},
    {"txtNormalBP", Source::Property, input::BoilingPoint, ShowRule::Signed, Each, "lblNormalBP",
     "unNormalBP", Single},
    {"txtViscosity", Source::Property, input::Viscosity, ShowRule::Positive, Each, "lblViscosity",
     "unViscosity", Single},
    {"txtVapPressure", Source::Property, input::VaporPressure, ShowRule::Positive, Each, "lblVapPressure",
     "unVapPressure", Single},
    {"txtFlashpoint", Source::Property, input::FlashPoint, ShowRule::Signed, Each, "lblFlashpoint",
     "unFlashPoint", Single},
    {"txtBulkModulus", Source::Property, input::Modulus, ShowRule::Positive, Each, "lblBulkMod", "unBulkMod",
     Single},
};

constexpr FormRow GasDataRows[] = {
    {"txtTemp", Source::CaseInput, input::Temperature, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits",
     unit::Temperature},
    {"txtPressure", Source::CaseInput, input::Pressure, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits",
     unit::Pressure},
    {"txtMW", Source::Property, input::MolecularWeight, ShowRule::Positive, Each, "lblMW", "", Single},
    {"txtRatioSH", Source::Property, input::RatioSpecificHeats, ShowRule::Positive, Each, "lblRatioSH", "",
     Single},
    {"txtNormalBP", Source::Property, input::BoilingPoint, ShowRule::Signed, Each, "lblNormalBP",
     "unNormalBP", Single},
    {"txtCritPressure", Source::Property, input::CritPressure, ShowRule::Positive, Each, "lblCritPressure",
     "unCritPressure", Single},
    {"txtCritTemp", Source::Property, input::CritTemperature, ShowRule::Signed, Each, "lblCritTemp",
     "unCritTemp", Single},
    {"txtDensity", Source::Property, input::Density, ShowRule::Positive, Each, "lblDensity", "unDensity",
     Single},
    {"txtCompFactor", Source::Property, input::CompressFactor, ShowRule::Positive, Each, "lblCompFactor", "",
     Single},
    {"txtViscosity", Source::Property, input::Viscosity, ShowRule::Positive, Each, "lblViscosity",
     "unViscosity", Single},
    {"txtVapPressure", Source::Property, input::VaporPressure, ShowRule::Positive, Each, "lblVapPressure",
     "unVapPressure", Single},
    {"txtReqdLatentHeat", Source::Property, input::LatentHeat, ShowRule::Positive, Each, "lblReqdLatentHeat",
     "unReqdLatentHeat", Single},
    {"txtLatentHeatBP", Source::Property, input::BoilingLatentHeat, ShowRule::Positive, Each,
     "lblLatentHeatBP", "unLatentHeatBP", Single},
};

}  // namespace

std::span<const FormRow> FormRows(int program) {
    switch (program) {
        case program::LiquidLine: return LiquidLossRows;
        case program::GasLine: return GasLossRows;
        case program::WaterHammer: return WaterHammerRows;
        case program::LiquidData: return LiquidDataRows;
        case program::GasData: return GasDataRows;
        default: return {};
    }
}

double& LiveValue(const FormRow& row, int caseIndex) {
    const std::size_t column = At(row.PerCase ? caseIndex : row.Column);
    switch (row.From) {
        case Source::CaseResult: return Calc.CaseResult[At(row.Row)][column];
        case Source::HammerResult: return Calc.HammerResult[At(row.Row)];
        case Source::PipeData: return Calc.PipeData[At(row.Row)];
        case Source::FittingCount: return Calc.FittingCount[At(row.Row)];
        case Source::PipeFouling: return Calc.PipeFouling;
        default: return Calc.CaseInput[At(row.Row)][column];
    }
}

double ShownValue(const FormRow& row, int caseIndex) {
    const std::size_t column = At(row.PerCase ? caseIndex : row.Column);
    switch (row.From) {
        case Source::CaseResult: return Calc.CaseResultShown[At(row.Row)][column];
        case Source::HammerResult: return Calc.HammerResultShown[At(row.Row)];
        case Source::PipeData: return Calc.PipeDataShown[At(row.Row)];
        case Source::FittingCount: return Calc.FittingCountShown[At(row.Row)];
        case Source::PipeFouling: return Calc.PipeFoulingSaved;
        default: return Calc.CaseInputShown[At(row.Row)][column];
    }
}

Control& RowControl(const Form& form, const FormRow& row, int caseIndex) {
    Control* const control = form.Find(row.Control, row.PerCase ? caseIndex : Control::NoIndex);
    if (control == nullptr) throw failure::NoSuchControl(row.Control);
    return *control;
}

bool RowStands(const FormRow& row, int caseIndex) {
    if (row.From == Source::CaseResult && !row.PerCase) return LineResultStands();
    return !row.IsResult() || ResultsStand(caseIndex);
}

std::string SaidBy(const Form& form, std::string_view name, int index) {
    const Control* const control = form.Find(name, index);
    return control == nullptr || !control->Visible() ? "" : SpokenCaption(control->Caption());
}

const FormRow* RowOf(int program, const Control& control) {
    for (const FormRow& row : FormRows(program)) {
        if (SameName(row.Control, control.Name())) return &row;
    }
    return nullptr;
}

int ValueSlot(double value, double shown) { return shown == 0 || value == shown ? 4 : 10; }

int TextSlot(const std::string& value, const std::string& saved) {
    return saved.empty() || value == saved ? 4 : 10;
}

}  // namespace quillmetra
