// The liquid line-loss form as a user meets it: from the browser to a result, its messages, its fluid.
#include <cmath>

#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

TEST_F(LiquidForm, OpensFromTheBrowserInEnglishUnits) {
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_FALSE(LoadedForm("frmTRProg")->Visible());
    EXPECT_TRUE(Form().Visible());
    EXPECT_EQ(Form().Caption(), "Ver.6.0.0.  Line Loss  - Liquid flow");
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "lb/h");
    EXPECT_EQ(Form().unVelocity.Caption(), "ft/s");
    EXPECT_EQ(Form().lblDropP100.Caption(), "Loss per 100 ft");
    EXPECT_EQ(Form().Basis.lblSetupSelections.Caption(), "English mass units, calculate data");
    EXPECT_EQ(Form().txtBy.Text(), "By");
    EXPECT_FALSE(Form().cmdUnits(6).Visible());
}

TEST_F(LiquidForm, CalculatesACaseWorkedByHand) {
    FillGoodCase(0);
    User.Answers = {Answer::Yes};
    Calculate(0);
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.LastText(),
              "Maximum flow in is in the Transition Zone  \nUse data with care\n\n\n(Press No to hide the "
              "message)");
    // Re = 6.31 x 100000 / 4.026 / 1 = 156731.2. The damped iteration with e = 0.0018 in and a = 2.51 stops
    // after 5 rounds at f = 0.01902024 (the root is 0.01902143: a step of 1e-6 is small enough for it), and
    // loss = 0.000336 f 100000^2 / 4.026^5 / 62.36 = 0.968903 psi per 100 ft. Worked by a short program.
    EXPECT_EQ(Form().txtReynoldsNum(0).Text(), " 156731");
    EXPECT_EQ(Form().txtVelocity(0).Text(), " 5.035");
    EXPECT_EQ(Form().txtDestPress(0).Text(), " 90.31");
    EXPECT_EQ(Form().txtDropP100(0).Text(), " 0.9689");
    EXPECT_EQ(Form().txtEquivLen.Text(), " 1000");
    EXPECT_EQ(Form().Focus.Current(), &Form().txtBy);
    EXPECT_TRUE(Form().txtDestPress(1).Text().empty()) << "a case with no input stays blank";
}

TEST_F(LiquidForm, RefusesBadDataInTheOrderOfTheForm) {
    FillGoodCase(1);
    frmLiqLineLoss& form = Form();
    const struct {
        TextBox& Box;
        const char* Bad;
        const char* Good;
        const char* Message;
    } cases[] = {
        {form.txtTemp(1), "", "60", "Flow Temperature must be greater than -459.67"},
        {form.txtTemp(1), "-459.67", "60", "Flow Temperature must be greater than -459.67"},
        {form.txtPressure(1), "-20", "100", "Pressure must be greater than minus 14.7"},
        {form.txtInletPipeLen, "0", "1000", "Length must be > zero "},
        {form.txtInletPipeLen, "abc", "1000", "Length must be > zero "},
        {form.txtInletPipeLen, "1e300", "1000", "Length must be < 10000000 ft"},
        {form.txtInletPipeID, "-4", "4.026", "Pipe inside diameter must be > zero "},
        {form.txtPipeCond, "101", "0", "Condition must be between 0 and 100"},
        {form.txtPipeCond, "-1", "0", "Condition must be between 0 and 100"},
        {form.txtPressure(1), "-14.7", "100", "Inlet pressure must be greater than Vapor pressure"},
        {form.txtSGFlow(1), "", "1", "Flowing specific gravity must be greater than zero"},
        {form.txtFlow(1), "", "100000", "Flow must be greater than zero"},
        {form.txtViscosity(1), "nan", "1", "Viscosity must be greater than zero"},
    };
    for (const auto& each : cases) {
        Type(each.Box, each.Bad);
        User.Boxes.clear();
        Calculate(1);
        ASSERT_EQ(User.Boxes.size(), 1U) << each.Message;
        EXPECT_EQ(User.Boxes[0].Text, each.Message);
        EXPECT_EQ(User.Boxes[0].Title, "Data checking");
        EXPECT_EQ(User.Boxes[0].Sign, Icon::Stop);
        EXPECT_EQ(form.Focus.Current(), &each.Box) << each.Message;
        EXPECT_TRUE(form.txtDestPress(1).Text().empty()) << each.Message;
        Type(each.Box, each.Good);
    }
    User.Boxes.clear();
    Calculate(1);
    EXPECT_FALSE(form.txtDestPress(1).Text().empty()) << "the form is usable after all of them";
}

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

TEST_F(LiquidForm, PicksALiquidOnceTemperatureAndPressureAreIn) {
    frmLiqLineLoss& form = Form();
    ClickControl(form.mnuPureLiquid1);
    EXPECT_EQ(User.LastText(), "Need Pressure and Temperature to continue");
    EXPECT_FALSE(form.Fluids.IsOpen());
    Suite.HideFluidReminder = words::Yes;
    Type(form.txtTemp(0), "100");
    Type(form.txtPressure(0), "50");
    User.Boxes.clear();
    ClickControl(form.mnuPureLiquid1);
    ASSERT_TRUE(form.Fluids.IsOpen()) << User.LastText();
    EXPECT_FALSE(CanAct(form.txtFlow(0))) << "only the list takes input";
    EXPECT_EQ(form.Focus.Current(), &form.Fluids.lstFluid);
    const auto& rows = form.Fluids.lstFluid.Rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].starts_with("Toluene ")) PickRow(form.Fluids.lstFluid, static_cast<int>(i));
    }
    PressKey(form.Fluids.lstFluid, "Enter");
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_EQ(form.txtFluid.Text(), "Toluene");
    // Toluene at 100 degF: density 53.0 lb/ft3, viscosity 0.49 cp, vapour pressure 1.03 psia (handbook).
    EXPECT_NEAR(Val(form.txtSGFlow(0).Text()), 0.850, 0.01);
    EXPECT_NEAR(Val(form.txtViscosity(0).Text()), 0.49, 0.02);
    EXPECT_NEAR(Calc.CaseInput[8][0], 1.03, 0.05);
    EXPECT_EQ(form.Focus.Current(), &form.cmdCalculate(0));

    // A new temperature offers to renew the properties.
    const double before = Val(form.txtViscosity(0).Text());
    User.Answers = {Answer::Yes};
    Type(form.txtTemp(0), "150");
    MoveFocus(form.txtFlow(0));
    EXPECT_EQ(User.LastText(), "Update Fluid Properties?");
    EXPECT_LT(Val(form.txtViscosity(0).Text()), before);
    // At 400 degF toluene's vapour pressure is above 64.7 psia: No gives the update up.
    User.Answers = {Answer::Yes, Answer::No};
    const std::string kept = form.txtViscosity(0).Text();
    Type(form.txtTemp(0), "400");
    MoveFocus(form.txtFlow(0));
    EXPECT_NE(User.LastText().find("This indicates that the fluid is a gas!"), std::string::npos);
    EXPECT_EQ(form.txtViscosity(0).Text(), kept);
    // Typed over by hand the name is no longer the table's fluid.
    Type(form.txtFluid, "Solvent");
    EXPECT_TRUE(Calc.FluidDataSource.empty());
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

TEST_F(LiquidForm, LeavesForTheBrowserAndComesBack) {
    CloseWindow(Form());
    EXPECT_EQ(LoadedForm("frmLiqLineLoss"), nullptr);
    EXPECT_TRUE(LoadedForm("frmTRProg")->Visible());
    ClickControl(ControlOf("frmTRProg", "cmdOK"));
    EXPECT_TRUE(LoadedForm("frmObxProg")->Visible());
    PressKey(ControlOf("frmObxProg", "optProgram", 1), "Escape");
    EXPECT_EQ(LoadedForm("frmObxProg"), nullptr);
    EXPECT_TRUE(LoadedForm("frmTRProg")->Visible());
    CloseWindow(*LoadedForm("frmTRProg"));
    EXPECT_TRUE(ProcessHasEnded());
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

TEST_F(LiquidForm, AnEditOfASavedRecordBlanksItsResults) {
    FillGoodCase(1);
    Type(Form().txtTagNum, "P-1");
    Calculate(1);
    User.Answers = {Answer::Yes};  // make the database
    Suite.DefaultPaths[1] = SuitePath(Folder);
    ClickControl(Form().mnuSave);
    ClickControl(Form().mnuProgram);
    ClickControl(ControlOf("frmTRProg", "cmdDBOpen"));
    ClickControl(ControlOf("frmTRProg", "cmdDisplayCalc"));
    ASSERT_FALSE(Form().txtDestPress(1).Text().empty());
    EXPECT_NE(Calc.FormLoading, words::Yes);
    Type(Form().txtFlow(1), "90000");
    EXPECT_EQ(Form().txtDestPress(1).Text(), "") << Calc.FormLoading << Calc.ResultsClearable[1];
}

}  // namespace
}  // namespace quillmetra
