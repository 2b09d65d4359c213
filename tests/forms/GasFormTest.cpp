// The gas line-loss form where its fluid is in danger: lists given up halfway, files that fail, numbers
// without sense.
#include "core/Words.h"
#include "forms/frmGasLineLoss.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class GasForm : public SuiteTest {
protected:
    GasForm() {
        RegisterForms();
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", 2));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        Suite.HideFluidReminder = Suite.HideFlowStatus = words::Yes;
        for (const auto& [box, text] : {std::pair{"txtInletPipeLen", "100"}, {"txtInletPipeID", "4.026"}}) {
            Type(*Form().Find(box), text);
        }
        for (const auto& [box, text] : {std::pair{"txtFlow", "5000"},
                                        {"txtTemp", "80"},
                                        {"txtPressure", "150"},
                                        {"txtMW", "16.04"},
                                        {"txtRatioSH", "1.3"},
                                        {"txtCritTemp", "343"},
                                        {"txtCritPressure", "667"},
                                        {"txtViscosity", "0.011"}}) {
            Type(*Form().Find(box, 0), text);
        }
    }

    frmGasLineLoss& Form() { return dynamic_cast<frmGasLineLoss&>(*LoadedForm("frmGasLineLoss")); }
    static void Type(Control& box, const std::string& text) {
        ASSERT_TRUE(MoveFocus(box)) << box.FullName();
        ASSERT_TRUE(TypeText(box, text)) << box.FullName();
    }
    void Pick(const std::string& name) {
        ListBox& list = Form().Fluids.lstFluid;
        const auto row = std::find_if(list.Rows().begin(), list.Rows().end(),
                                      [&](const std::string& each) { return each.starts_with(name); });
        ASSERT_TRUE(PickRow(list, static_cast<int>(row - list.Rows().begin()))) << name;
        ASSERT_TRUE(ClickControl(Form().Fluids.cmdSelect));
    }
    void MixMethaneAndEthane() {
        ClickControl(Form().mnuMixtures1);
        Pick("Methane ");
        Type(Form().Mixture.txtPercent(0), "60");
        Pick("Ethane ");
        PressKey(Form().Mixture.txtPercent(1), "R");
        ASSERT_TRUE(ClickControl(Form().Mixture.cmdCalcPseudo));
        ASSERT_EQ(Form().txtFluid.Text(), "Mixture");
    }
};

// What is saved, left or opened while a list is open is the fluid in hand, not the one that is being picked.
TEST_F(GasForm, AnActBesideAnOpenListGivesTheListUp) {
    MixMethaneAndEthane();
    Suite.DefaultPaths[1] = SuitePath(Folder);
    Type(Form().txtTagNum, "M-1");
    ClickControl(Form().mnuPureGases1);
    ASSERT_TRUE(Form().Fluids.IsOpen());
    User.Answers = {Answer::Yes};  // make the database
    ClickControl(Form().mnuSave);
    EXPECT_FALSE(Form().Fluids.IsOpen());
    EXPECT_EQ(Calc.MixtureFlag, words::Yes);
    EXPECT_EQ(Calc.OtherCalcs.substr(6, 2), "MX");

    ClickControl(Form().mnuMixtures1);
    Pick("Propane ");
    ClickControl(Form().Base.mnuSTP);
    EXPECT_FALSE(Form().Mixture.fraComponent.Visible());
    EXPECT_TRUE(Calc.FluidData[2].empty()) << "the component that was not calculated";
    ClickControl(Form().Base.cmdOKSTP);
    EXPECT_TRUE(CanAct(Form().txtFlow(0)));
    EXPECT_TRUE(Form().mnuMixtures1.Checked());
}

TEST_F(GasForm, ANameTypedOverIsNeitherSteamNorAMixture) {
    ClickControl(Form().mnuSatSteam1);
    EXPECT_EQ(Form().txtFluid.Text(), "Steam");
    Type(Form().txtFluid, "Air");
    EXPECT_TRUE(Calc.SteamKind.empty());
    EXPECT_FALSE(Form().mnuSatSteam1.Checked());
    EXPECT_TRUE(Form().Caption().ends_with("Gas Flow"));
    MixMethaneAndEthane();
    Type(Form().txtFluid, "Air");
    EXPECT_EQ(Calc.MixtureFlag, words::No);
}

TEST_F(GasForm, SteamThatIsNotToBeHadLeavesAnotherGasAlone) {
    ClickControl(Form().mnuPureGases1);
    Pick("Methane ");
    Type(Form().txtTemp(0), "150");
    User.Answers = {Answer::No};
    ClickControl(Form().mnuSupersteam1);
    EXPECT_EQ(User.Boxes.back().Title, "Superheat Temperature");
    EXPECT_EQ(Form().txtMW(0).Text(), " 16.04");
    EXPECT_EQ(Form().txtFluid.Text(), "Methane");
}

TEST_F(GasForm, PercentagesWithoutSenseAreRefused) {
    MixMethaneAndEthane();
    ClickControl(Form().mnuMixtures1);
    ClickControl(Form().Mixture.cmdClear);
    ClickControl(Form().Mixture.cmdCalcPseudo);
    EXPECT_EQ(User.LastText(), "Sum of percentages must equal 100");
    Type(Form().Mixture.txtPercent(0), "150");
    Type(Form().Mixture.txtPercent(1), "-50");
    ClickControl(Form().Mixture.cmdCalcPseudo);
    EXPECT_EQ(User.LastText(), "A percentage must not be less than zero");
    ClickControl(Form().Fluids.cmdCancel);
    EXPECT_EQ(Calc.FluidPercent[0], 60);
}

}  // namespace
}  // namespace quillmetra
