// What keys and clicks of a user do, and that what does not work refuses them.
#include "tests/platform/TestForms.h"

namespace quillmetra {
namespace {

class ActsForm : public PlainForm {
public:
    ActsForm() : PlainForm("frmActs") {
        for (Control* control : Controls()) {
            control->Click = [control] { Note(control->Name()); };
        }
        txtLocked.Locked = true;
        txtShort.MaxLength = 3;
        lstPipe.SetRows({"4", "6", "8"});
        mnuSave.Shortcut = "Ctrl+S";
        cmdOff.SetEnabled(false);
        TheLog.clear();
    }
    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuCase{mnuFile, "mnuCase", "&Case"};
    MenuItem mnuPure{mnuCase, "mnuPure", "&Pure"};
    MenuItem mnuSave{mnuFile, "mnuSave", "&Save"};
    TextBox txtName{*this, "txtName"};
    TextBox txtLocked{*this, "txtLocked"};
    TextBox txtShort{*this, "txtShort"};
    ListBox lstPipe{*this, "lstPipe"};
    CheckBox chkExit{*this, "chkExit", "&Exit loss"};
    CommandButton cmdOff{*this, "cmdOff", "&Off"};
    CommandButton cmdGo{*this, "cmdGo", "&Go"};
    CommandButton cmdStop{*this, "cmdStop", "S&top"};
};

class UserActs : public ModelTest {
protected:
    ActsForm& Form = Shown<ActsForm>("frmActs");
    static Log Events() { return std::exchange(TheLog, {}); }
};

TEST_F(UserActs, EnterAndEscapeGoByTheForm) {
    const struct {
        Control& On;
        const char* Key;
        CommandButton* Default;
        bool MovesOn;
        Log Clicked;
        Control* FocusAfter;
    } cases[] = {
        {Form.txtName, "Enter", nullptr, false, {}, &Form.txtName},
        {Form.txtName, "Enter", nullptr, true, {}, &Form.txtLocked},
        {Form.txtName, "Enter", &Form.cmdGo, false, {"cmdGo"}, &Form.cmdGo},
        {Form.txtName, "Enter", &Form.cmdGo, true, {"cmdGo"}, &Form.cmdGo},
        {Form.txtName, "Enter", &Form.cmdOff, true, {}, &Form.txtLocked},
        {Form.cmdStop, "Enter", &Form.cmdGo, false, {"cmdStop"}, &Form.cmdStop},
        {Form.txtName, "Escape", nullptr, false, {"cmdStop"}, &Form.cmdStop},
    };
    Form.CancelButton = &Form.cmdStop;
    for (const auto& each : cases) {
        Form.DefaultButton = each.Default;
        Form.EnterMovesOn = each.MovesOn;
        MoveFocus(each.On);
        Events();
        PressKey(each.On, each.Key);
        EXPECT_EQ(Events(), each.Clicked);
        EXPECT_EQ(Form.Focus.Current(), each.FocusAfter);
    }
    Form.CancelButton = nullptr;
    EXPECT_FALSE(PressKey(Form.txtName, "Escape"));
}

TEST_F(UserActs, TabGoesRoundTheStopsThatWork) {
    MoveFocus(Form.chkExit);
    PressKey(Form.chkExit, "Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.cmdGo) << "over the one that is off";
    PressKey(Form.cmdGo, "Shift+Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.chkExit);
    MoveFocus(Form.cmdStop);
    PressKey(Form.cmdStop, "Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.txtName);
    PressKey(Form.txtName, "Shift+Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.cmdStop);
    Form.TabOrder = {&Form.lstPipe, &Form.txtShort};
    PressKey(Form.cmdStop, "Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.lstPipe);
    PressKey(Form.lstPipe, "Tab");
    EXPECT_EQ(Form.Focus.Current(), &Form.txtShort);
}

TEST_F(UserActs, AccessKeysAndShortcutsAct) {
    EXPECT_TRUE(PressKey(Form.txtName, "Alt+g"));
    EXPECT_TRUE(PressKey(Form.cmdGo, "Alt+T"));
    EXPECT_TRUE(PressKey(Form.txtName, "Alt+e"));
    EXPECT_TRUE(Form.chkExit.Checked());
    EXPECT_FALSE(PressKey(Form.txtName, "Alt+o")) << "its button is off";
    EXPECT_FALSE(PressKey(Form.txtName, "Alt+z"));
    EXPECT_EQ(Events(), (Log{"cmdGo", "cmdStop", "chkExit"}));
    EXPECT_TRUE(PressKey(Form.txtName, "Ctrl+s"));
    EXPECT_EQ(Events(), (Log{"mnuFile", "mnuSave"}));
}

TEST_F(UserActs, KeysEditTextAndMoveInLists) {
    for (const char* key : {"1", "\xC3\xA9", "\xE2\x82\xAC", "Backspace", "2"}) PressKey(Form.txtName, key);
    EXPECT_EQ(Form.txtName.Text(),
              "1\xC3\xA9"
              "2")
        << "a character is not a byte";
    EXPECT_FALSE(PressKey(Form.txtName, "PageUp"));
    PressKey(Form.txtName, "Delete");
    EXPECT_EQ(Form.txtName.Text(), "");
    Form.txtName.KeyPress = [](Key& key) { key.Handled = key.Name == "x"; };
    EXPECT_TRUE(PressKey(Form.txtName, "x"));
    PressKey(Form.txtName, "y");
    EXPECT_EQ(Form.txtName.Text(), "y");
    for (const char* key : {"Up", "Up", "PageDown", "Down", "Up"}) PressKey(Form.lstPipe, key);
    EXPECT_EQ(Form.lstPipe.Selected(), 1);
    EXPECT_EQ(Events(), (Log{"lstPipe", "lstPipe", "lstPipe"})) << "no click where the row stays";
    Form.lstPipe.Clear();
    EXPECT_FALSE(PressKey(Form.lstPipe, "Down"));
    EXPECT_TRUE(PressKey(Form.chkExit, " "));
    EXPECT_TRUE(Form.chkExit.Checked());
}

TEST_F(UserActs, WhatDoesNotWorkIsRefused) {
    EXPECT_FALSE(ClickControl(Form.cmdOff));
    EXPECT_FALSE(DoubleClickControl(Form.cmdOff));
    EXPECT_FALSE(MoveFocus(Form.cmdOff));
    EXPECT_FALSE(PressKey(Form.cmdOff, "Enter"));
    EXPECT_FALSE(TypeText(Form.txtLocked, "x"));
    EXPECT_FALSE(TypeText(Form.cmdGo, "x"));
    EXPECT_FALSE(PickRow(Form.lstPipe, 3));
    EXPECT_FALSE(PickRow(Form.lstPipe, -1));
    EXPECT_FALSE(UnpickRow(Form.lstPipe, 0)) << "not a list of several";
    Form.lstPipe.SetVisible(false);
    EXPECT_FALSE(PickRow(Form.lstPipe, 0));
    EXPECT_TRUE(TypeText(Form.txtShort, "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"));
    EXPECT_EQ(Form.txtShort.Text(), "\xC3\xA9\xC3\xA9\xC3\xA9");
    EXPECT_EQ(Events(), Log{});
}

TEST_F(UserActs, MenuHeadsRunFromTheTopAndABoxShutsThem) {
    EXPECT_TRUE(ClickControl(Form.mnuPure));
    EXPECT_EQ(Events(), (Log{"mnuFile", "mnuCase", "mnuPure"}));
    Form.mnuCase.Click = [] { Tell("Enter the pressure first", "Check"); };
    EXPECT_FALSE(OpenMenu(Form.mnuCase));
    EXPECT_TRUE(ClickControl(Form.mnuPure));
    EXPECT_EQ(Events(), (Log{"mnuFile"}));
    // An unexpected failure of a head is a box too.
    Form.mnuCase.Click = [] { throw failure::Overflow(); };
    ClickControl(Form.mnuPure);
    EXPECT_EQ(Events(), (Log{"mnuFile"}));
    // The head decides about its entries, on and off.
    Form.mnuPure.SetEnabled(false);
    Form.mnuCase.Click = [&] { Form.mnuPure.SetEnabled(!Form.mnuPure.Enabled()); };
    EXPECT_TRUE(ClickControl(Form.mnuPure));
    EXPECT_FALSE(ClickControl(Form.mnuPure));
    EXPECT_EQ(Events(), (Log{"mnuFile", "mnuPure", "mnuFile"}));
    Form.mnuFile.SetEnabled(false);
    EXPECT_FALSE(ClickControl(Form.mnuPure)) << "nobody gets past a head that is off";
    EXPECT_EQ(Events(), Log{});
}

TEST_F(UserActs, ADoubleClickIsAClickFirst) {
    Form.lstPipe.DoubleClick = [] { Note("double"); };
    MoveFocus(Form.lstPipe);
    DoubleClickControl(Form.lstPipe);
    EXPECT_EQ(Events(), (Log{"lstPipe", "double"}));
}

}  // namespace
}  // namespace quillmetra
