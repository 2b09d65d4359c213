// See frmTRProg.h: the database file as a whole. A calculation with unsaved changes is never open here, since
// the browser shows only when none is.
#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "forms/FileGuard.h"
#include "forms/frmCopyAll.h"
#include "forms/frmImport.h"
#include "forms/frmTRProg.h"
#include "platform/Dialogs.h"
#include "platform/Folders.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "platform/ServerLink.h"
#include "platform/TextFiles.h"
#include "platform/WorkbookWriter.h"
#include "records/Backups.h"
#include "records/RecordExport.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr const char* ExportTitle = "Export records";
constexpr const char* ImportTitle = "Import records";
constexpr const char* CopyTitle = "Copy all records";
constexpr const char* CreateTitle = "Create New Database File";

// Asks for a database and takes it as the one in hand; false when the user cancels or picks another file.
bool AskDatabase() {
    const std::string file = AskDatabaseFile();
    if (file.empty()) return false;
    Suite.DatabaseFile = file;
    Suite.DatabasePath = FolderOf(file);
    return true;
}

}  // namespace

void frmTRProg::mnuCreateDB_Click() {
    cmdDBClose_Click();
    if (Suite.BrowsePath.empty()) {
        Tell("First, use option 'Browse for DB Path' to determine path", DatabaseTitle);
        return;
    }
    if (!AskYesNo("If existing, the TRDB.MDB DataBase on\n" + Suite.BrowsePath + "\nWill be destroyed\nOK?",
                  CreateTitle, Icon::None, Answer::No)) {
        Suite.BrowsePath.clear();
        return;
    }
    Suite.DatabasePath = Suite.BrowsePath;
    Calc.MessageTitle = CreateTitle;
    const BusyPointer busy;
    CreateDB(true);
}

void frmTRProg::mnuCompactDB_Click() {
    if (!AskYesNo(
            "This procedure will recover the space of deleted\nrecords and re-sort the database\nDo you "
            "wish to proceed?",
            "Compact database")) {
        return;
    }
    cmdDBClose_Click();
    if (!AskDatabase()) return;
    {
        const BusyPointer busy;
        CompactDB(Suite.DatabasePath);
    }
    Tell("Compacting complete", DatabaseTitle);
}

void frmTRProg::mnuRepairDB_Click() {
    cmdDBClose_Click();
    if (!AskDatabase()) return;
    if (!AskYesNo("Repair the Process Data database?", DatabaseTitle, Icon::None, Answer::No)) return;
    std::string report;
    try {
        const BusyPointer busy;
        report = RepairText(RepairDB(Suite.DatabasePath));
    } catch (const RuntimeError& error) {
        report = error.Description;  // the file stays as it was
    }
    if (!report.empty()) Tell(report, DatabaseTitle, Icon::Exclamation);
    Tell("End of repair procedure!", DatabaseTitle);
}

// Of the database that is open, or would be: a damaged one does not open.
void frmTRProg::mnuBackups_Click() {
    if (view_ == nullptr && !ChooseDatabase()) return;
    ShowForm("frmBackups", Modal::Yes);
}

void frmTRProg::TellBackupTrouble() {
    const std::string trouble = BackupTrouble();
    if (!trouble.empty()) SetStatus("Done" + trouble);
}

// For people who live in spreadsheets: all records of the open database in one file.
void frmTRProg::mnuExport_Click() {
    if (view_ == nullptr) return Tell("Open the database first", ExportTitle);
    ExportTags({});
}

void frmTRProg::mnuImport_Click() {
    if (view_ == nullptr) return Tell("Open the database first", ImportTitle);
    const std::string file = AskListFile();
    if (!file.empty()) ImportList(file);
}

void frmTRProg::ImportList(const std::string& file) {
    if (view_ == nullptr) return Tell("Open the database first", ImportTitle);
    if (!ImportRecords(file)) return;
    if (!view_->HasRecord()) view_->First();
    RenewTable();
    ShowRecord();
    TellBackupTrouble();
}

void frmTRProg::mnuServerDB_Click() {
    if (!KnowsServers()) return Tell("This build of the program knows no server", DatabaseTitle);
    ShowForm("frmServer", Modal::Yes);
}

// Into a database that has none; where there is no database, an empty file is made.
void frmTRProg::mnuCopyAll_Click() {
    if (view_ == nullptr) return Tell("Open the database first", CopyTitle);
    const std::string from = Suite.DatabaseFile, to = AskDatabaseFile(true);
    if (to.empty()) return;
    if (IsSameFile(from, to)) return Tell("This is the database that is open", CopyTitle);
    if (!FileExists(to)) MakeEmptyDatabase(to);
    dynamic_cast<frmCopyAll&>(LoadForm("frmCopyAll")).Take(from, to);
    ShowForm("frmCopyAll", Modal::Yes);
}

// All records when no tag is given.
void frmTRProg::ExportTags(const std::vector<std::string>& tags) {
    const std::string values = "Comma separated values(*.csv)|*.csv", workbook = "Workbook(*.xlsx)|*.xlsx";
    const auto file = AskFile({.Title = ExportTitle,
                               .Filter = WritesWorkbooks() ? values + '|' + workbook : values,
                               .Folder = ProposedFile(Suite.DatabasePath, "TRDB.csv"),
                               .ForSaving = true});
    if (!file || file->empty() || !MayWrite(*file, "an export", ExportTitle)) return;
    std::size_t count = 0;
    {
        const BusyPointer busy;
        count = static_cast<std::size_t>(ExportRecords(Suite.DatabaseFile, *file, tags));
    }
    const std::string records = Counted(count, "record");
    SetStatus(records + ": " + *file);
    Tell(records + " written to\n" + *file, ExportTitle);
}

}  // namespace quillmetra
