// The water hammer form where no script reaches: standard conditions that nobody has set.
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class HammerForm : public SuiteTest {};

TEST_F(HammerForm, StandardPressureFallsBackOnItsOwnValue) {
    RegisterForms();
    StartUp(SuitePath(Folder));
    ClickControl(ControlOf("frmTRProg", "cmdOK"));
    ClickControl(ControlOf("frmObxProg", "optProgram", 3));
    ClickControl(ControlOf("frmObxProg", "cmdOK"));
    Calc.StdPressure = Calc.StdTemperature = Calc.BaroPressure = 0;
    ClickControl(ControlOf("frmWaterHammer", "cmdCalculateliq"));
    EXPECT_EQ(Calc.StdPressure, 14.73);
    EXPECT_EQ(Calc.CaseInput[22][0], 14.73);
    EXPECT_EQ(Calc.StdTemperature, 60);
    EXPECT_EQ(Calc.BaroPressure, 14.7);
}

}  // namespace
}  // namespace quillmetra
