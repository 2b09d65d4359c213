// The record browser, the main window of the suite: opens the database, walks the records, starts a
// calculation for one of them, and starts new calculations.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "forms/RecordFields.h"
#include "forms/SuiteForm.h"
#include "records/RecordList.h"
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
    MenuItem mnuServerDB{mnuFile, "mnuServerDB", "&New database on a server..."};
    MenuItem mnuCompactDB{mnuFile, "mnuCompactDB", "&Compact database"};
    MenuItem mnuRepairDB{mnuFile, "mnuRepairDB", "R&epair database"};
    MenuItem mnuRecent{mnuFile, "mnuRecent", "Recent &databases"};
    ControlArray<MenuItem> mnuRecentFile{mnuRecent, "mnuRecentFile", {1, 2, 3, 4, 5, 6, 7, 8, 9}, ""};
    MenuItem mnuBackups{mnuFile, "mnuBackups", "&Backups..."};
    MenuItem mnuExport{mnuFile, "mnuExport", "Exp&ort records..."};
    MenuItem mnuImport{mnuFile, "mnuImport", "&Import records..."};
    MenuItem mnuCopyAll{mnuFile, "mnuCopyAll", "Cop&y all records to..."};
    MenuItem mnuRecalculateAll{mnuFile, "mnuRecalculateAll", "Recalcu&late all records..."};
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
    // Of the rows that are selected in the table; also what the right button shows there.
    MenuItem mnuManage{*this, "mnuManage", "&Manage"};
    MenuItem mnuShowRecord{mnuManage, "mnuShowRecord", "&Display calculation"};
    MenuItem mnuCopyRecord{mnuManage, "mnuCopyRecord", "&Copy as another tag..."};
    MenuItem mnuCompareRecords{mnuManage, "mnuCompareRecords", "Co&mpare two..."};
    MenuItem mnuPrintRecords{mnuManage, "mnuPrintRecords", "&Print..."};
    MenuItem mnuExportRecords{mnuManage, "mnuExportRecords", "&Export..."};
    MenuItem mnuRecalculate{mnuManage, "mnuRecalculate", "&Recalculate..."};
    MenuItem mnuDeleteRecords{mnuManage, "mnuDeleteRecords", "De&lete"};
    MenuItem mnuFindRecord{mnuManage, "mnuFindRecord", "&Find in the table"};
    MenuItem mnuHelpHead{*this, "mnuHelpHead", "&Help"};
    MenuItem mnuHelp{mnuHelpHead, "mnuHelp", "&Help"};
    MenuItem mnuAbout{mnuHelpHead, "mnuAbout", "&About"};

    Frame fraDatabase{*this, "fraDatabase", "Records database"};
    OptionButton optDefaultDB{fraDatabase, "optDefaultDB", "DB on Defa&ult Path"};
    OptionButton optBrouseDB{fraDatabase, "optBrouseDB", "&Browse for DB Path"};
    CommandButton cmdDBOpen{fraDatabase, "cmdDBOpen", "O&pen database"};
    CommandButton cmdDBClose{fraDatabase, "cmdDBClose", "Clos&e database"};
    ControlArray<Label> lblPath{fraDatabase, "lblPath", {0}, ""};

    Frame fraRecords{*this, "fraRecords", "All records"};
    Label lblFilter{fraRecords, "lblFilter", "&Quick filter"};
    TextBox txtFilter{fraRecords, "txtFilter"};
    Label lblShown{fraRecords, "lblShown"};
    Grid grdRecords{fraRecords, "grdRecords"};

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

    // The table of all records, in RecordTable.cpp
    void txtFilter_Change();
    void txtFilter_KeyPress(Key& key);
    void grdRecords_Click();
    void grdRecords_KeyPress(Key& key);
    void mnuCopyRecord_Click();
    void mnuCompareRecords_Click();
    void mnuPrintRecords_Click();
    void mnuExportRecords_Click();
    void mnuRecalculate_Click();
    void mnuRecalculateAll_Click();

    // The file as a whole, in DatabaseFileMenu.cpp
    void mnuCreateDB_Click();
    void mnuCompactDB_Click();
    void mnuRepairDB_Click();
    void mnuBackups_Click();
    void mnuExport_Click();
    void mnuImport_Click();
    void mnuServerDB_Click();
    void mnuCopyAll_Click();

    // Records of version 5, in OldDataMenu.cpp
    void mnuConvertRandom_Click();

    // The databases that were opened last, in DatabaseHistory.cpp
    using Files = std::vector<std::string>;
    void ShowRecent(const Files& files);
    const Files& Recent() const { return recent_; }  // the newest first
    // The file of the open database; empty for none.
    const std::string& OpenFile() const { return lblPath(0).Caption(); }
    // Told after each of these has changed, for a host that keeps them from one run to the next.
    Handler DatabasesChanged;
    // Opens a database as the user would: by the default path when it is the one there, else as one looked
    // at.
    void OpenByName(const std::string& file);
    // As at the start, without a box: what goes wrong is told in the status line.
    void OpenAgain(const std::string& file);
    // Shows what others have changed on a server, the record in hand staying; for a host to call between two
    // acts, as often as each second.
    void Follow();

private:
    void HookHistory();
    void ChooseFolder(const std::string& folder);
    void KeepInHistory();
    void ShowOpened();
    // Standard conditions that a new calculation had better not start from.
    std::string StandingStatus() const override;
    void ShowStanding();
    void HookDatabase();
    void HookTable();
    // Shows the table as it now is; with a database, its records when they have changed.
    void ShowTable();
    void RenewTable();
    // Makes the row of the record in hand the selected one.
    void MarkRow();
    void EnableTable(bool any);
    // Of the rows that are selected; of the record in hand when it is not among the rows.
    std::vector<std::string> PickedTags() const;
    void PickAgain(const std::vector<std::string>& tags);
    bool AskDelete(const std::vector<std::string>& tags);
    void ImportList(const std::string& file);
    void RecalculateTags(const std::vector<std::string>& tags);
    void ExportTags(const std::vector<std::string>& tags);
    void PrintTags(const std::vector<std::string>& tags);
    void TellBackupTrouble();
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
    Files recent_;
    RecordList list_;
    std::vector<std::string> heads_;  // of its columns
    std::string standing_;            // as it was shown last: a file written since may say otherwise
    std::array<MenuItem*, 12> ColourEntries();
    std::array<MenuItem*, 4> SchemeEntries();  // in the order of SchemeNames
    void HookColours();
    void HookSchemes();
    void TickScheme();
};

}  // namespace quillmetra
