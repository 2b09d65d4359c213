// The record browser, the main window of the suite: opens the database, walks the records, starts a
// calculation for one of them, and starts new calculations.
#pragma once

#include <array>
#include <memory>

#include "forms/RecordFields.h"
#include "forms/SuiteForm.h"
#include "records/RecordView.h"

namespace quillmetra {

class frmTRProg : public SuiteForm {
public:
    frmTRProg();

    void Load() override;
    // Comes back to the record that was worked on.
    void Activated() override;
    void CloseBox() override { mnuExit_Click(); }

    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuCreateDB{mnuFile, "mnuCreateDB", "C&reate database"};
    MenuItem mnuCompactDB{mnuFile, "mnuCompactDB", "&Compact database"};
    MenuItem mnuRepairDB{mnuFile, "mnuRepairDB", "R&epair database"};
    MenuItem mnuExport{mnuFile, "mnuExport", "Exp&ort records..."};
    MenuItem mnuConvertRandom{mnuFile, "mnuConvertRandom", "Con&vert 5.x to 6 data"};
    MenuItem mnuPrinting{mnuFile, "mnuPrinting", "&Printing"};
    MenuItem mnuExit{mnuFile, "mnuExit", "E&xit"};
    MenuItem mnuDefPath{*this, "mnuDefPath", "Default pa&ths"};
    MenuItem mnuPathDataFile{mnuDefPath, "mnuPathDataFile", "&Data file default path"};
    MenuItem mnuPathUserUnitFile{mnuDefPath, "mnuPathUserUnitFile", "&User unit file default path"};
    MenuItem mnuPathPrintHdgs{mnuDefPath, "mnuPathPrintHdgs", "&Printout heading file default path"};
    MenuItem mnuPathTables{mnuDefPath, "mnuPathTables", "&Tables default path"};
    MenuItem mnuColours{*this, "mnuColours", "&Colours"};
    MenuItem mnuLight{mnuColours, "mnuLight", "&Light"};
    MenuItem mnuDark{mnuColours, "mnuDark", "&Dark"};
    MenuItem mnuHighContrast{mnuColours, "mnuHighContrast", "&High contrast"};
    MenuItem mnuClassic{mnuColours, "mnuClassic", "&Classic"};
    MenuItem mnuColInputFrame{mnuColours, "mnuColInputFrame", "&Input frame background"};
    MenuItem mnuColInputFrameText{mnuColours, "mnuColInputFrameText", "Input &frame text"};
    MenuItem mnuColInputBack{mnuColours, "mnuColInputBack", "Input field &background"};
    MenuItem mnuColInputText{mnuColours, "mnuColInputText", "Input field &text"};
    MenuItem mnuColOptsFrame{mnuColours, "mnuColOptsFrame", "&Options frame background"};
    MenuItem mnuColOptsFrameText{mnuColours, "mnuColOptsFrameText", "Options f&rame text"};
    MenuItem mnuColOptsBack{mnuColours, "mnuColOptsBack", "Options field bac&kground"};
    MenuItem mnuColOptsText{mnuColours, "mnuColOptsText", "Options field te&xt"};
    MenuItem mnuBackground{mnuColours, "mnuBackground", "For&m background"};
    MenuItem mnuChangeData{mnuColours, "mnuChangeData", "Chang&ed data"};
    MenuItem mnuColorOptsSelBG{mnuColours, "mnuColorOptsSelBG", "Selected field back&ground"};
    MenuItem mnuColorOptsSelFG{mnuColours, "mnuColorOptsSelFG", "&Selected field text"};
    MenuItem mnuLoadColor{mnuColours, "mnuLoadColor", "Lo&ad colour scheme..."};
    MenuItem mnuSaveColor{mnuColours, "mnuSaveColor", "Sa&ve colours"};
    MenuItem mnuBackgroundList{mnuColours, "mnuBackgroundList", "Backgrou&nd list"};
    MenuItem mnuOptions{*this, "mnuOptions", "&Options"};
    MenuItem mnuDoNotShow{mnuOptions, "mnuDoNotShow", "&Hide prompting messages"};
    MenuItem mnuHelpHead{*this, "mnuHelpHead", "&Help"};
    MenuItem mnuHelp{mnuHelpHead, "mnuHelp", "&Help"};
    MenuItem mnuAbout{mnuHelpHead, "mnuAbout", "&About"};

    Frame fraDatabase{*this, "fraDatabase", "Records database"};
    OptionButton optDefaultDB{fraDatabase, "optDefaultDB", "DB on Defa&ult Path"};
    OptionButton optBrouseDB{fraDatabase, "optBrouseDB", "&Browse for DB Path"};
    CommandButton cmdDBOpen{fraDatabase, "cmdDBOpen", "O&pen database"};
    CommandButton cmdDBClose{fraDatabase, "cmdDBClose", "Clos&e database"};
    ControlArray<Label> lblPath{fraDatabase, "lblPath", {0}, ""};

    Frame fraRecord{*this, "fraRecord", "Selected record"};
    RecordFields Record{fraRecord};
    Label lblCurrentRecord{fraRecord, "lblCurrentRecord"};
    Label lblOf{fraRecord, "lblOf", "of"};
    Label lblNumRecords{fraRecord, "lblNumRecords"};
    CommandButton cmdFirst{fraRecord, "cmdFirst", "Fi&rst"};
    CommandButton cmdPrev{fraRecord, "cmdPrev", "Pre&vious"};
    CommandButton cmdNext{fraRecord, "cmdNext", "&Next"};
    CommandButton cmdLast{fraRecord, "cmdLast", "&Last"};
    CommandButton cmdBrowse{fraRecord, "cmdBrowse", "Bro&wse tags"};
    CommandButton cmdFind{fraRecord, "cmdFind", "F&ind tag"};
    CommandButton cmdSearchDate{fraRecord, "cmdSearchDate", "Search b&y date"};
    CommandButton cmdDelete{fraRecord, "cmdDelete", "&Delete"};
    CommandButton cmdDisplayCalc{fraRecord, "cmdDisplayCalc", "Displ&ay Calculation"};

    Frame fraTags{*this, "fraTags", "Tag numbers"};
    Label lblSearchTag{fraTags, "lblSearchTag", "Starts with"};
    TextBox txtSearchTag{fraTags, "txtSearchTag"};
    ListBox lstTags{fraTags, "lstTags"};
    CommandButton cmdSelect{fraTags, "cmdSelect", "&Select"};
    CommandButton cmdCancel{fraTags, "cmdCancel", "Cancel"};

    Frame fraPrograms{*this, "fraPrograms", "New Calculation"};
    CommandButton cmdOK{fraPrograms, "cmdOK", "&Go to Menu"};

    void cmdOK_Click();
    void ClearColourChecks();
    void mnuDoNotShow_Click();
    void mnuAbout_Click();
    void mnuExit_Click();

    // The database, in RecordBrowser.cpp
    void optBrouseDB_Click();
    void cmdDBOpen_Click();
    void cmdDBClose_Click();
    void cmdFirst_Click();
    void cmdLast_Click();
    void cmdNext_Click();
    void cmdPrev_Click();
    void cmdBrowse_Click();
    void cmdSelect_Click();
    void cmdCancel_Click();
    void lstTags_Click();
    void txtSearchTag_Change();
    void cmdFind_Click();
    void cmdDelete_Click();
    void cmdSearchDate_Click();
    void cmdDisplayCalc_Click();
    void mnuPrinting_Click();

    // The file as a whole, in DatabaseFileMenu.cpp
    void mnuCreateDB_Click();
    void mnuCompactDB_Click();
    void mnuRepairDB_Click();
    void mnuExport_Click();

    // Records of version 5, in OldDataMenu.cpp
    void mnuConvertRandom_Click();

private:
    // Standard conditions that a new calculation had better not start from.
    std::string StandingStatus() const override;
    void ShowStanding();
    void HookDatabase();
    // Sets Suite.DatabasePath and DatabaseFile from the chosen path; false, after a message, when there is
    // none.
    bool ChooseDatabase();
    bool OpenView();
    void CloseView();
    void ShowRecord();
    void ShowFields(bool visible);
    void ShowTags(bool visible);
    void DisplayRecord();

    std::unique_ptr<RecordView> view_;  // null while no database is open
    int shownTags_ = 0;
    std::string standing_;  // as it was shown last: a file written since may say otherwise
    std::array<MenuItem*, 12> ColourEntries();
    std::array<MenuItem*, 4> SchemeEntries();  // in the order of SchemeNames
    void HookColours();
    void HookSchemes();
    void TickScheme();
};

}  // namespace quillmetra
