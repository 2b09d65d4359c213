// Calculates saved records anew: all of the open database or the rows selected in the browser. What changed
// and what failed is listed, and written on Save alone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/Recalculation.h"
#include "forms/SuiteForm.h"

namespace quillmetra {

class frmRecalculate : public SuiteForm {
public:
    frmRecalculate();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    // The records that are calculated; set before the form is shown.
    void TakeTags(std::vector<std::string> tags);
    Handler Saved;  // some were written; null when nobody asks

    Label lblRecords{*this, "lblRecords", "Records"};
    CheckBox chkFluids{*this, "chkFluids", "Take &fluid properties anew from the tables"};
    CommandButton cmdRun{*this, "cmdRun", "&Recalculate"};
    Label lblChanges{*this, "lblChanges", "&Changes over 0.1 %, and what was told"};
    Grid grdChanges{*this, "grdChanges"};
    ProgressBar barProgress{*this, "barProgress"};
    Label lblSummary{*this, "lblSummary"};
    CommandButton cmdCopy{*this, "cmdCopy", "Cop&y"};
    CommandButton cmdSave{*this, "cmdSave", "&Save changes"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cl&ose"};

    void cmdRun_Click();
    void cmdCopy_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

private:
    bool Run();
    void ShowRunning(bool running);
    void ShowList();

    std::vector<std::string> tags_;
    std::unique_ptr<Recalculation> run_;  // null before one has ended
};

// Shows the form for these records of Suite.DatabaseFile; true when some were written.
bool RecalculateRecords(std::vector<std::string> tags);

}  // namespace quillmetra
