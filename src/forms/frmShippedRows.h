// Offers the rows of the shipped tables that are newer than those of the user. All are picked at first; the
// picked ones are written on OK, and nothing before.
#pragma once

#include <vector>

#include "forms/SuiteForm.h"
#include "tables/ShippedRows.h"

namespace quillmetra {

// Says in the status line of the browser that there are newer rows, once for each version of the suite. For a
// host whose user can do something about it.
void TellOfShippedRows();

class frmShippedRows : public SuiteForm {
public:
    frmShippedRows();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblRows{*this, "lblRows", "&Rows that your tables do not have, or have with former figures"};
    ListBox lstRows{*this, "lstRows"};
    Label lblPicked{*this, "lblPicked"};
    CommandButton cmdAll{*this, "cmdAll", "&All"};
    CommandButton cmdNone{*this, "cmdNone", "&None"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void lstRows_Click();
    void cmdAll_Click();
    void cmdNone_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

private:
    void ShowRows();
    void PickEach(bool picked);
    std::vector<ShippedRow> PickedRows() const;

    std::vector<ShippedRow> rows_;  // a row of the list each
};

}  // namespace quillmetra
