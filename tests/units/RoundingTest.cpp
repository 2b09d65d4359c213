// Rounding to significant figures: what every number on screen and paper has gone through.
#include "units/Rounding.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "core/CalcRecord.h"

namespace quillmetra {
namespace {

TEST(Rounding, KnownValues) {
    const struct {
        double (*Routine)(double);
        double Value, Expected;
    } cases[] = {
        {RoundedSix, 123456.7, 123457},
        {RoundedSix, 0.000012345678, 0.0000123457},
        {RoundedSix, 99999.96, 100000},
        {RoundedFour, 1234.5, 1235},
        {RoundedFour, -1234.5, -1235},
        {RoundedFour, -1234.56, -1235},
        {RoundedFour, 1234567.8, 1234568},
        {RoundedFour, 0.99996, 1},
        {RoundedFour, 2.00049, 2},
        {RoundedFour, 1000, 1000},
        {RoundedFour, 999.95, 1000},
        {RoundedThree, 0.0123456, 0.0123},
        {RoundedThree, 100.5, 101},
        {RoundedThree, 6.0655, 6.07},
        {RoundedThree, 0, 0},
    };
    for (const auto& each : cases) EXPECT_DOUBLE_EQ(each.Routine(each.Value), each.Expected) << each.Value;
}

TEST(Rounding, WhatCannotBeRoundedComesBack) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {5e-324, 1e-310, -1e-303, 9e-291, infinity, -infinity}) {
        EXPECT_EQ(RoundedThree(value), value);
        EXPECT_EQ(RoundedFour(value), value);
        EXPECT_EQ(RoundedSix(value), value);
    }
    EXPECT_TRUE(std::isnan(RoundedSix(std::nan(""))));
    EXPECT_EQ(RoundedSix(1e300), 1e300);
    EXPECT_DOUBLE_EQ(RoundedSix(1.23456789e-290), 1.23457e-290);
}

// Over all magnitudes: as many figures as printf rounds to, the sign kept, and nothing left to round.
TEST(Rounding, AgreesWithDecimalRounding) {
    const struct {
        double (*Routine)(double);
        int Figures;
    } routines[] = {{RoundedThree, 3}, {RoundedFour, 4}, {RoundedSix, 6}};
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> exponent(-289, 0);
    std::uniform_real_distribution<double> mantissa(1, 10);
    for (int i = 0; i < 30000; ++i) {
        const double value =
            mantissa(random) * std::pow(10.0, i % 2 == 0 ? exponent(random) : exponent(random) / 30);
        for (const auto& each : routines) {
            const double rounded = each.Routine(value);
            char text[40];
            std::snprintf(text, sizeof text, "%.*e", each.Figures - 1, value);
            ASSERT_NEAR(rounded / std::strtod(text, nullptr), 1, 1e-14) << text;
            ASSERT_EQ(each.Routine(-value), -rounded);
            ASSERT_NEAR(each.Routine(rounded) / rounded, 1, 4e-16) << text;
        }
    }
}

}  // namespace
}  // namespace quillmetra
