// The pipe size dialog: a nominal size is searched, a row chosen, and its inside diameter returned to the
// form that opened the dialog. What it looks up and returns is in tables/PipeSizes.h.
#pragma once

#include <vector>

#include "forms/SuiteForm.h"
#include "tables/PipeSizes.h"

namespace quillmetra {

class frmPipeSize : public SuiteForm {
public:
    frmPipeSize();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }
    void ControlGotFocus(Control& control) override;
    void ControlLostFocus(Control& control) override;

    Label lblNomSize{*this, "lblNomSize", "&Nominal size"};
    TextBox txtNomSize{*this, "txtNomSize"};
    Label lblPipeUnits{*this, "lblPipeUnits"};
    CommandButton cmdSearch{*this, "cmdSearch", "&Search"};
    Label lblPipeSize{*this, "lblPipeSize", "Si&ze, schedule, inside diameter, wall"};
    ListBox lstPipeSize{*this, "lstPipeSize"};
    Label lblConvertUnits{*this, "lblConvertUnits"};
    Label lblFamily{*this, "lblFamily", "&Family"};
    ListBox lstFamily{*this, "lstFamily"};
    Label lblFamilyNote{*this, "lblFamilyNote"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void txtNomSize_Change();
    void cmdSearch_Click();
    void lstPipeSize_Click();
    void lstFamily_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    std::vector<PipeFile> families_;  // a row of lstFamily each
};

}  // namespace quillmetra
