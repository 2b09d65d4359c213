// The promise of the march: about as quick as bare arithmetic, and nothing from the heap. What a run may cost
// is twice what ./bench is to show, since a test machine is busy with other things.
#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainGasLine.h"
#include "lineloss/GasLineLoss.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class GasLineSpeedTest : public SuiteTest {};

// Processor seconds of the quickest of a few rounds, which is the one that was least disturbed.
template <typename Act>
double QuickestRound(Act act) {
    double quickest = 1e9;
    for (int round = 0; round < 9; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < 10; ++i) act();
        quickest = std::min(quickest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return quickest;
}

// Without this the two would be measured on different work.
TEST_F(GasLineSpeedTest, ThePlainLoopDoesTheSameArithmetic) {
    for (const PlainGas& gas :
         {PlainGas{}, PlainGas{.Flow = 500, .Start = 300}, PlainGas{.EquipLoss = 700}}) {
        TakePlainGas(gas);
        CalcGasFriction();
        ASSERT_TRUE(CalcGasProfile());
        EXPECT_NEAR(PlainGasFinalPressure(gas, Calc.FrictionFactor), Calc.FlowPressure, 1e-6);
    }
}

TEST_F(GasLineSpeedTest, NoAllocation) {
    TakePlainGas({});
    CalcGasFriction();
    const std::size_t before = AllocationCount();
    CalcGasProfile();
    EXPECT_EQ(AllocationCount(), before);
}

TEST_F(GasLineSpeedTest, CloseToThePlainLoop) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a ratio says something of an optimised build alone";
#else
    const PlainGas gas;
    TakePlainGas(gas);
    CalcGasFriction();
    volatile double source = gas.Source;
    volatile double result = 0;
    const double plain = QuickestRound([&] {
        PlainGas each = gas;
        each.Source = source;
        result = PlainGasFinalPressure(each, Calc.FrictionFactor);
    });
    const double record = QuickestRound([] { CalcGasProfile(); });
    EXPECT_LT(record / plain, 3.0);
#endif
}

}  // namespace
}  // namespace quillmetra
