// The dated copies of a database: lists them, puts one back, and says how many days are kept.
#pragma once

#include <vector>

#include "forms/SuiteForm.h"
#include "records/Backups.h"

namespace quillmetra {

class frmBackups : public SuiteForm {
public:
    frmBackups();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblFile{*this, "lblFile"};
    Label lblBackups{*this, "lblBackups", "&Backups, the newest first"};
    Grid grdBackups{*this, "grdBackups"};
    Label lblKept{*this, "lblKept", "&Days that are kept (0: no backups)"};
    TextBox txtKept{*this, "txtKept"};
    CommandButton cmdRestore{*this, "cmdRestore", "&Restore"};
    CommandButton cmdCancel{*this, "cmdCancel", "&Close"};

    void grdBackups_Click();
    void cmdRestore_Click();
    void cmdCancel_Click();

private:
    void ShowBackups();
    void TakeKept();
    void Restore(const Backup& backup);

    std::vector<Backup> backups_;  // a row of the table each
};

}  // namespace quillmetra
