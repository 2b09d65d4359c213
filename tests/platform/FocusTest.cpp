// The rules of the focus: which events come, in which order, and where the focus is in the end.
#include "tests/platform/TestForms.h"

namespace quillmetra {
namespace {

// Three boxes, a button and a menu entry that say what happens to them.
class FocusForm : public PlainForm {
public:
    FocusForm() : PlainForm("frmFocus") {
        for (Control* control : std::initializer_list<Control*>{&txtA, &txtB, &txtC, &cmdGo}) {
            control->GotFocus = [control] { Note("got " + control->Name()); };
            control->LostFocus = [control] { Note("lost " + control->Name()); };
            control->Click = [control] { Note("click " + control->Name()); };
        }
        mnuRun.Click = [] { Note("click mnuRun"); };
    }

    MenuItem mnuRun{*this, "mnuRun", "&Run"};
    TextBox txtA{*this, "txtA"};
    TextBox txtB{*this, "txtB"};
    TextBox txtC{*this, "txtC"};
    CommandButton cmdGo{*this, "cmdGo", "&Go"};
};

class Focus : public ModelTest {
protected:
    FocusForm& Form = Shown<FocusForm>("frmFocus");

    // The events since the last call.
    static Log Events() { return std::exchange(TheLog, {}); }
};

TEST_F(Focus, StartsAtTheFirstControlThatWorksAndStaysThere) {
    EXPECT_EQ(Events(), (Log{"got txtA"}));
    MoveFocus(Form.txtB);
    HideForm("frmFocus");
    ShowForm("frmFocus");
    EXPECT_EQ(Form.Focus.Current(), &Form.txtB);
    EXPECT_EQ(Events(), (Log{"lost txtA", "got txtB"})) << "another window is no loss of focus";
}

TEST_F(Focus, EachEventComesToItsEnd) {
    Events();
    ClickControl(Form.cmdGo);
    EXPECT_EQ(Events(), (Log{"lost txtA", "got cmdGo", "click cmdGo"}));
    ClickControl(Form.mnuRun);
    EXPECT_EQ(Events(), (Log{"click mnuRun"})) << "a menu entry does not move the focus";
    MoveFocus(Form.cmdGo);
    EXPECT_EQ(Events(), Log{}) << "no move, no event";
    LeaveFocus(Form);
    EXPECT_EQ(Events(), (Log{"lost cmdGo"}));
    EXPECT_EQ(Form.Focus.Current(), nullptr);
}

TEST_F(Focus, AMoveByCodeWaitsForTheHandlerAndIsNoLoss) {
    Events();
    Form.mnuRun.Click = [&] {
        Form.txtB.SetFocus();
        Form.txtC.SetFocus();
        Note("end of click");
    };
    ClickControl(Form.mnuRun);
    EXPECT_EQ(Events(), (Log{"end of click", "got txtC"})) << "the last one asked for wins";
    EXPECT_EQ(Form.Focus.Current(), &Form.txtC);
    Form.txtC.SetFocus();
    EXPECT_EQ(Events(), Log{}) << "it has the focus";
    Form.txtA.SetFocus();
    EXPECT_EQ(Events(), (Log{"got txtA"})) << "at once outside of a handler";
}

TEST_F(Focus, ACheckOnLeavingTakesTheFocusBack) {
    Events();
    Form.txtA.LostFocus = [&] {
        Note("lost txtA");
        Form.txtA.SetFocus();
    };
    ClickControl(Form.cmdGo);
    EXPECT_EQ(Events(), (Log{"lost txtA", "got cmdGo", "click cmdGo", "got txtA"}));
    EXPECT_EQ(Form.Focus.Current(), &Form.txtA);
}

TEST_F(Focus, OneLossOfFocusAtATime) {
    Events();
    // The host moves the focus again while a handler waits for a box.
    Form.txtA.LostFocus = [&] {
        Note("lost txtA");
        MoveFocus(Form.txtC);
        MoveFocus(Form.txtB);
    };
    MoveFocus(Form.txtC);
    EXPECT_EQ(Events(), (Log{"lost txtA", "got txtC", "got txtB", "got txtC"}));
}

TEST_F(Focus, WhatIsLeftMaySwitchOffWhatIsClicked) {
    Events();
    Form.txtA.LostFocus = [&] { Form.cmdGo.SetEnabled(false); };
    ClickControl(Form.cmdGo);
    EXPECT_EQ(Events(), Log{});
    EXPECT_EQ(Form.Focus.Current(), &Form.txtA);
    Form.cmdGo.SetEnabled(true);
    Form.txtA.LostFocus = [] { HideForm("frmFocus"); };
    ClickControl(Form.cmdGo);
    EXPECT_EQ(Events(), Log{}) << "a form that closed gets no click";
}

TEST_F(Focus, TwoThatAskForEachOtherEnd) {
    Form.txtA.GotFocus = [&] { Form.txtB.SetFocus(); };
    Form.txtB.GotFocus = [&] { Form.txtA.SetFocus(); };
    MoveFocus(Form.txtC);
    MoveFocus(Form.txtA);
    Events();
    ClickControl(Form.mnuRun);
    EXPECT_EQ(Events(), (Log{"click mnuRun"})) << "no move is left over for the next act";
}

TEST_F(Focus, AHiddenFormKeepsTheMoveForItsShowing) {
    HideForm("frmFocus");
    Events();
    Form.txtC.SetFocus();
    EXPECT_EQ(Events(), Log{});
    ShowForm("frmFocus");
    EXPECT_EQ(Events(), (Log{"got txtC"}));
}

// A dialog has its focus moves done while it is shown, not after the handler that shows it.
TEST_F(Focus, AModalFormHasALevelOfItsOwn) {
    class Dialog : public PlainForm {
    public:
        Dialog() : PlainForm("frmLevel") {
            txtTwo.GotFocus = [] { Note("got txtTwo"); };
            cmdOK.Click = [this] { txtTwo.SetFocus(); };
        }
        void Load() override { txtTwo.SetFocus(); }
        TextBox txtOne{*this, "txtOne"};
        TextBox txtTwo{*this, "txtTwo"};
        CommandButton cmdOK{*this, "cmdOK"};
    };
    RegisterForm("frmLevel", [] { return std::unique_ptr<quillmetra::Form>(std::make_unique<Dialog>()); });
    User.WhileShown = [](quillmetra::Form& form) {
        Note("shown");
        ClickControl(*form.Find("cmdOK"));
        HideForm("frmLevel");
    };
    Form.cmdGo.Click = [&] {
        Form.txtB.SetFocus();
        ShowForm("frmLevel", Modal::Yes);
        Note("end of click");
    };
    Events();
    ClickControl(Form.cmdGo);
    EXPECT_EQ(Events(), (Log{"lost txtA", "got cmdGo", "got txtTwo", "shown", "got txtTwo", "end of click",
                             "got txtB"}));
}

}  // namespace
}  // namespace quillmetra
