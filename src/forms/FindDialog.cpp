// See FindDialog.h.
#include "forms/FindDialog.h"

#include "forms/ColourSchemes.h"
#include "platform/Forms.h"

namespace quillmetra {

FindDialog::FindDialog() : SuiteForm("FindDialog") {
    SetCaption("Tag Number Search");
    Fixed = true;
    DefaultButton = &cmdFind;
    CancelButton = &cmdCancel;
    txtFind.Describe(&lblFind);
    txtFind.ColourGroup = 2;
    lblFind.ColourGroup = 1;
    cmdFind.Click = [this] { cmdFind_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void FindDialog::Load() { ApplyColours(*this); }

void FindDialog::Activated() {
    txtFind.SelectAll();
    txtFind.SetFocus();
}

void FindDialog::cmdFind_Click() { HideForm(Name()); }

void FindDialog::cmdCancel_Click() {
    txtFind.SetText("");
    HideForm(Name());
}

}  // namespace quillmetra
