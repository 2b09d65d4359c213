// The water hammer against figures worked out apart from the suite, in decimal arithmetic of forty digits.
#include "hammer/WaterHammer.h"

#include <cmath>

#include "platform/RuntimeError.h"
#include "tests/ReferenceLines.h"

namespace quillmetra {
namespace {

const std::vector<ReferenceLine> Cases = ReadReferenceLines("hammer.txt");

void TakeCase(const ReferenceLine& each) {
    Calc.LiquidMassFlow = each["flow"];
    Calc.FlowingSG = each["gravity"];
    Calc.BulkModulus = each["bulk"];
    Calc.PipeModulus = each["pipe"];
    Calc.PipeDiameter = each["diameter"];
    Calc.WallThickness = each["wall"];
    Calc.LineLength = each["length"];
    Calc.EnteredPressure = each["entered"];
    Calc.FlowPressure = each["flowing"];
    Calc.MaxAllowPressure = each["allowable"];
    Calc.SelectedTime = each["selected"];
    Calc.CaseInput[3][0] = each["entered"] / each["pressurefactor"];
    Calc.CaseInput[10][0] = each["selected"];
    Calc.UnitFactor[18] = each["pipefactor"];
    Calc.UnitFactor[20] = each["velocityfactor"];
    Calc.UnitFactor[3] = each["pressurefactor"];
}

class WaterHammerTest : public SuiteTest {};

TEST_F(WaterHammerTest, AgreesWithFiguresWorkedOutElsewhere) {
    for (const ReferenceLine& each : Cases) {
        SCOPED_TRACE(each.Fields.at("name"));
        TakeCase(each);
        CalcCriticalClosing();
        EXPECT_EQ(Calc.HammerResult[17], 0) << "of a selected time no longer in force";
        CalcSelectedClosing();
        for (std::size_t i = 0; i < 7; ++i)
            EXPECT_EQ(Calc.HammerResult[12 + i], each["r" + std::to_string(12 + i)]) << 12 + i;
        EXPECT_EQ(Calc.UnitName[0], each.Fields.at("force"));
    }
}

// Korteweg and Joukowski in pounds, feet and seconds.
TEST_F(WaterHammerTest, TheConstantsAreThoseOfPhysics) {
    constexpr double density = 62.366, gravity = 32.174;
    for (const ReferenceLine& each : Cases) {
        SCOPED_TRACE(each.Fields.at("name"));
        TakeCase(each);
        CalcCriticalClosing();
        const double rho = density * each["gravity"];
        const double stiffness =
            1 / (1 / each["bulk"] + each["diameter"] / each["wall"] / each["pipe"]) * 144 * gravity;
        const double area = std::acos(-1.0) / 4 * each["diameter"] * each["diameter"];
        const double wave = std::sqrt(stiffness / rho);
        const double flow = each["flow"] / 3600 / rho / (area / 144);
        const double rise = rho * wave * flow / gravity / 144;
        EXPECT_NEAR(Calc.WaveVelocity / wave, 1, 0.001);
        EXPECT_NEAR(Calc.Velocity / flow, 1, 0.001);
        EXPECT_NEAR(Calc.PressureRise / rise, 1, 0.002);
        EXPECT_NEAR(ThrustOf(rise, each["diameter"]) / (rise * area), 1, 0.0001);
        // Closing in just the critical time brings the full rise, in the minimum time the allowable one.
        EXPECT_DOUBLE_EQ(RiseAtTime(Calc.PressureRise, Calc.CriticalTime, Calc.CriticalTime),
                         Calc.PressureRise);
        EXPECT_NEAR(RiseAtTime(Calc.PressureRise, Calc.CriticalTime, Calc.MinimumTime) /
                        (each["allowable"] - each["flowing"]),
                    1, 0.0005);
    }
}

TEST_F(WaterHammerTest, TheCurvePassesThroughTheResults) {
    for (const ReferenceLine& each : Cases) {
        SCOPED_TRACE(each.Fields.at("name"));
        TakeCase(each);
        CalcCriticalClosing();
        CalcSelectedClosing();
        const ClosingCurve curve = ClosingCurveOfRecord();
        ASSERT_TRUE(std::is_sorted(curve.Times.begin(), curve.Times.end()));
        const struct {
            double Time, Pressure;
        } points[] = {{Calc.HammerResult[12], Calc.HammerResult[14]},
                      {Calc.HammerResult[16],
                       (each["entered"] + each["allowable"] - each["flowing"]) / each["pressurefactor"]},
                      {each["selected"], Calc.HammerResult[17]}};
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
