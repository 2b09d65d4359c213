// A form with every kind of control, which notes the events that reach it.
#pragma once

#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Forms.h"

namespace quillmetra {

class SampleForm : public Form {
public:
    SampleForm() : Form("frmSample") {
        SetCaption("Sample");
        EnterMovesOn = true;
        txtOne.Describe(&lblOne);
        txtShort.MaxLength = 3;
        txtResult.Locked = true;
        txtResult.TabStop = false;
        lstMany.Multiple = true;
        Note(txtOne, "one");
        Note(txtTwo, "two");
        Note(cmdGo, "go");
        Note(lstRows, "rows");
        txtTwo.KeyPress = [this](Key& key) {
            if (key.Name != "r") return;
            key.Handled = true;
            txtTwo.SetText("remainder");
        };
        mnuRefused.Click = [] { Tell("Not now", "Sample"); };
        mnuEntry.Click = [this] { Events.push_back("entry"); };
        grdCells.SetSize(3, 3);
        grdCells.SetCell(1, 1, "a");
        grdCells.SetCell(2, 2, "b");
    }

    void CloseBox() override { Events.push_back("close"); }

    MenuItem mnuHead{*this, "mnuHead", "&Head"};
    MenuItem mnuEntry{mnuHead, "mnuEntry", "&Entry"};
    MenuItem mnuRefused{*this, "mnuRefused", "&Refused"};
    MenuItem mnuHidden{mnuRefused, "mnuHidden", "&Hidden"};
    Label lblOne{*this, "lblOne", "One"};
    TextBox txtOne{*this, "txtOne"};
    TextBox txtTwo{*this, "txtTwo"};
    TextBox txtShort{*this, "txtShort"};
    TextBox txtResult{*this, "txtResult"};
    CommandButton cmdGo{*this, "cmdGo", "&Go"};
    CommandButton cmdStop{*this, "cmdStop", "&Stop"};
    ProgressBar barRun{*this, "barRun"};
    Frame fraOptions{*this, "fraOptions", "Options"};
    OptionButton optA{fraOptions, "optA", "A"};
    OptionButton optB{fraOptions, "optB", "B"};
    CheckBox chkOn{fraOptions, "chkOn", "On"};
    ListBox lstRows{*this, "lstRows"};
    ListBox lstMany{*this, "lstMany"};
    ComboBox cboChoice{*this, "cboChoice"};
    Grid grdCells{*this, "grdCells"};

    std::vector<std::string> Events;

    std::vector<std::string> TakeEvents() { return std::exchange(Events, {}); }

private:
    void Note(Control& control, const std::string& name) {
        control.GotFocus = [this, name] { Events.push_back(name + " got"); };
        control.LostFocus = [this, name] { Events.push_back(name + " lost"); };
        control.Click = [this, name] { Events.push_back(name + " click"); };
        control.DoubleClick = [this, name] { Events.push_back(name + " double"); };
    }
};

}  // namespace quillmetra
