// A liquid line's record turned from one unit set to another on bare arrays, with no record, no words and no
// questions: what the suite's own conversion is measured against.
#pragma once

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "units/NamedUnitSets.h"
#include "units/ProgramConversion.h"
#include "units/RecordUnits.h"
#include "units/Rounding.h"
#include "units/UnitChange.h"

namespace quillmetra {

struct PlainRecord {
    CaseInputs Input{};
    CaseResults Result{};
    PipeValues Pipe{};
    HammerResults Hammer{};
};

// Volume flow to mass flow or back, degF to degC or back, cp to Pa.s or back; the rest by factors.
inline void ConvertPlain(PlainRecord& record, const UnitFactors& from, const UnitFactors& to, bool toSI) {
    const auto rescale = [&](double& value, std::size_t row) { value = value * from[row] / to[row]; };
    for (std::size_t c = 0; c < CaseCount; ++c) {
        for (const std::size_t row : {3U, 4U, 8U}) rescale(record.Input[row][c], row);
        double& flow = record.Input[1][c];
        const double gravity = record.Input[6][0];
        flow = toSI ? flow * gravity * 8.3378 : flow / gravity / 8.3378;
        rescale(flow, 1);
        double& temperature = record.Input[2][c];
        temperature = toSI ? (temperature - 32) / 1.8 : temperature * 1.8 + 32;
        double& viscosity = record.Input[7][c];
        viscosity = RoundedFour(viscosity * from[7] / to[7]);
        double& loss = record.Result[0][c];
        loss = loss * to[25] / from[25] * from[4] / to[4];
        rescale(record.Result[1][c], 3);
        rescale(record.Result[2][c], 20);
        rescale(record.Result[3][c], 20);
    }
    rescale(record.Result[5][0], 25);
    rescale(record.Input[25][0], 25);
    rescale(record.Pipe[1], 25);
    rescale(record.Pipe[3], 25);
    rescale(record.Pipe[2], 18);
    for (std::size_t row = 0; row < 28; ++row)
        for (double& value : record.Input[row]) value = RoundedSix(value);
    for (auto& row : record.Result)
        for (double& value : row) value = RoundedSix(value);
    for (double& value : record.Pipe) value = RoundedSix(value);
    for (double& value : record.Hammer) value = RoundedFour(value);
}

// A calculated liquid line in English volume units, its questions hidden.
inline void TakeConvertedLine() {
    Calc = CalcRecord();
    Suite.HideRoundReminder = words::Yes;
    Calc.CurrentProgram = 1;
    Calc.FluidType = words::Liquid;
    for (auto& row : Calc.CaseInput) row = {12.3456, 0.0123456, 1234.56};
    for (auto& row : Calc.CaseResult) row = {1.23456, 0.123456, 98.7654};
    Calc.CaseInput[6].fill(0.876);
    Calc.PipeData = {0, 1234.5, 4.026, 12.5, 2, 1, 0};
    ApplyNamedUnitSet(2);
    Calc.LiquidBasisPrevious = Calc.LiquidBasis;
    RenewChosenUnitNames();
    RememberUnits();
}

inline PlainRecord PlainOfRecord() {
    return {Calc.CaseInput, Calc.CaseResult, Calc.PipeData, Calc.HammerResult};
}

// One change of the unit set as the options panel makes it, for a record of TakeConvertedLine.
inline void ChangeSet(bool toSI) {
    UnitChange change;
    ApplyNamedUnitSet(toSI ? 3 : 2);
    change.Commit();
}

}  // namespace quillmetra
