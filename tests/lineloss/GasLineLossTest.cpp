// The gas line against an independent program, and where and how its march stops.
#include "lineloss/GasLineLoss.h"

#include <cmath>
#include <limits>
#include <map>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "lineloss/ChokedFlow.h"
#include "lineloss/Friction.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "tests/ReferenceLines.h"

namespace quillmetra {
namespace {

constexpr const char* LimitText = "Increase line size, or\nIncrease pressure, or\nDecrease flow rate";
constexpr const char* Title = "Line pressure loss calculation";

class GasLineLossTest : public SuiteTest {
protected:
    GasLineLossTest() { Suite.HideFlowStatus = words::Yes; }

    // Methane in a 4 in schedule 40 line.
    void TakeOrdinaryLine() {
        Calc = CalcRecord();
        User.Boxes.clear();
        Calc.CurrentProgram = 2;
        Calc.MassFlow = 5000;
        Calc.CaseInput[0][0] = 5000;
        Calc.PipeId[1] = 4.026;
        Calc.PipeLength[1] = 300;
        Calc.Viscosity = 0.0111;
        Calc.MolecularWeight = 16.04;
        Calc.RatioSpecificHeats = 1.3;
        Calc.CritPressure = 667.1;
        Calc.CritTemperature = 343.3;
        Calc.FlowTemperature = 80;
        Calc.SourcePressure[1] = 114.7;
        Calc.BaroPressure = 14.7;
        Calc.UnitName[0] = "lb/h";
    }

    bool Calculate(const GasLineObserver& observer = {}) {
        CalcGasFriction();
        return CalcGasProfile(observer);
    }
};

void TakeReferenceLine(const ReferenceLine& line) {
    Calc.CurrentProgram = 2;
    TakeCommonColumns(line);
    Calc.MolecularWeight = line["mw"];
    Calc.RatioSpecificHeats = line["ratio"];
    Calc.CritPressure = line["pc"];
    Calc.CritTemperature = line["tc"];
    Calc.FlowTemperature = line["temperature"];
    Calc.PressureDirection = static_cast<int>(line["direction"]);
    Calc.CaseIndex = 2;
    Calc.CaseInput[0][2] = line["flow_shown"];
    Calc.UnitName[0] = "kg/s";
}

std::string ExpectedMessage(const std::string& stop, double told) {
    if (stop == "inlet") {
        return "Sonic velocity exists, flow is limited to\n" + Str(told) + " kg/s\n" + LimitText;
    }
    const std::string percent = Str(told) + " % of equiv line length\n";
    if (stop == "zero") return "Zero pressure reached @" + percent + "Flow cannot be maintained" + LimitText;
    if (stop == "sonic") return "Sonic velocity reached @" + percent;
    return "";
}

// One record for all lines: what a case leaves behind must not reach the next one.
TEST_F(GasLineLossTest, AgreesWithTheIndependentProgram) {
    const auto lines = ReadReferenceLines("gas_lines.txt");
    ASSERT_GT(lines.size(), 150U);
    std::map<std::string, int> seen;
    for (const ReferenceLine& line : lines) {
        std::string text;
        for (const auto& [name, value] : line.Fields) text.append(name).append("=").append(value).append(" ");
        SCOPED_TRACE(text);
        TakeReferenceLine(line);
        User.Boxes.clear();
        ASSERT_TRUE(Calculate());
        ASSERT_NEAR(Calc.ReynoldsNumber / line["reynolds"], 1, 1e-14)
            << "by the liquid's constant in the end";
        ASSERT_NEAR(Calc.FrictionFactor / line["friction"], 1, 1e-12);
        ASSERT_NEAR(Calc.FittingsEquivLength / line["fittings"], 1, 1e-12);
        ASSERT_NEAR(Calc.LossPer100 / line["loss100"], 1, 1e-8);
        ASSERT_NEAR(Calc.EquivLength, line["equivalent"], 1e-8 * std::fabs(line["equivalent"]));
        ASSERT_NEAR(Calc.FlowPressure, line["final"], 1e-8 * line["source"]);
        ASSERT_NEAR(Calc.Velocity / line["velocity"], 1, 1e-8);
        ASSERT_NEAR(Calc.SonicVelocity / line["sonic"], 1, 1e-8);
        ASSERT_NEAR(Calc.Density / line["density"], 1, 1e-8);
        const std::string& stop = line.Fields.at("stop");
        ASSERT_EQ(User.LastText(), ExpectedMessage(stop, line["told"]));
        ASSERT_EQ(User.Boxes.size(), stop == "none" ? 0U : 1U);
        if (stop != "none") {
            EXPECT_EQ(User.Boxes[0].Title, Title);
            EXPECT_EQ(User.Boxes[0].Sign, Icon::Stop);
        }
        EXPECT_EQ(Calc.InCalculation, "No");
        EXPECT_EQ(GasLineResultsOf(Calc).IsSonic, stop == "inlet" || stop == "sonic");
        ++seen[stop];
    }
    for (const char* stop : {"inlet", "zero", "sonic"}) EXPECT_GE(seen[stop], 3) << stop;
}

// A short isothermal line agrees with what textbooks give for it: P1^2 - P2^2 = f L/D (W/A)^2 P1 / (g rho1).
TEST_F(GasLineLossTest, MeetsTheIsothermalFormula) {
    TakeOrdinaryLine();
    Calc.PipeLength[1] = 2000;
    Calc.MassFlow = 8000;
    Calc.CritPressure = 1e9;  // an ideal gas
    ASSERT_TRUE(Calculate());
    const double density = 114.7 / 539.67 * 16.04 / 10.7316;
    const double feet = 4.026 / 12, area = feet * feet * 3.14159265 / 4;
    const double flux = 8000 / 3600.0 / area;
    const double loss = Calc.FrictionFactor * 2000 / feet * flux * flux / 32.174 / density / 144;
    EXPECT_NEAR(Calc.FlowPressure, std::sqrt(114.7 * 114.7 - 114.7 * loss), 0.02);
    EXPECT_LT(Calc.FlowPressure, 95);
    // Methane's speed of sound at 80 degF, some 1480 ft/s.
    EXPECT_NEAR(Calc.SonicVelocity, 1475, 25);
}

// Air from 114.7 psia in 4 in pipe: its adiabatic choked flow, worked by another program, and what the march
// shows at the outlet when that passes.
TEST_F(GasLineLossTest, TellsTheChokedFlow) {
    const struct {
        double Length, Flow, Mach;  // ft, lb/h
    } lines[] = {{5, 144982, 0.74},  {10, 127592, 0.69}, {20, 108726, 0.63},  {50, 83443, 0.57},
                 {100, 65647, 0.52}, {200, 50093, 0.48}, {1000, 24510, 0.41}, {10000, 7909, 0.36}};
    for (const auto& each : lines) {
        SCOPED_TRACE(each.Length);
        TakeOrdinaryLine();
        Calc.MolecularWeight = 28.96;
        Calc.RatioSpecificHeats = 1.4;
        Calc.CritPressure = 546;
        Calc.CritTemperature = 238.8;
        Calc.FlowTemperature = 60;
        Calc.Viscosity = 0.018;
        Calc.PipeLength[1] = each.Length;
        Calc.MassFlow = Calc.CaseInput[0][0] = each.Flow;
        ASSERT_TRUE(Calculate());
        const double most = ChokedFlowOf(Calc);
        EXPECT_NEAR(most / each.Flow, 1, 0.002);
        EXPECT_NEAR(OutletMach(Calc), each.Mach, 0.006);
        const double length = Calc.FrictionFactor * each.Length * 12 / Calc.PipeId[1];
        EXPECT_NEAR(ShownMachOfChoking(length), each.Mach, 0.005);
        EXPECT_EQ(ChokedFlowHints(Calc).size(), 1U);

        // The same line from its outlet, as far as the march finds back to the source.
        const double source = Calc.SourcePressure[1], mach = OutletMach(Calc);
        Calc.SourcePressure[1] = Calc.FlowPressure;
        Calc.PressureDirection = 2;
        ASSERT_TRUE(Calculate());
        EXPECT_NEAR(Calc.FlowPressure / source, 1, 0.05);
        EXPECT_NEAR(OutletMach(Calc) / mach, 1, 0.01);

        // A tenth of it is silent, and twice as much cannot pass, wherever the march stops.
        Calc.PressureDirection = 1;
        Calc.SourcePressure[1] = source;
        Calc.MassFlow = each.Flow / 10;
        ASSERT_TRUE(Calculate());
        EXPECT_TRUE(ChokedFlowHints(Calc).empty());
        Calc.MassFlow = each.Flow * 2;
        ASSERT_TRUE(Calculate());
        const HintList hints = ChokedFlowHints(Calc);
        ASSERT_EQ(hints.size(), 1U);
        EXPECT_NE(hints[0].Text.find("cannot pass this flow"), std::string::npos) << hints[0].Text;
    }
}

TEST_F(GasLineLossTest, AnObserverSeesTheLineAndChangesNothing) {
    const struct {
        double Length;
        std::size_t Steps;
    } cases[] = {{0.01, 20}, {20, 20}, {20.5, 20}, {20.99, 20}, {21, 21}, {300.7, 300}};
    for (const auto& each : cases) {
        TakeOrdinaryLine();
        Calc.PipeLength[1] = each.Length;
        ASSERT_TRUE(Calculate());
        const CalcRecord alone = Calc;
        std::vector<GasStation> stations;
        ASSERT_TRUE(Calculate([&stations](const GasStation& station) {
            EXPECT_EQ(Calc.InCalculation, station.Part == 0 ? "No" : "Yes");
            stations.push_back(station);
        }));
        ASSERT_EQ(stations.size(), each.Steps + 1) << each.Length;
        EXPECT_EQ(stations.front().Part, 0);
        EXPECT_EQ(stations.front().Pressure, 114.7);
        EXPECT_EQ(stations.back().Part, 1);
        EXPECT_EQ(stations.back().Pressure, Calc.FlowPressure);
        EXPECT_EQ(stations.back().SonicVelocity, Calc.SonicVelocity);
        for (std::size_t i = 1; i < stations.size(); ++i) {
            EXPECT_LT(stations[i].Pressure, stations[i - 1].Pressure);
            EXPECT_GE(stations[i].Velocity, stations[i - 1].Velocity);
        }
        EXPECT_EQ(Calc.FlowPressure, alone.FlowPressure);
        EXPECT_EQ(Calc.Velocity, alone.Velocity);
    }
    // The station at which the gas gets no further is shown too, faster than sound.
    GasStation last{};
    TakeOrdinaryLine();
    Calc.MassFlow = 40000;
    ASSERT_TRUE(Calculate([&last](const GasStation& station) { last = station; }));
    EXPECT_EQ(User.LastText().substr(0, 24), "Sonic velocity reached @");
    EXPECT_LT(last.Part, 1);
    EXPECT_GT(last.Velocity, last.SonicVelocity);
    EXPECT_EQ(Calc.Velocity, Calc.SonicVelocity);
}

TEST_F(GasLineLossTest, TheZoneGoesByTheGasConstant) {
    Suite.HideFlowStatus.clear();
    TakeOrdinaryLine();
    // 2000.8 by the gas constant, 1999.1 by the liquid's.
    Calc.MassFlow = 14.158;
    ASSERT_LT(6.31 * Calc.MassFlow / Calc.PipeId[1] / Calc.Viscosity, 2000);
    ASSERT_GT(6.31533 * Calc.MassFlow / Calc.PipeId[1] / Calc.Viscosity, 2000);
    ASSERT_TRUE(Calculate());
    ASSERT_EQ(User.Boxes.size(), 1U) << "the flow status, once a calculation";
    EXPECT_EQ(User.Boxes[0].Title, "Flow Status");
    EXPECT_EQ(User.Boxes[0].Text.substr(0, 37), "Maximum flow is in the Critical Zone ");
    EXPECT_EQ(Calc.LaminarFactor, 0);
    EXPECT_LT(Calc.ReynoldsNumber, 2000);
}

// Thousands of steps between the two phases of a gas: one box, whether it begins at the inlet or later.
TEST_F(GasLineLossTest, WarnsOnceOfWhatDoesNotConverge) {
    for (const double source : {0.38 * 500, 0.39 * 500}) {
        TakeOrdinaryLine();
        Calc.CritTemperature = 700;
        Calc.CritPressure = 500;
        Calc.MolecularWeight = 60;
        Calc.FlowTemperature = 0.75 * 700 - 459.67;
        Calc.SourcePressure[1] = source;
        Calc.PipeLength[1] = 5000;
        ASSERT_TRUE(Calculate());
        ASSERT_EQ(User.Boxes.size(), 1U) << source;
        EXPECT_EQ(User.Boxes[0].Title, "Compressibility Factor Calculation");
    }
}

TEST_F(GasLineLossTest, ResultsAsShown) {
    TakeOrdinaryLine();
    ASSERT_TRUE(Calculate());
    const GasLineResults english = GasLineResultsOf(Calc);
    EXPECT_NEAR(english.FinalPressure, Calc.FlowPressure - 14.7, 0.05);
    EXPECT_NEAR(english.LossPer100 * 3, 114.7 - Calc.FlowPressure, 0.01);
    EXPECT_NEAR(english.EquivLength, 300, 1e-9);
    // After a stop: at zero pressure there are results, at sonic velocity no pressures, and a line that is
    // sonic at its inlet has no equivalent length, not that of the case before.
    Calc.EquipLoss[1] = 200;
    Calc.MassFlow = 100;
    ASSERT_TRUE(Calculate());
    EXPECT_EQ(GasLineResultsOf(Calc).FinalPressure, -14.7);
    EXPECT_GT(GasLineResultsOf(Calc).LossPer100, 0);
    EXPECT_GT(GasLineResultsOf(Calc).EquivLength, 0);
    Calc.EquipLoss[1] = 0;
    Calc.MassFlow = 1e6;
    ASSERT_TRUE(Calculate());
    const GasLineResults sonic = GasLineResultsOf(Calc);
    EXPECT_TRUE(sonic.IsSonic);
    EXPECT_EQ(sonic.FinalPressure, 0);
    EXPECT_EQ(sonic.LossPer100, 0);
    EXPECT_EQ(sonic.EquivLength, 0);
    EXPECT_GT(sonic.Velocity, 1000);
    EXPECT_EQ(sonic.Velocity, sonic.SonicVelocity);
}

// A long march lets the user end it, a common one never asks.
TEST_F(GasLineLossTest, EscapeEndsALongMarchAlone) {
    const auto steps = [this](double length) {
        TakeOrdinaryLine();
        Calc.PipeLength[1] = length;
        Calc.MassFlow = 1;
        User.EscapePressed = true;
        int count = -1;
        const bool ended = Calculate([&count](const GasStation&) { ++count; });
        EXPECT_EQ(Calc.InCalculation, "No");
        return std::pair(ended, count);
    };
    EXPECT_EQ(steps(1000000), std::pair(true, 1000000));
    EXPECT_EQ(steps(1000001), std::pair(false, 100000));
    // Far beyond what a form lets through, and beyond a 32-bit and a 64-bit counter.
    for (const double length : {5e9, 1e19}) EXPECT_FALSE(steps(length).first) << length;
    EXPECT_TRUE(User.Boxes.empty());
    for (const double length : {1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(steps(length), std::pair(true, 1)) << "no pressure is left after the first step";
    }
    User.EscapePressed = false;
    TakeOrdinaryLine();
    Calc.PipeLength[1] = 1200000;
    Calc.MassFlow = 1;
    EXPECT_TRUE(Calculate());
}

// Without pressure there is no density, an endless loss and a sonic velocity that is no number, which must
// not stop the line as sonic does.
TEST_F(GasLineLossTest, AZeroSourcePressureEndsAsZeroPressure) {
    TakeOrdinaryLine();
    Calc.SourcePressure[1] = 0;
    ASSERT_TRUE(Calculate());
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.LastText(),
              std::string("Zero pressure reached @ 0 % of equiv line length\nFlow cannot be maintained") +
                  LimitText);
    EXPECT_EQ(Calc.FlowPressure, 0);
    EXPECT_FALSE(Calc.Velocity == Calc.SonicVelocity);
    EXPECT_THROW(GasLineResultsOf(Calc), RuntimeError);
}

TEST_F(GasLineLossTest, NumbersWithoutSenseEndInAMessageOrAnError) {
    using Setter = void (*)(double);
    const Setter fields[] = {
        [](double v) { Calc.MassFlow = v; },          [](double v) { Calc.PipeId[1] = v; },
        [](double v) { Calc.Viscosity = v; },         [](double v) { Calc.MolecularWeight = v; },
        [](double v) { Calc.CritPressure = v; },      [](double v) { Calc.CritTemperature = v; },
        [](double v) { Calc.FlowTemperature = v; },   [](double v) { Calc.RatioSpecificHeats = v; },
        [](double v) { Calc.SourcePressure[1] = v; }, [](double v) { Calc.EquipLoss[1] = v; },
        [](double v) { Calc.Elevation[2] = v; },      [](double v) { Calc.GateValves = v; },
    };
    const double values[] = {0, -1, 1, -459.67, 1e-300, -1e-300, 1e-12, 1e12, 1e300, -1e300, std::nan("")};
    for (std::size_t field = 0; field < std::size(fields); ++field) {
        for (const double value : values) {
            for (const int direction : {1, 2}) {
                TakeOrdinaryLine();
                Calc.Elevation[1] = 3;
                Calc.PressureDirection = direction;
                fields[field](value);
                ASSERT_TRUE(Calculate()) << field << " " << value;
                EXPECT_LE(User.Boxes.size(), 3U) << field << " " << value;
                try {
                    const GasLineResults results = GasLineResultsOf(Calc);
                    for (const double each : {results.FinalPressure, results.LossPer100, results.Velocity,
                                              results.SonicVelocity, results.EquivLength}) {
                        ASSERT_TRUE(std::isfinite(each)) << field << " " << value;
                    }
                } catch (const RuntimeError& error) {
                    ASSERT_FALSE(error.Description.empty());
                }
            }
        }
    }
    // A ratio of exactly 1 is the slowest sound there is, and no fault.
    TakeOrdinaryLine();
    Calc.RatioSpecificHeats = 1;
    ASSERT_TRUE(Calculate());
    EXPECT_TRUE(User.Boxes.empty());
    EXPECT_GT(GasLineResultsOf(Calc).FinalPressure, 90);
}

}  // namespace
}  // namespace quillmetra
