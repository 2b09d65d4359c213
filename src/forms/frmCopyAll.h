// All records of the open database into another one, from a file to a server and back.
#pragma once

#include <string>

#include "forms/SuiteForm.h"

namespace quillmetra {

class frmCopyAll : public SuiteForm {
public:
    frmCopyAll();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblFrom{*this, "lblFrom", "From"};
    Label lblTo{*this, "lblTo", "To"};
    ProgressBar barProgress{*this, "barProgress"};
    CommandButton cmdCopy{*this, "cmdCopy", "&Copy"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cl&ose"};

    void Take(const std::string& from, const std::string& to);
    void cmdCopy_Click();
    void cmdCancel_Click();

private:
    bool Copy();

    std::string from_, to_;
};

}  // namespace quillmetra
