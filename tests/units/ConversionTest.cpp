// One quantity of one case at a time, against figures worked out apart from the code.
#include "units/Conversion.h"

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/Temperature.h"

namespace quillmetra {
namespace {

class ConversionTest : public SuiteTest {};

// The same temperatures in the four units.
constexpr const char* TemperatureNames[] = {"degF", "degC", "degR", "degK"};
constexpr double SameTemperatures[][4] = {
    {212, 100, 671.67, 373.15},           {32, 0, 491.67, 273.15},
    {-40, -40, 419.67, 233.15},           {-459.67, -273.15, 0, 0},
    {0, -160.0 / 9, 459.67, 2298.35 / 9},
};

TEST_F(ConversionTest, TemperaturesInEveryUnit) {
    for (const auto& same : SameTemperatures) {
        for (std::size_t from = 0; from < 4; ++from) {
            for (std::size_t to = 0; to < 4; ++to) {
                SCOPED_TRACE(std::string(TemperatureNames[from]) + " to " + TemperatureNames[to]);
                Calc = CalcRecord();
                // Their factors are placeholders.
                Calc.UnitFactor[2] = Calc.UnitFactor[12] = 5;
                Calc.UnitFactorPrevious[2] = Calc.UnitFactorPrevious[12] = 7;
                Calc.ChosenUnitRowNames[1] = Calc.ChosenUnitRowNames[2] = TemperatureNames[from];
                Calc.UnitName[2] = Calc.UnitName[12] = TemperatureNames[to];
                Calc.CaseInput[2][1] = Calc.CaseInput[12][1] = same[from];
                ConvertTemperature(1);
                ConvertCritTemperature(1);
                EXPECT_NEAR(Calc.CaseInput[2][1], same[to], 1e-9);
                EXPECT_NEAR(Calc.FlowTemperatureF, same[0], 1e-9);
                // A critical temperature of 0 is an empty one.
                EXPECT_NEAR(Calc.CaseInput[12][1], same[from] == 0 ? 0 : same[to], 1e-9);
            }
        }
    }
    for (std::size_t unit = 0; unit < 4; ++unit)
        EXPECT_NEAR(AbsoluteZeroIn(TemperatureNames[unit]), SameTemperatures[3][unit], 1e-9);
}

TEST_F(ConversionTest, ATemperatureUnitOfTheUsersOwnGoesByItsFactor) {
    Calc.ChosenUnitRowNames = {"", "degRe", "degRe", ""};
    Calc.UnitFactorPrevious[2] = Calc.UnitFactorPrevious[12] = 2.25;
    Calc.UnitName[2] = "degC";
    Calc.UnitName[12] = "halfR";
    Calc.UnitFactor[12] = 0.5;
    Calc.CaseInput[2][0] = 80;
    Calc.CaseInput[12][0] = 80;
    ConvertTemperature(0);
    ConvertCritTemperature(0);
    EXPECT_NEAR(Calc.CaseInput[2][0], (180.0 - 32) / 1.8, 1e-12);
    EXPECT_NEAR(Calc.CaseInput[12][0], 360, 1e-12);
}

TEST_F(ConversionTest, AnEmptyTemperatureStaysAndATypedZeroConverts) {
    Calc.ChosenUnitRowNames[1] = "degC";
    Calc.UnitName[2] = "degF";
    Calc.TemperatureBlank[0] = 1;
    ConvertTemperature(0);
    ConvertTemperature(1);
    EXPECT_EQ(Calc.CaseInput[2][0], 0);
    EXPECT_EQ(Calc.CaseInput[2][1], 32);
    ConvertBoilingPoint(0);
    ConvertFlashPoint(0);
    EXPECT_EQ(Calc.CaseInput[4][0], 0);
    EXPECT_EQ(Calc.CaseInput[1][0], 0);
}

TEST_F(ConversionTest, GasFlow) {
    const struct {
        const char *Was, *Is;
        double Former, Factor, Flow, MolecularWeight, Expected;
    } cases[] = {
        {"Mas", "Mas", 1, 7936.641, 1000, 0, 0.125998},
        {"Mas", "Vol", 1, 60, 1000, 28.97, 217.898657},
        {"Vol", "Mas", 127.134, 7936.641, 5, 28.97, 0.00612617},
        {"Vol", "Mas", 60, 1, 2, 44.01, 13.9437092},
        {"Vol", "Vol", 60, 127.134, 5, -1, 2.35971652},
        {"Mas", "Vol", 1, 60, 1000, 0, 0},
        {"Vol", "Mas", 60, 1, 1000, -2, 0},
        {"Mas", "Vol", 1, 1, 1e300, 1e-300, 0},  // more than a number can hold
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.BasisPrevious = each.Was;
        Calc.Basis = each.Is;
        Calc.UnitFactorPrevious[0] = each.Former;
        Calc.UnitFactor[0] = each.Factor;
        Calc.CaseInput[0][2] = each.Flow;
        Calc.CaseInput[5][2] = each.MolecularWeight;
        ConvertLineFlowGas(2);
        EXPECT_NEAR(Calc.CaseInput[0][2], each.Expected, each.Expected * 1e-6) << each.Flow;
        EXPECT_EQ(Calc.Scratch, each.Flow);
    }
}

TEST_F(ConversionTest, LiquidFlow) {
    const struct {
        const char *Was, *Is, *Mode;
        double Former, Factor, Flow, Row6, Expected;
    } cases[] = {
        {"Vol", "Vol", words::Gravity, 60, 3600 / 3.785412, 100, 0, 6.3090200},
        {"Vol", "Mas", words::Gravity, 60, 7936.641, 100, 0.8, 5.04261690},
        {"Mas", "Vol", words::Gravity, 7936.641, 60, 10, 0.8, 198.309731},
        {"Vol", "Mas", words::Density, 60, 1, 3, 49.93, 1201.53840},
    };
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.LiquidBasisPrevious = each.Was;
        Calc.LiquidBasis = each.Is;
        Calc.LiquidDensityMode = each.Mode;
        Calc.UnitFactorPrevious[1] = each.Former;
        Calc.UnitFactor[1] = each.Factor;
        Calc.CaseInput[1][1] = each.Flow;
        Calc.CaseInput[6] = {each.Row6, 9, 9};  // that of case 0 counts
        ConvertLineFlowLiquid(1);
        EXPECT_NEAR(Calc.CaseInput[1][1], each.Expected, each.Expected * 1e-7) << each.Flow;
        EXPECT_TRUE(User.Boxes.empty());
        EXPECT_TRUE(User.Prompts.empty());
    }
}

TEST_F(ConversionTest, AFlowWithoutGravityAsksUntilTheAnswerIsGood) {
    Calc.LiquidBasisPrevious = "Vol";
    Calc.CaseInput[1][1] = 1;
    Calc.CaseInput[6] = {-1, 0, 0};  // a negative one is no gravity either
    User.Inputs = {"", "water", "-2", "0.8 or so"};
    ConvertLineFlowLiquid(1);
    EXPECT_EQ(User.Prompts, std::vector<std::string>(4, "Need flow SG to convert"));
    ASSERT_EQ(User.Boxes.size(), 3U);
    EXPECT_EQ(User.Boxes[0].Text, "Density value must be greater than zero");
    EXPECT_EQ(User.Boxes[0].Title, "Convert Liquid Flow");
    EXPECT_EQ(Calc.CaseInput[6][1], 0.8) << "kept with the case that asked";
    EXPECT_EQ(Calc.CaseInput[6][0], -1);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[1][1], 0.8 * 8.3378);
}

TEST_F(ConversionTest, APromptedDensityIsInTheUnitOfRowFive) {
    Calc.LiquidDensityMode = words::Density;
    Calc.LiquidBasisPrevious = "Vol";
    Calc.UnitName[5] = "kg/m3";
    Calc.UnitFactor[5] = 0.062428;
    Calc.CaseInput[1][0] = 1;
    User.Inputs = {"800"};
    ConvertLineFlowLiquid(0);
    EXPECT_EQ(User.Prompts[0], "Need flow density to convert in kg/m3 units");
    EXPECT_EQ(Calc.CaseInput[6][0], 800);
    EXPECT_DOUBLE_EQ(Calc.FlowingSG, 0.8008);  // four figures of 0.800795
    EXPECT_DOUBLE_EQ(Calc.CaseInput[1][0], 0.8008 * 8.3378);
}

// Nobody there to answer: the loop ends by the host, not by the code.
TEST_F(ConversionTest, AFlowWithoutGravityNeverGoesOnUnanswered) {
    Calc.LiquidBasisPrevious = "Vol";
    Calc.CaseInput[1][0] = 1;
    EXPECT_THROW(ConvertLineFlowLiquid(0), std::logic_error);
    EXPECT_EQ(Calc.CaseInput[1][0], 1);
}

struct ViscosityCase {
    const char *From, *To;
    double Former, Factor;  // of row 7
    double Value, Expected;
};

void TakeViscosity(const ViscosityCase& each) {
    Calc = CalcRecord();
    Calc.ChosenUnitRowNames[3] = each.From;
    Calc.UnitName[7] = each.To;
    Calc.UnitFactorPrevious[7] = each.Former;
    Calc.UnitFactor[7] = each.Factor;
    Calc.CaseInput[7][1] = each.Value;
}

TEST_F(ConversionTest, LiquidViscosity) {
    const ViscosityCase cases[] = {
        {"cp", "cp", 1, 1, 1.23456, 1.235},
        {"cp", "Pa.s", 1, 1000, 250, 0.25},
        {"Pa.s", "cp", 1000, 1, 0.25, 250},
        {"mPa.s", "cs", 1, 1, 2, 2.5},
        {"cs", "cp", 1, 1, 2.5, 2},
        {"cs", "m2/s", 1, 1, 2.5, 2.5e-6},
        {"m2/s", "Pa.s", 1, 1000, 1e-6, 0.0008},
        {"m2/s", "m2/s", 1, 1, 3.5e-6, 3.5e-6},
        {"cp", "own", 1, 100, 250, 2.5},
        {"own", "cp", 100, 1, 2.5, 2.5},  // not multiplied
    };
    for (const ViscosityCase& each : cases) {
        TakeViscosity(each);
        Calc.FlowingSG = 0;  // what a calculation left behind does not count
        Calc.CaseInput[6] = {0.8, 9, 9};
        ConvertViscosityLiquid(1);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[7][1], each.Expected) << each.From << " to " << each.To;

        TakeViscosity(each);
        Calc.FlowingSG = 0.8;
        Calc.CaseInput[6] = {-0.8, 9, 9};
        ConvertViscosityLiquid(1);
        const bool kinematic = std::string(each.From).find("s") == 1 || std::string(each.To) == "cs" ||
                               std::string(each.From) == "m2/s" || std::string(each.To) == "m2/s";
        EXPECT_DOUBLE_EQ(Calc.CaseInput[7][1], kinematic ? 0 : each.Expected) << each.From << each.To;
    }
    TakeViscosity({"cp", "cs", 1, 1, 2, 0});
    Calc.LiquidDensityMode = words::Density;
    Calc.CaseInput[6][0] = 800;
    Calc.UnitFactor[6] = 0.062428;
    ConvertViscosityLiquid(1);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[7][1], 2.498);  // 2 / 0.800795
}

TEST_F(ConversionTest, GasViscosity) {
    const ViscosityCase cases[] = {
        {"cp", "cs", 1, 1, 0.018, 14.66},       {"cs", "cp", 1, 1, 14.66, 0.018},
        {"cp", "m2/s", 1, 1, 0.018, 1.466e-5},  {"m2/s", "Pa.s", 1, 1000, 1.466e-5, 1.8e-5},
        {"cp", "Pa.s", 1, 1000, 0.018, 1.8e-5}, {"own", "own", 3, 3, 0.03, 0.01},
    };
    for (const ViscosityCase& each : cases) {
        TakeViscosity(each);
        Calc.CaseInput[5][1] = 28.97;
        ConvertViscosityGas(1);
        EXPECT_NEAR(Calc.CaseInput[7][1], each.Expected, each.Expected * 1e-12) << each.From << each.To;
    }
    for (const double noWeight : {0.0, -28.97}) {
        TakeViscosity(cases[0]);
        Calc.CaseInput[5][1] = noWeight;
        ConvertViscosityGas(1);
        EXPECT_EQ(Calc.CaseInput[7][1], 0);
        TakeViscosity(cases[4]);
        Calc.CaseInput[5][1] = noWeight;
        ConvertViscosityGas(1);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[7][1], 1.8e-5) << "no weight needed";
    }
}

TEST_F(ConversionTest, StandardTemperature) {
    Calc.StdTemperature = 60;
    const struct {
        const char* Unit;
        double Expected;
    } cases[] = {{"degF", 60}, {"degC", 15.5556}, {"degR", 519.67}, {"degK", 519.67}, {"", 519.67}};
    for (const auto& each : cases) {
        Calc.UnitName[21] = each.Unit;
        Calc.CaseInput[21][0] = 519.67;
        ConvertStandardTemperature();
        EXPECT_DOUBLE_EQ(Calc.CaseInput[21][0], each.Expected) << each.Unit;
    }
}

}  // namespace
}  // namespace quillmetra
