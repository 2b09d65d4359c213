// The unit window and the options panel over the liquid line-loss form: what a user changes comes out right
// in every number, and Cancel leaves no trace.
#include "forms/frmCalcOptions.h"
#include "forms/frmUnits.h"
#include "platform/NumberText.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

class UnitForms : public LiquidForm {
protected:
    UnitForms() {
        FillGoodCase(0);
        Suite.HideFlowStatus = words::Yes;
        Calculate(0);
        User.Boxes.clear();
    }

    static frmUnits& Units() { return dynamic_cast<frmUnits&>(*LoadedForm("frmUnits")); }
    static frmCalcOptions& Options() { return dynamic_cast<frmCalcOptions&>(*LoadedForm("frmCalcOptions")); }

    static double Number(const Control& control) { return Val(control.Text()); }

    void OpenLiquidAnew() {
        User.Answers = {Answer::No};  // to "Save changes?"
        CloseWindow(Form());
        OpenLiquid();
    }
    void OpenOptions() { ASSERT_TRUE(ClickControl(Form().cmdFormLayout)); }
    void OpenUnits() { ASSERT_TRUE(ClickControl(Form().cmdUnits(2))); }

    // Chooses the unit of a row by its name in the list.
    static void Choose(int row, const std::string& name) {
        ASSERT_TRUE(ClickControl(Units().cmdUnit(row)));
        if (row <= 1) ClickControl(Units().cmdBasis);
        for (int line = 0; line < Units().cboUnit.RowCount(); ++line) {
            if (Units().cboUnit.Row(line) == name) PickRow(Units().cboUnit, line);
        }
        ASSERT_EQ(Units().cboUnit.Text(), name);
        ASSERT_TRUE(ClickControl(Units().cmdSelect));
    }
};

// What the unit window converts next must not be taken for a change of the flow's basis.
TEST_F(UnitForms, ANewCalculationInVolumeUnitsHasNothingToConvertYet) {
    OpenOptions();
    ClickControl(Options().optVolEnglishUnits);
    ClickControl(Options().cmdOKOptions);
    OpenLiquidAnew();
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "USgal/m");
    FillGoodCase(0);
    Type(Form().txtSGFlow(0), "0.8");
    OpenUnits();
    Choose(2, "degC");
    ClickControl(Units().cmdOK);
    EXPECT_EQ(Number(Form().txtFlow(0)), 100000);
    EXPECT_NEAR(Number(Form().txtTemp(0)), 15.5556, 1e-4);
}

// Neither a number below zero nor one that is lost may go on standing in its box in the former unit.
TEST_F(UnitForms, NoTextOutlivesItsUnit) {
    Type(Form().txtEquip(0), "-20");  // a pump
    Type(Form().txtSGFlow(0), "");
    EXPECT_EQ(Form().txtEquivLen.Text(), "") << "no case has results";
    OpenUnits();
    Choose(4, "kPa");
    Choose(7, "cs");
    ClickControl(Units().cmdOK);
    EXPECT_NEAR(Number(Form().txtEquip(0)), -20 / 0.14504, 1e-3);
    EXPECT_EQ(Form().txtViscosity(0).Text(), "") << "unknown without a gravity";
    Type(Form().txtSGFlow(0), "0.8");
    Calculate(0);
    EXPECT_EQ(User.LastText(), "Viscosity must be greater than zero");
}

TEST_F(UnitForms, UnitsOfTheUsersOwnStayWhatTheyAre) {
    OpenUnits();
    ClickControl(Units().cmdUnit(7));
    PickRow(Units().cboUnit, 5);
    TypeText(Units().cboUnit, "poise");
    TypeText(Units().cboFactor, "100");
    ClickControl(Units().cmdSelect);
    ClickControl(Units().cmdUnit(3));
    PickRow(Units().cboUnit, 9);
    TypeText(Units().cboUnit, "Torr");
    TypeText(Units().cboFactor, "0.019337");
    ClickControl(Units().cmdSelect);
    ClickControl(Units().cmdOK);
    EXPECT_EQ(Number(Form().txtViscosity(0)), 0.01);
    OpenUnits();
    Choose(2, "degC");
    ClickControl(Units().cmdOK);
    EXPECT_EQ(Number(Form().txtViscosity(0)), 0.01) << "another unit has changed";
    // A pressure unit without an ending belongs to no mode, so that the mode cannot change under its numbers.
    const std::string pressure = Form().txtPressure(0).Text();
    OpenOptions();
    ClickControl(Options().optAbsolutePressure);
    ClickControl(Options().cmdOKOptions);
    EXPECT_EQ(Calc.PressureMode, words::Gauge);
    EXPECT_EQ(Form().txtPressure(0).Text(), pressure);
    EXPECT_EQ(Form().Status(), "Torr is neither gauge nor absolute: the pressures stay as they were");
    Calculate(0);
    EXPECT_NEAR(Number(Form().txtDestPress(0)) * 0.019337, 90.31, 0.02);
}

TEST_F(UnitForms, TheBarometerKeepsItsDigits) {
    OpenOptions();
    EXPECT_EQ(Options().cmdBaroPress.Caption(), "psia");
    EXPECT_EQ(Number(Options().txtSTPBaro), 14.7);
    ClickControl(Options().cmdBaroPress);
    EXPECT_EQ(Number(Options().txtSTPBaro), 101.4);
    PressKey(Options().txtSTPBaro, "x");
    EXPECT_EQ(Number(Options().txtSTPBaro), 101.4);
    ClickControl(Options().cmdOKOptions);
    EXPECT_EQ(Calc.BaroPressure, 14.7);
    OpenOptions();
    TypeText(Options().txtSTPBaro, "13.5");
    ClickControl(Options().optMassSIUnits);
    ClickControl(Options().cmdOKOptions);
    EXPECT_EQ(Calc.BaroPressure, 13.5);
    EXPECT_EQ(Calc.CaseInput[23][0], 93.0778);
    OpenLiquidAnew();
    EXPECT_EQ(Calc.BaroPressure, 13.5) << "kept with the standard conditions";
}

}  // namespace
}  // namespace quillmetra
