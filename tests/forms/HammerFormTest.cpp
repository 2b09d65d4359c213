// The water hammer form where no script reaches: a record that was opened, a table that is missing.
#include "core/Words.h"
#include "forms/frmWaterHammer.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "reports/FormRefresh.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"

namespace quillmetra {
namespace {

class HammerForm : public SuiteTest {
protected:
    HammerForm() {
        RegisterForms();
        StartUp(SuitePath(Folder));
    }

    static void OpenNew() {
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", 3));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    // What stands in the record when the browser has read it and shows the form.
    static void OpenSaved(double selectedTime) {
        ResetRecord();
        Calc.CurrentProgram = 3;
        Calc.FluidType = words::Liquid;
        ApplyNamedUnitSet(1);
        Calc.FluidName = "Brine";
        Calc.PipeMaterial = "Copper";
        Calc.CaseInput[1][0] = 400000;
        Calc.CaseInput[2][0] = 60;
        Calc.CaseInput[3] = {100, 300, 0};
        Calc.CaseInput[10][0] = selectedTime;
        Calc.CaseInput[18] = {6.065, 0, 0.28};
        for (std::size_t i = 12; i <= 18; ++i) Calc.HammerResult[i] = static_cast<double>(i);
        TakeSaved();
        MarkCalculated();
        Calc.InCalculation = Calc.BrowserOpen = Calc.DataOk = Calc.FormLoading = words::Yes;
        ShowForm("frmWaterHammer");
        ShowCalculation();
        Calc.FormLoading = words::No;
    }

    static frmWaterHammer& Form() { return dynamic_cast<frmWaterHammer&>(*LoadedForm("frmWaterHammer")); }
};

TEST_F(HammerForm, AnOpenedRecordStandsAsItWasSaved) {
    OpenSaved(4);
    EXPECT_EQ(Form().txtPipeMatl.Text(), "Copper");
    EXPECT_EQ(Form().txtMaxAllowPressure.Text(), " 300");
    EXPECT_EQ(Form().txtPipeWall.Text(), " 0.28");
    EXPECT_EQ(Form().txtSelectedTime.Text(), " 4");
    EXPECT_TRUE(Form().txtSelectedTime.Visible());
    EXPECT_EQ(Form().txtCriticalTime.Text(), " 12");
    EXPECT_EQ(Form().txtSelectedForce.Text(), " 18");
    EXPECT_EQ(Calc.FluidOk, words::FluidPicked);
    EXPECT_EQ(Form().txtPipeMatl.ForeColour(), Suite.Colours[4]);
    MoveFocus(Form().txtPipeMatl);
    TypeText(Form().txtPipeMatl, "Bronze");
    MoveFocus(Form().txtTagNum);
    EXPECT_EQ(Form().txtPipeMatl.ForeColour(), Suite.Colours[10]);
    EXPECT_EQ(Form().txtCriticalTime.Text(), "");
    // A saved record tells what has changed, where a new one only says that it is new.
    MoveFocus(Form().txtFlowTemp);
    TypeText(Form().txtFlowTemp, "70");
    MoveFocus(Form().txtTagNum);
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.Boxes[0].Title, "Temperature Has Changed");
}

TEST_F(HammerForm, WithoutASelectedTimeItsBoxWaitsForTheFirstCalculation) {
    OpenSaved(0);
    EXPECT_FALSE(Form().txtSelectedTime.Visible());
    EXPECT_FALSE(Form().lblSelectedTime.Visible());
}

TEST_F(HammerForm, StandardPressureFallsBackOnItsOwnValue) {
    OpenNew();
    Calc.StdPressure = Calc.StdTemperature = Calc.BaroPressure = 0;
    ClickControl(Form().cmdCalculateliq);
    EXPECT_EQ(Calc.StdPressure, 14.73);
    EXPECT_EQ(Calc.CaseInput[22][0], 14.73);
    EXPECT_EQ(Calc.StdTemperature, 60);
    EXPECT_EQ(Calc.BaroPressure, 14.7);
}

}  // namespace
}  // namespace quillmetra
