// A change of units must not be felt: a whole record with its rounding in 20 microseconds, near what the bare
// arithmetic takes.
#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainConversion.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class ConversionSpeedTest : public SuiteTest {
protected:
    ConversionSpeedTest() { TakeConvertedLine(); }
};

constexpr int Repeats = 2000;

// Processor seconds of one act, of the quickest of a few rounds, which is the one that was least disturbed.
template <typename Act>
double QuickestAct(Act act) {
    double quickest = 1e9;
    for (int round = 0; round < 9; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < Repeats; ++i) act(i % 2 == 0);
        quickest = std::min(quickest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return quickest / Repeats;
}

struct Factors {
    UnitFactors English, SI;
};

Factors FactorsOfBoth() {
    const CalcRecord record = Calc;
    ApplyNamedUnitSet(3);
    const Factors both = {record.UnitFactor, Calc.UnitFactor};
    Calc = record;
    return both;
}

// Without this the two would be measured on different work.
TEST_F(ConversionSpeedTest, ThePlainLoopDoesTheSameArithmetic) {
    const Factors factors = FactorsOfBoth();
    for (const bool toSI : {true, false}) {
        PlainRecord plain = PlainOfRecord();
        // The standard conditions come with the set.
        for (const std::size_t row : {21U, 22U, 23U}) plain.Input[row][0] = 0;
        ConvertPlain(plain, toSI ? factors.English : factors.SI, toSI ? factors.SI : factors.English, toSI);
        ChangeSet(toSI);
        for (std::size_t row = 0; row < 28; ++row) {
            if (row >= 21 && row <= 23) continue;
            EXPECT_EQ(Calc.CaseInput[row], plain.Input[row]) << row;
        }
        EXPECT_EQ(Calc.CaseResult, plain.Result);
        EXPECT_EQ(Calc.PipeData, plain.Pipe);
    }
}

TEST_F(ConversionSpeedTest, NothingFromTheHeap) {
    ChangeSet(true);
    ChangeSet(false);
    const std::size_t before = AllocationCount();
    ConvertProgramData();
    EXPECT_EQ(AllocationCount(), before);
}

TEST_F(ConversionSpeedTest, QuickAndCloseToThePlainLoop) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a time says something of an optimised build alone";
#else
    const Factors factors = FactorsOfBoth();
    PlainRecord plain = PlainOfRecord();
    const double bare = QuickestAct([&](bool toSI) {
        ConvertPlain(plain, toSI ? factors.English : factors.SI, toSI ? factors.SI : factors.English, toSI);
    });
    const double record = QuickestAct([](bool) { ConvertProgramData(); });
    const double change = QuickestAct(ChangeSet);
    EXPECT_LT(change, 20e-6);
    EXPECT_LT(record / bare, 3.0);
#endif
}

}  // namespace
}  // namespace quillmetra
