// See CalcRecord.h.
#include "core/CalcRecord.h"

#include <algorithm>

#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Forms.h"

namespace quillmetra {

CalcRecord Calc;

void ResetRecord() {
    CalcRecord fresh;
    fresh.CurrentProgram = Calc.CurrentProgram;
    fresh.FluidType = Calc.FluidType;
    fresh.LiquidUnitSet = Calc.LiquidUnitSet;
    fresh.GasUnitSet = Calc.GasUnitSet;
    Calc = std::move(fresh);
    UnloadForm("frmPipeSize");
}

void ResetForNew() {
    const CalcRecord old = Calc;
    ResetRecord();
    Calc.FormLoading = old.FormLoading;  // the form that is being emptied goes on filling itself
    Calc.UnitName = old.UnitName;
    Calc.UnitFactor = old.UnitFactor;
    Calc.UnitNameShown = old.UnitNameShown;
    Calc.UnitFactorShown = old.UnitFactorShown;
    Calc.UnitNamePrevious = old.UnitNamePrevious;
    Calc.UnitFactorPrevious = old.UnitFactorPrevious;
    Calc.ChosenUnitRowNames = old.ChosenUnitRowNames;
    Calc.Basis = old.Basis;
    Calc.BasisPrevious = old.BasisPrevious;
    Calc.LiquidBasis = old.LiquidBasis;
    Calc.LiquidBasisPrevious = old.LiquidBasisPrevious;
    Calc.UnitSystem = old.UnitSystem;
    Calc.UnitSetName = old.UnitSetName;
    Calc.UnitsTitle = old.UnitsTitle;
    Calc.CalcMode = old.CalcMode;
    Calc.DataMode = old.DataMode;
    Calc.CalcOption = old.CalcOption;
    Calc.FluidOk = old.FluidOk;
    Calc.LiquidDensityMode = old.LiquidDensityMode;
    Calc.LiquidDensityModePrevious = old.LiquidDensityModePrevious;
    Calc.PressureMode = old.PressureMode;
    Calc.PressureModePrevious = old.PressureModePrevious;
    Calc.PipeMaterialName = old.PipeMaterialName;
    Calc.StdTemperature = old.StdTemperature;
    Calc.StdPressure = old.StdPressure;
    Calc.BaroPressure = old.BaroPressure;
    for (const int row : {input::StdTemperature, input::StdPressure, input::Barometer})
        Calc.CaseInput[At(row)][0] = old.CaseInput[At(row)][0];
}

bool ResultsStand(int caseIndex) {
    return Calc.ResultsClearable[static_cast<std::size_t>(caseIndex)] != words::No;
}

// A case that has been calculated has a velocity.
bool LineResultStands() {
    for (int i = 0; i < CaseCount; ++i) {
        if (StandingResult(result::Velocity, i) != 0) return true;
    }
    return false;
}

double StandingResult(int row, int caseIndex) {
    const bool stands = row == result::EquivLength ? LineResultStands() : ResultsStand(caseIndex);
    return stands ? Calc.CaseResult[static_cast<std::size_t>(row)][static_cast<std::size_t>(caseIndex)] : 0;
}

double StandingHammerResult(int row) {
    return ResultsStand(0) ? Calc.HammerResult[static_cast<std::size_t>(row)] : 0;
}

double StandingInput(int row, int caseIndex) {
    const bool isTyped = !program::IsFluidData(Calc.CurrentProgram) || row == input::Temperature ||
                         row == input::Pressure || (row >= input::StdTemperature && row <= input::Barometer);
    if (!isTyped && !ResultsStand(caseIndex)) return 0;
    return Calc.CaseInput[static_cast<std::size_t>(row)][static_cast<std::size_t>(caseIndex)];
}

void TakeShown() {
    std::copy_n(Calc.CaseInput.begin(), 28, Calc.CaseInputShown.begin());
    std::copy_n(Calc.CaseResult.begin(), 6, Calc.CaseResultShown.begin());
    Calc.PipeDataShown = Calc.PipeData;
    Calc.HammerResultShown = Calc.HammerResult;
}

void MarkCalculated() {
    TakeShown();
    Calc.RecordUpdated = words::Yes;
    Calc.ChangedFlag = words::No;
}

void SnapshotRecord() {
    MarkCalculated();
    Calc.InputChanged = words::Yes;
}

void RestoreShown() {
    Calc.CaseInput = Calc.CaseInputSaved;
    Calc.UnitFactor = Calc.UnitFactorShown;
    Calc.UnitName = Calc.UnitNameShown;
    Calc.PipeData = Calc.PipeDataSaved;
    Calc.PipeName = Calc.PipeNameSaved;
    Calc.Service = Calc.ServiceSaved;
    Calc.FittingCount = Calc.FittingCountShown;
    Calc.HammerResult = Calc.HammerResultSaved;
    Calc.CaseUnitsText = Calc.CaseUnitsTextSaved;
    Calc.CaseText = Calc.CaseTextSaved;
    Calc.HeadingText = Calc.HeadingTextSaved;
    Calc.CaseResult = Calc.CaseResultSaved;
    Calc.FluidPercent = Calc.FluidPercentSaved;
    Calc.FluidData = Calc.FluidDataSaved;
    Calc.PressureDirection = Calc.PressureDirectionSaved;
    Calc.LiquidBasis = Calc.LiquidBasisSaved;
    Calc.Basis = Calc.BasisSaved;
}

void TakeSaved() {
    for (int row = 0; row < 32; ++row) {
        for (int i = 0; i < CaseCount; ++i) {
            Calc.CaseInputSaved[static_cast<std::size_t>(row)][static_cast<std::size_t>(i)] =
                StandingInput(row, i);
        }
    }
    for (int row = 0; row < 7; ++row) {
        for (int i = 0; i < CaseCount; ++i) {
            Calc.CaseResultSaved[static_cast<std::size_t>(row)][static_cast<std::size_t>(i)] =
                StandingResult(row, i);
        }
    }
    for (int row = 0; row < 19; ++row) {
        Calc.HammerResultSaved[static_cast<std::size_t>(row)] = StandingHammerResult(row);
    }
    Calc.BaroPressureSaved = Calc.BaroPressure;
    Calc.PipeDataSaved = Calc.PipeData;
    Calc.HeadingTextSaved = Calc.HeadingText;
    Calc.CaseTextSaved = Calc.CaseText;
    Calc.CaseUnitsTextSaved = Calc.CaseUnitsText;
    Calc.FluidPercentSaved = Calc.FluidPercent;
    Calc.FluidDataSaved = Calc.FluidData;
    Calc.PipeFoulingSaved = Calc.PipeFouling;
    Calc.FluidNameSaved = Calc.FluidName;
    Calc.BasisSaved = Calc.Basis;
    Calc.LiquidBasisSaved = Calc.LiquidBasis;
    Calc.PressureDirectionSaved = Calc.PressureDirection;
    Calc.PipeMaterialSaved = Calc.PipeMaterial;
    Calc.PipeNameSaved = Calc.PipeName;
    Calc.ServiceSaved = Calc.Service;
    Calc.PipeMaterialNumberSaved = Calc.PipeMaterialNumber;
    Calc.TagSaved = Calc.Tag;
    Calc.ProgramTitleSaved = Calc.ProgramTitle;
    Calc.RecordChanged = words::No;
    Calc.LoadedDatabaseFile = Suite.DatabaseFile;
    // Units and fittings have no saved copy of their own: their shown copy is the reference.
    Calc.UnitNameShown = Calc.UnitName;
    Calc.UnitFactorShown = Calc.UnitFactor;
    Calc.FittingCountShown = Calc.FittingCount;
}

}  // namespace quillmetra
