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

TEST_F(UnitForms, SiUnitsConvertInputsAndResultsTogether) {
    FillGoodCase(1);
    for (const int i : {0, 1}) Calculate(i);
    Type(Form().txtEquip(1), "1");
    User.Boxes.clear();
    OpenOptions();
    EXPECT_FALSE(CanAct(Form().txtFlow(0))) << "the calculation waits for its panel";
    EXPECT_EQ(Options().fraUnits.Caption(), "Liquid - Unit options");
    EXPECT_EQ(Options().OptLeaveAsIs.Caption(), "Currently - English mass units");
    EXPECT_TRUE(Options().optMassEnglishUnits.Checked());
    ClickControl(Options().optMassSIUnits);
    User.Answers = {Answer::Yes};
    ClickControl(Options().cmdOKOptions);
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.Boxes[0].Text,
              "Round converted data?\n  Yes or No to round\n\n(or Cancel to hide the message)");
    EXPECT_EQ(User.Boxes[0].Title, "Line Loss  - Liquid flow");
    ASSERT_EQ(LoadedForm("frmCalcOptions"), nullptr);
    ASSERT_TRUE(CanAct(Form().cmdCalculate(0)));
    EXPECT_EQ(Form().Basis.lblSetupSelections.Caption().substr(0, 13), "SI mass units");
    EXPECT_EQ(Form().cmdUnits(3).Caption(), "kPag");
    EXPECT_NEAR(Number(Form().txtFlow(0)), 100000 / 7936.641, 1e-4);
    EXPECT_NEAR(Number(Form().txtTemp(0)), 15.5556, 1e-4);
    EXPECT_NEAR(Number(Form().txtPressure(0)), 100 / 0.14504, 1e-2);
    EXPECT_NEAR(Number(Form().txtInletPipeLen), 1000 / 3.281, 1e-3);
    EXPECT_NEAR(Number(Form().txtInletPipeID), 4.026 / 0.03937, 1e-3);
    EXPECT_NEAR(Number(Form().txtViscosity(0)), 0.001, 1e-9);
    EXPECT_NEAR(Number(Form().txtDestPress(0)), 90.31 / 0.14504, 1e-2) << "results follow their unit";
    EXPECT_NEAR(Number(Form().txtEquivLen), 1000 / 3.281, 1e-3) << "that of the line stands by one case";
    const double converted = Number(Form().txtDestPress(0));
    Calculate(0);
    EXPECT_NEAR(Number(Form().txtDestPress(0)), converted, 0.1) << "and agree with a new calculation";
    EXPECT_NEAR(Number(Form().txtVelocity(0)), 5.035 / 3.281, 1e-3);
}

TEST_F(UnitForms, GaugeAbsoluteAndDensityInOneOk) {
    const std::string before = Form().txtDestPress(0).Text();
    OpenOptions();
    ClickControl(Options().optVolSIUnits);
    ClickControl(Options().optAbsolutePressure);
    ClickControl(Options().optLiqDensity);
    ClickControl(Options().cmdOKOptions);
    EXPECT_EQ(Form().cmdUnits(3).Caption(), "kPaa");
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "litre/s");
    EXPECT_TRUE(Form().cmdUnits(6).Visible());
    EXPECT_EQ(Form().lblSGFlow.Caption(), "Flowing density");
    EXPECT_NEAR(Number(Form().txtPressure(0)), 114.7 / 0.14504, 0.1);
    EXPECT_NEAR(Number(Form().txtSGFlow(0)), 62.366 / 0.062428, 0.3);
    EXPECT_NEAR(Number(Form().txtFlow(0)), 100000 / 8.3378 / (3600 / 3.785412), 0.01);
    Calculate(0);
    EXPECT_TRUE(User.Boxes.size() == 1U) << User.LastText();
    EXPECT_NEAR(Number(Form().txtDestPress(0)) * 0.14504 - 14.7, Val(before), 0.05);

    OpenOptions();  // and back
    ClickControl(Options().optMassEnglishUnits);
    ClickControl(Options().OptGaugePress);
    ClickControl(Options().optLiqSG);
    ClickControl(Options().cmdOKOptions);
    EXPECT_NEAR(Number(Form().txtPressure(0)), 100, 0.06);
    EXPECT_NEAR(Number(Form().txtSGFlow(0)), 1, 0.0006);
    EXPECT_NEAR(Number(Form().txtFlow(0)), 100000, 60);
}

TEST_F(UnitForms, AbsolutePressureAndDensityHaveMessagesOfTheirOwn) {
    OpenOptions();
    ClickControl(Options().optAbsolutePressure);
    ClickControl(Options().optLiqDensity);
    ClickControl(Options().cmdOKOptions);
    const struct {
        TextBox& Box;
        const char* Message;
    } cases[] = {{Form().txtPressure(0), "Pressure must be greater than zero"},
                 {Form().txtSGFlow(0), "Flowing Density must be greater than zero"}};
    for (const auto& each : cases) {
        const std::string good = each.Box.Text();
        Type(each.Box, "0");
        Calculate(0);
        EXPECT_EQ(User.LastText(), each.Message);
        EXPECT_EQ(Form().Focus.Current(), &each.Box);
        Type(each.Box, good);
    }
    Calculate(0);
    EXPECT_NEAR(Number(Form().txtDestPress(0)), 90.31 + 14.7, 0.02);
}

TEST_F(UnitForms, CancelLeavesNoTrace) {
    const std::string pressure = Form().txtPressure(0).Text();
    OpenOptions();
    ClickControl(Options().optMassSIUnits);
    ClickControl(Options().optAbsolutePressure);
    PressKey(Options().optMassSIUnits, "Escape");
    EXPECT_EQ(Form().txtPressure(0).Text(), pressure);
    EXPECT_EQ(Calc.UnitName[3], "psig");
    EXPECT_TRUE(CanAct(Form().cmdCalculate(0)));

    OpenUnits();
    Choose(1, "kg");
    ClickControl(Units().cmdUnit(1));
    ClickControl(Units().optVol);
    ClickControl(Units().cmdBasis);
    ClickControl(Units().cmdCancel);
    CloseWindow(Units());
    EXPECT_EQ(Calc.LiquidBasis, words::Mass);
    EXPECT_EQ(Calc.UnitName[1], "lb/h");
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    Calculate(0);
    EXPECT_EQ(Form().txtDestPress(0).Text(), " 90.31");
}

TEST_F(UnitForms, UnitsPickedOneByOne) {
    OpenUnits();
    EXPECT_EQ(Units().Caption(), "Liquid. Units - Default Library");
    EXPECT_EQ(Units().lblFactor(1).Caption(), "lb");
    EXPECT_EQ(Units().lblFactor(5).Caption(), "/h");
    EXPECT_FALSE(Units().fraRow(0).Visible());
    EXPECT_FALSE(Units().fraRow(9).Visible()) << "a liquid with gravity has no density unit";
    Choose(3, "barg");
    Choose(2, "degC");
    Choose(5, "/m");
    Choose(7, "cs");
    User.Answers = {Answer::Yes, Answer::Yes};
    ClickControl(Units().cmdOK);
    ASSERT_EQ(LoadedForm("frmUnits"), nullptr);
    EXPECT_EQ(User.Boxes[0].Text, "Update calculation for changes?\n\nOK?");
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "lb/m");
    EXPECT_NEAR(Number(Form().txtFlow(0)), 100000.0 / 60, 0.01);
    EXPECT_NEAR(Number(Form().txtPressure(0)), 100 / 14.504, 1e-4);
    EXPECT_NEAR(Number(Form().txtTemp(0)), 15.5556, 1e-4);
    EXPECT_NEAR(Number(Form().txtViscosity(0)), 1, 1e-9);
    Calculate(0);
    EXPECT_NEAR(Number(Form().txtDestPress(0)), 90.31 / 14.504, 0.002);
    OpenOptions();
    EXPECT_EQ(Options().OptLeaveAsIs.Caption(), "Currently - User selected units");
    EXPECT_TRUE(Options().OptLeaveAsIs.Checked()) << "OK must not fall back to a named set";
}

TEST_F(UnitForms, AUserAddsUnitsOfTheirOwn) {
    OpenUnits();
    ClickControl(Units().cmdUnit(25));
    EXPECT_FALSE(CanAct(Units().cmdOK)) << "only the panel works";
    PickRow(Units().cboUnit, 0);
    TypeText(Units().cboUnit, "foot");
    EXPECT_EQ(User.LastText(), "This item is a base unit and cannot be changed");
    EXPECT_TRUE(Units().cboUnit.Text().empty());
    EXPECT_FALSE(CanAct(Units().cmdReplace));

    PickRow(Units().cboUnit, 3);
    TypeText(Units().cboUnit, "123456789");
    TypeText(Units().cboFactor, "3");
    ClickControl(Units().cmdReplace);
    EXPECT_EQ(User.LastText(), "Maximum of 8 characters");
    EXPECT_EQ(User.Boxes.back().Title, "New Unit Name");
    TypeText(Units().cboUnit, "12345678");
    for (const char* bad : {"0", "-1", "abc", "1e-320", ""}) {
        TypeText(Units().cboFactor, bad);
        ClickControl(Units().cmdSelect);
        EXPECT_EQ(User.LastText(), "Multiplier must be greater than zero") << bad;
        EXPECT_EQ(User.Boxes.back().Title, "Unit 12345678");
    }
    TypeText(Units().cboUnit, "yd");
    TypeText(Units().cboFactor, "3");
    ClickControl(Units().cmdReplace);
    ClickControl(Units().cmdSelect);
    EXPECT_EQ(Units().lblFactor(25).Caption(), "yd");

    // A pressure unit of one's own takes part in gauge and absolute.
    ClickControl(Units().cmdUnit(3));
    PickRow(Units().cboUnit, 9);
    TypeText(Units().cboUnit, "Torrg");
    TypeText(Units().cboFactor, "0.019337");
    ClickControl(Units().cmdReplace);
    ClickControl(Units().cmdCancel);
    EXPECT_EQ(Suite.PressureStem[10].Name, "Torr");

    User.Boxes.clear();
    ClickControl(Units().mnuSaveUnLibrary);
    EXPECT_EQ(User.Boxes[0].Title, "Confirm Deletion");
    EXPECT_EQ(Suite.UnitLibraryName, "User Library");
    ClickControl(Units().cmdOK);
    EXPECT_EQ(Form().cmdUnits(25).Caption(), "yd");
    EXPECT_NEAR(Number(Form().txtInletPipeLen), 1000.0 / 3, 1e-3);

    Suite.UnitLibraryName.clear();  // as at the next start
    OpenUnits();
    EXPECT_EQ(Suite.UnitLibraryName, "User Library");
    EXPECT_EQ(Suite.UnitLibrary[16][4].Name, "yd");
    ClickControl(Units().mnuDefaultUnLibrary);
    EXPECT_TRUE(Suite.UnitLibrary[16][4].Name.empty());
    ClickControl(Units().mnuDefaultUnLibrary);
    EXPECT_EQ(User.LastText(), "The default library is already loaded");
    User.Answers = {Answer::No};
    ClickControl(Units().mnuDeleteLib);
    ClickControl(Units().mnuRecallSavedUnLibrary);
    EXPECT_EQ(Suite.UnitLibraryName, "User Library") << "the answer No kept the file";
    User.Answers = {Answer::Yes, Answer::Yes};
    ClickControl(Units().mnuDeleteLib);
    ClickControl(Units().mnuRecallSavedUnLibrary);
    EXPECT_EQ(User.LastText(), "A User library has not been created");
}

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

TEST_F(UnitForms, BootUpUnitsComeBackAtTheNextCalculation) {
    OpenOptions();
    ClickControl(Options().optMassSIUnits);
    ClickControl(Options().cmdOKOptions);
    OpenOptions();
    ClickControl(Options().optAbsolutePressure);
    User.Boxes.clear();
    ClickControl(Options().cmdBootUpUnits);
    EXPECT_EQ(User.Boxes[0].Title, "New boot up Configuration for Liquid");
    EXPECT_EQ(User.Boxes[0].Text,
              "Use the the current unit display for bootup?\n\nIt uses absolute pressure instead of gauge "
              "pressure\n"
              "and liquid specific gravity instead of density\nSave?");
    EXPECT_EQ(Calc.PressureMode, words::Gauge) << "the record is converted by OK alone";
    ClickControl(Options().cmdCancelOptions);
    EXPECT_NEAR(Number(Form().txtPressure(0)), 100 / 0.14504, 1e-2);
    OpenLiquidAnew();
    EXPECT_EQ(Form().cmdUnits(1).Caption(), "kg/s");
    EXPECT_EQ(Form().cmdUnits(3).Caption(), "kPaa");
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
