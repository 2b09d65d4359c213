// See frmBackups.h.
#include "forms/frmBackups.h"

#include <cmath>

#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "forms/frmTRProg.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/ServerLink.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

std::string SizeText(std::uintmax_t bytes) {
    constexpr std::uintmax_t kilobyte = 1024, megabyte = kilobyte * kilobyte;
    return bytes < megabyte ? std::to_string(bytes / kilobyte) + " KB"
                            : std::to_string(bytes / megabyte) + " MB";
}

frmTRProg& Browser() { return static_cast<frmTRProg&>(LoadForm("frmTRProg")); }

}  // namespace

frmBackups::frmBackups() : SuiteForm("frmBackups") {
    SetCaption("Backups");
    DefaultButton = &cmdRestore;
    CancelButton = &cmdCancel;
    grdBackups.IsList = true;
    grdBackups.FixedColumns = 0;
    grdBackups.ColourGroup = 4;
    grdBackups.Describe(&lblBackups);
    txtKept.Describe(&lblKept);
    txtKept.ColourGroup = 2;
    txtKept.MaxLength = 3;
    for (Label* label : {&lblFile, &lblBackups, &lblKept}) label->ColourGroup = 1;
    txtKept.SetToolTip("The first change of a day keeps a copy; older ones than these go at the next copy");
    cmdRestore.SetToolTip("Puts the selected copy in the place of the database, which is kept beside it");
    grdBackups.Click = [this] { grdBackups_Click(); };
    grdBackups.DoubleClick = [this] { cmdRestore_Click(); };
    cmdRestore.Click = [this] { cmdRestore_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmBackups::Load() {
    ApplyColours(*this);
    lblFile.SetCaption(Suite.DatabaseFile);
    txtKept.SetText(std::to_string(BackupsKept));
    ShowBackups();
}

void frmBackups::ShowBackups() {
    SetStatus("");
    try {
        backups_ = BackupsOf(Suite.DatabaseFile);
        if (backups_.empty()) SetStatus("There are none yet: the first change of a day makes one");
        if (IsServerLink(MachinePath(Suite.DatabaseFile))) SetStatus(failure::OnServer().Description);
    } catch (const RuntimeError& error) {
        SetStatus(error.Description);  // of a folder that is gone
    }
    std::vector<Grid::Cells> rows{{"Day", "Kept by", "Content", "Size"}};
    for (const Backup& each : backups_) {
        rows.push_back({each.Day, each.PutAside ? "a restore" : "the first change of the day", each.Content,
                        SizeText(each.Size)});
    }
    grdBackups.SetRows(std::move(rows), 4);
    grdBackups_Click();
}

void frmBackups::grdBackups_Click() { cmdRestore.SetEnabled(grdBackups.Selected() >= grdBackups.FixedRows); }

// What is no number of days keeps nobody here.
void frmBackups::TakeKept() {
    const double days = Val(txtKept.Text());
    if (!Trim(txtKept.Text()).empty() && ValReadsAll(txtKept.Text()) && days == std::floor(days) &&
        days >= 0 && days <= MostBackups) {
        BackupsKept = static_cast<int>(days);
        return;
    }
    Tell("Days must be a whole number from 0 to " + std::to_string(MostBackups) + "; they stay " +
             std::to_string(BackupsKept),
         Caption(), Icon::Stop);
}

void frmBackups::cmdRestore_Click() {
    const int row = grdBackups.Selected() - grdBackups.FixedRows;
    if (row < 0) return;
    const Backup backup = backups_.at(static_cast<std::size_t>(row));
    if (AskYesNo("Put the backup of " + backup.Day + " (" + backup.Content + ") in the place of\n" +
                     Suite.DatabaseFile + "\n\nThe present database is kept beside it. Continue?",
                 Caption(), Icon::None, Answer::No))
        Restore(backup);
}

// The view of the database is closed first: an open file cannot be replaced everywhere.
void frmBackups::Restore(const Backup& backup) {
    const std::string file = Suite.DatabaseFile;
    const bool wasOpen = !Browser().OpenFile().empty();
    std::string aside;
    bool done = false;
    TakeKept();
    Browser().cmdDBClose_Click();
    try {
        const BusyPointer busy;
        aside = RestoreBackup(file, backup.File);
        done = true;
    } catch (const RuntimeError& error) {
        Tell(error.Description, Caption(), Icon::Stop);
    }
    UnloadForm(Name());
    if (wasOpen || done) Browser().OpenByName(file);
    if (done)
        Browser().SetStatus(
            "Restored from " + backup.Day +
            (aside.empty() ? "" : "; what was there is kept as " + std::string(FileNameOf(aside))));
}

void frmBackups::cmdCancel_Click() {
    TakeKept();
    UnloadForm(Name());
    if (Browser().DatabasesChanged) Browser().DatabasesChanged();
}

}  // namespace quillmetra
