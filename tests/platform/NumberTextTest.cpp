// The four number conversions: what a user types and what the suite shows.
#include "platform/NumberText.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace quillmetra {
namespace {

TEST(NumberText, ValReadsTheLeadingNumber) {
    const struct {
        const char* Text;
        double Value;
        bool All;
    } cases[] = {
        {"", 0, true},
        {"   ", 0, true},
        {"12", 12, true},
        {" 12 ", 12, true},
        {"+12.5", 12.5, true},
        {"-.5", -0.5, true},
        {"5.", 5, true},
        {"1 000", 1000, true},
        {"\t1\t2", 12, true},
        {"12,5", 12, false},
        {"12 psi", 12, false},
        {"abc", 0, false},
        {"inf", 0, false},
        {"nan", 0, false},
        {"0x10", 0, false},
        {"1.2.3", 1.2, false},
        {"1e3", 1000, true},
        {"1D3", 1000, true},
        {"1E", 1, false},
        {"1e+", 1, false},
        {"2E-3kg", 0.002, false},
        {"1 E 2", 100, true},
        {"--5", 0, false},
        {".", 0, false},
        {"1e400", 0, false},
        {"-1e400", 0, false},
        {"1e-400", 0, false},
        {"1e99999999999", 0, false},
        {"1-2", 1, false},
        {"&H10", 0, false},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Val(each.Text), each.Value) << '"' << each.Text << '"';
        EXPECT_EQ(ValReadsAll(each.Text), each.All) << '"' << each.Text << '"';
    }
    EXPECT_EQ(Val(std::string(100000, '9')), 0) << "a number too large for a double";
}

TEST(NumberText, StrIsTheShortestPlainText) {
    const struct {
        double Value;
        const char* Text;
    } cases[] = {
        {0, " 0"},
        {-0.0, " 0"},
        {1, " 1"},
        {-1, "-1"},
        {0.1, " 0.1"},
        {-0.5, "-0.5"},
        {100, " 100"},
        {101.35135135135135, " 101.351351351351"},
        {0.1 + 0.2, " 0.3"},
        {999999999999999, " 999999999999999"},
        {1e15, " 1E+15"},
        {1.25e20, " 1.25E+20"},
        {1e300, " 1E+300"},
        {1e-15, " 0.000000000000001"},
        {1.5e-15, " 0.0000000000000015"},
        {1e-16, " 1E-16"},
        {-2.5e-100, "-2.5E-100"},
        {123456789.123, " 123456789.123"},
        {1.0 / 3, " 0.333333333333333"},
    };
    for (const auto& each : cases) EXPECT_EQ(Str(each.Value), each.Text);
}

TEST(NumberText, ValReadsBackWhatStrWrites) {
    std::mt19937_64 random(20261124);
    std::uniform_real_distribution<double> exponent(-290, 290);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::string text = Str(value);
        EXPECT_NEAR(Val(text) / value, 1, 1e-14) << text;
        EXPECT_EQ(Str(Val(text)), text);
    }
    EXPECT_EQ(Int(-0.5), -1);
    EXPECT_EQ(Int(2.7), 2);
}

}  // namespace
}  // namespace quillmetra
