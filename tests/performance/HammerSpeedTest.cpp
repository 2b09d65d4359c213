// All results of a water hammer, with the curve that is drawn of them, in less than 50 microseconds.
#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/HammerScene.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class HammerSpeedTest : public SuiteTest {};

TEST_F(HammerSpeedTest, ACaseTakesLessThanFiftyMicroseconds) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a time says something of an optimised build alone";
#else
    constexpr int repeats = 2000;
    TakeHammerScene();
    double quickest = 1e9;
    for (int round = 0; round < 5; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < repeats; ++i) {
            CalculateHammer();
            ClosingCurveOfRecord();
        }
        quickest = std::min(quickest, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    EXPECT_LT(quickest / repeats, 50e-6);
#endif
}

TEST_F(HammerSpeedTest, NoAllocationFromTheSecondCaseOn) {
    TakeHammerScene();
    CalculateHammer();
    const std::size_t before = AllocationCount();
    for (int i = 0; i < 100; ++i) CalculateHammer();
    EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace quillmetra
