// Gauge to absolute and gravity to density, alone and together with a change of units.
#include "units/ModeChange.h"

#include <tuple>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"
#include "units/ProgramConversion.h"
#include "units/RecordUnits.h"
#include "units/UnitChange.h"

namespace quillmetra {
namespace {

class ModeChangeTest : public SuiteTest {
protected:
    // A liquid line in English mass units with a barometer of 14.7 psia, nothing left to convert.
    void TakeLine() {
        Calc = CalcRecord();
        Calc.CurrentProgram = 1;
        Calc.FluidType = words::Liquid;
        Calc.BaroPressure = 14.7;
        ApplyNamedUnitSet(1);
        RenewChosenUnitNames();
        RememberUnits();
        Suite.HideRoundReminder = words::Yes;
    }

    static void GoTo(int set, std::string UnitChange::*mode, const char* word) {
        UnitChange change;
        ApplyNamedUnitSet(set);
        change.*mode = word;
        change.Commit();
    }
};

TEST_F(ModeChangeTest, Pressures) {
    const struct {
        const char* To;
        double Before, After;
    } cases[] = {
        {words::Absolute, 100, 114.7},
        {words::Absolute, -10, 4.7},
        {words::Absolute, 0, 0},           // an empty one, or 0 psig, which the data check then refuses
        {words::Absolute, -14.7, -14.7},   // a perfect vacuum
        {words::Absolute, -20, -20},       // no pressure at all
        {words::Absolute, 1234.56, 1249},  // four figures
        {words::Gauge, 114.7, 100},
        {words::Gauge, 4.7, -10},
        {words::Gauge, 0, 0},
        {words::Gauge, 15.1, 15.1},   // 0.4 rounds to 0
        {words::Gauge, 15.21, 0.51},  // not any more
        {words::Gauge, 14.2, 14.2},
        {words::Gauge, 14.19, -0.51},
    };
    for (const auto& each : cases) {
        TakeLine();
        const bool toAbsolute = each.To == std::string(words::Absolute);
        if (!toAbsolute) ChangePressureMode(words::Absolute);
        Calc.UnitsConverted.clear();
        Calc.CaseInput[3] = {each.Before, each.Before, 0};
        Calc.CaseResult[1][2] = each.Before;
        Calc.CaseResult[2][2] = each.Before;
        Calc.HammerResult[14] = Calc.HammerResult[17] = Calc.HammerResult[16] = each.Before;
        ChangePressureMode(each.To);
        SCOPED_TRACE(std::string(each.To) + " " + std::to_string(each.Before));
        EXPECT_NEAR(Calc.CaseInput[3][0], each.After, 1e-9);
        EXPECT_NEAR(Calc.CaseInput[3][1], each.After, 1e-9);
        EXPECT_EQ(Calc.CaseInput[3][2], 0);
        EXPECT_NEAR(Calc.CaseResult[1][2], each.After, 1e-9);
        EXPECT_NEAR(Calc.HammerResult[14], each.After, 1e-9);
        EXPECT_NEAR(Calc.HammerResult[17], each.After, 1e-9);
        EXPECT_EQ(Calc.CaseResult[2][2], each.Before) << "no pressure";
        EXPECT_EQ(Calc.HammerResult[16], each.Before);
        EXPECT_EQ(Calc.UnitName[3], toAbsolute ? "psia" : "psig");
        EXPECT_EQ(Calc.PressureMode, each.To);
        EXPECT_EQ(Calc.UnitsConverted, "Yes");
    }
}

TEST_F(ModeChangeTest, ThePressureModeThatIsInForceChangesNothing) {
    TakeLine();
    Calc.CaseInput[3][0] = 100;
    ChangePressureMode(words::Gauge);
    EXPECT_EQ(Calc.CaseInput[3][0], 100);
    ChangePressureMode(words::Absolute);
    ChangePressureMode(words::Absolute);
    EXPECT_NEAR(Calc.CaseInput[3][0], 114.7, 1e-9);
    // A unit without the ending is not one of a mode: values and mode go on together.
    Calc.UnitName[3] = "torr";
    ChangePressureMode(words::Gauge);
    EXPECT_NEAR(Calc.CaseInput[3][0], 114.7, 1e-9);
    EXPECT_EQ(Calc.UnitName[3], "torr");
    EXPECT_EQ(Calc.PressureMode, "Psia");
    Calc.UnitName[3].clear();
    ChangePressureMode(words::Absolute);
    EXPECT_EQ(Calc.PressureMode, "Psia");
}

// A half rounds to the even 0, and so stays.
TEST_F(ModeChangeTest, HalfAUnitFromTheBarometerIsNoGaugePressure) {
    TakeLine();
    ChangePressureMode(words::Absolute);
    Calc.BaroPressure = 14.5;
    Calc.CaseInput[3] = {15, 14, 16};
    ChangePressureMode(words::Gauge);
    EXPECT_EQ(Calc.CaseInput[3][0], 15);
    EXPECT_EQ(Calc.CaseInput[3][1], 14);
    EXPECT_EQ(Calc.CaseInput[3][2], 1.5);
}

// A record just loaded has no barometric pressure yet.
TEST_F(ModeChangeTest, AMissingBarometerIsTheUsualOne) {
    TakeLine();
    Calc.BaroPressure = 0;
    Calc.CaseInput[3][0] = 100;
    ChangePressureMode(words::Absolute);
    EXPECT_NEAR(Calc.CaseInput[3][0], 114.7, 1e-9);
    EXPECT_EQ(Calc.BaroPressure, 14.7);
}

TEST_F(ModeChangeTest, PressureModeAndUnitsInOneGo) {
    TakeLine();
    Calc.CaseInput[3] = {100, 50, 0};
    GoTo(3, &UnitChange::PressureMode, words::Absolute);
    EXPECT_EQ(Calc.UnitName[3], "kPaa");
    EXPECT_DOUBLE_EQ(Calc.CaseInput[3][0], 790.816);  // 114.7 / 0.14504
    EXPECT_DOUBLE_EQ(Calc.CaseInput[3][1], 446.084);
    GoTo(1, &UnitChange::PressureMode, words::Gauge);
    EXPECT_EQ(Calc.UnitName[3], "psig");
    EXPECT_NEAR(Calc.CaseInput[3][0], 100, 0.02);  // by way of four figures in kPa
    EXPECT_NEAR(Calc.CaseInput[3][1], 50, 0.02);
}

TEST_F(ModeChangeTest, AChangeThatIsNotCommittedIsTakenBack) {
    TakeLine();
    const auto units = [] {
        return std::tuple(Calc.UnitName, Calc.UnitFactor, Calc.Basis, Calc.LiquidBasis);
    };
    const auto before = units();
    {
        UnitChange change;
        ApplyNamedUnitSet(4);
        Calc.Basis = words::Volume;
        change.PressureMode = words::Absolute;
        EXPECT_TRUE(change.HasNewUnits());
    }
    EXPECT_EQ(units(), before);
    EXPECT_EQ(Calc.PressureMode, words::Gauge);
}

// The numbers were in the other mode all along.
TEST_F(ModeChangeTest, WithoutConversionTheModesChangeAlone) {
    TakeLine();
    Calc.NoConversion = words::Yes;
    Calc.CaseInput[3][0] = 100;
    Calc.CaseInput[6][0] = 50;
    ChangePressureMode(words::Absolute);
    ChangeDensityMode(words::Density);
    EXPECT_EQ(Calc.UnitName[3], "psia");
    EXPECT_EQ(Calc.PressureMode, "Psia");
    EXPECT_EQ(Calc.LiquidDensityMode, "LiqDen");
    EXPECT_EQ(Calc.CaseInput[3][0], 100);
    EXPECT_EQ(Calc.CaseInput[6][0], 50);
}

// Factors of a user's own unit may be as small or as large as a number can be.
TEST_F(ModeChangeTest, WhatCannotBeExpressedIsNoNumber) {
    TakeLine();
    Calc.CaseInput[3][0] = 1e308;
    Calc.UnitFactorPrevious[3] = 1e-307;
    ChangePressureMode(words::Absolute);
    EXPECT_EQ(Calc.CaseInput[3][0], 0);
    Calc.UnitFactor[6] = 1e-307;
    Calc.CaseInput[6] = {20, 0, 0};
    ChangeDensityMode(words::Density);
    EXPECT_EQ(Calc.CaseInput[6][0], 0);
}

TEST_F(ModeChangeTest, DensityAndGravity) {
    TakeLine();
    Calc.CaseInput[6] = {0.8, 0, -1};
    ChangeDensityMode(words::Density);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 49.89);
    EXPECT_EQ(Calc.CaseInput[6][1], 0);
    EXPECT_EQ(Calc.CaseInput[6][2], -1);
    EXPECT_EQ(Calc.UnitName[5], "lb/ft3") << "the prompts read it there";
    ChangeDensityMode(words::Density);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 49.89);
    ChangeDensityMode(words::Gravity);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 0.8);
    EXPECT_TRUE(User.Boxes.empty());
    Calc.LiquidDensityMode.clear();  // of a record that knows none: gravity
    ChangeDensityMode(words::Gravity);
    EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 0.8);
}

TEST_F(ModeChangeTest, AMissingDensityUnitIsFilledAndTold) {
    for (const bool noName : {true, false}) {
        TakeLine();
        User.Boxes.clear();
        if (noName) Calc.UnitName[6].clear();
        if (!noName) Calc.UnitFactor[6] = 0;
        Calc.CaseInput[6][0] = 1;
        ChangeDensityMode(words::Density);
        ASSERT_EQ(User.Boxes.size(), 1U);
        EXPECT_EQ(User.Boxes[0].Text, "Please select the correct density unit");
        EXPECT_EQ(User.Boxes[0].Title, "Temporary variable shown");
        EXPECT_EQ(Calc.UnitName[6], "lb/ft3");
        EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 62.37);
    }
}

// Row 6 is brought to its new unit once, whichever way the mode goes.
TEST_F(ModeChangeTest, DensityModeAndUnitsInOneGo) {
    for (const int program : {1, 3}) {
        TakeLine();
        Calc.CurrentProgram = program;
        Calc.CaseInput[1][0] = 10000;
        Calc.CaseInput[6][0] = 0.8;
        GoTo(4, &UnitChange::DensityMode, words::Density);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 799.2) << "kg/m3 in program " << program;
        EXPECT_NEAR(Calc.CaseInput[1][0], 10000 / 0.8 / 8.3378 / 951.0193, 2e-4) << "litre/s";
        EXPECT_EQ(Calc.UnitName[5], "kg/m3");
        GoTo(1, &UnitChange::DensityMode, words::Gravity);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[6][0], 0.8) << program;
        EXPECT_NEAR(Calc.CaseInput[1][0], 10000, 1) << program;
    }
}

}  // namespace
}  // namespace quillmetra
