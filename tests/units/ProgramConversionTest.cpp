// The whole record of each program: which cells move, by which unit, and what a conversion leaves behind.
#include "units/ProgramConversion.h"

#include <limits>
#include <map>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/RecordUnits.h"

namespace quillmetra {
namespace {

// Factors of row r: a prime before, 1 after, so that a value tells by which unit it went.
constexpr double Primes[] = {2,  3,  5,  7,  11, 13, 17, 19, 23, 29, 31, 37,  41,  43,
                             47, 53, 59, 61, 67, 71, 73, 79, 83, 89, 97, 101, 103, 107};

class ProgramConversionTest : public SuiteTest {
protected:
    void TakeProgram(int program, const std::string& densityMode) {
        Calc = CalcRecord();
        Calc.CurrentProgram = program;
        Calc.LiquidDensityMode = densityMode;
        for (std::size_t row = 0; row < std::size(Primes); ++row) Calc.UnitFactorPrevious[row] = Primes[row];
        // Temperatures and viscosities stay in units of their own rules.
        Calc.ChosenUnitRowNames = {"", "degF", "degR", "cp"};
        Calc.UnitName[2] = "degF";
        Calc.UnitName[12] = "degR";
        Calc.UnitName[7] = "cp";
        for (auto& row : Calc.CaseInput) row.fill(1);
        for (auto& row : Calc.CaseResult) row.fill(1);
        Calc.PipeData.fill(1);
        Calc.HammerResult.fill(1);
        User.Answers = {Answer::No};
    }
};

// Which cell went by which unit row: cells as row.column in the letter of their table, I inputs, R results,
// P pipe, H hammer results.
std::map<std::string, double> Moved() {
    std::map<std::string, double> moved;
    const auto note = [&](char table, std::size_t row, std::size_t column, double value) {
        std::string cell(1, table);
        cell += std::to_string(row);
        cell += '.';
        cell += std::to_string(column);
        if (value != 1) moved[cell] = value;
    };
    for (std::size_t c = 0; c < CaseCount; ++c) {
        for (std::size_t r = 0; r < Calc.CaseInput.size(); ++r) note('I', r, c, Calc.CaseInput[r][c]);
        for (std::size_t r = 0; r < Calc.CaseResult.size(); ++r) note('R', r, c, Calc.CaseResult[r][c]);
    }
    for (std::size_t i = 0; i < Calc.PipeData.size(); ++i) note('P', i, 0, Calc.PipeData[i]);
    for (std::size_t i = 0; i < Calc.HammerResult.size(); ++i) note('H', i, 0, Calc.HammerResult[i]);
    return moved;
}

TEST_F(ProgramConversionTest, EachProgramMovesItsRowsByTheirUnits) {
    const struct {
        int Program;
        const char* Mode;
        std::map<std::size_t, std::size_t> Inputs;  // row by unit row, all cases
    } cases[] = {
        {1, words::Gravity, {{1, 1}, {3, 3}, {4, 4}, {8, 8}}},
        {1, words::Density, {{1, 1}, {3, 3}, {4, 4}, {6, 6}, {8, 8}}},
        {2, words::Gravity, {{0, 0}, {3, 3}, {4, 4}, {9, 9}, {11, 11}}},
        {4, words::Gravity, {{3, 3}, {8, 8}, {9, 9}, {11, 11}, {27, 27}}},
        {4, words::Density, {{3, 3}, {5, 9}, {6, 9}, {8, 8}, {9, 9}, {11, 11}, {27, 27}}},
        {5, words::Gravity, {{3, 3}, {8, 8}, {9, 9}, {11, 11}, {13, 16}, {16, 16}}},
    };
    for (const auto& each : cases) {
        TakeProgram(each.Program, each.Mode);
        std::map<std::string, double> expected;
        for (const auto& [row, unitRow] : each.Inputs) {
            for (const char* column : {".0", ".1", ".2"}) {
                expected[std::string("I").append(std::to_string(row)).append(column)] = Primes[unitRow];
            }
        }
        for (const char* column : {".0", ".1", ".2"}) {
            expected[std::string("R0") + column] = Primes[4] / Primes[25];
            expected[std::string("R1") + column] = Primes[3];
            expected[std::string("R2") + column] = Primes[20];
            expected[std::string("R3") + column] = Primes[20];
        }
        for (const char* cell : {"R5.0", "I25.0", "P1.0", "P3.0"}) expected[cell] = Primes[25];
        expected["P2.0"] = Primes[18];
        ConvertProgramData();
        const auto moved = Moved();
        for (const auto& [cell, value] : expected) {
            ASSERT_TRUE(moved.contains(cell)) << each.Program << each.Mode << " " << cell;
            EXPECT_NEAR(moved.at(cell), value, 1e-12) << each.Program << each.Mode << " " << cell;
        }
        for (const auto& [cell, value] : moved) {
            EXPECT_TRUE(expected.contains(cell)) << each.Program << each.Mode << " " << cell << " " << value;
        }
    }
}

TEST_F(ProgramConversionTest, TheHammerMovesItsCellsByTheirUnits) {
    TakeProgram(3, words::Density);
    Calc.UnitFactor[18] = 0.03937;  // a metric pipe: forces become kg
    ConvertProgramData();
    std::map<std::string, double> expected = {
        {"I6.0", Primes[6]},
        {"I1.0", Primes[1]},
        {"I3.0", Primes[3]},
        {"I3.1", Primes[3]},
        {"I27.0", Primes[27]},
        {"I27.1", Primes[27]},
        {"I25.0", Primes[25]},
        {"I18.0", Primes[18] / 0.03937},
        {"I18.2", Primes[18] / 0.03937},
        {"H13.0", Primes[20]},
        {"H14.0", Primes[3]},
        {"H15.0", Primes[0] / 2.2046},
        {"H17.0", Primes[3]},
        {"H18.0", Primes[0] / 2.2046},
    };
    const auto moved = Moved();
    EXPECT_EQ(moved.size(), expected.size());
    for (const auto& [cell, value] : expected) {
        ASSERT_TRUE(moved.contains(cell)) << cell;
        EXPECT_NEAR(moved.at(cell), value, value * 1e-14) << cell;
    }
    EXPECT_EQ(Calc.UnitName[0], "kg");
    for (const double englishPipe : {1.0, 12.0}) {
        Calc.UnitFactor[18] = englishPipe;
        SetForceUnit();
        EXPECT_EQ(Calc.UnitName[0], "lb");
        EXPECT_EQ(Calc.UnitFactor[0], 1);
    }
}

TEST_F(ProgramConversionTest, TheHammerFlowChangesItsBasisByTheGravity) {
    Calc.CurrentProgram = 3;
    Calc.LiquidBasisPrevious = "Vol";
    Calc.UnitFactorPrevious[1] = 60;
    Calc.UnitFactor[1] = 7936.641;
    Calc.CaseInput[1][0] = 100;
    Calc.CaseInput[6][0] = 0.8;
    ConvertProgramData();
    EXPECT_DOUBLE_EQ(Calc.CaseInput[1][0], 5.04262);
    // Without one the flow stays, and nobody is asked.
    Calc.LiquidBasis = "Vol";
    Calc.CaseInput[6][0] = 0;
    Calc.UnitFactor[1] = 60;
    ConvertProgramData();
    EXPECT_TRUE(User.Prompts.empty());
    EXPECT_DOUBLE_EQ(Calc.CaseInput[1][0], 5.04262);
}

// The gravity of a flow is read in the unit that row 6 has already been brought to.
TEST_F(ProgramConversionTest, DensityIsConvertedBeforeTheFlowThatNeedsIt) {
    Calc.CurrentProgram = 1;
    Calc.LiquidDensityMode = words::Density;
    Calc.LiquidBasisPrevious = "Vol";
    Calc.UnitFactorPrevious[1] = 60;
    Calc.UnitFactor[1] = 7936.641;
    Calc.UnitFactor[6] = 0.062428;
    Calc.CaseInput[1] = {100, 100, 100};
    Calc.CaseInput[6] = {49.8928, 49.8928, 49.8928};  // 0.8 of water
    ConvertProgramData();
    for (std::size_t c = 0; c < CaseCount; ++c) EXPECT_NEAR(Calc.CaseInput[1][c], 5.04262, 2e-5);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 799.205);
    EXPECT_EQ(Calc.UnitsConverted, "Yes");
}

TEST_F(ProgramConversionTest, WhatAConversionLeavesBehind) {
    for (int program = 1; program <= 5; ++program) {
        TakeProgram(program, words::Gravity);
        Calc.Basis = "Vol";
        Calc.LiquidBasis = "Vol";
        Calc.UnitName[7] = "Pa.s";
        Calc.UnitFactor[7] = 1000;
        Calc.UnitName[2] = "degC";
        Calc.UnitName[12] = "degK";
        ConvertProgramData();
        EXPECT_EQ(Calc.BasisPrevious, "Vol");
        EXPECT_EQ(Calc.LiquidBasisPrevious, "Vol");
        EXPECT_EQ(Calc.ChosenUnitRowNames[1], "degC");
        EXPECT_EQ(Calc.ChosenUnitRowNames[2], "degK");
        EXPECT_EQ(Calc.ChosenUnitRowNames[3], "Pa.s");
        EXPECT_EQ(Calc.UnitFactorPrevious, Calc.UnitFactor);
        EXPECT_EQ(Calc.RoundedFlag, "No") << "the answer was No";
        EXPECT_EQ(Calc.UnitsConverted, program <= 2 ? "Yes" : "");
        // So nothing is left for a second one, but for viscosities of four figures.
        const CaseInputs inputs = Calc.CaseInput;
        const CaseResults results = Calc.CaseResult;
        const HammerResults hammer = Calc.HammerResult;
        User.Answers = {Answer::No};
        ConvertProgramData();
        for (std::size_t r = 0; r < inputs.size(); ++r)
            for (std::size_t c = 0; c < CaseCount; ++c)
                EXPECT_NEAR(Calc.CaseInput[r][c], inputs[r][c], 1e-12) << program << " row " << r;
        EXPECT_EQ(Calc.CaseResult, results);
        EXPECT_EQ(Calc.HammerResult, hammer);
    }
}

TEST_F(ProgramConversionTest, ZeroTemperatures) {
    for (int program = 1; program <= 5; ++program) {
        Calc = CalcRecord();
        Calc.CurrentProgram = program;
        Calc.ChosenUnitRowNames = {"", "degC", "degC", "cp"};
        Calc.UnitName[2] = "degF";
        Calc.UnitName[12] = "degR";
        Calc.TemperatureBlank = {0, 1, 0};
        ConvertProgramData();
        for (const std::size_t row : {1U, 2U, 4U, 12U})
            for (const double value : Calc.CaseInput[row]) EXPECT_EQ(value, 0) << program << " row " << row;
        Calc.ChosenUnitRowNames[1] = "degC";
        ConvertProgramData(ZeroTemperature::IsConverted);
        EXPECT_EQ(Calc.CaseInput[2][0], 32) << program;
        EXPECT_EQ(Calc.CaseInput[2][1], 0) << "an empty box stays empty";
        EXPECT_EQ(Calc.CaseInput[2][2], program == 3 ? 0 : 32);
    }
}

TEST_F(ProgramConversionTest, TemperaturesOfTheFluidDataPrograms) {
    for (const int program : {4, 5}) {
        Calc = CalcRecord();
        Calc.CurrentProgram = program;
        Calc.StdTemperature = 60;
        Calc.ChosenUnitRowNames = {"", "degF", "degR", "cp"};
        Calc.UnitName[2] = Calc.UnitName[21] = "degC";
        Calc.UnitName[12] = "degK";
        Calc.CaseInput[1] = {212, 0, 0};  // flash point in program 4
        Calc.CaseInput[2] = {68, 0, 0};
        Calc.CaseInput[4] = {231.1, 231.1, 0};
        Calc.CaseInput[12] = {1065.2, 0, 0};
        ConvertProgramData();
        EXPECT_DOUBLE_EQ(Calc.CaseInput[2][0], 20);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[4][0], 110.611);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[4][1], 110.611) << "whatever the temperature of the case";
        EXPECT_EQ(Calc.CaseInput[4][2], 0);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[12][0], 591.778);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[1][0], program == 4 ? 100 : 212);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[21][0], 15.5556);
        EXPECT_DOUBLE_EQ(Calc.FlowTemperatureF, 68) << "of the fluid, not of its boiling point";
    }
}

TEST_F(ProgramConversionTest, ANumberThatIsNoProgramConvertsNothing) {
    for (const int program : {0, 6, -1, 1000}) {
        TakeProgram(1, words::Gravity);
        Calc.CurrentProgram = program;
        ConvertProgramData();
        EXPECT_TRUE(Moved().empty());
    }
}

TEST_F(ProgramConversionTest, RoundingAsksFirst) {
    const struct {
        Answer Given;
        double Input, Hammer;
        const char* Flag;
        const char* Hidden;
    } cases[] = {
        {Answer::Yes, 1.23457, 1.235, "Yes", ""},
        {Answer::No, 1.23456789, 1.23456789, "No", ""},
        {Answer::Cancel, 1.23457, 1.235, "Yes", "Yes"},
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Suite.HideRoundReminder.clear();
        User.Boxes.clear();
        Calc.ProgramTitle = "Water Hammer";
        Calc.StdPressure = 14.696;
        Calc.RoundedFlag = words::No;
        Calc.CaseInput[27][2] = Calc.CaseInput[28][0] = Calc.CaseResult[6][1] = Calc.PipeData[6] =
            Calc.HammerResult[18] = 1.23456789;
        User.Answers = {each.Given};
        RoundRecord();
        ASSERT_EQ(User.Boxes.size(), 1U);
        EXPECT_EQ(User.Boxes[0].Text,
                  "Round converted data?\n  Yes or No to round\n\n(or Cancel to hide the message)");
        EXPECT_EQ(User.Boxes[0].Title, "Water Hammer");
        EXPECT_EQ(User.Boxes[0].Choice, Buttons::YesNoCancel);
        EXPECT_EQ(Calc.CaseInput[27][2], each.Input);
        EXPECT_EQ(Calc.CaseResult[6][1], each.Input);
        EXPECT_EQ(Calc.PipeData[6], each.Input);
        EXPECT_EQ(Calc.HammerResult[18], each.Hammer);
        EXPECT_EQ(Calc.CaseInput[28][0], 1.23456789) << "reserved rows stay";
        EXPECT_EQ(Calc.RoundedFlag, each.Flag);
        EXPECT_EQ(Suite.HideRoundReminder, each.Hidden);
    }
    // Hidden now: no question, and the word stands in the file of the standard conditions.
    RoundRecord();
    EXPECT_EQ(User.Boxes.size(), 1U);
    LineReader file(Suite.DefaultPaths[4] + "\\TRSTP.TXT");
    std::string line;
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(file.Next(line));
    EXPECT_EQ(line, "Yes");
}

TEST_F(ProgramConversionTest, FactorsThatCannotBeUsedAreMended) {
    for (const double bad : {0.0, -1.0, 1e-320, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(IsUsableFactor(bad));
        Calc.UnitFactor[35] = Calc.UnitFactorPrevious[0] = bad;
        Calc.UnitFactor[4] = 0.14504;
        MendUnitFactors();
        EXPECT_EQ(Calc.UnitFactor[35], 1);
        EXPECT_EQ(Calc.UnitFactorPrevious[0], 1);
        EXPECT_EQ(Calc.UnitFactor[4], 0.14504);
    }
}

}  // namespace
}  // namespace quillmetra
