// The flow that a line carries in a case between the pressure that the case gives and one that is typed here.
// OK takes it into the flow box of the case.
#pragma once

#include "forms/LineLossForm.h"
#include "forms/SuiteForm.h"

namespace quillmetra {

class frmLineFlow : public SuiteForm {
public:
    frmLineFlow();

    void Load() override;
    void Activated() override { txtEnd.SetFocus(); }
    void CloseBox() override { cmdCancel_Click(); }

    Label lblCase{*this, "lblCase", "Case"};
    ControlArray<OptionButton> optCase{*this, "optCase", {0, 1, 2}, ""};
    Label lblGiven{*this, "lblGiven", "Source pressure"};
    TextBox txtGiven{*this, "txtGiven"};
    Label unGiven{*this, "unGiven"};
    Label lblEnd{*this, "lblEnd", "&Destination pressure"};
    TextBox txtEnd{*this, "txtEnd"};
    Label unEnd{*this, "unEnd"};
    CommandButton cmdFind{*this, "cmdFind", "&Find flow"};
    Label lblFlow{*this, "lblFlow", "Flow"};
    TextBox txtFlow{*this, "txtFlow"};
    Label unFlow{*this, "unFlow"};
    Label lblReason{*this, "lblReason"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void optCase_Click(int index);
    void txtEnd_Change();
    void cmdFind_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    void ShowCase();
    void BlankAnswer();
};

}  // namespace quillmetra
