// What setting a control from code fires and what it does not, and how controls of a form bear on each other.
#include "tests/platform/TestForms.h"

namespace quillmetra {
namespace {

class KindsForm : public PlainForm {
public:
    KindsForm() : PlainForm("frmKinds") {
        for (Control* control : Controls()) {
            control->Click = [control] { Note("click " + control->FullName()); };
        }
        txtName.Change = [] { Note("change txtName"); };
        cboFluid.Change = [] { Note("change cboFluid"); };
    }
    TextBox txtName{*this, "txtName"};
    ComboBox cboFluid{*this, "cboFluid"};
    Frame fraUnits{*this, "fraUnits", "&Units"};
    ControlArray<OptionButton> optUnits{fraUnits, "optUnits", {1, 2, 3}, ""};
    ControlArray<OptionButton> optSide{*this, "optSide", {1, 2}, ""};
    CheckBox chkExit{*this, "chkExit", "Exit"};
    MenuItem mnuSteam{*this, "mnuSteam", "Steam"};
    ListBox lstPipe{*this, "lstPipe"};
    Grid grdRows{*this, "grdRows"};
    Label lblName{*this, "lblName", "N&ame:"};
};

class ControlsOfAForm : public ModelTest {
protected:
    KindsForm& Form = Shown<KindsForm>("frmKinds");
    static Log Events() { return std::exchange(TheLog, {}); }
};

TEST_F(ControlsOfAForm, TextSetByCodeFiresChangeWhenItDiffers) {
    Form.txtName.SetText("a");
    Form.txtName.SetText("a");
    Form.cboFluid.SetText("b");
    EXPECT_EQ(Events(), (Log{"change txtName", "change cboFluid"}));
    Form.txtName.Change = [&] {
        Note("changed");
        Form.txtName.SetText("upper");
    };
    Form.txtName.SetText("x");
    EXPECT_EQ(Events(), (Log{"changed", "changed"}))
        << "a change within a change ends when the text is the same";
}

TEST_F(ControlsOfAForm, TicksCaptionsAndFillingFireNothing) {
    Form.optUnits(2).SetChecked(true);
    Form.chkExit.SetChecked(true);
    Form.mnuSteam.SetChecked(true);
    Form.lblName.SetCaption("other");
    Form.lstPipe.SetRows({"4", "6"});
    Form.lstPipe.Preselect(1);
    Form.lstPipe.Clear();
    Form.grdRows.SetSize(2, 2);
    Form.grdRows.SetCell(1, 1, "x");
    EXPECT_EQ(Events(), Log{});
    EXPECT_EQ(Form.lstPipe.Selected(), -1);
    EXPECT_EQ(Form.lstPipe.Text(), "");
}

TEST_F(ControlsOfAForm, OptionsOfOneContainerExcludeOneAnother) {
    Form.optUnits(1).SetChecked(true);
    Form.optSide(2).SetChecked(true);
    Form.optUnits(3).SetChecked(true);
    EXPECT_FALSE(Form.optUnits(1).Checked());
    EXPECT_TRUE(Form.optUnits(3).Checked());
    EXPECT_TRUE(Form.optSide(2).Checked()) << "another container";
    ClickControl(Form.optUnits(2));
    ClickControl(Form.optUnits(2));
    EXPECT_EQ(Events(), (Log{"click optUnits(2)"})) << "a click on the chosen option changes nothing";
    EXPECT_FALSE(Form.optUnits(3).Checked());
}

TEST_F(ControlsOfAForm, SelectingARowFiresClickWhenItDiffersAndExists) {
    Form.lstPipe.SetRows({"4", "6", "8"});
    for (const int row : {1, 1, 3, -2, 2, -1}) Form.lstPipe.Select(row);
    EXPECT_EQ(Events(), (Log{"click lstPipe", "click lstPipe"}));
    EXPECT_EQ(Form.lstPipe.Selected(), -1);
    EXPECT_EQ(Form.lstPipe.Row(3), "");
    EXPECT_EQ(Form.lstPipe.Row(-1), "");
    Form.lstPipe.Multiple = true;
    Form.lstPipe.Pick(0, true);
    Form.lstPipe.Pick(2, true);
    Form.lstPipe.Pick(0, false);
    Form.lstPipe.Pick(3, true);
    EXPECT_FALSE(Form.lstPipe.IsPicked(0));
    EXPECT_TRUE(Form.lstPipe.IsPicked(2));
    EXPECT_FALSE(Form.lstPipe.IsPicked(3));
}

TEST_F(ControlsOfAForm, AGridKnowsItsBounds) {
    Form.grdRows.SetSize(3, 2);
    Form.grdRows.SetCell(2, 1, "last");
    Form.grdRows.Select(2, 1);
    EXPECT_EQ(Form.grdRows.Text(), "last");
    EXPECT_THROW(Form.grdRows.Cell(3, 0), RuntimeError);
    EXPECT_THROW(Form.grdRows.Select(0, 2), RuntimeError);
    EXPECT_THROW(Form.grdRows.SetCell(-1, 0, ""), RuntimeError);
    Form.grdRows.SetSize(3, 1);
    EXPECT_EQ(Form.grdRows.Selected(), -1) << "the selected cell is gone";
    Form.grdRows.SetSize(-1, -1);
    EXPECT_EQ(Form.grdRows.RowCount(), 0);
    Form.grdRows.IsList = true;
    Form.grdRows.SetRows({{"head"}, {"row"}}, 1);
    Form.grdRows.Select(1, 0);
    Form.grdRows.SetRows({{"head"}, {"other"}}, 1);
    EXPECT_TRUE(Form.grdRows.Picked().empty()) << "a row that is gone";
}

TEST_F(ControlsOfAForm, AControlWorksOnlyWithAllThatHoldsIt) {
    const auto& option = Form.optUnits(1);
    const struct {
        bool FrameEnabled, FrameVisible, Seen, Works;
    } cases[] = {{true, true, true, true}, {false, true, true, false}, {true, false, false, false}};
    for (const auto& each : cases) {
        Form.fraUnits.SetEnabled(each.FrameEnabled);
        Form.fraUnits.SetVisible(each.FrameVisible);
        EXPECT_EQ(option.Seen(), each.Seen);
        EXPECT_EQ(option.Works(), each.Works);
        EXPECT_TRUE(option.Enabled() && option.Visible()) << "its own state is its own";
    }
}

TEST_F(ControlsOfAForm, NamesForTheEarHaveNoMarks) {
    Form.txtName.Describe(&Form.lblName, nullptr, "Maximum");
    EXPECT_EQ(Form.txtName.AccessibleName(), "Name, Maximum");
    EXPECT_EQ(Form.fraUnits.AccessibleName(), "Units");
    Form.lblName.SetCaption("Gas && steam &");
    EXPECT_EQ(Form.lblName.AccessibleName(), "Gas & steam &");
    Form.lblName.SetCaption("Flow");
    Form.txtName.Describe(&Form.lblName, &Form.optUnits(1), "Maximum");
    Form.optUnits(1).SetCaption("lb/h");
    EXPECT_EQ(Form.optUnits(1).AccessibleName(), "Flow unit, lb/h");
}

}  // namespace
}  // namespace quillmetra
