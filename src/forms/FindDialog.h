// The dialog that asks for a tag number to find. It keeps its text from one use to the next.
#pragma once

#include "forms/SuiteForm.h"

namespace quillmetra {

class FindDialog : public SuiteForm {
public:
    FindDialog();

    void Load() override;
    void Activated() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblFind{*this, "lblFind", "&Tag number"};
    TextBox txtFind{*this, "txtFind"};
    CommandButton cmdFind{*this, "cmdFind", "&Find"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void cmdFind_Click();
    void cmdCancel_Click();
};

}  // namespace quillmetra
