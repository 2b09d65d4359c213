// What a reset of the record clears and what it keeps.
#include "core/CalcRecord.h"

#include <tuple>

#include "core/Filling.h"
#include "core/Words.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class CalcRecordTest : public SuiteTest {
protected:
    // A record in the middle of its life.
    CalcRecordTest() {
        Calc.CurrentProgram = 1;
        Calc.FluidType = words::Liquid;
        Calc.LiquidUnitSet = 4;
        Calc.GasUnitSet = 2;
        Calc.UnitName[1] = "litre/s";
        Calc.UnitFactor[1] = 3600 / 3.785412;
        Calc.UnitFactor[33] = 0.63;
        Calc.LiquidBasis = words::Volume;
        Calc.LiquidDensityMode = words::Density;
        Calc.PressureMode = words::Absolute;
        Calc.DataMode = words::FileData;
        Calc.CalcMode = words::PressureDrop;
        Calc.FluidOk = words::FluidLoaded;
        Calc.BaroPressure = 13;
        Calc.StdPressure = 14;
        Calc.CaseInput[23][0] = 13;
        Calc.CaseInput[2][1] = 60;
        Calc.CaseResult[1][2] = 5;
        Calc.CaseInputShown[2][1] = 60;
        Calc.PipeData[1] = 1000;
        Calc.PipeDataSaved[1] = 900;
        Calc.PipeMaterialNumber = 3;
        Calc.PipeMaterial = "Cast iron";
        Calc.PipeFouling = 10;
        Calc.PressureDirection = 2;
        Calc.Tag = "FT-101";
        Calc.ProgramTitle = "Line Loss  - Liquid flow";
        Calc.FluidName = "Toluene";
        Calc.FluidRow = "Toluene,1,";
        Calc.FluidDataSource = words::Loaded;
        Calc.TemperatureEntered[0] = words::Entered;
        Calc.EquivLengthPerFitting[2] = 8;
        Calc.ResultsClearable[1] = words::No;
        Calc.BrowserOpen = words::Yes;
        Calc.DataOk = words::Yes;
        Suite.HideFlowStatus = words::Yes;
        Before = Calc;
    }

    static auto Cleared(const CalcRecord& record) {
        return std::tie(record.CaseInput[2], record.CaseResult, record.CaseInputShown, record.PipeData,
                        record.PipeDataSaved, record.PipeMaterialNumber, record.PipeMaterial,
                        record.PipeFouling, record.PressureDirection, record.EquivLengthPerFitting,
                        record.ResultsClearable, record.BrowserOpen, record.DataOk, record.Tag,
                        record.ProgramTitle, record.FluidName, record.FluidRow, record.FluidDataSource,
                        record.TemperatureEntered);
    }
    static auto Kept(const CalcRecord& record) {
        return std::tie(record.CurrentProgram, record.FluidType, record.LiquidUnitSet, record.GasUnitSet);
    }
    // By a new calculation alone.
    static auto InForce(const CalcRecord& record) {
        return std::tie(record.UnitName, record.UnitFactor, record.LiquidBasis, record.LiquidDensityMode,
                        record.PressureMode, record.FluidOk, record.DataMode, record.CalcMode,
                        record.BaroPressure, record.CaseInput[23]);
    }

    const CalcRecord Fresh;
    CalcRecord Before;
};

TEST_F(CalcRecordTest, AResetKeepsTheProgramAndTheUnitSetsAlone) {
    ResetRecord();
    EXPECT_EQ(Cleared(Calc), Cleared(Fresh));
    EXPECT_EQ(Kept(Calc), Kept(Before));
    EXPECT_EQ(InForce(Calc), InForce(Fresh));
    EXPECT_EQ(Suite.HideFlowStatus, words::Yes);
}

TEST_F(CalcRecordTest, ANewCalculationKeepsUnitsOptionsAndStandardConditions) {
    const Filling filling;
    ResetForNew();
    EXPECT_EQ(Cleared(Calc), Cleared(Fresh));
    EXPECT_EQ(Kept(Calc), Kept(Before));
    EXPECT_EQ(InForce(Calc), InForce(Before));
    EXPECT_EQ(Calc.FormLoading, words::Yes) << "the form goes on filling itself";
}

TEST_F(CalcRecordTest, TheShownGenerationFollowsACalculationAndTheSavedOneASave) {
    Calc.CaseInput[27][2] = 7;
    Calc.CaseInput[28][2] = 8;
    Calc.FittingCount[1] = 2;
    MarkCalculated();
    EXPECT_EQ(Calc.CaseInputShown[27][2], 7);
    EXPECT_EQ(Calc.CaseInputShown[28][2], 0) << "rows of no program";
    EXPECT_EQ(Calc.CaseResultShown[1][2], 5);
    EXPECT_EQ(Calc.PipeDataShown[1], 1000);
    EXPECT_EQ(Calc.RecordUpdated, words::Yes);
    EXPECT_EQ(Calc.FittingCountShown[1], 0) << "fittings have no colour until they are saved";

    TakeSaved();
    Calc.CaseInput[2][1] = 99;
    Calc.FittingCount[1] = 9;
    Calc.UnitName[1] = "lb/h";
    Calc.PressureDirection = 1;
    RestoreShown();
    EXPECT_EQ(Calc.CaseInput[2][1], 60);
    EXPECT_EQ(Calc.FittingCount[1], 2);
    EXPECT_EQ(Calc.UnitName[1], "litre/s");
    EXPECT_EQ(Calc.PressureDirection, 2);
    EXPECT_EQ(Calc.LiquidBasis, words::Volume);
}

}  // namespace
}  // namespace quillmetra
