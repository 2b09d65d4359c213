// The user's unit sets and TRUNS.txt: order and form of the file, what a bad one leaves, and the set in
// force.
#include "units/UserUnits.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"
#include "units/ProgramConversion.h"
#include "units/RecordUnits.h"
#include "units/UnitChange.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

// A liquid set in bar and litres, a gas set in English volumes.
const std::vector<std::string> GoodLines = {
    "Vol",   " 5",      "litre/m", " 15.85032", "degC",   " 1",      "barg", " 14.504",  "bar",   " 14.504",
    "cs",    " 1",      "m/s",     " 3.281",    "bar",    " 14.504", "mm",   " 0.03937", "m",     " 3.281",
    "g/cm3", " 62.428", "Mas",     " 2",        "sft3/m", " 60",     "degF", " 1",       "psia",  " 1",
    "psi",   " 1",      "degR",    " 1",        "psia",   " 1",      "ft/s", " 1",       "mPa.s", " 1",
    "in",    " 1",      "ft",      " 1",        "Psia",   "LiqDen",  " 14.5"};

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

class UserUnitsTest : public SuiteTest {
protected:
    void WriteLines(const std::vector<std::string>& lines) const { WriteData("TRUNS.txt", Joined(lines)); }

    std::string FileText() const {
        std::ifstream file(DataFolder() / "TRUNS.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(UserUnitsTest, ReadsTheFileInItsOrder) {
    ASSERT_EQ(GoodLines.size(), 47U);
    WriteLines(GoodLines);
    ASSERT_TRUE(ReadUserUnits());
    EXPECT_EQ(Calc.LiquidBasis, "Vol");
    EXPECT_EQ(Calc.LiquidBasisPrevious, "Vol");
    EXPECT_EQ(Calc.LiquidUnitSet, 5);
    EXPECT_EQ(Calc.Basis, "Mas");
    EXPECT_EQ(Calc.GasUnitSet, 2);
    EXPECT_EQ(Calc.PressureMode, "Psia");
    EXPECT_EQ(Calc.LiquidDensityMode, "LiqDen");
    EXPECT_EQ(Calc.BaroPressure, 14.5);
    EXPECT_EQ(Suite.UserLiquidUnitName[7], "cs");
    EXPECT_EQ(Suite.UserLiquidUnitFactor[27], 14.504);
    EXPECT_EQ(Suite.UserLiquidUnitName[5], "g/cm3");
    EXPECT_EQ(Suite.UserGasUnitName[12], "degR");
    EXPECT_EQ(Suite.UserGasUnitFactor[0], 60);
    EXPECT_EQ(Suite.UserGasUnitName[7], "mPa.s") << "the viscosity of a gas is that of row 13";
}

TEST_F(UserUnitsTest, WritesWhatItRead) {
    WriteLines(GoodLines);
    ASSERT_TRUE(ReadUserUnits());
    fs::remove(DataFolder() / "TRUNS.txt");
    // The bases in force belong to other units by now; the file keeps those of its own.
    Calc.LiquidBasis = Calc.Basis = "else";
    // So do the unit sets of records that were displayed: the other fluid's part of the file stays.
    Calc.FluidType = words::Liquid;
    Calc.GasUnitSet = 3;
    ASSERT_TRUE(WriteUserUnits());
    EXPECT_EQ(FileText(), Joined(GoodLines));
    Calc.FluidType = words::Gas;
    Calc.GasUnitSet = 2;
    Calc.LiquidUnitSet = 1;
    Calc.LiquidDensityMode = words::Gravity;
    ASSERT_TRUE(WriteUserUnits());
    EXPECT_EQ(FileText(), Joined(GoodLines));
}

TEST_F(UserUnitsTest, AFileThatWasCutAnywhereIsNotTaken) {
    const std::string whole = Joined(GoodLines);
    WriteData("TRUNS.txt", whole);
    for (std::size_t length = whole.size() - 1; length-- > 0;) {
        CutData("TRUNS.txt", length);
        Calc = CalcRecord();
        Calc.UnitFactor[4] = 99;
        Suite.UserLiquidUnitName.fill("old");
        Suite.UserLiquidUnitFactor.fill(2);
        ASSERT_FALSE(ReadUserUnits()) << length;
        ASSERT_EQ(Calc.UnitName[0], "lb/h");
        ASSERT_EQ(Calc.UnitName[3], "psig");
        ASSERT_EQ(Calc.UnitFactor[4], 1);
        ASSERT_EQ(Calc.PressureMode, "Psig");
        ASSERT_EQ(Calc.LiquidBasis, "Mas");
        ASSERT_EQ(Suite.UserLiquidUnitFactor[1], 0);
        ASSERT_EQ(Suite.UserLiquidUnitName[2], "");
        ASSERT_FALSE(TakeUserUnitSet());
    }
}

TEST_F(UserUnitsTest, OtherFilesAreNotTaken) {
    for (const char* text : {"", "\x1A", "\r\n\r\n", "Mas", "\xFF\xFE\x00M"}) {
        WriteData("TRUNS.txt", text);
        EXPECT_FALSE(ReadUserUnits());
    }
    WriteData("TRUNS.txt", std::string(100000, 'x') + "\r\n" + std::string(100000, '\n'));
    EXPECT_FALSE(ReadUserUnits());
    for (const std::size_t wordLine : {0U, 22U, 44U, 45U}) {
        auto lines = GoodLines;
        lines[wordLine] = "Gallons";
        WriteLines(lines);
        EXPECT_FALSE(ReadUserUnits()) << wordLine;
    }
    fs::remove(DataFolder() / "TRUNS.txt");
    EXPECT_FALSE(ReadUserUnits());
    fs::create_directory(DataFolder() / "TRUNS.txt");
    EXPECT_FALSE(ReadUserUnits());
    EXPECT_FALSE(WriteUserUnits());
}

TEST_F(UserUnitsTest, ReadsLeniently) {
    auto lines = GoodLines;
    lines[0] = "  Vol ";
    lines[1] = "17";             // no unit set
    lines[2] = "gal,UK/minute";  // a name with a comma, longer than a record takes
    lines[45] = "";              // the usual mode
    lines[46] = "a barometer";   // none
    lines.emplace_back("more");
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    WriteData("truns.TXT", text);
    Calc.BaroPressure = 14.6;
    ASSERT_TRUE(ReadUserUnits());
    EXPECT_EQ(Calc.LiquidBasis, "Vol");
    EXPECT_EQ(Calc.LiquidUnitSet, 0);
    EXPECT_EQ(Suite.UserLiquidUnitName[1], "gal,UK/m");
    EXPECT_EQ(Calc.LiquidDensityMode, "LiqSG");
    EXPECT_EQ(Calc.BaroPressure, 14.6);
}

TEST_F(UserUnitsTest, ABadFactorNeverEntersTheRecord) {
    for (const char* bad : {"0", " 0", "-3", "1e-320", "1e999", "inf", "nan", "text", ""}) {
        for (std::size_t line = 3; line < 22; line += 2) {
            auto lines = GoodLines;
            lines[line] = bad;
            WriteLines(lines);
            Calc = CalcRecord();
            Calc.CurrentProgram = 1;
            Calc.FluidType = words::Liquid;
            ASSERT_TRUE(ReadUserUnits());
            const UnitFactors& read = Suite.UserLiquidUnitFactor;
            EXPECT_EQ(std::count_if(read.begin(), read.end(), IsUsableFactor), 9) << bad;
            EXPECT_EQ(std::count(read.begin(), read.end(), 0), 27) << bad;
            const CalcRecord before = Calc;
            if (line == 3) {
                EXPECT_FALSE(ApplyNamedUnitSet(UserUnitSet)) << bad;
                EXPECT_EQ(Calc.UnitName, before.UnitName);
                EXPECT_EQ(Calc.LiquidUnitSet, 5) << "as the file says";
                continue;
            }
            ASSERT_TRUE(ApplyNamedUnitSet(UserUnitSet)) << bad;
            for (const double factor : Calc.UnitFactor) EXPECT_TRUE(IsUsableFactor(factor)) << bad << line;
        }
    }
    // A row without a usable factor has the unit of its family, name and all.
    auto lines = GoodLines;
    lines[9] = "0";
    WriteLines(lines);
    ReadUserUnits();
    ASSERT_TRUE(TakeUserUnitSet());
    EXPECT_EQ(Calc.UnitName[4], "kPa");
    EXPECT_EQ(Calc.UnitFactor[4], 0.14504);
}

TEST_F(UserUnitsTest, TakesALiquidSet) {
    WriteLines(GoodLines);
    Calc.FluidType = words::Liquid;
    Calc.CurrentProgram = 1;
    Calc.StdTemperature = 60;
    // In the midst of a calculation the modes and the barometer of the file do not count.
    Calc.LiquidDensityMode = words::Density;
    Calc.BaroPressure = 14.7;
    ASSERT_TRUE(ReadUserUnitSets());
    ASSERT_TRUE(ApplyNamedUnitSet(UserUnitSet));
    EXPECT_EQ(Calc.PressureMode, "Psig");
    EXPECT_EQ(Calc.BaroPressure, 14.7);
    EXPECT_EQ(Calc.Basis, "Mas");
    EXPECT_EQ(Calc.GasUnitSet, 0);
    EXPECT_EQ(Calc.LiquidUnitSet, 5);
    EXPECT_EQ(Calc.UnitSetName, "User selected units");
    EXPECT_EQ(Calc.UnitSystem, "SI");
    EXPECT_EQ(Calc.LiquidBasis, "Vol");
    EXPECT_EQ(Calc.LiquidBasisPrevious, "Mas");
    const struct {
        std::size_t Row;
        const char* Name;
        double Factor;
    } rows[] = {
        {1, "litre/m", 15.85032}, {2, "degC", 1},         {3, "barg", 14.504},  {5, "g/cm3", 62.428},
        {6, "g/cm3", 62.428},     {7, "cs", 1},           {8, "kPaa", 0.14504}, {9, "g/cm3", 62.428},
        {12, "degK", 1},          {16, "kJ/kg", 0.42992}, {18, "mm", 0.03937},  {20, "m/s", 3.281},
        {21, "degC", 1},          {22, "kPaa", 0.14504},  {25, "m", 3.281},     {27, "bar", 14.504},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Calc.UnitName[row.Row], row.Name) << row.Row;
        EXPECT_EQ(Calc.UnitFactor[row.Row], row.Factor) << row.Row;
    }
    Calc.PressureMode = words::Absolute;
    ASSERT_TRUE(TakeUserUnitSet());
    EXPECT_EQ(Calc.UnitName[3], "bara") << "the ending is that of the mode in force";
}

TEST_F(UserUnitsTest, FluidDataProgramsFollowTheFamilyOfThePressure) {
    WriteLines(GoodLines);
    ReadUserUnits();
    const struct {
        int Program;
        const char* FluidType;
        const char *Vapor, *Density, *CritPressure, *CritTemperature, *LatentHeat;
    } cases[] = {{4, words::Liquid, "kPag", "kg/m3", "kPaa", "degK", "kJ/kg"},
                 {5, words::Gas, "psig", "lb/ft3", "psia", "degR", "btu/lb"}};
    for (const auto& each : cases) {
        Calc.CurrentProgram = each.Program;
        Calc.FluidType = each.FluidType;
        ASSERT_TRUE(TakeUserUnitSet());
        EXPECT_EQ(Calc.UnitName[8], each.Vapor);
        EXPECT_EQ(Calc.UnitName[9], each.Density);
        EXPECT_EQ(Calc.UnitName[6], each.Density) << "the density at flow goes by the same unit";
        EXPECT_EQ(Calc.UnitName[11], each.CritPressure);
        EXPECT_EQ(Calc.UnitName[12], each.CritTemperature);
        EXPECT_EQ(Calc.UnitName[16], each.LatentHeat);
        EXPECT_EQ(Calc.UnitFactor[16], each.Program == 4 ? 0.42992 : 1);
    }
    EXPECT_EQ(Calc.UnitName[7], "mPa.s");
    EXPECT_EQ(Calc.UnitSystem, "English");
}

TEST_F(UserUnitsTest, StoredAndTakenBack) {
    for (const char* fluid : {words::Liquid, words::Gas}) {
        Calc = CalcRecord();
        Calc.CurrentProgram = fluid == words::Liquid ? 1 : 2;
        Calc.FluidType = fluid;
        Calc.LiquidDensityMode = words::Density;
        ApplyNamedUnitSet(4);
        Calc.UnitName[25] = "km,or so";
        Calc.UnitFactor[25] = 3280.84;
        Calc.UnitName[6] = Calc.UnitName[9] = "g/cm3";
        Calc.UnitFactor[6] = Calc.UnitFactor[9] = 62.428;
        const CalcRecord before = Calc;
        StoreUserUnitSet();
        ASSERT_TRUE(WriteUserUnits());
        Suite = [] {
            SuiteState fresh;
            fresh.DefaultPaths = Suite.DefaultPaths;
            return fresh;
        }();
        ApplyNamedUnitSet(1);
        ASSERT_TRUE(ReadUserUnitSets());
        ASSERT_TRUE(ApplyNamedUnitSet(UserUnitSet));
        EXPECT_EQ(Calc.Basis, before.Basis);
        EXPECT_EQ(Calc.LiquidBasis, before.LiquidBasis);
        const bool gas = fluid == words::Gas;
        for (std::size_t row = 0; row < 28; ++row) {
            if (row == (gas ? 1 : 0) || row == 5 || row == 6 || row == 9) continue;
            EXPECT_EQ(Calc.UnitName[row], before.UnitName[row]) << fluid << row;
            EXPECT_NEAR(Calc.UnitFactor[row] / before.UnitFactor[row], 1, 1e-14) << fluid << row;
        }
        // The file has no place for the density of a gas.
        EXPECT_EQ(Calc.UnitName[9], gas ? "kg/m3" : "g/cm3");
        EXPECT_EQ(Calc.UnitName[6], gas ? "kg/m3" : "g/cm3");
    }
}

// From a named set to the user's own and back, as the options panel does it.
TEST_F(UserUnitsTest, ConvertsToTheUsersUnits) {
    WriteLines(GoodLines);
    Suite.HideRoundReminder = words::Yes;
    Calc.CurrentProgram = 1;
    Calc.FluidType = words::Liquid;
    ApplyNamedUnitSet(1);
    RenewChosenUnitNames();
    Calc.CaseInput[1][0] = 10000;
    Calc.CaseInput[3][0] = 100;
    Calc.CaseInput[6][0] = 0.9;
    Calc.CaseInput[7][0] = 45;
    {
        UnitChange change;
        ASSERT_TRUE(ReadUserUnitSets());
        ASSERT_TRUE(ApplyNamedUnitSet(UserUnitSet));
        change.Commit();
    }
    EXPECT_NEAR(Calc.CaseInput[1][0], 10000 / 0.9 / 8.3378 / 15.85032, 1e-3);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[3][0], 6.89465);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[7][0], 50);
    UnitChange change;
    ApplyNamedUnitSet(1);
    change.Commit();
    EXPECT_NEAR(Calc.CaseInput[1][0], 10000, 0.1);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[7][0], 45);
}

}  // namespace
}  // namespace quillmetra
