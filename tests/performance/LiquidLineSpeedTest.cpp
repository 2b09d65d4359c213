// The promise of the record's routines: about as quick as bare arithmetic, and nothing from the heap. What a
// run may cost is twice what ./bench is to show, since a test machine is busy with other things.
#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainLiquidLine.h"
#include "lineloss/Friction.h"
#include "lineloss/LiquidLineLoss.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class LiquidLineSpeedTest : public SuiteTest {};

constexpr PlainLine Lines[] = {{.Flow = 50000}, {.Flow = 2000}, {.Flow = 1000}, {.Flow = 9e6, .PipeId = 42}};
constexpr int Repeats = 20000;

void CalculateCase() {
    CalcFriction();
    CalcFinalPressure();
}

// Processor seconds of the quickest of a few rounds, which is the one that was least disturbed.
template <typename Act>
double QuickestRound(Act act) {
    double quickest = 1e9;
    for (int round = 0; round < 9; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < Repeats; ++i) act();
        quickest = std::min(quickest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return quickest;
}

// Without this the two would be measured on different work.
TEST_F(LiquidLineSpeedTest, ThePlainLoopDoesTheSameArithmetic) {
    for (const PlainLine& line : Lines) {
        TakePlainLine(line);
        CalculateCase();
        EXPECT_NEAR(PlainFinalPressure(line), Calc.FlowPressure, 1e-9) << line.Flow;
    }
}

TEST_F(LiquidLineSpeedTest, NoAllocationFromTheSecondCaseOn) {
    for (const PlainLine& line : Lines) {
        TakePlainLine(line);
        CalculateCase();
        const std::size_t before = AllocationCount();
        for (int i = 0; i < 100; ++i) {
            Calc.MassFlow = line.Flow * (1 + i % 3);
            CalculateCase();
        }
        EXPECT_EQ(AllocationCount(), before);
    }
}

TEST_F(LiquidLineSpeedTest, CloseToThePlainLoop) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a ratio says something of an optimised build alone";
#else
    for (const PlainLine& line : Lines) {
        volatile double flow = line.Flow;
        volatile double result = 0;
        const double plain = QuickestRound([&] {
            PlainLine each = line;
            each.Flow = flow;
            result = PlainFinalPressure(each);
        });
        TakePlainLine(line);
        const double record = QuickestRound(CalculateCase);
        EXPECT_LT(record / plain, 3.0) << "flow " << line.Flow << " lb/h";
    }
#endif
}

}  // namespace
}  // namespace quillmetra
