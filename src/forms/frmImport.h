// Takes a list of calculations from a spreadsheet into the open database: what would come of each row is
// shown first, and written on Save alone.
#pragma once

#include <memory>
#include <string>

#include "forms/Import.h"
#include "forms/SuiteForm.h"

namespace quillmetra {

class frmImport : public SuiteForm {
public:
    frmImport();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    // The list that is read; set before the form is shown.
    void TakeFile(const std::string& file);
    Handler Saved;  // some were written; null when nobody asks

    Label lblFile{*this, "lblFile", "List"};
    CommandButton cmdFile{*this, "cmdFile", "&List..."};
    CommandButton cmdRead{*this, "cmdRead", "&Read"};
    Label lblRows{*this, "lblRows", "Ro&ws of the list, and what comes of them"};
    CheckBox chkProblems{*this, "chkProblems", "Only those with a &problem"};
    Grid grdRows{*this, "grdRows"};
    Label lblSummary{*this, "lblSummary"};
    CheckBox chkReplace{*this, "chkReplace", "R&eplace records that are there"};
    ProgressBar barProgress{*this, "barProgress"};
    CommandButton cmdCopy{*this, "cmdCopy", "Cop&y"};
    CommandButton cmdSave{*this, "cmdSave", "&Save"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cl&ose"};

    void cmdFile_Click();
    void cmdRead_Click();
    void chkReplace_Click();
    void cmdCopy_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

private:
    bool Run();
    void ShowRunning(bool running);
    void ShowList();
    int ToSave() const;

    std::string file_;
    std::unique_ptr<Import> import_;  // null before a list was read whole
};

// Asks for a list; empty when the user cancels.
std::string AskListFile();
// Shows the form for a list into Suite.DatabaseFile; true when some records were written.
bool ImportRecords(const std::string& file);

}  // namespace quillmetra
