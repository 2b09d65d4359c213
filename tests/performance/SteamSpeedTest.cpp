// A steam case takes no file read once the files are known. 50 microseconds are a good many times what it
// needs, since a test machine is busy with other things.
#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "fluids/SteamTables.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class SteamSpeedTest : public SuiteTest {};

TEST_F(SteamSpeedTest, ACaseIsQuick) {
    constexpr int repeats = 2000;
    Calc.SteamKind = words::Superheated;
    Calc.UnitName[2] = "degF";
    double quickest = 1e9;  // processor microseconds a case, of the round that was least disturbed
    for (int round = 0; round < 5; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < repeats; ++i) {
            Calc.FlowPressure = 15 + i;
            Calc.FlowTemperature = Calc.CaseInput[2][0] = 800;
            ASSERT_EQ(GetSteamData(), SteamOutcome::Found);
        }
        quickest =
            std::min(quickest, 1e6 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / repeats);
    }
    RecordProperty("microseconds", std::to_string(quickest));
    EXPECT_LT(quickest, 50);
}

}  // namespace
}  // namespace quillmetra
