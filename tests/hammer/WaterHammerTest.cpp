// The water hammer against figures worked out apart from the suite, in decimal arithmetic of forty digits.
#include "hammer/WaterHammer.h"

#include <cmath>

#include "platform/RuntimeError.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

struct HammerCase {
    const char* Name;
    double Flow, Gravity, BulkModulus, PipeModulus, Diameter, Wall, Length;  // internal units
    double Entered, Flowing, Allowable, Selected;                            // psi, psia, psia, s
    double PipeFactor, VelocityFactor, PressureFactor;
    double Results[7];  // 12 to 18
    const char* ForceUnit;
};

constexpr HammerCase Cases[] = {
    {"water, 6 in steel",
     400000,
     1,
     319000,
     29.5e6,
     6.065,
     0.28,
     2500,
     100,
     114.7,
     314.7,
     4,
     1,
     1,
     1,
     {1.141, 4381, 623.2, 15114, 2.985, 249.2, 4311},
     "lb"},
    {"in SI units, faster than critical",
     400000,
     1,
     319000,
     29.5e6,
     6.065,
     0.28,
     2500,
     100,
     114.7,
     314.7,
     0.5,
     0.03937,
     3.281,
     0.14504,
     {1.141, 1335, 4296, 6856, 2.985, 8921, 15645},
     "kg"},
    {"gasoline, 4 in plastic, absolute",
     90000,
     0.685,
     150000,
     420000,
     4.026,
     0.237,
     12000,
     60,
     60,
     150,
     9,
     12,
     1,
     1,
     {15.82, 1517, 152.5, 1177, 16.26, 222.6, 2070},
     "lb"},
    {"mercury under vacuum",
     1500,
     13.6,
     4e6,
     28.3e6,
     0.622,
     0.109,
     40,
     -5,
     9.7,
     20,
     0.02,
     0.3937,
     3.281,
     14.504,
     {0.02301, 1060, 9.862, 20.4, 0.3307, 11.4, 23.48},
     "kg"},
};

void TakeCase(const HammerCase& each) {
    Calc.LiquidMassFlow = each.Flow;
    Calc.FlowingSG = each.Gravity;
    Calc.BulkModulus = each.BulkModulus;
    Calc.PipeModulus = each.PipeModulus;
    Calc.PipeDiameter = each.Diameter;
    Calc.WallThickness = each.Wall;
    Calc.LineLength = each.Length;
    Calc.EnteredPressure = each.Entered;
    Calc.FlowPressure = each.Flowing;
    Calc.MaxAllowPressure = each.Allowable;
    Calc.SelectedTime = each.Selected;
    Calc.CaseInput[3][0] = each.Entered / each.PressureFactor;
    Calc.CaseInput[10][0] = each.Selected;
    Calc.UnitFactor[18] = each.PipeFactor;
    Calc.UnitFactor[20] = each.VelocityFactor;
    Calc.UnitFactor[3] = each.PressureFactor;
}

class WaterHammerTest : public SuiteTest {};

TEST_F(WaterHammerTest, AgreesWithFiguresWorkedOutElsewhere) {
    for (const HammerCase& each : Cases) {
        SCOPED_TRACE(each.Name);
        TakeCase(each);
        CalcCriticalClosing();
        EXPECT_EQ(Calc.HammerResult[17], 0) << "of a selected time no longer in force";
        CalcSelectedClosing();
        for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(Calc.HammerResult[12 + i], each.Results[i]) << 12 + i;
        EXPECT_EQ(Calc.UnitName[0], each.ForceUnit);
    }
}

// Korteweg and Joukowski in pounds, feet and seconds.
TEST_F(WaterHammerTest, TheConstantsAreThoseOfPhysics) {
    constexpr double density = 62.366, gravity = 32.174;
    for (const HammerCase& each : Cases) {
        SCOPED_TRACE(each.Name);
        TakeCase(each);
        CalcCriticalClosing();
        const double rho = density * each.Gravity;
        const double stiffness =
            1 / (1 / each.BulkModulus + each.Diameter / each.Wall / each.PipeModulus) * 144 * gravity;
        const double area = std::acos(-1.0) / 4 * each.Diameter * each.Diameter;
        const double wave = std::sqrt(stiffness / rho);
        const double flow = each.Flow / 3600 / rho / (area / 144);
        const double rise = rho * wave * flow / gravity / 144;
        EXPECT_NEAR(Calc.WaveVelocity / wave, 1, 0.001);
        EXPECT_NEAR(Calc.Velocity / flow, 1, 0.001);
        EXPECT_NEAR(Calc.PressureRise / rise, 1, 0.002);
        EXPECT_NEAR(ThrustOf(rise, each.Diameter) / (rise * area), 1, 0.0001);
        // Closing in just the critical time brings the full rise, in the minimum time the allowable one.
        EXPECT_DOUBLE_EQ(RiseAtTime(Calc.PressureRise, Calc.CriticalTime, Calc.CriticalTime),
                         Calc.PressureRise);
        EXPECT_NEAR(RiseAtTime(Calc.PressureRise, Calc.CriticalTime, Calc.MinimumTime) /
                        (each.Allowable - each.Flowing),
                    1, 0.0005);
    }
}

TEST_F(WaterHammerTest, TheCurvePassesThroughTheResults) {
    for (const HammerCase& each : Cases) {
        SCOPED_TRACE(each.Name);
        TakeCase(each);
        CalcCriticalClosing();
        CalcSelectedClosing();
        const ClosingCurve curve = ClosingCurveOfRecord();
        ASSERT_TRUE(std::is_sorted(curve.Times.begin(), curve.Times.end()));
        const struct {
            double Time, Pressure;
        } points[] = {
            {Calc.HammerResult[12], Calc.HammerResult[14]},
            {Calc.HammerResult[16], (each.Entered + each.Allowable - each.Flowing) / each.PressureFactor},
            {each.Selected, Calc.HammerResult[17]}};
        for (const auto& point : points) {
            ASSERT_GT(point.Time, curve.Times.front());
            ASSERT_LT(point.Time, curve.Times.back());
            const auto next = std::lower_bound(curve.Times.begin(), curve.Times.end(), point.Time);
            const std::ptrdiff_t i = next - curve.Times.begin();
            const double share = (point.Time - next[-1]) / (*next - next[-1]);
            const auto pressure = curve.Pressures.begin() + i;
            const double between = pressure[-1] + share * (*pressure - pressure[-1]);
            EXPECT_NEAR(between, point.Pressure, 0.01 * std::fabs(curve.Pressures.front()));
        }
    }
}

TEST_F(WaterHammerTest, WhatIsNotFiniteLeavesTheResults) {
    const struct {
        double CalcRecord::*Field;
        double Value;
    } cases[] = {
        {&CalcRecord::BulkModulus, 1e-320},   {&CalcRecord::LineLength, 1e308},
        {&CalcRecord::PipeDiameter, 1e-200},  {&CalcRecord::PipeDiameter, 1e160},
        {&CalcRecord::WallThickness, 5e-324}, {&CalcRecord::FlowingSG, 5e-324},
    };
    TakeCase(Cases[0]);
    CalcCriticalClosing();
    CalcSelectedClosing();
    const HammerResults before = Calc.HammerResult;
    for (const auto& each : cases) {
        TakeCase(Cases[0]);
        Calc.*each.Field = each.Value;
        EXPECT_THROW(CalcCriticalClosing(), RuntimeError) << each.Value;
        EXPECT_EQ(Calc.HammerResult, before);
        ClosingCurveOfRecord();
    }
    TakeCase(Cases[0]);
    CalcCriticalClosing();
    Calc.SelectedTime = 1e-310;
    EXPECT_THROW(CalcSelectedClosing(), RuntimeError);
    EXPECT_EQ(Calc.HammerResult[17], 0);
}

}  // namespace
}  // namespace quillmetra
