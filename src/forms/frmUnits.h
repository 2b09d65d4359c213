// The unit window: shows the unit of each row that the program uses, lets the user choose others and add
// units of their own, and keeps them in a library and in the user's named set.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "forms/SuiteForm.h"
#include "units/UnitChange.h"
#include "units/UnitPicks.h"

namespace quillmetra {

class frmUnits : public SuiteForm {
public:
    frmUnits();

    void Load() override;
    void CloseBox() override;

    MenuItem mnuLibrary{*this, "mnuLibrary", "U&nit library"};
    MenuItem mnuSaveUnLibrary{mnuLibrary, "mnuSaveUnLibrary", "&Save user library"};
    MenuItem mnuRecallSavedUnLibrary{mnuLibrary, "mnuRecallSavedUnLibrary", "&Load user library"};
    MenuItem mnuDefaultUnLibrary{mnuLibrary, "mnuDefaultUnLibrary", "Load &default library"};
    MenuItem mnuDeleteLib{mnuLibrary, "mnuDeleteLib", "D&elete user library"};

    Label lblInstruct{*this, "lblInstruct"};

    // One frame a row: the button that opens the panel, and the unit in force.
    Frame fraRows{*this, "fraRows", "Units"};
    ControlArray<Frame> fraRow{
        fraRows, "fraRow", {0, 1, 2, 3, 4, 5, 7, 9, 11, 12, 13, 18, 19, 20, 25, 27}, ""};
    ControlArray<CommandButton> cmdUnit{fraRow, "cmdUnit", ""};
    ControlArray<Label> lblFactor{fraRow, "lblFactor", ""};

    // The panel for choosing one.
    Frame fraSelect{*this, "fraSelect"};
    OptionButton optMass{fraSelect, "optMass", "Mass"};
    OptionButton optVol{fraSelect, "optVol", "V&olume"};
    CommandButton cmdBasis{fraSelect, "cmdBasis", "OK"};
    CommandButton cmdCanBasis{fraSelect, "cmdCanBasis", "Cancel"};
    Label lblUnit{fraSelect, "lblUnit", "Unit"};
    ComboBox cboUnit{fraSelect, "cboUnit"};
    Label lblMultiplier{fraSelect, "lblMultiplier", "Multiplier"};
    ComboBox cboFactor{fraSelect, "cboFactor"};
    CommandButton cmdReplace{fraSelect, "cmdReplace", "Repla&ce"};
    CommandButton cmdSelect{fraSelect, "cmdSelect", "Select &unit"};
    CommandButton cmdCancel{fraSelect, "cmdCancel", "Cancel"};

    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdSaveUser{*this, "cmdSaveUser", "Sa&ve user units"};
    CommandButton cmdCancelUn{*this, "cmdCancelUn", "Cancel"};

    void Row_Click(int row);
    void cmdBasis_Click();
    void cboLine_Click(ComboBox& chosen, ComboBox& other);
    void cboText_Change();
    void cmdReplace_Click();
    void cmdSelect_Click();
    void cmdCancel_Click();
    void cmdOK_Click();
    void cmdSaveUser_Click();
    void cmdCancelUn_Click();
    void mnuSaveUnLibrary_Click();
    void mnuRecallSavedUnLibrary_Click();
    void mnuDefaultUnLibrary_Click();
    void mnuDeleteLib_Click();

private:
    void ShowTitle();
    void ShowUnits();
    void OpenPanel(int row);
    void ClosePanel();
    void OfferBasis(bool offer);
    void ListUnits();
    bool NameIsTooLong(const std::string& name);  // and says so
    std::string& BasisOfRow() const;
    bool AskUpdate() const;
    void ShowLibrary();
    bool ConfirmLibrary(const std::string& question, Answer preset) const;

    int UnitRow = 0;  // the row in hand
    int ProtectedCount = 0;
    std::array<int, 36> ActiveList{};
    UnitPicks SelectedFactor;           // the unit and factor chosen for each row
    std::optional<UnitChange> change_;  // while the window is open; Cancel ends it
    std::string basisBeforePanel_;      // for the Cancel of the panel
};

}  // namespace quillmetra
