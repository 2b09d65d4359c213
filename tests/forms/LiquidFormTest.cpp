// The liquid line-loss form as a user meets it: from the browser to a result, its messages, its fluid.
#include <cmath>

#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

TEST_F(LiquidForm, KeepsNonFiniteNumbersOut) {
    FillGoodCase(0);
    Suite.HideFlowStatus = words::Yes;
    for (const char* huge : {"1e300", "1e-300", "1e-310", "1e308"}) {
        for (TextBox* box : {&Form().txtInletPipeID, &Form().txtFlow(0), &Form().txtSGFlow(0),
                             &Form().txtViscosity(0), &Form().txtEquip(0), &Form().txtInletPipeElev,
                             &Form().txtInletGate, &Form().txtTemp(0), &Form().txtPressure(0)}) {
            const std::string good = box->Text();
            Type(*box, huge);
            Calculate(0);
            for (const Control* control : Form().Controls()) {
                EXPECT_EQ(control->Text().find("inf"), std::string::npos) << control->FullName();
                EXPECT_EQ(control->Text().find("nan"), std::string::npos) << control->FullName();
            }
            for (const auto& row : Calc.CaseResult) EXPECT_TRUE(std::isfinite(row[0]));
            Type(*box, good);
        }
    }
    User.Boxes.clear();
    Calculate(0);
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_NEAR(Val(Form().txtDestPress(0).Text()), 90.31, 0.001);
}

TEST_F(LiquidForm, UntouchedNumbersKeepAllTheirDigits) {
    Calc.PipeData[2] = 1.0 / 3 * 10;
    Calc.CaseInput[1][0] = 3600 / 3.785412;
    ShowForm("frmLiqLineLoss");
    Calc.UnitsConverted = words::Yes;
    Form().Dispatch([] { ControlOf("frmLiqLineLoss", "txtInletPipeID"); });
    auto& box = Form().txtInletPipeID;
    {
        Calc.FormLoading = words::Yes;
        box.SetText(Str(Calc.PipeData[2]));
        Calc.FormLoading = words::No;
    }
    Form().StoreForm();
    EXPECT_EQ(Calc.PipeData[2], 1.0 / 3 * 10);
}

TEST_F(LiquidForm, CopiesInputsAndResultsForASpreadsheet) {
    FillGoodCase(1);
    Calculate(1);
    ClickControl(Form().mnuCopyResults);
    EXPECT_NE(User.Copied.find("\tMaximum\tNormal\tMinimum\tUnit\n"), std::string::npos);
    EXPECT_NE(User.Copied.find("\nFlow\t\t100000\t\tlb/h\n"), std::string::npos) << User.Copied;
    EXPECT_NE(User.Copied.find("\nDestination pressure\t\t90.31\t\tpsig\n"), std::string::npos);
    EXPECT_EQ(User.Copied.find("Gate"), std::string::npos) << "a row without a value";
}

}  // namespace
}  // namespace quillmetra
