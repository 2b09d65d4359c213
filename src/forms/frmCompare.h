// Two records side by side: what differs, to look at, to copy and to print.
#pragma once

#include <string>

#include "forms/SuiteForm.h"
#include "platform/Host.h"
#include "reports/Comparison.h"

namespace quillmetra {

class frmCompare : public SuiteForm {
public:
    frmCompare();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    // Two records of Suite.DatabaseFile; no calculation may be open. False, after a message, when one of them
    // cannot be read whole.
    bool Take(const std::string& first, const std::string& second);
    void Show(Comparison comparison);
    // The record in hand, as its open form has it, and the same record as it is stored: another has changed
    // it. False, after a message, when that cannot be read.
    bool TakeStored(const Form& form);

    Label lblRecords{*this, "lblRecords", "Two records"};
    Grid grdRows{*this, "grdRows"};  // where the keyboard begins
    CheckBox chkOnly{*this, "chkOnly", "Only what &differs"};
    CommandButton cmdExchange{*this, "cmdExchange", "E&xchange"};
    CommandButton cmdCopy{*this, "cmdCopy", "&Copy"};
    CommandButton cmdPrint{*this, "cmdPrint", "P&rint"};
    CommandButton cmdPreview{*this, "cmdPreview", "Pre&view"};
    CommandButton cmdPdf{*this, "cmdPdf", "&Save as PDF"};
    CommandButton cmdCancel{*this, "cmdCancel", "C&lose"};

    void chkOnly_Click();
    void cmdExchange_Click();
    void cmdCopy_Click();
    void cmdPrint_Click();
    void cmdPdf_Click();
    void cmdCancel_Click();

private:
    bool Print(PrintJob job, int copies);
    std::string Names() const { return comparison_.FirstTag + " and " + comparison_.SecondTag; }

    Comparison comparison_;
};

// Shows what another has changed in the record in hand since it was opened.
void ShowComparison(const Form& form);

}  // namespace quillmetra
