// See ProgramConversion.h.
#include "units/ProgramConversion.h"

#include <array>
#include <span>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Forms.h"
#include "units/Border.h"
#include "units/Conversion.h"
#include "units/RecordUnits.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

// --- Rows that go by factors alone -----------------------------------------------------------------------

constexpr unsigned ProgramBit(int program) { return 1U << static_cast<unsigned>(program); }
constexpr unsigned LiquidLine = ProgramBit(program::LiquidLine), GasLine = ProgramBit(program::GasLine);
constexpr unsigned Hammer = ProgramBit(program::WaterHammer);
constexpr unsigned LiquidData = ProgramBit(program::LiquidData), GasData = ProgramBit(program::GasData);
constexpr unsigned Lines = LiquidLine | GasLine | Hammer;
constexpr unsigned Every = Lines | LiquidData | GasData;

enum class Mode { Any, Density };

struct InputRow {
    int Row = 0;
    int UnitRow = 0;
    unsigned Programs = 0;
    Mode Needs = Mode::Any;  // gravities have no unit
};

// Of each case, in order. Both gravities of the liquid data program have the unit of its density.
constexpr InputRow CommonInputs[] = {
    {input::Pressure, unit::Pressure, Every},
    {input::EquipLoss, unit::PressureDrop, Lines},
    {input::CritPressure, unit::CritPressure, GasLine | LiquidData | GasData},
    {input::FlowGravity, unit::LiquidDensity, LiquidLine, Mode::Density},
    {input::StandardGravity, unit::Density, LiquidData, Mode::Density},
    {input::FlowGravity, unit::Density, LiquidData, Mode::Density},
    {input::VaporPressure, unit::VaporPressure, LiquidLine | LiquidData | GasData},
    {input::Density, unit::Density, GasLine | LiquidData | GasData},
};

bool Applies(const InputRow& row) {
    return (row.Programs & ProgramBit(Calc.CurrentProgram)) != 0 &&
           (row.Needs == Mode::Any || Calc.LiquidDensityMode == words::Density);
}

struct ElementRow {
    int Element;
    int UnitRow;
};

// Results of each case, beside the loss per 100 of length.
constexpr ElementRow CommonResults[] = {{result::FinalPressure, unit::Pressure},
                                        {result::Velocity, unit::Velocity},
                                        {result::SonicVelocity, unit::Velocity}};
constexpr ElementRow PipeElements[] = {{pipe::Length, unit::Length},
                                       {pipe::StartElevation, unit::Length},
                                       {pipe::InsideDiameter, unit::PipeSize}};
constexpr ElementRow HammerElements[] = {{wave::Velocity, unit::Velocity},
                                         {wave::Pressure, unit::Pressure},
                                         {wave::Force, unit::Force},
                                         {wave::SelectedPressure, unit::Pressure},
                                         {wave::SelectedForce, unit::Force}};

void Rescale(double& value, int unitRow) { value = Rescaled(value, unitRow); }

template <typename Values>
void RescaleElements(Values& values, std::span<const ElementRow> rows) {
    for (const ElementRow& row : rows) Rescale(values[At(row.Element)], row.UnitRow);
}

// The length stands below the line: its factors are inverted.
double RescaledLoss(double value) {
    const double former = Calc.UnitFactorPrevious[unit::Length];
    const double now = Calc.UnitFactor[unit::Length];
    return Rescaled(former == now ? value : value * now / former, unit::PressureDrop);
}

// --- Steps of a program ----------------------------------------------------------------------------------

enum class When { Positive, NotZero };

// One quantity of each case.
struct CaseStep {
    int Row;
    When Condition;
    void (*Convert)(int caseIndex);
};

template <int Row, int UnitRow>
void RescaleInput(int caseIndex) {
    Rescale(Calc.CaseInput[At(Row)][At(caseIndex)], UnitRow);
}

// A change of another unit, again and again, must not divide the viscosity each time.
template <void (*Convert)(int)>
void ConvertViscosity(int caseIndex) {
    if (!OwnViscosityStays()) Convert(caseIndex);
}

constexpr CaseStep GasLineSteps[] = {
    {input::GasFlow, When::Positive, ConvertLineFlowGas},
    {input::Temperature, When::NotZero, ConvertTemperature},
    {input::CritTemperature, When::NotZero, ConvertCritTemperature},
    {input::Viscosity, When::Positive, ConvertViscosity<ConvertViscosityGas>},
};

constexpr CaseStep LiquidLineSteps[] = {
    {input::LiquidFlow, When::Positive, ConvertLineFlowLiquid},
    {input::Temperature, When::NotZero, ConvertTemperature},
    {input::Viscosity, When::Positive, ConvertViscosity<ConvertViscosityLiquid>},
};

constexpr CaseStep LiquidDataSteps[] = {
    {input::Temperature, When::NotZero, ConvertTemperature},
    {input::CritTemperature, When::NotZero, ConvertCritTemperature},
    {input::BoilingPoint, When::NotZero, ConvertBoilingPoint},
    {input::FlashPoint, When::NotZero, ConvertFlashPoint},
    {input::Viscosity, When::Positive, ConvertViscosity<ConvertViscosityLiquid>},
    {input::Modulus, When::NotZero, RescaleInput<input::Modulus, unit::Modulus>},
};

constexpr CaseStep GasDataSteps[] = {
    {input::Temperature, When::NotZero, ConvertTemperature},
    {input::BoilingPoint, When::NotZero, ConvertBoilingPoint},
    {input::CritTemperature, When::NotZero, ConvertCritTemperature},
    {input::Viscosity, When::Positive, ConvertViscosity<ConvertViscosityGas>},
    {input::BoilingLatentHeat, When::NotZero, RescaleInput<input::BoilingLatentHeat, unit::LatentHeat>},
    {input::LatentHeat, When::NotZero, RescaleInput<input::LatentHeat, unit::LatentHeat>},
};

// The water hammer does not ask for a gravity: without one a flow that changes its basis stays as it is.
void ConvertHammerFlow(int caseIndex) {
    const bool newBasis = Calc.LiquidBasis != Calc.LiquidBasisPrevious;
    if (!newBasis || Calc.FlowingSG > 0) ConvertLineFlowLiquid(caseIndex);
}

// It has one case; some rows use a second or third column for another quantity.
constexpr CaseStep HammerFlowSteps[] = {
    {input::LiquidFlow, When::Positive, ConvertHammerFlow},
    {input::Temperature, When::NotZero, ConvertTemperature},
};

struct InputCell {
    int Row, Column, UnitRow;
};
constexpr InputCell HammerInputs[] = {{input::Pressure, column::Operating, unit::Pressure},
                                      {input::Pressure, column::Allowable, unit::Pressure},
                                      {input::Modulus, column::OfLiquid, unit::Modulus},
                                      {input::Modulus, column::OfPipe, unit::Modulus},
                                      {input::LineLength, 0, unit::Length},
                                      {input::PipeSize, column::InsideDiameter, unit::PipeSize},
                                      {input::PipeSize, column::Wall, unit::PipeSize}};

void ConvertCase(std::span<const CaseStep> steps, int caseIndex, ZeroTemperature zero) {
    for (const CaseStep& step : steps) {
        const double value = Calc.CaseInput[At(step.Row)][At(caseIndex)];
        const bool typedZero = step.Row == input::Temperature && zero == ZeroTemperature::IsConverted;
        if (step.Condition == When::Positive ? value > 0 : value != 0 || typedZero) step.Convert(caseIndex);
    }
}

void ConvertCases(std::span<const CaseStep> steps, ZeroTemperature zero) {
    for (int i = 0; i < CaseCount; ++i) ConvertCase(steps, i, zero);
}

// The life of a conversion. At its end it rounds, unless it left every number as it was and none waits from
// before, and takes the units in force as those of the values.
class Conversion {
public:
    void Finish() const {
        if (HasChangedNumbers()) Calc.RoundedFlag = words::No;
        if (Calc.RoundedFlag == words::No) {
            RoundRecord();
        } else {
            Calc.RoundedFlag = words::Yes;
        }
        RenewChosenUnitNames();
        RememberUnits();
    }

private:
    bool HasChangedNumbers() const {
        return inputs_ != Calc.CaseInput || results_ != Calc.CaseResult || pipe_ != Calc.PipeData ||
               hammer_ != Calc.HammerResult;
    }

    const decltype(Calc.CaseInput) inputs_ = Calc.CaseInput;
    const decltype(Calc.CaseResult) results_ = Calc.CaseResult;
    const decltype(Calc.PipeData) pipe_ = Calc.PipeData;
    const decltype(Calc.HammerResult) hammer_ = Calc.HammerResult;
};

}  // namespace

void ConvertCommonRows() {
    UnloadForm("frmPipeSize");
    UnloadForm("frmObxPrintCalc");
    for (std::size_t i = 0; i < CaseCount; ++i) {
        for (const InputRow& row : CommonInputs) {
            if (Applies(row)) Rescale(Calc.CaseInput[At(row.Row)][i], row.UnitRow);
        }
        if (Calc.CurrentProgram == program::LiquidLine) {
            Calc.FlowingSG = GravityIn(Calc.CaseInput[input::FlowGravity][i], unit::LiquidDensity);
        }
        Calc.CaseResult[result::LossPer100][i] = RescaledLoss(Calc.CaseResult[result::LossPer100][i]);
        for (const ElementRow& row : CommonResults) Rescale(Calc.CaseResult[At(row.Element)][i], row.UnitRow);
    }
    Rescale(Calc.CaseResult[result::EquivLength][0], unit::Length);
    Rescale(Calc.CaseInput[input::EndElevation][0], unit::Length);
    RescaleElements(Calc.PipeData, PipeElements);
}

void ConvertGasLineData(ZeroTemperature zero) {
    const Conversion conversion;
    ConvertCommonRows();
    ConvertCases(GasLineSteps, zero);
    Calc.UnitsConverted = words::Yes;
    conversion.Finish();
}

void ConvertLiquidLineData(ZeroTemperature zero) {
    const Conversion conversion;
    ConvertCommonRows();  // first: the gravity of a flow reads the density in its new unit
    ConvertCases(LiquidLineSteps, zero);
    Calc.UnitsConverted = words::Yes;
    conversion.Finish();
    RoundSix();  // the one act on Scratch, kept with its name
}

void ConvertWaterHammerData(ZeroTemperature zero) {
    const Conversion conversion;
    if (Calc.LiquidDensityMode == words::Density)
        Rescale(Calc.CaseInput[input::FlowGravity][0], unit::LiquidDensity);
    Calc.FlowingSG = GravityOfFirstCase();
    ConvertCase(HammerFlowSteps, 0, zero);
    for (const InputCell& cell : HammerInputs) {
        Rescale(Calc.CaseInput[At(cell.Row)][At(cell.Column)], cell.UnitRow);
    }
    SetForceUnit();
    RescaleElements(Calc.HammerResult, HammerElements);
    conversion.Finish();
    UnloadForm("frmPipeSize");
}

void ConvertLiquidData(ZeroTemperature zero) {
    const Conversion conversion;
    ConvertCommonRows();
    ConvertCases(LiquidDataSteps, zero);
    ConvertStandardTemperature();
    conversion.Finish();
}

void ConvertGasData(ZeroTemperature zero) {
    const Conversion conversion;
    ConvertCases(GasDataSteps, zero);
    ConvertStandardTemperature();
    ConvertCommonRows();
    conversion.Finish();
}

void ConvertProgramData(ZeroTemperature zero) {
    constexpr std::array routines = {ConvertLiquidLineData, ConvertGasLineData, ConvertWaterHammerData,
                                     ConvertLiquidData, ConvertGasData};
    const int program = Calc.CurrentProgram;
    if (program >= 1 && program <= static_cast<int>(routines.size())) routines[At(program - 1)](zero);
}

void SetForceUnit() {
    constexpr double inch = 1, foot = 12;
    const double pipeFactor = Calc.UnitFactor[unit::PipeSize];
    const bool english = pipeFactor == inch || pipeFactor == foot;
    Calc.UnitName[unit::Force] = english ? "lb" : "kg";
    Calc.UnitFactor[unit::Force] = english ? 1 : 2.2046;
}

}  // namespace quillmetra
