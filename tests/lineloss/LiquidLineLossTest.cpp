// The liquid line against an independent program, and what it tells the user.
#include "lineloss/LiquidLineLoss.h"

#include <cmath>
#include <map>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/Friction.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "tests/ReferenceLines.h"

namespace quillmetra {
namespace {

class LiquidLineLossTest : public SuiteTest {
protected:
    // Water in a 4 in schedule 40 line.
    void TakeOrdinaryLine() {
        Calc = CalcRecord();
        Calc.CurrentProgram = 1;
        Calc.MassFlow = 50000;
        Calc.PipeId[1] = 4.026;
        Calc.PipeLength[1] = 350;
        Calc.Viscosity = 1;
        Calc.FlowingSG = 1;
        Calc.SourcePressure[1] = 114.7;
        Calc.BaroPressure = 14.7;
    }

    void Calculate() {
        CalcFriction();
        CalcFinalPressure();
    }
};

void TakeReferenceLine(const ReferenceLine& line) {
    Calc.CurrentProgram = 1;
    TakeCommonColumns(line);
    Calc.FlowingSG = line["sg"];
    Calc.BaroPressure = line["barometer"];
    Calc.TurbulentFactor = line["factor_before"];
    Calc.PressureDirection = static_cast<int>(line["direction"]);
    Calc.PressureMode = line["gauge"] == 1 ? words::Gauge : words::Absolute;
}

// One record for all lines: what a case leaves behind must not reach the next one.
TEST_F(LiquidLineLossTest, AgreesWithTheIndependentProgram) {
    Suite.HideFlowStatus = words::Yes;
    const auto lines = ReadReferenceLines("liquid_lines.txt");
    ASSERT_GT(lines.size(), 200U);
    std::map<std::string, int> seen;
    for (const ReferenceLine& line : lines) {
        std::string text;
        for (const auto& [name, value] : line.Fields) text.append(name).append("=").append(value).append(" ");
        SCOPED_TRACE(text);
        TakeReferenceLine(line);
        User.Boxes.clear();
        Calculate();
        ASSERT_NEAR(Calc.ReynoldsNumber / line["reynolds"], 1, 1e-14);
        ASSERT_NEAR(Calc.FrictionFactor / line["friction"], 1, 1e-12);
        ASSERT_EQ(Calc.TurbulentFactor, line["turbulent"]);
        ASSERT_EQ(Calc.FlowZone.empty() ? "-" : Calc.FlowZone, line.Fields.at("zone"));
        ASSERT_EQ(Calc.TransitionMark.empty() ? "-" : Calc.TransitionMark, line.Fields.at("mark"));
        const std::string regime = Calc.FlowZone == "Lam"        ? "laminar"
                                   : Calc.FlowZone == "Crit"     ? "critical"
                                   : Calc.TransitionMark.empty() ? "turbulent"
                                                                 : "transition";
        ASSERT_EQ(FlowRegimeOf(Calc.ReynoldsNumber, Calc.ReynoldsNumber, Calc.PipeId[1]), regime);
        ASSERT_NEAR(Calc.LossPer100 / line["loss100"], 1, 1e-12);
        ASSERT_NEAR(Calc.Velocity / line["velocity"], 1, 1e-14);
        ASSERT_NEAR(Calc.EquivLength, line["equivalent"], 1e-10 * std::fabs(line["equivalent"]));
        ASSERT_NEAR(Calc.FlowPressure, line["final"], 1e-9 * line["source"]);
        const double percent = line["percent"];
        const std::string expected =
            "Zero pressure reached @" + Str(percent) + " % of equiv line length\nFlow cannot be maintained";
        ASSERT_EQ(User.LastText(), percent < 0 ? "" : expected);
        ++seen[Calc.FlowZone + "/" + Calc.TransitionMark];
        ++seen[percent < 0 ? "delivers" : "runs dry"];
    }
    for (const char* kind : {"Lam/Trans", "Crit/Trans", "/Trans", "/", "delivers", "runs dry"}) {
        EXPECT_GT(seen[kind], 3) << kind;
    }
}

// The damped iteration stops within its tolerance of the root of the equation itself.
TEST_F(LiquidLineLossTest, TheFactorSolvesTheColebrookEquation) {
    for (const PipeMaterial& material : PipeMaterials) {
        for (const double diameter : {0.3, 0.622, 1.049, 2.067, 4.026, 10.02, 23.25, 47.0, 96.0}) {
            for (const double reynolds : {2000.1, 4e3, 1e4, 5e4, 2e5, 1e6, 1e7, 1e8, 1e9}) {
                const ColebrookResult result = SolveColebrook(reynolds, diameter, &material, 0);
                ASSERT_TRUE(result.Converged) << material.Name << diameter << " " << reynolds;
                double low = 1e-4, high = 1;
                for (int i = 0; i < 100; ++i) {
                    const double f = (low + high) / 2;
                    const double x =
                        material.Roughness / 3.7 / diameter + material.Constant / (reynolds * std::sqrt(f));
                    (1 / std::sqrt(f) > -0.8685999 * std::log(x) ? low : high) = f;
                }
                ASSERT_NEAR(result.Factor, low, 3e-6);
            }
        }
    }
}

TEST_F(LiquidLineLossTest, AMaterialNumberOutsideTheListKeepsTheLastTerm) {
    Suite.HideFlowStatus = words::Yes;
    TakeOrdinaryLine();
    Calculate();
    const double term = Calc.ColebrookTerm;
    for (const int number : {0, 8, -1, 1000000}) {
        Calc.PipeMaterialNumber = number;
        Calculate();
        EXPECT_EQ(Calc.ColebrookTerm, term);
        EXPECT_NEAR(1 / std::sqrt(Calc.FrictionFactor), -0.8685999 * std::log(term), 0.01);
    }
    // With no term at all there is no factor: told, and no result may be shown.
    TakeOrdinaryLine();
    Calc.PipeMaterialNumber = 8;
    Calc.Ells90 = 2;
    Calculate();
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.Boxes[0].Title, "Friction Factor Calculation");
    EXPECT_EQ(User.Boxes[0].Text, "Will not converge\nUse data with care");
    EXPECT_EQ(User.Boxes[0].Sign, Icon::Question);
    EXPECT_EQ(Calc.IterationCount, 101);
    EXPECT_THROW(LiquidLineResultsOf(Calc), RuntimeError);
    // The fault must not outlive its cause, in the lengths of fittings that are gone by now.
    Calc.PipeMaterialNumber = 1;
    Calc.Ells90 = 0;
    Calculate();
    EXPECT_NEAR(Calc.FlowPressure, 113.77187, 1e-5);
}

TEST_F(LiquidLineLossTest, TellsTheFlowZone) {
    const struct {
        double Flow, Diameter;
        int Case;
        const char *Text, *ZoneAfter, *MarkAfter;
    } cases[] = {
        {200, 1, 0, "Maximum flow is in the Laminar Zone \nUse data with care", "Trans", ""},
        {1500, 50, 1, "Normal flow is in the Laminar Zone \nUse data with care", "", ""},
        {300, 1, 1, "Normal flow is in the Critical Zone \nUse data with care", "Crit", ""},
        {50000, 4.026, 2, "Minimum flow in is in the Transition Zone  \nUse data with care", "", "Trans"},
        {5e6, 4.026, 7, "Minimum flow is in the Complete Turbulence Zone ", "", ""},
        {5e6, 48, 0, "Maximum flow is in the Complete Turbulence Zone ", "", ""},
    };
    for (const auto& each : cases) {
        TakeOrdinaryLine();
        Calc.Viscosity = 0.631;
        Calc.MassFlow = each.Flow;
        Calc.PipeId[1] = each.Diameter;
        Calc.CaseIndex = each.Case;
        User.Boxes.clear();
        CalcFriction();
        ASSERT_EQ(User.Boxes.size(), 1U);
        EXPECT_EQ(User.Boxes[0].Text, std::string(each.Text) + "\n\n\n(Press No to hide the message)");
        EXPECT_EQ(User.Boxes[0].Title, "Flow Status");
        EXPECT_EQ(User.Boxes[0].Choice, Buttons::YesNo);
        EXPECT_EQ(User.Boxes[0].Sign, Icon::Question);
        EXPECT_EQ(Calc.FlowZone, each.ZoneAfter);
        EXPECT_EQ(Calc.TransitionMark, each.MarkAfter);
    }
    EXPECT_EQ(Suite.HideFlowStatus, "");
}

TEST_F(LiquidLineLossTest, NoHidesTheMessageForTheRun) {
    TakeOrdinaryLine();
    Calc.StdPressure = 14.7;
    Calc.StdTemperature = 60;
    User.Answers = {Answer::No};
    CalcFriction();
    EXPECT_EQ(Suite.HideFlowStatus, "Yes");
    EXPECT_TRUE(std::filesystem::exists(DataFolder() / "TRSTP.TXT"));
    const double shown = Calc.EquivLength;
    CalcFriction();
    EXPECT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(Calc.EquivLength, shown) << "hiding changes no number";
}

TEST_F(LiquidLineLossTest, ResultsAsShown) {
    Suite.HideFlowStatus = words::Yes;
    TakeOrdinaryLine();
    Calc.Elevation = {0, 10, 0};
    Calculate();
    const LiquidLineResults english = LiquidLineResultsOf(Calc);
    EXPECT_DOUBLE_EQ(english.FinalPressure, 103.4);
    EXPECT_DOUBLE_EQ(english.Velocity, 2.517);
    EXPECT_DOUBLE_EQ(english.Reynolds, 78366);
    EXPECT_DOUBLE_EQ(english.EquivLength, 1283) << "of a line that gains by its fall, without its sign";
    EXPECT_DOUBLE_EQ(english.LossPer100, 0.2652);
}

// Source pressure from the destination's, and back again.
TEST_F(LiquidLineLossTest, TheTwoDirectionsAreInverse) {
    Suite.HideFlowStatus = words::Yes;
    TakeOrdinaryLine();
    Calc.Elevation = {0, 5, 60};
    Calc.EquipLoss[1] = 4;
    Calc.ExitK = 2.7;
    Calc.Ells90 = 6;
    Calculate();
    const double destination = Calc.FlowPressure;
    EXPECT_LT(destination, 114.7 - 4 - 23);
    Calc.PressureDirection = 2;
    Calc.SourcePressure[1] = destination;
    Calculate();
    EXPECT_NEAR(Calc.FlowPressure, 114.7, 1e-10);
    EXPECT_LT(Calc.EquivLength, 0);
    EXPECT_GT(LiquidLineResultsOf(Calc).LossPer100, 0);
    EXPECT_GT(LiquidLineResultsOf(Calc).EquivLength, 0);
}

TEST_F(LiquidLineLossTest, NothingIsDividedByNothing) {
    Suite.HideFlowStatus = words::Yes;
    // A length of exactly nothing has no loss to spread.
    TakeOrdinaryLine();
    Calculate();
    Calc.EquivLength = 0;
    EXPECT_EQ(LiquidLineResultsOf(Calc).LossPer100, 0);
    // No pressure and no difference: the percentage is 0, not a division of nothing by nothing.
    Calc.LossPer100 = 1;
    Calc.SourcePressure[1] = 0;
    CalcFinalPressure();
    EXPECT_EQ(User.LastText(), "Zero pressure reached @ 0 % of equiv line length\nFlow cannot be maintained");
    EXPECT_EQ(User.Boxes.back().Sign, Icon::Stop);
    EXPECT_EQ(User.Boxes.back().Title, "Line pressure loss calculation");
}

}  // namespace
}  // namespace quillmetra
