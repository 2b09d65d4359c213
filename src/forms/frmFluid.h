// The dialog of the fluid: a pure fluid of the table, a mixture or steam, for all cases of a calculation at
// once. It changes nothing of the record by itself: OK has the form select the fluid for each ticked case as
// the case's menu does.
#pragma once

#include <string>
#include <vector>

#include "forms/FluidComponents.h"
#include "forms/FluidRows.h"
#include "forms/SuiteForm.h"

namespace quillmetra {

class frmFluid : public SuiteForm {
public:
    frmFluid();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    // For a calculation, with its fluid selected.
    void Open(FluidForm& calculation);

    Frame fraKind{*this, "fraKind"};
    OptionButton optPure{fraKind, "optPure", "&Pure fluid"};
    OptionButton optMixture{fraKind, "optMixture", "Mi&xture"};
    OptionButton optSteam{fraKind, "optSteam", "&Steam"};

    Frame fraTable{*this, "fraTable"};
    Label lblFilter{fraTable, "lblFilter", "&Find"};
    TextBox txtFilter{fraTable, "txtFilter"};
    Label lblShown{fraTable, "lblShown"};
    Grid grdFluids{fraTable, "grdFluids"};
    CommandButton cmdAdd{fraTable, "cmdAdd", "&Add to the mixture"};
    FluidComponents Components{*this};

    Frame fraSteam{*this, "fraSteam"};
    OptionButton optSaturated{fraSteam, "optSaturated", "Sa&turated"};
    OptionButton optSuperheated{fraSteam, "optSuperheated", "Super&heated"};
    Label lblSteam{fraSteam, "lblSteam"};

    Frame fraCases{*this, "fraCases", "For"};
    ControlArray<CheckBox> chkCase{fraCases, "chkCase", {0, 1, 2}, ""};
    ControlArray<Label> lblLack{fraCases, "lblLack", {0, 1, 2}, ""};

    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void cmdOK_Click();
    void cmdCancel_Click();

private:
    void HookTable();
    void HookKinds();
    void OrderTabs();
    void ReadTable();
    FluidPick::Kind KindInHand() const;
    FluidPick PickInHand() const;
    std::vector<int> TickedCases() const;
    // Shows what belongs to the tab in hand.
    void ShowKind();
    void ShowCases();
    void ShowHeads();
    void ShowTable();
    void EnableButtons();
    void Mark(int place);
    int Place() const { return grdFluids.Selected() - grdFluids.FixedRows; }
    void txtFilter_KeyPress(Key& key);
    void grdFluids_KeyPress(Key& key);
    void grdFluids_Click();
    // The row in hand: the fluid, or one more component.
    void TakeRow();
    bool LookFor(const std::string& key);
    void SortBy(int column);

    FluidForm* calculation_ = nullptr;
    FluidRows rows_;
    std::string marked_;        // the name of the row in hand
    std::vector<bool> wanted_;  // by case: not unticked by the user
};

}  // namespace quillmetra
