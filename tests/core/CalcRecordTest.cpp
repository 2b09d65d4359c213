// What a reset of the record clears and what it keeps.
#include "core/CalcRecord.h"

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
        Suite.DatabasePath = "d:\\db";
    }

    static void ExpectCleared() {
        EXPECT_EQ(Calc.CaseInput[2][1], 0);
        EXPECT_EQ(Calc.CaseResult[1][2], 0);
        EXPECT_EQ(Calc.CaseInputShown[2][1], 0);
        EXPECT_EQ(Calc.PipeData[1], 0);
        EXPECT_EQ(Calc.PipeDataSaved[1], 0);
        EXPECT_EQ(Calc.PipeMaterialNumber, 1);
        EXPECT_EQ(Calc.PipeMaterial, "Steel");
        EXPECT_EQ(Calc.PipeFouling, 0);
        EXPECT_EQ(Calc.PressureDirection, 1);
        EXPECT_EQ(Calc.EquivLengthPerFitting[2], 0);
        EXPECT_EQ(Calc.ResultsClearable[1], words::Yes);
        EXPECT_EQ(Calc.BrowserOpen, words::No);
        EXPECT_EQ(Calc.DataOk, words::No);
        for (const std::string* text : {&Calc.Tag, &Calc.ProgramTitle, &Calc.FluidName, &Calc.FluidRow,
                                        &Calc.FluidDataSource, &Calc.TemperatureEntered[0]}) {
            EXPECT_TRUE(text->empty()) << *text;
        }
        EXPECT_EQ(Calc.CurrentProgram, 1);
        EXPECT_EQ(Calc.FluidType, words::Liquid);
        EXPECT_EQ(Calc.LiquidUnitSet, 4);
        EXPECT_EQ(Calc.GasUnitSet, 2);
        EXPECT_EQ(Suite.HideFlowStatus, words::Yes);
        EXPECT_EQ(Suite.DatabasePath, "d:\\db");
    }
};

TEST_F(CalcRecordTest, AResetKeepsTheProgramAndTheUnitSetsAlone) {
    ResetRecord();
    ExpectCleared();
    EXPECT_EQ(Calc.UnitName[1], "");
    for (const double factor : Calc.UnitFactor) EXPECT_EQ(factor, 1);
    EXPECT_EQ(Calc.PressureMode, words::Gauge);
    EXPECT_EQ(Calc.LiquidDensityMode, words::Gravity);
    EXPECT_EQ(Calc.FluidOk, words::FluidPicked);
    EXPECT_EQ(Calc.DataMode, "");
    EXPECT_EQ(Calc.BaroPressure, 0);
    EXPECT_EQ(Calc.CaseInput[23][0], 0);
}

TEST_F(CalcRecordTest, ANewCalculationKeepsUnitsOptionsAndStandardConditions) {
    const Filling filling;
    ResetForNew();
    ExpectCleared();
    EXPECT_EQ(Calc.UnitName[1], "litre/s");
    EXPECT_EQ(Calc.UnitFactor[1], 3600 / 3.785412);
    EXPECT_EQ(Calc.UnitFactor[33], 0.63);
    EXPECT_EQ(Calc.LiquidBasis, words::Volume);
    EXPECT_EQ(Calc.PressureMode, words::Absolute);
    EXPECT_EQ(Calc.LiquidDensityMode, words::Density);
    EXPECT_EQ(Calc.FluidOk, words::FluidLoaded);
    EXPECT_EQ(Calc.DataMode, words::FileData);
    EXPECT_EQ(Calc.CalcMode, words::PressureDrop);
    EXPECT_EQ(Calc.BaroPressure, 13);
    EXPECT_EQ(Calc.CaseInput[23][0], 13);
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
