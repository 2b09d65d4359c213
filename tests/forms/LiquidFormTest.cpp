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

TEST_F(LiquidForm, AnInputChangeBlanksTheResultsItTouches) {
    for (const int i : {0, 1}) FillGoodCase(i);
    Suite.HideFlowStatus = words::Yes;
    for (const int i : {0, 1}) Calculate(i);
    frmLiqLineLoss& form = Form();
    Type(form.txtFlow(0), "90000");
    EXPECT_TRUE(form.txtDestPress(0).Text().empty());
    EXPECT_FALSE(form.txtDestPress(1).Text().empty()) << "the other case keeps its results";
    Calculate(1);
    EXPECT_TRUE(form.txtDestPress(0).Text().empty()) << "a refresh does not bring blanked results back";
    ClickControl(form.chkEntrance);
    EXPECT_TRUE(form.txtDestPress(1).Text().empty());
    EXPECT_TRUE(form.txtEquivLen.Text().empty());

    Calculate(0);
    const std::string result = form.txtDestPress(0).Text();
    ClickControl(form.optSource);
    EXPECT_EQ(form.lblDestPress.Caption(), "Source pressure");
    EXPECT_EQ(form.lblPressure.Caption(), "Destination pressure");
    Calculate(0);
    EXPECT_NEAR(Val(form.txtDestPress(0).Text()) - 100, 100 - Val(result), 0.05);
    EXPECT_EQ(form.lblDestPress.Caption(), "Source pressure") << "the refresh leaves this label alone";
}

TEST_F(LiquidForm, DrawsTheLineOfTheLastCalculatedCase) {
    for (const int i : {0, 1}) FillGoodCase(i);
    Suite.HideFlowStatus = words::Yes;
    frmLiqLineLoss& form = Form();
    EXPECT_TRUE(form.pltLine.IsEmpty());
    Calculate(0);
    EXPECT_EQ(form.pltLine.Text(), "Maximum case: Pressure 100 to 90.31 psig over 1000 ft");
    Calculate(1);
    EXPECT_EQ(form.pltLine.Text(), "Normal case: Pressure 100 to 90.31 psig over 1000 ft");
    Type(form.txtFlow(0), "90000");
    EXPECT_FALSE(form.pltLine.IsEmpty()) << "another case than the drawn one lost its results";
    Type(form.txtFlow(1), "90000");
    EXPECT_TRUE(form.pltLine.IsEmpty());

    ClickControl(form.optSource);
    Calculate(1);
    EXPECT_EQ(form.pltLine.Text(), "Normal case: Pressure 107.9 to 100 psig over 1000 ft");
    ClickControl(form.cmdFormLayout);
    ClickControl(ControlOf("frmCalcOptions", "optAbsolutePressure"));
    ClickControl(ControlOf("frmCalcOptions", "cmdOKOptions"));
    EXPECT_FALSE(form.txtDestPress(1).Text().empty());
    EXPECT_EQ(form.pltLine.Text(), "Normal case: Pressure 122.6 to 114.7 psia over 1000 ft");
    User.Answers = {Answer::No};  // to "Save changes?"
    ClickControl(form.mnuNew);
    EXPECT_TRUE(form.pltLine.IsEmpty());
}

TEST_F(LiquidForm, ChangedValuesAreShownInTheChangedColour) {
    FillGoodCase(0);
    Suite.HideFlowStatus = words::Yes;
    frmLiqLineLoss& form = Form();
    EXPECT_EQ(form.txtFlow(0).ForeColour(), Suite.Colours[4]) << "nothing to compare with yet";
    Calculate(0);
    Type(form.txtFlow(0), "90000");
    EXPECT_EQ(form.txtFlow(0).BackColour(), Suite.Colours[11]) << "the focus";
    MoveFocus(form.txtTemp(0));
    EXPECT_EQ(form.txtFlow(0).ForeColour(), Suite.Colours[10]);
    EXPECT_EQ(form.txtFlow(0).BackColour(), Suite.Colours[3]);
    Type(form.txtFlow(0), "100000.0");
    MoveFocus(form.txtTemp(0));
    EXPECT_EQ(form.txtFlow(0).ForeColour(), Suite.Colours[4]) << "the same number in other words";
    Type(form.txtFlow(0), "12,5");
    MoveFocus(form.txtTemp(0));
    EXPECT_EQ(form.Status(), "12,5 is read as 12");
    MoveFocus(form.txtPressure(0));
    EXPECT_EQ(form.Status(), "") << "the next box takes the note away";

    ClickControl(form.chkExit);
    EXPECT_EQ(form.chkExit.ForeColour(), Suite.Colours[10]);
    ClickControl(form.chkExit);
    EXPECT_EQ(form.chkExit.ForeColour(), Suite.Colours[2]);
}

TEST_F(LiquidForm, AMissingOrHostileLiquidTableDoesNoHarm) {
    frmLiqLineLoss& form = Form();
    Suite.HideFluidReminder = words::Yes;
    Type(form.txtTemp(0), "100");
    Type(form.txtPressure(0), "50");
    std::filesystem::remove(DataFolder() / "Liquid.txt");
    ClickControl(form.mnuPureLiquid1);
    EXPECT_EQ(User.LastText(), "File Liquid.txt");
    EXPECT_TRUE(form.Fluids.IsOpen());
    EXPECT_FALSE(form.Fluids.cmdSelect.Enabled());
    PressKey(form.Fluids.cmdCancel, "Escape");
    EXPECT_FALSE(form.Fluids.IsOpen());

    const std::string bytes("Bytes \0\xFF\x80,1,2", 13);
    WriteData("LIQUID.TXT", "head\r\nShort,1,2\r\n" + bytes + "\nZero,1,0,0,0,0,0,0,0,0,0,\r\n");
    ClickControl(form.mnuPureLiquid1);
    ASSERT_EQ(form.Fluids.lstFluid.RowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        if (!form.Fluids.IsOpen()) ClickControl(form.mnuPureLiquid1);
        PickRow(form.Fluids.lstFluid, row);
        User.Answers.assign(5, Answer::Yes);
        ClickControl(form.Fluids.cmdSelect);
        EXPECT_EQ(User.LastText(), "Fluid properties cannot be calculated") << row;
        EXPECT_TRUE(form.txtSGFlow(0).Text().empty());
        EXPECT_TRUE(CanAct(form.txtFlow(0)));
    }
}

TEST_F(LiquidForm, NewEmptiesTheFormAndKeepsTheUnits) {
    FillGoodCase(0);
    Suite.HideFlowStatus = words::Yes;
    Type(Form().txtTagNum, "  FT-101 ");
    Calculate(0);
    EXPECT_EQ(Form().txtTagNum.Text(), "FT-101");
    User.Answers = {Answer::No};  // to "Save changes?"
    ClickControl(Form().mnuNew);
    for (const FormRow& row : FormRows(1))
        EXPECT_TRUE(RowControl(Form(), row, 0).Text().empty()) << row.Control;
    EXPECT_TRUE(Form().txtTagNum.Text().empty());
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "lb/h");
    EXPECT_EQ(Form().Caption(), "Ver.6.0.0.  Line Loss  - Liquid flow");
    EXPECT_EQ(Calc.PipeData[4], 1);
    FillGoodCase(2);
    Calculate(2);
    EXPECT_NEAR(Val(Form().txtDestPress(2).Text()), 90.31, 0.001);
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
