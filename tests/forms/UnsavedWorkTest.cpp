// What a crash leaves, and what the next start makes of it.
#include "forms/UnsavedWork.h"

#include "forms/CalculationForm.h"
#include "forms/PanelReturn.h"
#include "forms/RecordInHand.h"
#include "records/Recovery.h"
#include "tests/forms/LiquidFormFixture.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

class UnsavedWork : public LiquidForm {
protected:
    UnsavedWork() {
        Suite.RecoveryFile = SuitePath(Folder / "TRRECOV.MDB");
        Suite.HideFlowStatus = words::Yes;
    }

    // The process ends without a word and starts again.
    void Crash() {
        ResetForms();
        Calc = CalcRecord();
        const std::string file = Suite.RecoveryFile;
        Suite = SuiteState();
        Suite.RecoveryFile = file;
        RegisterForms();
        StartUp(SuitePath(Folder));
        User.Boxes.clear();
    }
};

TEST_F(UnsavedWork, ComesBackAfterACrashOnce) {
    FillGoodCase(1);
    Type(Form().txtTagNum, "P-7");
    Calculate(1);
    const std::string pressure = Form().txtDestPress(1).Text();
    Type(Form().txtFlow(0), "123");
    KeepUnsavedWork();  // the minute
    Crash();
    ASSERT_TRUE(HasRecovery());
    User.Answers = {Answer::Yes};
    OfferRecovery();
    ASSERT_NE(LoadedForm("frmLiqLineLoss"), nullptr) << User.LastText();
    EXPECT_EQ(Form().txtTagNum.Text(), "P-7");
    EXPECT_EQ(Form().txtDestPress(1).Text(), pressure);
    EXPECT_EQ(Form().txtFlow(0).Text(), " 123");
    // It is still to be saved; given up, it is gone for good.
    User.Answers = {Answer::No};
    ClickControl(Form().mnuProgram);
    EXPECT_EQ(User.LastText(), "Save changes?");
    EXPECT_FALSE(HasRecovery());
    Crash();
    OfferRecovery();
    EXPECT_TRUE(User.Boxes.empty());
}

// What a save would refuse is kept, here the row of a component that a table of the user's own made too long,
// and a tag in the making is left as it is.
TEST_F(UnsavedWork, KeepsWhatASaveWouldRefuse) {
    const std::string row = std::string(399, 'f') + ',';
    FillGoodCase(1);
    Calculate(1);
    Calc.MixtureFlag = words::Yes;
    Calc.FluidData[0] = row;
    Calc.FluidPercent[0] = 100;
    Type(Form().txtTagNum, "P-7 ");
    KeepUnsavedWork();
    EXPECT_EQ(Form().txtTagNum.Text(), "P-7 ");
    Crash();
    User.Answers = {Answer::Yes};
    OfferRecovery();
    ASSERT_NE(LoadedForm("frmLiqLineLoss"), nullptr) << User.LastText();
    EXPECT_EQ(Form().txtTagNum.Text(), "P-7");
    EXPECT_EQ(Calc.FluidData[0], row);
    User.Answers = {Answer::Yes, Answer::Yes};
    ClickControl(Form().mnuSave);
    EXPECT_NE(User.LastText().find("holds at most"), std::string::npos) << User.LastText();
}

TEST_F(UnsavedWork, IsNotOfferedTwiceAndADamagedOneDoesNoHarm) {
    FillGoodCase(0);
    Calculate(0);
    Crash();
    User.Answers = {Answer::No};
    OfferRecovery();
    EXPECT_FALSE(HasRecovery());
    std::ofstream(Folder / "TRRECOV.MDB") << "no database";
    User.Answers = {Answer::Yes};
    OfferRecovery();
    EXPECT_EQ(User.LastText(), "The calculation cannot be recovered");
    EXPECT_FALSE(HasRecovery());
    EXPECT_TRUE(LoadedForm("frmTRProg")->Visible());
}

// The saved record of a program on its form, as the browser opens it.
CalculationForm& Reopen(int program, FakeHost& user) {
    user.Boxes.clear();
    RecordView view(Suite.DatabaseFile);
    view.Find("P" + std::to_string(program));
    EXPECT_TRUE(TakeRecord(view.Head()));
    ShowLoadedRecord();
    return *OpenCalculation();
}

// What a user can change at once: boxes, ticks, options and the date.
bool IsInput(CalculationForm& form, Control& control) {
    if (!CanAct(control)) return false;
    switch (control.Kind()) {
        case ControlKind::TextBox: return !static_cast<TextBox&>(control).Locked;
        case ControlKind::CheckBox: return control.Name() != "chkLossParts";  // shows more, changes nothing
        case ControlKind::OptionButton: return !static_cast<OptionButton&>(control).Checked();
        default: return &control == &form.cmdDate;
    }
}

// Leaves the form, and tells whether it asked about what was changed.
bool AsksWhenLeft(CalculationForm& form, FakeHost& user) {
    LeaveFocus(form);
    user.Answers.assign(9, Answer::No);
    ClickControl(form.mnuProgram);
    user.Answers.clear();
    return user.LastText() == "Save changes?";
}

TEST_F(UnsavedWork, EveryInputOfAReopenedRecordIsAskedFor) {
    Suite.DatabasePath = Suite.DefaultPaths[1];
    CreateDB(true);
    for (int program = 1; program <= 5; ++program) {
        TakeFilledRecord(program, 1, "P" + std::to_string(program));
        ASSERT_TRUE(SaveTRCalc()) << User.LastText();
        std::vector<std::size_t> inputs;
        {
            CalculationForm& form = Reopen(program, User);
            for (std::size_t i = 0; i < form.Controls().size(); ++i) {
                if (IsInput(form, *form.Controls()[i])) inputs.push_back(i);
            }
            EXPECT_FALSE(AsksWhenLeft(form, User)) << "nothing was changed in program " << program;
        }
        EXPECT_GE(inputs.size(), 13U);
        for (const std::size_t i : inputs) {
            CalculationForm& form = Reopen(program, User);
            Control& control = *form.Controls()[i];
            if (control.Kind() == ControlKind::TextBox) {
                Type(control, "7.5");
            } else {
                ClickControl(control);
            }
            EXPECT_TRUE(AsksWhenLeft(form, User)) << control.FullName() << " of program " << program;
        }
    }
}

TEST_F(UnsavedWork, ASaveNeedsNoRecovery) {
    FillGoodCase(0);
    Type(Form().txtTagNum, "P-8");
    Calculate(0);
    EXPECT_TRUE(HasRecovery());
    Suite.DefaultPaths[1] = SuitePath(Folder);
    User.Answers = {Answer::Yes};  // create the database
    ClickControl(Form().mnuSave);
    EXPECT_FALSE(HasRecovery());
    KeepUnsavedWork();
    EXPECT_FALSE(HasRecovery()) << "nothing has changed since";
}

}  // namespace
}  // namespace quillmetra
