// Reading, finding and parsing fluid rows, with the files that a user's disk may hold.
#include "fluids/FluidTables.h"

#include <cmath>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "fluids/LiquidCorrelations.h"
#include "fluids/LiquidData.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class FluidTablesTest : public SuiteTest {
protected:
    void Parse(const std::string& row, double temperature = 60) {
        Calc.FluidRow = row;
        Calc.FlowTemperature = temperature;
        ParseLiquidRow();
    }
};

TEST_F(FluidTablesTest, FindsARowByItsExactName) {
    Calc.FluidType = words::Liquid;
    Calc.FluidName = "Toluene";
    FindFluidRow();
    EXPECT_EQ(FluidRowName(Calc.FluidRow), "Toluene");
    const std::string found = Calc.FluidRow;
    for (const char* absent : {"toluene", "Tolu", "Name", "No such fluid"}) {
        Calc.FluidName = absent;
        FindFluidRow();
        EXPECT_EQ(Calc.FluidRow, found) << absent << ": a name that is not there leaves the row alone";
    }
    Calc.FluidType = words::Gas;
    Calc.FluidName = "Methane";
    FindFluidRow();
    EXPECT_EQ(FluidRowName(Calc.FluidRow), "Methane");

    WriteData("Liquid.txt", "Name,\r\nTwin ,1,1\r\nTwin ,2,2\r\n");
    Calc.FluidType = words::Liquid;
    Calc.FluidName = "Twin";
    FindFluidRow();
    EXPECT_EQ(Calc.FluidRow, "Twin ,1,1");

    std::filesystem::remove(DataFolder() / "Liquid.txt");
    FindFluidRow();
    EXPECT_EQ(Calc.FluidRow, "");
    EXPECT_THROW(ReadFluidRows(words::Liquid), RuntimeError);
}

TEST_F(FluidTablesTest, ReadsWhateverTheFileHolds) {
    const struct {
        const char* Content;
        std::size_t Rows;
    } cases[] = {
        {"Name,Tp", 0},
        {"Name,Tp\r\n", 0},
        {"Name,Tp\nWater,3\n", 1},
        {"Name\r\nA\r\n\r\nB,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25\r\n", 3},
        {"Name\n\x80\xFF\x01\x02,\x9D,\xC3\n", 1},
    };
    for (const auto& each : cases) {
        WriteData("Liquid.txt", each.Content);
        const auto rows = ReadFluidRows(words::Liquid);
        EXPECT_EQ(rows.size(), each.Rows) << each.Content;
        for (const std::string& row : rows) Parse(row);
    }
    WriteData("Liquid.txt", "");
    EXPECT_THROW(ReadFluidRows(words::Liquid), RuntimeError) << "not even a heading";
    WriteData("Liquid.txt", "Name\nWater,3\n");
    // Another spelling of the file's name is the same file.
    std::filesystem::rename(DataFolder() / "Liquid.txt", DataFolder() / "LIQUID.TXT");
    EXPECT_EQ(ReadFluidRows(words::Liquid).size(), 1U);
}

TEST_F(FluidTablesTest, ParsesTheColumnsOfARow) {
    Parse("  My oil , 1 ,101,0.8,700,61,2.5,141,1.25,450,300,0.5,0.7,-12,200,11,145,ignored,");
    EXPECT_EQ(Calc.SelectedFluidName, "My oil");
    EXPECT_EQ(Val(Calc.FluidClass), 1);
    EXPECT_EQ(Calc.MolecularWeight, 101);
    EXPECT_EQ(Calc.SGAtStandard, 0.8);
    EXPECT_EQ(Calc.CritTemperature, 1160) << "by 460, not 459.67";
    EXPECT_EQ(Calc.CritPressure, 450);
    EXPECT_EQ(Calc.NormalBoilingPoint, 300);
    EXPECT_EQ(Calc.FlashPoint, -12);
    EXPECT_EQ(Calc.BulkModulusBase, 200);
    EXPECT_EQ(Calc.BulkModulusSlope, 11);
    EXPECT_EQ(Calc.LiquidLatentHeat, 145);
    EXPECT_DOUBLE_EQ(Calc.LiquidSpecificHeat, 0.5 + 120 * (0.7 - 0.5) / 240);
    EXPECT_EQ(Calc.MessageText, "My oil,1,101,0.8,700,61,2.5,141,1.25,450,300,0.5,0.7,-12,200,11,145,");

    // The viscosity line passes through both of its points.
    Parse(Calc.FluidRow, 61);
    EXPECT_NEAR(Calc.FluidViscosity, 2.5, 1e-12);
    Parse(Calc.FluidRow, 141);
    EXPECT_NEAR(Calc.FluidViscosity, 1.25, 1e-12);
}

TEST_F(FluidTablesTest, AShortRowReadsZeroForWhatItLacks) {
    const std::string whole = "Oil,1,101,0.8,700,61,2.5,141,1.25,450,300,0.5,0.7,-12,200,11,145";
    Parse(whole);
    EXPECT_EQ(Calc.LiquidLatentHeat, 145) << "a row without a comma at its end";
    for (std::size_t length = whole.size(); length-- > 0;) Parse(whole.substr(0, length));
    EXPECT_EQ(Calc.SelectedFluidName, "");
    EXPECT_EQ(Calc.MolecularWeight, 0) << "fields of the row before must not stay";
    Parse("Five,1,101,0.8,700");
    EXPECT_EQ(Calc.CritTemperature, 1160);
    EXPECT_EQ(Calc.CritPressure, 0);
    EXPECT_EQ(Calc.MessageText, "Five,1,101,0.8,700,,,,,,,,,,,,,");
}

TEST_F(FluidTablesTest, ParsesTheColumnsOfAGas) {
    Calc.FluidRow = " My gas ,2, 0.05 ,-100,30.5,90,60,0.009,300,0.006,700,0.41,0.6,210,ignored,";
    ParseGasRow();
    EXPECT_EQ(Calc.SelectedFluidName, "My gas");
    EXPECT_EQ(Val(Calc.FluidClass), 2);
    EXPECT_EQ(Calc.CritVolume, 0.05);
    EXPECT_EQ(Calc.NormalBoilingPoint, -100);
    EXPECT_EQ(Calc.MolecularWeight, 30.5);
    EXPECT_EQ(Calc.CritTemperature, 550) << "by 460";
    EXPECT_EQ(Calc.Viscosity2, 0.006);
    EXPECT_EQ(Calc.CritPressure, 700);
    EXPECT_EQ(Calc.GasCp1, 0.41);
    EXPECT_EQ(Calc.GasCp2, 0.6);
    EXPECT_EQ(Calc.LatentHeatBP, 210);
    EXPECT_EQ(Calc.MessageText, "My gas,2,0.05,-100,30.5,90,60,0.009,300,0.006,700,0.41,0.6,210,");
    ParseGasRowForMixture();
    EXPECT_DOUBLE_EQ(Calc.CritTemperature, 549.67);
    const std::string whole = Calc.FluidRow;
    for (std::size_t length = whole.size(); length-- > 0;) {
        Calc.FluidRow = whole.substr(0, length);
        ParseGasRow();
    }
    EXPECT_EQ(Calc.CritTemperature, 460) << "fields of the row before must not stay";
    EXPECT_EQ(Calc.LatentHeatBP, 0);
}

// A user's own row may hold anything: the pick is refused with a message, and no number that is none stays.
TEST_F(FluidTablesTest, ARowWithoutSenseIsRefused) {
    const struct {
        const char* Row;
        double Temperature;
    } cases[] = {
        {"", 60},
        {"Five,1,101,0.8,700", 60},
        {"Text,one,two,three,four,five,six,seven,eight,nine,ten", 60},
        {"NoSecondViscosity,1,101,0.8,700,61,2.5,141,0,450,300,", 60},
        {"NegativeViscosity,1,101,0.8,700,61,-2.5,141,1,450,300,", 60},
        {"SameTemperatures,1,101,0.8,700,61,2.5,61,1.25,450,300,", 60},
        {"BoilsAtCritical,1,101,0.8,700,61,2.5,141,1.25,450,700.33,", 60},
        {"NoWeight,2,0,0.8,700,61,2.5,141,1.25,450,300,", 60},
        {"NoPressure,2,101,0.8,700,61,2.5,141,1.25,0,300,", 60},
        {"HotWater,3,18.015,1,900,60,1.12,200,0.303,3200,212,", 706},
        {"Cold,1,101,0.8,700,61,2.5,141,1.25,450,300,", -459.67},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Row);
        User.Boxes.clear();
        Calc = CalcRecord();
        Calc.CurrentProgram = 1;
        Calc.FlowPressure = 1e6;
        Calc.BaroPressure = 14.7;
        Parse(each.Row, each.Temperature);
        const bool result = ProcessLiquidData();
        EXPECT_FALSE(result);
        ASSERT_FALSE(User.Boxes.empty());
        EXPECT_EQ(User.Boxes.back().Title, "Liquid Calculation");
        EXPECT_EQ(User.LastText(), "Fluid properties cannot be calculated");
        EXPECT_EQ(Calc.FlowingSG, 0);
        EXPECT_EQ(Calc.FluidViscosity, 0);
    }
}

}  // namespace
}  // namespace quillmetra
