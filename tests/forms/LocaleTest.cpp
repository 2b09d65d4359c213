// A machine set to a language that writes 1,5 for one and a half: nothing that the suite reads, shows, stores
// or writes may notice.
#include <clocale>
#include <locale>

#include "core/Suite.h"
#include "platform/Clock.h"
#include "platform/NumberText.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// The locale of the environment where the test is run with one (see CMakeLists.txt), and commas for streams.
class CommaLocale : public LiquidForm {
protected:
    CommaLocale() : former_(std::locale::global(std::locale(std::locale(), new CommaNumbers))) {
        std::setlocale(LC_ALL, "");
    }
    ~CommaLocale() override {
        std::locale::global(former_);
        std::setlocale(LC_ALL, "C");
    }

private:
    std::locale former_;
};

TEST_F(CommaLocale, AWholeCaseIsTheSame) {
    FillGoodCase(0);
    Type(Form().txtInletPipeElev, "12.5");
    Suite.HideFlowStatus = words::Yes;
    Calculate(0);
    EXPECT_EQ(Form().txtInletPipeElev.Text(), " 12.5");
    EXPECT_EQ(Form().txtVelocity(0).Text(), " 5.035");
    EXPECT_EQ(Form().txtReynoldsNum(0).Text(), " 156731");
    ClickControl(Form().mnuPureLiquid1);
    EXPECT_GT(Form().Fluids.lstFluid.RowCount(), 100);
    ClickControl(Form().Fluids.cmdSelect);
    EXPECT_NEAR(Val(Form().txtSGFlow(0).Text()), 1.347, 0.002) << "1-1-1-Trichloroethane at 60 degF";
}

TEST_F(CommaLocale, FilesAndDatesAreTheSame) {
    Calc.StdPressure = 14.65;
    Calc.StdTemperature = 59.5;
    SaveStandardConditions();
    LineReader file(Suite.DefaultPaths[4] + "\\TRSTP.TXT");
    std::string line;
    ASSERT_TRUE(file.Next(line));
    EXPECT_EQ(line, " 14.65");
    ReadStandardConditions();
    EXPECT_EQ(Calc.StdTemperature, 14.65) << "the file swaps the two on purpose";
    SetToday("2026-11-24");
    EXPECT_EQ(Today(), "11/24/2026");
}

}  // namespace
}  // namespace quillmetra
