// The selector of the five programs, and the way to the data tables.
#pragma once

#include "forms/SuiteForm.h"

namespace quillmetra {

class frmObxProg : public SuiteForm {
public:
    frmObxProg();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    MenuItem mnuTables{*this, "mnuTables", "&Tables"};
    MenuItem mnuGasTable{mnuTables, "mnuGasTable", "&Gas table"};
    MenuItem mnuLiquidTable{mnuTables, "mnuLiquidTable", "&Liquid table"};
    MenuItem mnuMaterialTable{mnuTables, "mnuMaterialTable", "&Material table"};
    MenuItem mnuPipeSizes{mnuTables, "mnuPipeSizes", "&Pipe sizes"};
    MenuItem mnuPipeFamilies{mnuTables, "mnuPipeFamilies", "Pipe &families"};
    ControlArray<MenuItem> mnuPipeFamily{mnuPipeFamilies, "mnuPipeFamily", {1, 2, 3, 4, 5, 6, 7, 8, 9}, ""};
    ControlArray<MenuItem> mnuOwnPipe{mnuPipeFamilies, "mnuOwnPipe", {1, 2, 3, 4, 5, 6, 7, 8, 9}, ""};
    MenuItem mnuCriteria{mnuTables, "mnuCriteria", "&Criteria of lines"};
    MenuItem mnuShippedRows{mnuTables, "mnuShippedRows", "&Shipped rows..."};
    MenuItem mnuExit{*this, "mnuExit", "E&xit"};
    MenuItem mnuHelp{*this, "mnuHelp", "&Help"};

    Frame fraProgram{*this, "fraProgram", "Calculation"};
    ControlArray<OptionButton> optProgram{fraProgram, "optProgram", {1, 2, 3, 4, 5}, ""};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void cmdOK_Click();
    void cmdCancel_Click();
    void mnuExit_Click();

private:
    // Entries for the user's own files of pipe, those that the lookup has too.
    void ShowOwnPipes();
    // Loads and shows the form of the program in hand and hides the selector.
    void OpenProgram();
};

}  // namespace quillmetra
