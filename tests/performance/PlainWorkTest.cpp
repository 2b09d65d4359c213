// The plain loops of the benchmarks do the work of the record's routines; without this ./bench would measure
// two on different work.
#include <gtest/gtest.h>

#include "benchmarks/PlainConversion.h"
#include "benchmarks/PlainGasLine.h"
#include "benchmarks/PlainLiquidLine.h"
#include "lineloss/Friction.h"
#include "lineloss/GasLineLoss.h"
#include "lineloss/LiquidLineLoss.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class PlainWork : public SuiteTest {};

TEST_F(PlainWork, OfALiquidLine) {
    for (const PlainLine& line : {PlainLine{.Flow = 50000}, PlainLine{.Flow = 2000}, PlainLine{.Flow = 1000},
                                  PlainLine{.Flow = 9e6, .PipeId = 42}}) {
        TakePlainLine(line);
        CalcFriction();
        CalcFinalPressure();
        EXPECT_NEAR(PlainFinalPressure(line), Calc.FlowPressure, 1e-9) << line.Flow;
    }
}

TEST_F(PlainWork, OfAGasLine) {
    for (const PlainGas& gas :
         {PlainGas{}, PlainGas{.Flow = 500, .Start = 300}, PlainGas{.EquipLoss = 700}}) {
        TakePlainGas(gas);
        CalcGasFriction();
        ASSERT_TRUE(CalcGasProfile());
        EXPECT_NEAR(PlainGasFinalPressure(gas, Calc.FrictionFactor), Calc.FlowPressure, 1e-6);
    }
}

TEST_F(PlainWork, OfAChangeOfUnits) {
    TakeConvertedLine();
    const CalcRecord record = Calc;
    ApplyNamedUnitSet(3);
    const UnitFactors english = record.UnitFactor, si = Calc.UnitFactor;
    Calc = record;
    for (const bool toSI : {true, false}) {
        PlainRecord plain = PlainOfRecord();
        // The standard conditions come with the set.
        for (const std::size_t row : {21U, 22U, 23U}) plain.Input[row][0] = 0;
        ConvertPlain(plain, toSI ? english : si, toSI ? si : english, toSI);
        ChangeSet(toSI);
        for (std::size_t row = 0; row < 28; ++row) {
            if (row >= 21 && row <= 23) continue;
            EXPECT_EQ(Calc.CaseInput[row], plain.Input[row]) << row;
        }
        EXPECT_EQ(Calc.CaseResult, plain.Result);
        EXPECT_EQ(Calc.PipeData, plain.Pipe);
    }
}

}  // namespace
}  // namespace quillmetra
