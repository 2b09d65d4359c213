// Gas properties against an independent program, published figures and identities, and the questions on the
// way.
#include "fluids/GasData.h"

#include <cmath>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasCorrelations.h"
#include "platform/NumberText.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

constexpr double Rankine = 459.67;
constexpr const char* Methane =
    "Methane,1,0.09848,-258.7,16.04,-116.7,60,0.01077,300,0.00784,667.1,0.5266,0.672,220,0,";
constexpr const char* Butane =
    "n-Butane,1,0.07026,31.1,58.122,305.6,60,0.007135,300,0.0049,550.6,0.3949,0.59,166,0,";

class GasDataTest : public SuiteTest {
protected:
    void Take(const std::string& row, double temperature, double pressure) {
        Calc.FluidOk = words::FluidPicked;
        Calc.FluidRow = row;
        Calc.FlowTemperature = temperature;
        Calc.FlowPressure = pressure;
        Calc.BaroPressure = 14.7;
        Calc.UnitName[3] = "psig";
        ParseGasRow();
    }
};

TEST_F(GasDataTest, AgreesWithTheIndependentProgram) {
    std::ifstream file(SourceFolder() / "tests/reference/gas_properties.txt");
    std::string line;
    int cases = 0;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#') continue;
        SCOPED_TRACE(line);
        std::istringstream fields(line);
        std::string row, field;
        std::getline(fields, row, ';');
        double v[12] = {};
        for (double& each : v) {
            std::getline(fields, field, ';');
            each = Val(field);
        }
        for (const int program : {2, 5}) {
            Calc.CurrentProgram = program;
            Take(row, v[0], v[1]);
            CalcGasProperties();
            EXPECT_EQ(static_cast<double>(Calc.CritCompressFactor), v[2]) << "in single precision";
            EXPECT_NEAR(Calc.ReducedBoilingTemperature / v[3], 1, 1e-14);
            ASSERT_TRUE(ProcessGasData());
            EXPECT_NEAR(Calc.FluidViscosity / v[4], 1, 1e-12);
            EXPECT_NEAR(Calc.GasSpecificHeat / v[5], 1, 1e-12);
            EXPECT_NEAR(Calc.RatioSpecificHeats / v[6], 1, 1e-12);
            EXPECT_NEAR(Calc.VaporPressure / v[7], 1, 1e-10);
            EXPECT_NEAR(Calc.CompressFactor / v[8], 1, 1e-10);
            EXPECT_NEAR(Calc.Density / v[9], 1, 1e-10);
            EXPECT_NEAR(Calc.LatentHeatAtFlow, program == 5 ? v[10] : 0, 1e-9);
            User.Boxes.clear();
        }
        ++cases;
    }
    EXPECT_GT(cases, 200);
}

// Air's compressibility factors as handbooks give them, within what the equation is good for.
TEST_F(GasDataTest, AirHasItsPublishedCompressibility) {
    const struct {
        double Kelvin, Bar, Factor;
    } published[] = {{300, 1, 0.9999},   {300, 20, 0.9950},  {300, 60, 0.9901}, {300, 100, 0.9930},
                     {300, 200, 1.0326}, {300, 300, 1.1089}, {200, 20, 0.9539}, {400, 100, 1.0229}};
    for (const auto& each : published) {
        const GasFactor factor =
            SolveRedlichKwong(238.9, 549.1, each.Kelvin * 1.8 - Rankine, each.Bar * 14.50377);
        EXPECT_TRUE(factor.Converged);
        EXPECT_NEAR(factor.Value, each.Factor, 0.035) << each.Kelvin << " K " << each.Bar << " bar";
    }
    // 0.0763 lb/ft3 at 60 degF and one atmosphere.
    const double factor = SolveRedlichKwong(238.9, 549.1, 60, 14.696).Value;
    EXPECT_NEAR(GasDensityOf(14.696, 60, 28.96, factor), 0.0763, 0.0001);
}

// The iteration's answer satisfies the equation in its usual form, P = RT/(V - b) - a/(sqrt(T) V (V + b)).
TEST_F(GasDataTest, TheFactorSolvesTheEquation) {
    int solved = 0;
    for (const double tr : {0.9, 1.02, 1.3, 2.0, 5.0}) {
        for (const double pr : {1e-6, 0.01, 0.3, 1.0, 4.0, 20.0}) {
            const double tc = 600, pc = 500, t = tr * tc, p = pr * pc;
            const GasFactor factor = SolveRedlichKwong(tc, pc, t - Rankine, p);
            if (!factor.Converged) continue;
            ++solved;
            const double r = 10.7316, v = factor.Value * r * t / p;
            const double a = 0.42748 * r * r * std::pow(tc, 2.5) / pc, b = 0.08664 * r * tc / pc;
            EXPECT_NEAR((r * t / (v - b) - a / (std::sqrt(t) * v * (v + b))) / p, 1, 2e-4) << tr << " " << pr;
        }
    }
    EXPECT_GE(solved, 28);
    // A gas so thin that the first step is none ends at once.
    EXPECT_EQ(SolveRedlichKwong(600, 500, 100, 1e-6).Rounds, 0);
    // Constants without sense end by count: no loop hangs on a number that is none.
    EXPECT_FALSE(SolveRedlichKwong(600, 0, -Rankine, 0).Converged);
    EXPECT_EQ(SolveRedlichKwong(std::nan(""), 500, 100, 100).Rounds, 51);
}

// Between its phases the iteration jumps to and fro; the last value stands, and the user is told once.
TEST_F(GasDataTest, TellsWhenItDoesNotConverge) {
    Calc.MolecularWeight = 60;
    Calc.CritTemperature = 700;
    Calc.CritPressure = 500;
    Calc.FlowTemperature = 0.75 * 700 - Rankine;
    Calc.FlowPressure = 0.38 * 500;
    CalcCompressibility();
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.Boxes[0].Title, "Compressibility Factor Calculation");
    EXPECT_EQ(User.Boxes[0].Text, "Will not converge\nUse data with care");
    EXPECT_EQ(User.Boxes[0].Sign, Icon::Question);
    EXPECT_EQ(User.Boxes[0].Choice, Buttons::Ok);
    EXPECT_EQ(Calc.IterationCount, 51);
    EXPECT_GT(Calc.Density, 0);

    Calc.FluidOk.clear();  // a mixture
    User.Boxes.clear();
    EXPECT_TRUE(ProcessGasData());
    EXPECT_EQ(User.Boxes.size(), 1U);
}

TEST_F(GasDataTest, BordersOfTheRules) {
    const struct {
        double Reduced, Expected;
    } reduced[] = {{0.98, 0.98},   {0.99, 0.99}, {0.990001, 1.01}, {1, 1.01},
                   {1.0099, 1.01}, {1.01, 1.01}, {1.02, 1.02}};
    for (const auto& each : reduced) EXPECT_EQ(EasedReducedTemperature(each.Reduced), each.Expected);

    // Only an organic gas above 0.9 of its critical pressure is dense.
    const std::string other = std::string("Other,2").append(std::string(Methane).substr(9));
    const auto viscosity = [this](const std::string& row, double reducedPressure) {
        Take(row, 100, 667.1 * reducedPressure);
        Calc.FlowPressure = Calc.CritPressure * reducedPressure;
        CalcGasProperties();
        return Calc.FluidViscosity;
    };
    const double thin = viscosity(Methane, 0.5);
    EXPECT_EQ(viscosity(Methane, 0.9), thin);
    EXPECT_NE(viscosity(Methane, 0.9000001), thin);
    EXPECT_EQ(viscosity(other, 5), thin);
    // The factor is held at 5, and stays what working storage it passes through.
    Take(Methane, -116.7 + 460 - Rankine, 667.1 * 100);
    CalcGasProperties();
    EXPECT_EQ(Calc.ReducedBoilingTemperature, 1.01);
    EXPECT_EQ(Calc.CompressFactor, 5);

    // Watson's rule gives the known heat back, falls to nothing at the critical temperature and stays there.
    EXPECT_DOUBLE_EQ(WatsonLatentHeat(31.1, 166, 765.6, 31.1), 166);
    EXPECT_NEAR(WatsonLatentHeat(31.1, 166, 765.6, 305.5999), 0, 1);
    EXPECT_EQ(WatsonLatentHeat(31.1, 166, 765.6, 305.6), 0);
    EXPECT_EQ(WatsonLatentHeat(31.1, 166, 765.6, 400), 0);
    // Propane: published 183 Btu/lb at its boiling point, 144 at 80 degF.
    EXPECT_NEAR(WatsonLatentHeat(-43.8, 183, 206.1 + 460, 80), 144, 4);
}

// At the critical temperature itself one program asks and the other does not.
TEST_F(GasDataTest, TheTwoProgramsPartAtTheCriticalTemperature) {
    for (const int program : {2, 5}) {
        Calc.CurrentProgram = program;
        Take(Butane, 305.6, 5000);
        Calc.CritTemperature = Calc.FlowTemperature + Rankine;
        User.Boxes.clear();
        EXPECT_TRUE(ProcessGasData());
        EXPECT_EQ(User.Boxes.size(), program == 5 ? 1U : 0U);
    }
}

TEST_F(GasDataTest, EveryShippedGasIsAccepted) {
    for (const std::string& row : ReadFluidRows(words::Gas)) {
        SCOPED_TRACE(row);
        for (const int program : {2, 5}) {
            for (const double temperature : {-20.0, 60.0, 300.0, 600.0}) {
                Calc.CurrentProgram = program;
                Take(row, temperature, 1);
                User.Boxes.clear();
                EXPECT_TRUE(ProcessGasData());
                EXPECT_NEAR(Calc.CompressFactor, 1, 0.05);
                EXPECT_GT(Calc.RatioSpecificHeats, 1);
                EXPECT_LT(Calc.RatioSpecificHeats, 1.7);
            }
        }
    }
}

// A user's own row may hold anything: the pick is refused with a message, and no number that is none stays.
TEST_F(GasDataTest, ARowWithoutSenseIsRefused) {
    const struct {
        const char* Row;
        double Temperature;
        double Pressure = 100;
    } cases[] = {
        {"", 60},
        {"Four,1,0.09,-258", 60},
        {"Text,one,two,three,four,five,six,seven,eight,nine,ten", 60},
        {"NoViscosity,2,0.09,-258,16,-116,60,0,300,0.007,667,0.5,0.6,220,", 60},
        {"Negative,2,0.09,-258,16,-116,60,0.01,300,-0.007,667,0.5,0.6,220,", 60},
        {"SameTemperatures,2,0.09,-258,16,-116,60,0.01,60,0.007,667,0.5,0.6,220,", 60},
        {"BelowZero,2,0.09,-258,16,-116,-500,0.01,300,0.007,667,0.5,0.6,220,", 60},
        {"NoPressure,2,0.09,-258,16,-116,60,0.01,300,0.007,0,0.5,0.6,220,", 60},
        {"NegativePressure,2,0.09,-258,16,-116,60,0.01,300,0.007,-667,0.5,0.6,220,", 60},
        {"NoCritical,2,0.09,-258,16,-460,60,0.01,300,0.007,667,0.5,0.6,220,", 60},
        {"BoilsAtCritical,2,0.09,-115.67,16,-116,60,0.01,300,0.007,667,0.5,0.6,220,", 60},
        {"Huge,2,1e300,-258,1e300,1e300,60,0.01,300,0.007,1e300,1e300,0.6,220,", 60},
        {"HeatOfNothing,2,0.09,-258,1,-116,60,0.01,300,0.007,667,1.986,1.986,220,", 60},
        {Methane, -Rankine},
        {Methane, -1000},
        {Methane, 60, 0},
        {Methane, std::nan("")},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Row);
        for (const int program : {2, 5}) {
            Calc = CalcRecord();
            Calc.CurrentProgram = program;
            Take(each.Row, each.Temperature, each.Pressure);
            User.Boxes.clear();
            if (ProcessGasData()) {
                // Without pressure there is no density, which is a number all the same.
                EXPECT_EQ(each.Pressure, 0);
                EXPECT_EQ(Calc.Density, 0);
                continue;
            }
            ASSERT_FALSE(User.Boxes.empty());
            EXPECT_EQ(User.Boxes.back().Title, "Gas Calculation");
            EXPECT_EQ(User.LastText(), "Fluid properties cannot be calculated");
            EXPECT_EQ(Calc.FluidViscosity, 0);
            EXPECT_EQ(Calc.Density, 0);
            EXPECT_EQ(Calc.RatioSpecificHeats, 0);
        }
    }
}

}  // namespace
}  // namespace quillmetra
