// See frmTRProg.h: the records of the database, one after the other, by their tags, and by their dates.
#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/FindDialog.h"
#include "forms/frmPrintControl.h"
#include "forms/frmTRProg.h"
#include "forms/RecordInHand.h"
#include "forms/UnsavedWork.h"
#include "forms/WinSeek.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/LoadRecord.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr const char* OutdatedTitle = "Outdated Calculations";
constexpr const char* PrintoutForm = "frmObxPrintCalc";

void CloseCalculations() {
    for (const Program& program : Programs) UnloadForm(program.Form);
    UnloadForm(PrintoutForm);
}

// What a user can do about a database that does not open.
const char* HintOnFailure(const RuntimeError& error) {
    if (!FileExists(Suite.DatabaseFile))
        return "There is no database yet: the first calculation that is saved makes it";
    if (error.Number == failure::DatabaseInvalid().Number)
        return "Repair database, in the menu File, saves what can still be read of a damaged database";
    return "";
}

}  // namespace

void frmTRProg::HookDatabase() {
    optBrouseDB.Click = [this] { optBrouseDB_Click(); };
    cmdDBOpen.Click = [this] { cmdDBOpen_Click(); };
    cmdDBClose.Click = [this] { cmdDBClose_Click(); };
    cmdFirst.Click = [this] { cmdFirst_Click(); };
    cmdLast.Click = [this] { cmdLast_Click(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdPrev.Click = [this] { cmdPrev_Click(); };
    cmdBrowse.Click = [this] { cmdBrowse_Click(); };
    cmdSelect.Click = [this] { cmdSelect_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    lstTags.Click = [this] { lstTags_Click(); };
    lstTags.DoubleClick = [this] { cmdSelect_Click(); };
    txtSearchTag.Describe(&lblSearchTag);
    txtSearchTag.Change = [this] { txtSearchTag_Change(); };
    cmdFind.Click = [this] { cmdFind_Click(); };
    cmdDelete.Click = [this] { cmdDelete_Click(); };
    cmdSearchDate.Click = [this] { cmdSearchDate_Click(); };
    cmdDisplayCalc.Click = [this] { cmdDisplayCalc_Click(); };
    mnuCreateDB.Click = [this] { mnuCreateDB_Click(); };
    mnuCompactDB.Click = [this] { mnuCompactDB_Click(); };
    mnuRepairDB.Click = [this] { mnuRepairDB_Click(); };
    mnuBackups.Click = [this] { mnuBackups_Click(); };
    mnuServerDB.Click = [this] { mnuServerDB_Click(); };
    mnuCopyAll.Click = [this] { mnuCopyAll_Click(); };
    mnuExport.Click = [this] { mnuExport_Click(); };
    mnuImport.Click = [this] { mnuImport_Click(); };
    mnuPrinting.Click = [this] { mnuPrinting_Click(); };
    HookTable();
    HookHistory();
    mnuConvertRandom.Click = [this] { mnuConvertRandom_Click(); };
}

// --- Open and close ----------------------------------------------------------------------------------------

// The finder works on the default path; what it finds is a path to look at, and the default stays unless the
// user saved it there.
void frmTRProg::optBrouseDB_Click() {
    const std::string path = Suite.DefaultPaths[path::Database], chosen = Suite.ChosenDataPath;
    const PathAnswer answer = FindDefaultPath(1, "Data file ");
    if (answer != PathAnswer::Cancelled) Suite.BrowsePath = Suite.DefaultPaths[path::Database];
    if (answer == PathAnswer::Kept) {
        Suite.DefaultPaths[path::Database] = path;
        Suite.ChosenDataPath = chosen;
    }
    if (Suite.BrowsePath.empty()) optDefaultDB.SetChecked(true);
}

bool frmTRProg::ChooseDatabase() {
    if (optBrouseDB.Checked() && IsSameFolder(Suite.BrowsePath, Suite.DefaultPaths[path::Database])) {
        optDefaultDB.SetChecked(true);
        Suite.BrowsePath.clear();
    }
    if (optDefaultDB.Checked()) ReadDefaultPaths(3);  // without the file those in force stand
    const std::string& folder =
        optDefaultDB.Checked() ? Suite.DefaultPaths[path::Database] : Suite.BrowsePath;
    if (!MustHaveDataPath(folder)) return false;
    Suite.DatabasePath = folder;
    Suite.DatabaseFile = DatabaseFileOf(folder);
    return true;
}

bool frmTRProg::OpenView() {
    const BusyPointer busy;
    try {
        view_ = std::make_unique<RecordView>(Suite.DatabaseFile);
        ShowStanding();
        return true;
    } catch (const RuntimeError& error) {
        SetStatus(HintOnFailure(error));
        Tell(error.Description, Suite.DatabaseFile, Icon::Stop);
        return false;
    }
}

void frmTRProg::cmdDBOpen_Click() {
    CloseView();
    if (!ChooseDatabase() || !OpenView()) return KeepInHistory();
    ShowOpened();
    if (view_->HasRecord()) {
        cmdDisplayCalc.SetFocus();
    } else {
        Tell("The database is empty!\nUse New Calculation Options to prepare and save records",
             Suite.DatabaseFile, Icon::Stop);
    }
}

void frmTRProg::ShowOpened() {
    Suite.DefaultPaths[path::Database] =
        Suite.DatabasePath;  // new calculations go to the database on the screen
    lblPath(0).SetCaption(Suite.DatabaseFile);
    ShowRecord();
    KeepInHistory();
}

void frmTRProg::cmdDBClose_Click() {
    CloseCalculations();
    CloseView();
    optDefaultDB.SetChecked(true);
    KeepInHistory();
}

// Nor does the path of a database that was looked at outlast it.
void frmTRProg::CloseView() {
    ShowTags(false);
    view_.reset();
    list_.Clear();
    txtFilter.SetText("");
    ShowTable();
    if (!Suite.ChosenDataPath.empty()) Suite.DefaultPaths[path::Database] = Suite.ChosenDataPath;
    lblPath(0).SetCaption("");
    ShowFields(false);
}

// The record that a calculation has left, which may be new; the one shown before when it has left none.
void frmTRProg::Activated() {
    if (view_ == nullptr) {
        if (Status().empty() || Status() == standing_) ShowStanding();
        return;
    }
    // A calculation may have been saved to another database; what is done here is done to the one shown.
    Suite.DatabaseFile = lblPath(0).Caption();
    Suite.DatabasePath = FolderOf(Suite.DatabaseFile);
    const std::string before = view_->Head().Tag;
    // Another process may have put a new file in its place meanwhile.
    if (!OpenView()) return CloseView();
    for (const std::string& tag : {before, Calc.Tag}) {
        if (!tag.empty()) view_->Find(tag);
    }
    if (!view_->HasRecord()) view_->First();
    ShowRecord();
}

// While something is being picked among the tags they stay as they are.
void frmTRProg::Follow() {
    if (view_ == nullptr || !Visible() || UserActRuns() || fraTags.Visible() || !view_->HasNews()) return;
    try {
        const std::string tag = view_->Head().Tag;
        const std::vector<std::string> picked = PickedTags();
        if (view_->HasRecord() && !view_->Find(tag)) view_->LeaveDeleted();
        if (!view_->HasRecord()) view_->First();
        ShowRecord();
        PickAgain(picked);
    } catch (const RuntimeError& error) {
        SetStatus(error.Description);
    }
}

// --- The record in hand ------------------------------------------------------------------------------------

// With no record the fields, the counters and what works on a record are not to be had.
void frmTRProg::ShowFields(bool visible) {
    for (Control* control : Controls()) {
        if (control->Container() != &fraRecord) continue;
        if (control->Kind() == ControlKind::CommandButton) {
            control->SetEnabled(visible);
        } else {
            control->SetVisible(visible);
        }
    }
    cmdDBClose.SetEnabled(view_ != nullptr);
    EnableTable(visible);
}

void frmTRProg::ShowRecord() {
    const bool any = view_->HasRecord();
    RenewTable();
    ShowFields(any);
    Suite.RecordTotal = view_->Count();
    if (!any) return;
    const RecordHead& head = view_->Head();
    TakeFluidType(head.FluidType, head.ProgramNumber);
    Calc.Tag = head.Tag;
    Record.Show(head);
    lblCurrentRecord.SetCaption(std::to_string(view_->Position()));
    lblNumRecords.SetCaption(std::to_string(view_->Count()));
    MarkRow();
}

void frmTRProg::cmdFirst_Click() {
    UnloadForm(PrintoutForm);
    view_->First();
    ShowRecord();
}

void frmTRProg::cmdLast_Click() {
    UnloadForm(PrintoutForm);
    view_->Last();
    ShowRecord();
}

void frmTRProg::cmdNext_Click() {
    view_->Next();
    ShowRecord();
}

void frmTRProg::cmdPrev_Click() {
    view_->Previous();
    ShowRecord();
}

// --- Tags --------------------------------------------------------------------------------------------------

void frmTRProg::ShowTags(bool visible) {
    fraTags.SetVisible(visible);
    for (Control* control :
         std::initializer_list<Control*>{&fraPrograms, &fraDatabase, &fraRecords, &fraRecord, &cmdOK}) {
        control->SetEnabled(!visible);
    }
    DefaultButton = visible ? &cmdSelect : &cmdOK;
    CancelButton = visible ? &cmdCancel : nullptr;
    if (!visible) lstTags.Clear();
    EnableTable(!visible && view_ != nullptr && view_->HasRecord());
}

void frmTRProg::cmdBrowse_Click() {
    ShowTags(true);
    cmdSelect.SetEnabled(false);
    txtSearchTag.SetText("");
    lstTags.SetRows(view_->Tags());
    lstTags.Preselect(view_->Position() - 1);
    lblNumRecords.SetCaption(std::to_string(view_->Count()));
    txtSearchTag.SetFocus();
}

void frmTRProg::lstTags_Click() { cmdSelect.SetEnabled(lstTags.Selected() >= 0); }

// The first tag that starts with what is typed.
void frmTRProg::txtSearchTag_Change() {
    if (!fraTags.Visible() || txtSearchTag.Text().empty()) return;
    const auto [first, end] = view_->StartingWith(txtSearchTag.Text());
    SetStatus(first == end ? "No tag number starts with " + txtSearchTag.Text() : StandingStatus());
    if (first != end) lstTags.Select(static_cast<int>(first));
    cmdSelect.SetEnabled(first != end);
}

void frmTRProg::cmdSelect_Click() {
    const int row = lstTags.Selected();
    if (row < 0) return;
    const std::string tag = lstTags.Row(row);
    ShowTags(false);
    if (!view_->Find(tag)) Tell("Not found", Suite.DatabaseFile);
    ShowRecord();
    if (view_->HasRecord()) cmdDisplayCalc.SetFocus();
}

void frmTRProg::cmdCancel_Click() {
    ShowTags(false);
    ShowStanding();
    cmdBrowse.SetFocus();
}

void frmTRProg::cmdFind_Click() {
    ShowForm("FindDialog", Modal::Yes);
    const std::string tag(Trim(static_cast<TextBox&>(ControlOf("FindDialog", "txtFind")).Text()));
    if (tag.empty()) return;
    if (!view_->Find(tag)) {
        Tell("Cannot find " + tag, "Tag Number Search", Icon::Stop);
        return;
    }
    ShowRecord();
    cmdDisplayCalc.SetFocus();
}

void frmTRProg::cmdDelete_Click() {
    const std::vector<std::string> tags = PickedTags();
    if (!AskDelete(tags)) return;
    DeleteRecords(Suite.DatabaseFile, tags);
    for (const std::string& tag : tags) {
        if (!SameName(Calc.TagSaved, tag)) continue;
        // What is in hand is in no database any more: its next save writes every row.
        Calc.TagSaved.clear();
        Calc.LoadedDatabaseFile.clear();
    }
    view_->LeaveDeleted();
    ShowRecord();
    TellBackupTrouble();
}

// Shows the records whose process data are later than their calculation, one after the other.
void frmTRProg::cmdSearchDate_Click() {
    if (!AskYesNo("This will find records where the process data\ndate is later than the calculation "
                  "date.\nContinue",
                  OutdatedTitle)) {
        return;
    }
    bool any = false;
    for (;;) {
        bool found;
        {
            const BusyPointer busy;
            found = view_->NextOutdated(!any);
        }
        if (!found) break;
        any = true;
        ShowRecord();
        if (!AskYesNo("Continue search?", "Outdated Calculation")) return;
    }
    Tell(any ? "No other outdated records were found"
             : "The calculation date is later than the process data\nfor all records",
         OutdatedTitle);
}

// --- Display -----------------------------------------------------------------------------------------------

void frmTRProg::cmdDisplayCalc_Click() {
    if (Record.txtTagNum.Text().empty()) return;
    if (Calc.Tag.empty()) {
        Tell("Record must have a tag number", "Display Record", Icon::Stop);
        return;
    }
    const BusyPointer busy;
    DisplayRecord();
}

void frmTRProg::DisplayRecord() {
    const RecordHead head = view_->Head();
    Suite.DatabaseFile = lblPath(0).Caption();
    Suite.DatabasePath = Suite.DefaultPaths[path::Database] = FolderOf(Suite.DatabaseFile);
    if (!TakeRecord(head)) return ShowRecord();
    ShowLoadedRecord();
}

// --- Printing ----------------------------------------------------------------------------------------------

// Opens the database first, as its button does, when none is open.
void frmTRProg::mnuPrinting_Click() {
    if (view_ == nullptr) cmdDBOpen_Click();
    if (view_ != nullptr) PrintTags({});
}

// With these picked already.
void frmTRProg::PrintTags(const std::vector<std::string>& tags) {
    Suite.DatabaseFile = lblPath(0).Caption();
    ReadHeadingLines(std::span(Suite.DefaultHeadings).first<8>());
    CloseCalculations();
    UnloadForm("frmPrintControl");  // so that its load lists the records as they now are
    static_cast<frmPrintControl&>(LoadForm("frmPrintControl")).PickTags(tags);
    ShowForm("frmPrintControl");
    HideForm(Name());
}

}  // namespace quillmetra
