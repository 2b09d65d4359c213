// From each named unit set to each other one and back, for each program, over random records: every value
// comes back within what the prescribed rounding allows, and in between the physical quantity is the same.
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "core/Programs.h"
#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"
#include "units/ProgramConversion.h"
#include "units/RecordUnits.h"
#include "units/Rounding.h"
#include "units/UnitChange.h"

namespace quillmetra {
namespace {

class ConversionRoundTrip : public SuiteTest {
protected:
    ConversionRoundTrip() { Suite.HideRoundReminder = words::Yes; }

    // A number of either small or large magnitude with the figures that rounding leaves.
    double Value(double (*rounded)(double) = RoundedSix) {
        const double exponent = std::uniform_real_distribution<double>(-3, 6)(random_);
        return rounded(std::pow(10.0, exponent));
    }

    void TakeRandomRecord(const Program& program, int set, bool density) {
        Calc = CalcRecord();
        Calc.CurrentProgram = program.Number;
        Calc.FluidType = program.FluidType;
        Calc.LiquidDensityMode = density ? words::Density : words::Gravity;
        Calc.StdTemperature = 60;
        Calc.StdPressure = Calc.BaroPressure = 14.7;
        for (auto& row : Calc.CaseInput)
            for (double& value : row) value = Value();
        for (double& value : Calc.CaseInput[7]) value = Value(RoundedFour);
        for (const std::size_t row : {1U, 2U, 4U, 12U}) {
            if (program.Number <= 3 && row != 2 && row != 12) continue;
            for (double& value : Calc.CaseInput[row]) {
                value = RoundedSix(std::uniform_real_distribution<double>(-400, 2000)(random_));
            }
        }
        for (auto& row : Calc.CaseResult)
            for (double& value : row) value = Value();
        for (double& value : Calc.PipeData) value = Value();
        for (double& value : Calc.HammerResult) value = Value(RoundedFour);
        ApplyNamedUnitSet(set);
        if (program.Number == 3) SetForceUnit();
        Calc.BasisPrevious = Calc.Basis;
        Calc.LiquidBasisPrevious = Calc.LiquidBasis;
        RenewChosenUnitNames();
        RememberUnits();
    }

    static void GoTo(int set) {
        UnitChange change;
        ASSERT_TRUE(ApplyNamedUnitSet(set));
        change.Commit();
        ASSERT_NE(Calc.RoundedFlag, "No");
    }

private:
    std::mt19937_64 random_{2024};
};

// Six figures are kept to 5 parts in a million, four to 5 in ten thousand, and a way back rounds twice. A
// flow that changes its basis goes through a density that was rounded twice as well.
constexpr double SixFigures = 1.01e-5, FourFigures = 1.01e-3;

bool IsTemperature(int program, std::size_t row) {
    return row == 2 || row == 12 || (program >= 4 && row == 4) || (program == 4 && row == 1);
}

// The absolute error of a temperature is that of its largest form, in degR.
double Allowed(int program, std::size_t row, double value) {
    if (IsTemperature(program, row)) return SixFigures * (std::fabs(value) + 460);
    if (row == 7) return FourFigures * value;
    return (row <= 1 ? 2 : 1) * SixFigures * std::fabs(value);
}

TEST_F(ConversionRoundTrip, EverySetAndBack) {
    for (const Program& program : Programs) {
        for (int from = 1; from <= 4; ++from) {
            for (int to = 1; to <= 4; ++to) {
                for (int round = 0; round < 20; ++round) {
                    TakeRandomRecord(program, from, round % 2 == 1);
                    const CalcRecord before = Calc;
                    GoTo(to);
                    GoTo(from);
                    const std::string where = "program " + std::to_string(program.Number) + ", set " +
                                              std::to_string(from) + " to " + std::to_string(to) + ", ";
                    for (std::size_t row = 0; row < 28; ++row) {
                        for (std::size_t c = 0; c < CaseCount; ++c) {
                            const double value = before.CaseInput[row][c];
                            ASSERT_NEAR(Calc.CaseInput[row][c], value, Allowed(program.Number, row, value))
                                << where << "row " << row << ", case " << c;
                        }
                    }
                    for (std::size_t row = 0; row < before.CaseResult.size(); ++row) {
                        for (std::size_t c = 0; c < CaseCount; ++c) {
                            const double value = before.CaseResult[row][c];
                            ASSERT_NEAR(Calc.CaseResult[row][c], value, SixFigures * value)
                                << where << "result " << row;
                        }
                    }
                    for (std::size_t i = 0; i < before.PipeData.size(); ++i)
                        ASSERT_NEAR(Calc.PipeData[i], before.PipeData[i], SixFigures * before.PipeData[i]);
                    for (std::size_t i = 0; i < before.HammerResult.size(); ++i)
                        ASSERT_NEAR(Calc.HammerResult[i], before.HammerResult[i],
                                    FourFigures * before.HammerResult[i])
                            << where << "hammer " << i;
                    ASSERT_EQ(Calc.UnitName, before.UnitName);
                }
            }
        }
    }
    EXPECT_TRUE(User.Boxes.empty());
    EXPECT_TRUE(User.Prompts.empty());
}

// A way there and back would hide a row that is not converted at all, or twice and back: the quantity in base
// units must not move.
TEST_F(ConversionRoundTrip, TheQuantityStaysTheSame) {
    const struct {
        int Program;
        std::vector<std::size_t> Rows;  // those with a factor of their own row
    } programs[] = {
        {1, {1, 3, 4, 6, 8}}, {2, {0, 3, 4, 9, 11}}, {4, {3, 8, 9, 11, 27}}, {5, {3, 8, 9, 11, 16}}};
    for (const auto& each : programs) {
        for (int i = 0; i < 50; ++i) {
            const int from = 1 + i % 2;  // English and SI of the same basis
            TakeRandomRecord(*FindProgram(each.Program), from, each.Program == 1);
            const CalcRecord before = Calc;
            GoTo(from + 2);
            for (const std::size_t row : each.Rows) {
                ASSERT_NE(Calc.UnitFactor[row], before.UnitFactor[row]);
                for (std::size_t c = 0; c < CaseCount; ++c) {
                    const double base = before.CaseInput[row][c] * before.UnitFactor[row];
                    ASSERT_NEAR(Calc.CaseInput[row][c] * Calc.UnitFactor[row], base, 5.1e-6 * base)
                        << each.Program << " row " << row;
                }
            }
            // One pressure for the result and the input; one latent heat for two rows.
            const double pressure = before.CaseResult[1][0] * before.UnitFactor[3];
            ASSERT_NEAR(Calc.CaseResult[1][0] * Calc.UnitFactor[3], pressure, 5.1e-6 * pressure);
            const double loss = before.CaseResult[0][0] * before.UnitFactor[4] / before.UnitFactor[25];
            ASSERT_NEAR(Calc.CaseResult[0][0] * Calc.UnitFactor[4] / Calc.UnitFactor[25], loss,
                        5.1e-6 * loss);
        }
    }
}

}  // namespace
}  // namespace quillmetra
