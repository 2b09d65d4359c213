// Mixtures against an independent program and by identities, and how their components are kept.
#include "fluids/Mixtures.h"

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "platform/NumberText.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class MixturesTest : public SuiteTest {
protected:
    std::string RowOf(const char* type, const std::string& name) {
        const auto rows = ReadFluidRows(type);
        const int index = FindFluidName(rows, name);
        return index < 0 ? "" : rows[static_cast<std::size_t>(index)];
    }

    void Start(int program, double temperature = 100, double pressure = 200) {
        Calc = CalcRecord();
        User.Boxes.clear();
        Calc.CurrentProgram = program;
        Calc.FluidOk.clear();
        Calc.FlowTemperature = temperature;
        Calc.FlowPressure = pressure;
        Calc.BaroPressure = 14.7;
    }

    void Add(const std::string& row, double percent) {
        Calc.FluidPercent[static_cast<std::size_t>(AddComponent(row))] = percent;
    }

    void AddLiquid(const char* name, double percent) { Add(RowOf(words::Liquid, name), percent); }
};

TEST_F(MixturesTest, GasesAgreeWithTheIndependentProgram) {
    std::ifstream file(SourceFolder() / "tests/reference/gas_mixtures.txt");
    std::string line;
    int cases = 0;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#') continue;
        SCOPED_TRACE(line);
        std::istringstream fields(line);
        std::string field, row;
        double v[14] = {};
        for (double& each : v) {
            std::getline(fields, field, ';');
            each = Val(field);
        }
        const bool forLine = v[0] == 1;
        Start(forLine ? 2 : 5, v[1], v[2]);
        Calc.EnteredPressure = v[3];
        Calc.CaseIndex = 1;
        Calc.UnitFactor[16] = 0.43;
        while (std::getline(fields, field, ';') && std::getline(fields, row, ';')) Add(row, Val(field));

        ASSERT_TRUE(forLine ? CalcGasMixtureForLine() : CalcGasMixtureForData());
        EXPECT_NEAR(Calc.MolecularWeight / v[4], 1, 1e-12);
        EXPECT_NEAR(Calc.FluidViscosity / v[5], 1, 1e-12);
        EXPECT_NEAR(Calc.CritTemperature / v[6], 1, 1e-12);
        EXPECT_NEAR(Calc.RatioSpecificHeats / v[7], 1, 1e-12);
        EXPECT_NEAR(Calc.CritPressure / v[8], 1, 1e-12);
        EXPECT_NEAR(Calc.LatentHeatBP / v[9], 1, 1e-12);
        ASSERT_TRUE(ProcessGasData());
        EXPECT_NEAR(Calc.CompressFactor / v[10], 1, 1e-10);
        EXPECT_NEAR(Calc.Density / v[11], 1, 1e-10);
        EXPECT_EQ(Calc.MixtureFlag, words::Yes);
        if (forLine) {
            EXPECT_TRUE(User.Boxes.empty());
        } else {
            EXPECT_NEAR(Calc.NormalBoilingPoint, v[12], 1e-9);
            EXPECT_EQ(Calc.LatentHeatAtPressure, v[13]);
            EXPECT_NEAR(Calc.CaseInput[13][1] * 0.43, v[13], 0.5 + 0.43 / 2) << "both whole";
            ASSERT_EQ(User.Boxes.size(), 1U);
            EXPECT_EQ(User.Boxes[0].Title, "Gas Mixture Properties");
            EXPECT_EQ(User.Boxes[0].Sign, Icon::Question);
            EXPECT_EQ(
                User.Boxes[0].Text,
                "Use mixture calculated values with caution -\nParticularly\nLatent heat of vaporization "
                "and\nVapor Pressure\nActual values may differ considerably");
        }
        ++cases;
    }
    EXPECT_GE(cases, 30);
}

// A mixture of one component is that component, by either rule of a liquid or a gas.
TEST_F(MixturesTest, OneComponentIsItself) {
    for (const int program : {1, 3, 4}) {
        Start(program);
        Calc.FluidRow = RowOf(words::Liquid, "Toluene");
        ParseLiquidRow();
        const CalcRecord pure = Calc;
        Start(program);
        AddLiquid("Toluene", 100);
        ASSERT_TRUE(CalcLiquidMixture());
        EXPECT_NEAR(Calc.FluidViscosity, pure.FluidViscosity, 1e-12);
        EXPECT_EQ(Calc.SGAtStandard, pure.SGAtStandard);
        EXPECT_EQ(Calc.CritTemperature, pure.CritTemperature);
        EXPECT_EQ(Calc.BulkModulusBase, pure.BulkModulusBase);
        EXPECT_EQ(Calc.FluidClass, pure.FluidClass);
        EXPECT_TRUE(ProcessLiquidData());
    }
}

TEST_F(MixturesTest, TheLiquidRule) {
    Start(1);
    Add("Thin,1,50,0.6,400,60,0.2,160,0.1,600,100,0.5,0.6,0,100,10,150,", 25);
    Add("Thick,2,150,1.0,800,60,20,160,5,400,400,0.5,0.6,0,300,20,150,", 75);
    Calc.FlowTemperature = 60;
    ASSERT_TRUE(CalcLiquidMixture());
    EXPECT_DOUBLE_EQ(Calc.MolecularWeight, 125);
    EXPECT_DOUBLE_EQ(Calc.SGAtStandard, 0.9);
    EXPECT_NEAR(Calc.FluidViscosity, std::pow(0.2, 0.25) * std::pow(20, 0.75), 1e-12);
    EXPECT_DOUBLE_EQ(Calc.CritTemperature, 0.25 * 860 + 0.75 * 1260);
    EXPECT_DOUBLE_EQ(Calc.CritPressure, 450);
    EXPECT_DOUBLE_EQ(Calc.BulkModulusBase, 250);
    EXPECT_DOUBLE_EQ(Calc.BulkModulusSlope, 17.5);
    EXPECT_EQ(Calc.NormalBoilingPoint, 400) << "of the last component";
    EXPECT_EQ(Val(Calc.FluidClass), 2);

    // Water's class counts only where there is nothing else; a component without a modulus takes it from all.
    const char* water = "Water,3,18.015,1,705.1,60,1.12,200,0.303,3200,212,1,1.03,0,0,5.9,970,";
    Add(water, 0.5);
    Calc.FluidPercent[0] = 24.5;
    Calc.MixtureFlag.clear();
    ASSERT_TRUE(CalcLiquidMixture());
    EXPECT_EQ(Val(Calc.FluidClass), 2);
    EXPECT_EQ(Calc.BulkModulusBase, 0);
    EXPECT_EQ(Calc.BulkModulusSlope, 0);
    Start(1);
    Add(water, 40);
    Add(water, 60);
    ASSERT_TRUE(CalcLiquidMixture());
    EXPECT_EQ(Val(Calc.FluidClass), 3);
}

TEST_F(MixturesTest, PercentagesMustAddUp) {
    bool (*const rules[])() = {CalcLiquidMixture, CalcGasMixtureForLine, CalcGasMixtureForData};
    for (const auto rule : rules) {
        Start(rule == CalcLiquidMixture ? 1 : rule == CalcGasMixtureForLine ? 2 : 5);
        const char* type = Calc.CurrentProgram == 1 ? words::Liquid : words::Gas;
        Add(RowOf(type, "Acetone"), 60);
        Add(RowOf(type, "Benzene"), 39.9);
        const CalcRecord before = Calc;
        EXPECT_FALSE(rule());
        ASSERT_EQ(User.Boxes.size(), 1U);
        EXPECT_EQ(User.Boxes[0].Title, "Mixture Calculation");
        EXPECT_EQ(User.Boxes[0].Text, "Sum of percentages must equal 100");
        EXPECT_EQ(User.Boxes[0].Sign, Calc.CurrentProgram == 5 ? Icon::Stop : Icon::None);
        EXPECT_EQ(Calc.FluidData, before.FluidData);
        EXPECT_EQ(Calc.MixtureFlag, "");
        EXPECT_EQ(Calc.MolecularWeight, 0);
        // A mixture already calculated passes with any remainder.
        Calc.MixtureFlag = words::Yes;
        EXPECT_TRUE(rule());
        EXPECT_GT(Calc.MolecularWeight, 58);
    }
}

TEST_F(MixturesTest, RemainingPercent) {
    const std::vector<double> thirds = {33.3, 33.3, 33.4}, tenths(10, 10.0), seventh(7, 100.0 / 7);
    for (const auto& percents : {thirds, tenths, seventh}) EXPECT_EQ(RemainingPercent(percents), 0);
    EXPECT_EQ(RemainingPercent({}), 100);
    EXPECT_NEAR(RemainingPercent(std::vector<double>{0.1, 0.2}), 99.7, 1e-12);
    EXPECT_NEAR(RemainingPercent(std::vector<double>{99.9998}), 0.0002, 1e-12)
        << "beyond a 32-bit whole number";
    EXPECT_EQ(RemainingPercent(std::vector<double>{150}), -50);
    for (const double huge : {1e16, 1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(RemainingPercent(std::vector<double>{huge, huge}), -1e15);
        EXPECT_EQ(RemainingPercent(std::vector<double>{-huge}), 1e15);
    }
}

TEST_F(MixturesTest, SixteenComponentsAtMost) {
    const struct {
        int Program;
        const char* Text;
    } cases[] = {{1, "Maximum number is 16"}, {3, "Maximum number is 16"}, {4, "Maximum number is 17"}};
    for (const auto& each : cases) {
        Start(each.Program);
        for (int i = 0; i < 15; ++i) {
            EXPECT_EQ(AddComponent(RowOf(words::Liquid, "Toluene")), i);
            Calc.FluidPercent[static_cast<std::size_t>(i)] = 6;
        }
        EXPECT_TRUE(User.Boxes.empty());
        EXPECT_EQ(ComponentCount(), 15);
        // The sixteenth counts; a later one takes its place. Both are told.
        AddLiquid("Benzene", 10);
        EXPECT_EQ(AddComponent(RowOf(words::Liquid, "Acetone")), 15);
        ASSERT_EQ(User.Boxes.size(), 2U);
        EXPECT_EQ(User.LastText(), each.Text);
        EXPECT_EQ(User.Boxes[0].Title, "Mixture components");
        EXPECT_EQ(Calc.MixtureCount, 15);
        EXPECT_EQ(ComponentCount(), 16);
        ASSERT_TRUE(CalcLiquidMixture());
        EXPECT_NEAR(Calc.MolecularWeight, 0.9 * 92.138 + 0.1 * 58.08, 0.01);
        EXPECT_EQ(ComponentCount(), 16);
        EXPECT_EQ(Calc.FluidPercent[15], 10);
    }
}

TEST_F(MixturesTest, ComponentsWithoutAPercentageAreDropped) {
    const auto mix = [this](int program) {
        Start(program);
        Calc.FluidRow = "left from before";
        AddLiquid("Acetone", 0);
        AddLiquid("Benzene", 30);
        AddLiquid("Cyclohexane", 0);
        AddLiquid("Toluene", 70);
        return CalcLiquidMixture();
    };
    for (const int program : {1, 4}) {
        ASSERT_TRUE(mix(program));
        EXPECT_EQ(Calc.MixtureCount, 2);
        EXPECT_EQ(FluidRowName(Calc.FluidData[0]), "Benzene");
        EXPECT_EQ(FluidRowName(Calc.FluidData[1]), "Toluene");
        EXPECT_EQ(Calc.FluidPercent[1], 70);
        EXPECT_EQ(Calc.FluidData[2], "");
        EXPECT_EQ(Calc.FluidPercent[3], 0);
        // Calculated again it is the same mixture.
        const double weight = Calc.MolecularWeight;
        ASSERT_TRUE(CalcLiquidMixture());
        EXPECT_EQ(Calc.MolecularWeight, weight);
    }
    ASSERT_TRUE(mix(3));
    EXPECT_EQ(Calc.MixtureCount, 4);
    EXPECT_EQ(FluidRowName(Calc.FluidData[0]), "Acetone") << "its own row: there is none before it";
    EXPECT_EQ(FluidRowName(Calc.FluidData[2]), "Benzene") << "the row of the component before";
    EXPECT_EQ(Calc.FluidPercent[2], 0);
    EXPECT_EQ(FluidRowName(Calc.FluidData[3]), "Toluene");
}

// Lube oil boils far above the critical temperature of this mixture: as the last component it gave -355.3.
TEST_F(MixturesTest, GravityDoesNotGoByAComponentThatBoilsAboveTheCriticalTemperature) {
    for (const int program : {1, 3, 4}) {
        for (const bool oilLast : {true, false}) {
            Start(program, 200, 114.7);
            AddLiquid(oilLast ? "Methanol" : "Lube Oil ISO VG 46", oilLast ? 80 : 20);
            AddLiquid(oilLast ? "Lube Oil ISO VG 46" : "Methanol", oilLast ? 20 : 80);
            ASSERT_TRUE(CalcLiquidMixture() && ProcessLiquidData());
            EXPECT_NEAR(Calc.FlowingSG, 0.6647, 0.0001);
        }
    }
}

// A row of the user's own, or a record from a foreign hand: told, and nothing is stored.
TEST_F(MixturesTest, ComponentsWithoutSenseAreRefused) {
    const struct {
        const char* Row;
        std::vector<int> Programs;
    } cases[] = {
        {"", {1, 2, 5}},
        {"Five,1,2,3,4", {1, 2, 5}},
        {"No weight,2,0.09,-258,0,-116,60,0.01,300,0.007,667,0.5,0.6,220,", {2, 5}},
        {"Negative,2,0.09,-258,-16,-116,60,-0.01,300,0.007,667,0.5,0.6,220,", {2, 5}},
        {"Same temperatures,1,101,0.8,700,61,2.5,61,1.25,450,300,0.5,0.7,0,200,11,145,", {1}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Row);
        for (const int program : each.Programs) {
            Start(program);
            Add(each.Row, 100);
            const bool calculated = program == 1   ? CalcLiquidMixture()
                                    : program == 2 ? CalcGasMixtureForLine()
                                                   : CalcGasMixtureForData();
            EXPECT_FALSE(calculated);
            ASSERT_EQ(User.Boxes.size(), 1U);
            EXPECT_EQ(User.LastText(), "Fluid properties cannot be calculated");
            EXPECT_EQ(User.Boxes[0].Title, program == 1 ? "Liquid Calculation" : "Gas Calculation");
            EXPECT_EQ(Calc.MixtureFlag, "");
            EXPECT_EQ(Calc.CaseInput[13][0], 0);
            EXPECT_EQ(Calc.FluidData[0], each.Row);
        }
    }
    for (const int count : {-5, 0, 1000000}) {
        Start(2);
        Calc.MixtureCount = count;
        Calc.MixtureFlag = words::Yes;
        EXPECT_FALSE(CalcGasMixtureForLine());
        EXPECT_EQ(User.LastText(), "Sum of percentages must equal 100");
    }
    // One atmosphere as critical pressure has no vapor pressure line: no heat, and no number that is none.
    Start(5);
    Calc.NormalBoilingPoint = -100;
    Calc.CritTemperature = 500;
    Calc.LatentHeatBP = 200;
    for (const double pressure : {14.7, 5.0, 0.0, -3.0}) {
        Calc.CritPressure = pressure;
        CalcMixtureLatentHeat();
        EXPECT_EQ(Calc.LatentHeatAtPressure, 0);
        EXPECT_EQ(Calc.CaseInput[13][0], 0);
    }
}

}  // namespace
}  // namespace quillmetra
