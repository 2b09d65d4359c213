// Which fluid's properties end up in which case, whatever the user does in between.
#include "platform/NumberText.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

class LiquidFluid : public LiquidForm {
protected:
    void EnterState(int i, const std::string& temperature, const std::string& pressure) {
        Suite.HideFluidReminder = words::Yes;
        Type(Form().txtTemp(i), temperature);
        Type(Form().txtPressure(i), pressure);
    }
    double Gravity(int i) { return Val(Form().txtSGFlow(i).Text()); }
};

TEST_F(LiquidFluid, ARefusedFluidLeavesTheFormerOneToBeRenewed) {
    EnterState(0, "100", "50");
    PickLiquid(0, "Toluene ");
    User.Answers = {Answer::No};
    PickLiquid(0, "Propane ");
    EXPECT_NE(User.LastText().find("This indicates that the fluid is a gas!"), std::string::npos);
    EXPECT_EQ(Form().txtFluid.Text(), "Toluene");
    User.Answers = {Answer::Yes};
    Type(Form().txtTemp(0), "120");
    MoveFocus(Form().txtFlow(0));
    EXPECT_EQ(User.LastText(), "Update Fluid Properties?");
    EXPECT_NEAR(Gravity(0), 0.840, 0.005) << "toluene, not propane, at 120 degF";
}

TEST_F(LiquidFluid, TheListFillsTheCaseThatOpenedIt) {
    EnterState(0, "100", "50");
    EnterState(1, "200", "50");
    ClickControl(Form().mnuPureLiquid1);
    ASSERT_TRUE(Form().Fluids.IsOpen());
    EXPECT_FALSE(ClickControl(Form().mnuPureLiquid2));
    EXPECT_FALSE(OpenMenu(Form().mnuCase(1)));
    ClickControl(Form().Fluids.cmdSelect);
    EXPECT_GT(Gravity(0), 0);
    EXPECT_TRUE(Form().txtSGFlow(1).Text().empty());
    EXPECT_EQ(Form().Focus.Current(), &Form().cmdCalculate(0));
    EXPECT_TRUE(CanAct(Form().mnuPureLiquid2));
}

TEST_F(LiquidFluid, ANewTemperatureAsksEvenAfterADetourByTheMenu) {
    EnterState(0, "100", "50");
    PickLiquid(0, "Toluene ");
    Type(Form().txtTemp(0), "150");
    ClickControl(Form().mnuPureLiquid1);
    PressKey(Form().Fluids.lstFluid, "Escape");
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_EQ(Form().Focus.Current(), &Form().txtTemp(0));
    MoveFocus(Form().txtFlow(0));
    EXPECT_EQ(User.LastText(), "Update Fluid Properties?");
    User.Boxes.clear();
    MoveFocus(Form().txtTemp(0));
    MoveFocus(Form().txtFlow(0));
    EXPECT_TRUE(User.Boxes.empty()) << "once is enough";
    // A fluid picked at the new temperature answers the question.
    Type(Form().txtTemp(0), "160");
    PickLiquid(0, "Toluene ");
    MoveFocus(Form().txtTemp(0));
    MoveFocus(Form().txtFlow(0));
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    // The first number in an empty box is news, zero too.
    Type(Form().txtPressure(1), "50");
    Type(Form().txtTemp(1), "0");
    MoveFocus(Form().txtFlow(1));
    EXPECT_EQ(User.LastText(), "Update Fluid Properties?");
}

TEST_F(LiquidFluid, AnotherFluidsVapourPressureStopsNoCase) {
    for (const int i : {0, 1}) FillGoodCase(i);
    Suite.HideFlowStatus = words::Yes;
    EnterState(1, "200", "0");
    PickLiquid(1, "Toluene ");
    EXPECT_GT(Calc.CaseInput[8][1], 0);
    PickLiquid(0, "Water ");
    Type(Form().txtPressure(1), "-10");  // below toluene's vapour pressure at 200 degF
    User.Answers = {Answer::No};
    Type(Form().txtSGFlow(1), "0.9");
    User.Boxes.clear();
    Type(Form().txtInletPipeLen, "10");
    Calculate(1);
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_FALSE(Form().txtDestPress(1).Text().empty());
}

TEST_F(LiquidFluid, NewInTheMiddleOfAListLeavesAFreshForm) {
    EnterState(0, "100", "50");
    ClickControl(Form().mnuPureLiquid1);
    User.Answers = {Answer::No};  // to "Save changes?"
    ClickControl(Form().mnuNew);
    EXPECT_FALSE(Form().Fluids.IsOpen());
    EXPECT_EQ(Form().Focus.Current(), &Form().txtTagNum);
    EXPECT_TRUE(CanAct(Form().txtFlow(0)));
    ClickControl(Form().cmdMatl);
    ClickControl(Form().mnuNew);
    EXPECT_FALSE(Form().lstMatl.Visible());
}

}  // namespace
}  // namespace quillmetra
