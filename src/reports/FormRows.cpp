// See FormRows.h.
#include "reports/FormRows.h"

#include <algorithm>
#include <array>

#include "core/CalcRecord.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

constexpr int Single = Control::NoIndex;
constexpr bool Each = true;   // one for each case
constexpr bool Once = false;  // one for all cases

// The line, as both line-loss forms have it.
constexpr std::array LineRows = std::to_array<FormRow>({
    {"txtInletPipeLen", Source::PipeData, 1, ShowRule::Positive, Once, "lblInletPipeLen", "cmdUnits", 25},
    {"txtInletPipeID", Source::PipeData, 2, ShowRule::Positive, Once, "lblInletPipeID", "cmdUnits", 18},
    {"txtInletPipeElev", Source::PipeData, 3, ShowRule::Signed, Once, "lblInletPipeElev", "unInletPipeElev",
     Single},
    {"txtOutletPipeElev", Source::CaseInput, 25, ShowRule::Signed, Once, "lblOutletPipeElev",
     "unOutletPipeElev", Single},
    {"txtPipeCond", Source::PipeFouling, 0, ShowRule::Positive, Once, "lblPipeCond", "", Single},
    {"txtInletGate", Source::FittingCount, 1, ShowRule::Signed, Once, "lblInletGate", "", Single},
    {"txtInletGlobe", Source::FittingCount, 2, ShowRule::Signed, Once, "lblInletGlobe", "", Single},
    {"txtInletCheck", Source::FittingCount, 3, ShowRule::Signed, Once, "lblInletCheck", "", Single},
    {"txtInlet90Deg", Source::FittingCount, 4, ShowRule::Signed, Once, "lblInlet90Deg", "", Single},
    {"txtInlet45Deg", Source::FittingCount, 5, ShowRule::Signed, Once, "lblInlet45Deg", "", Single},
    {"txtInletThru", Source::FittingCount, 6, ShowRule::Signed, Once, "lblInletThru", "", Single},
    {"txtInletBranch", Source::FittingCount, 7, ShowRule::Signed, Once, "lblInletBranch", "", Single},
});

template <std::size_t A, std::size_t B>
constexpr std::array<FormRow, A + B> Joined(const std::array<FormRow, A>& first,
                                            const std::array<FormRow, B>& second) {
    std::array<FormRow, A + B> rows{};
    std::copy(first.begin(), first.end(), rows.begin());
    std::copy(second.begin(), second.end(), rows.begin() + A);
    return rows;
}

constexpr auto LiquidLossRows = Joined(
    LineRows,
    std::to_array<FormRow>({
        {"txtFlow", Source::CaseInput, 1, ShowRule::Positive, Each, "lblFlow", "cmdUnits", 1},
        {"txtTemp", Source::CaseInput, 2, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits", 2},
        {"txtPressure", Source::CaseInput, 3, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits", 3},
        {"txtSGFlow", Source::CaseInput, 6, ShowRule::Positive, Each, "lblSGFlow", "cmdUnits", 6},
        {"txtViscosity", Source::CaseInput, 7, ShowRule::Positive, Each, "lblViscosity", "cmdUnits", 7},
        {"txtEquip", Source::CaseInput, 4, ShowRule::Positive, Each, "lblEquip", "cmdUnits", 4},
        {"txtDropP100", Source::CaseResult, 0, ShowRule::Positive, Each, "lblDropP100", "unDropP100", Single},
        {"txtDestPress", Source::CaseResult, 1, ShowRule::LegalZero, Each, "lblDestPress", "unDestPress",
         Single},
        {"txtVelocity", Source::CaseResult, 2, ShowRule::Positive, Each, "lblVelocity", "unVelocity", Single},
        {"txtReynoldsNum", Source::CaseResult, 4, ShowRule::Positive, Each, "lblReynoldsNum", "", Single},
        {"txtEquivLen", Source::CaseResult, 5, ShowRule::Positive, Once, "lblEquivLen", "unEquivLen", Single},
    }));

constexpr auto GasLossRows = Joined(
    LineRows,
    std::to_array<FormRow>({
        {"txtFlow", Source::CaseInput, 0, ShowRule::Positive, Each, "lblFlow", "cmdUnits", 0},
        {"txtTemp", Source::CaseInput, 2, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits", 2},
        {"txtPressure", Source::CaseInput, 3, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits", 3},
        {"txtMW", Source::CaseInput, 5, ShowRule::Positive, Each, "lblMW", "", Single},
        {"txtRatioSH", Source::CaseInput, 10, ShowRule::Positive, Each, "lblRatioSH", "", Single},
        {"txtCritTemp", Source::CaseInput, 12, ShowRule::LegalZero, Each, "lblCritTemp", "cmdUnits", 12},
        {"txtCritPressure", Source::CaseInput, 11, ShowRule::Positive, Each, "lblCritPressure", "cmdUnits",
         11},
        {"txtViscosity", Source::CaseInput, 7, ShowRule::Positive, Each, "lblViscosity", "cmdUnits", 13},
        {"txtEquip", Source::CaseInput, 4, ShowRule::Positive, Each, "lblEquip", "cmdUnits", 4},
        {"txtDropP100", Source::CaseResult, 0, ShowRule::Positive, Each, "lblDropP100", "unDropP100", Single},
        {"txtDestPress", Source::CaseResult, 1, ShowRule::LegalZero, Each, "lblDestPress", "unDestPress",
         Single},
        {"txtVelocity", Source::CaseResult, 2, ShowRule::Positive, Each, "lblVelocity", "unVelocity", Single},
        {"txtSonicVelocity", Source::CaseResult, 3, ShowRule::Positive, Each, "lblSonicVelocity",
         "unSonicVelocity", Single},
        {"txtEquivLen", Source::CaseResult, 5, ShowRule::Positive, Once, "lblEquivLen", "unEquivLen", Single},
    }));

// Some rows of the record hold a second quantity in another column than the first.
constexpr int Allowable = 1, PipeModulus = 1, Wall = 2;

constexpr FormRow WaterHammerRows[] = {
    {"txtMaxLiqFlow", Source::CaseInput, 1, ShowRule::Positive, Once, "lblMaxLiqFlow", "cmdUnits", 1},
    {"txtFlowTemp", Source::CaseInput, 2, ShowRule::LegalZero, Once, "lblFlowTemp", "cmdUnits", 2},
    {"txtOperPressure", Source::CaseInput, 3, ShowRule::LegalZero, Once, "lblOperPressure", "cmdUnits", 3},
    {"txtSGFlow", Source::CaseInput, 6, ShowRule::Positive, Once, "lblSGFlow", "cmdUnits", 6},
    {"txtBulkModulus", Source::CaseInput, 27, ShowRule::Positive, Once, "lblBulkModulus", "cmdUnits", 27},
    {"txtLineLength", Source::CaseInput, 25, ShowRule::Positive, Once, "lblLineLength", "cmdUnits", 25},
    {"txtPipeID", Source::CaseInput, 18, ShowRule::Positive, Once, "lblPipeID", "cmdUnits", 18},
    {"txtPipeWall", Source::CaseInput, 18, ShowRule::Positive, Once, "lblPipeWall", "UnpipeWall", Single,
     Wall},
    {"txtLineModulus", Source::CaseInput, 27, ShowRule::Positive, Once, "lblLineModulus", "unLineModulus",
     Single, PipeModulus},
    {"txtMaxAllowPressure", Source::CaseInput, 3, ShowRule::LegalZero, Once, "lblMaxAllowPressure",
     "unMaxAllowPressure", Single, Allowable},
    {"txtSelectedTime", Source::CaseInput, 10, ShowRule::Positive, Once, "lblSelectedTime", "unSelectedTime",
     Single},
    {"txtCriticalTime", Source::HammerResult, 12, ShowRule::Positive, Once, "lblCriticalTime",
     "unCriticalTime", Single},
    {"txtWaveVelocity", Source::HammerResult, 13, ShowRule::Positive, Once, "lblWaveVelocity",
     "unWaveVelocity", Single},
    {"txtPressureWave", Source::HammerResult, 14, ShowRule::LegalZero, Once, "lblPressureWave",
     "unPressureWave", Single},
    {"txtSupportForce", Source::HammerResult, 15, ShowRule::Positive, Once, "lblSupportForce",
     "unSupportForce", Single},
    {"txtCloseTime", Source::HammerResult, 16, ShowRule::Positive, Once, "lblCloseTime", "unCloseTime",
     Single},
    {"txtSelectedWave", Source::HammerResult, 17, ShowRule::LegalZero, Once, "lblSelectedWave",
     "unSelectedWave", Single},
    {"txtSelectedForce", Source::HammerResult, 18, ShowRule::Positive, Once, "lblSelectedForce",
     "unSelectedForce", Single},
};

constexpr FormRow LiquidDataRows[] = {
    {"txtTemp", Source::CaseInput, 2, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits", 2},
    {"txtPressure", Source::CaseInput, 3, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits", 3},
    {"txtMW", Source::Property, 0, ShowRule::Positive, Each, "lblMW", "", Single},
    {"txtSGFTP", Source::Property, 6, ShowRule::Positive, Each, "lblSGFTP", "", Single},
    {"txtSGBase", Source::Property, 5, ShowRule::Positive, Each, "lblSGBase", "", Single},
    {"txtCritPressure", Source::Property, 11, ShowRule::Positive, Each, "lblCritPressure", "unCritPressure",
     Single},
    {"txtCritTemp", Source::Property, 12, ShowRule::Signed, Each, "lblCritTemp", "unCritTemp", Single},
    {"txtDensity", Source::Property, 9, ShowRule::Positive, Each, "lblDensity", "unDensity", Single},
    {"txtNormalBP", Source::Property, 4, ShowRule::Signed, Each, "lblNormalBP", "unNormalBP", Single},
    {"txtViscosity", Source::Property, 7, ShowRule::Positive, Each, "lblViscosity", "unViscosity", Single},
    {"txtVapPressure", Source::Property, 8, ShowRule::Positive, Each, "lblVapPressure", "unVapPressure",
     Single},
    {"txtFlashpoint", Source::Property, 1, ShowRule::Signed, Each, "lblFlashpoint", "unFlashPoint", Single},
    {"txtBulkModulus", Source::Property, 27, ShowRule::Positive, Each, "lblBulkMod", "unBulkMod", Single},
};

constexpr FormRow GasDataRows[] = {
    {"txtTemp", Source::CaseInput, 2, ShowRule::LegalZero, Each, "lblTemp", "cmdUnits", 2},
    {"txtPressure", Source::CaseInput, 3, ShowRule::LegalZero, Each, "lblPressure", "cmdUnits", 3},
    {"txtMW", Source::Property, 5, ShowRule::Positive, Each, "lblMW", "", Single},
    {"txtRatioSH", Source::Property, 10, ShowRule::Positive, Each, "lblRatioSH", "", Single},
    {"txtNormalBP", Source::Property, 4, ShowRule::Signed, Each, "lblNormalBP", "unNormalBP", Single},
    {"txtCritPressure", Source::Property, 11, ShowRule::Positive, Each, "lblCritPressure", "unCritPressure",
     Single},
    {"txtCritTemp", Source::Property, 12, ShowRule::Signed, Each, "lblCritTemp", "unCritTemp", Single},
    {"txtDensity", Source::Property, 9, ShowRule::Positive, Each, "lblDensity", "unDensity", Single},
    {"txtCompFactor", Source::Property, 0, ShowRule::Positive, Each, "lblCompFactor", "", Single},
    {"txtViscosity", Source::Property, 7, ShowRule::Positive, Each, "lblViscosity", "unViscosity", Single},
    {"txtVapPressure", Source::Property, 8, ShowRule::Positive, Each, "lblVapPressure", "unVapPressure",
     Single},
    {"txtReqdLatentHeat", Source::Property, 13, ShowRule::Positive, Each, "lblReqdLatentHeat",
     "unReqdLatentHeat", Single},
    {"txtLatentHeatBP", Source::Property, 16, ShowRule::Positive, Each, "lblLatentHeatBP", "unLatentHeatBP",
     Single},
};

std::size_t At(int index) { return static_cast<std::size_t>(index); }

}  // namespace

std::span<const FormRow> FormRows(int program) {
    switch (program) {
        case 1: return LiquidLossRows;
        case 2: return GasLossRows;
        case 3: return WaterHammerRows;
        case 4: return LiquidDataRows;
        case 5: return GasDataRows;
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
