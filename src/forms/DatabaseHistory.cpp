// See frmTRProg.h: the databases that were opened last, and how one of them opens again.
#include <algorithm>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "forms/frmTRProg.h"
#include "platform/Dialogs.h"
#include "platform/PathText.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr std::size_t MostRecent = 9;

// A locked database is not waited for while nobody has asked for it.
class NoPatience {
public:
    NoPatience() { Database::BusyMilliseconds = 100; }
    ~NoPatience() { Database::BusyMilliseconds = before_; }
    NoPatience(const NoPatience&) = delete;
    NoPatience& operator=(const NoPatience&) = delete;

private:
    const int before_ = Database::BusyMilliseconds;
};

bool IsListName(const std::string& file) {
    const std::string name = LowerCase(file);
    return name.ends_with(".csv") || name.ends_with(".xlsx");
}

// "&1  C:\data\TRDB.MDB".
std::string EntryOf(int number, const std::string& file) {
    return std::string(1, '&').append(std::to_string(number)).append("  ").append(CaptionOfFile(file));
}

}  // namespace

void frmTRProg::HookHistory() {
    mnuRecent.SetEnabled(false);
    mnuRecentFile.Each([this](MenuItem& entry, int number) {
        entry.SetCaption(EntryOf(number, ""));
        entry.SetVisible(false);
        entry.Click = [this, number] {
            OpenByName(std::string(recent_.at(static_cast<std::size_t>(number - 1))));
        };
    });
    FileDropped = [this](const std::string& file) {
        if (IsDatabaseName(file)) return OpenByName(file);
        if (IsListName(file)) return ImportList(file);
        Tell("Must find file named TRDB.MDB", "Database file");
    };
}

void frmTRProg::ShowRecent(const Files& files) {
    recent_.assign(files.begin(),
                   files.begin() + static_cast<std::ptrdiff_t>(std::min(files.size(), MostRecent)));
    mnuRecent.SetEnabled(!recent_.empty());
    mnuRecentFile.Each([this](MenuItem& entry, int number) {
        const auto place = static_cast<std::size_t>(number - 1);
        entry.SetVisible(place < recent_.size());
        entry.SetCaption(EntryOf(number, entry.Visible() ? recent_[place] : ""));
    });
}

void frmTRProg::KeepInHistory() {
    if (!OpenFile().empty()) {
        Files files = recent_;
        std::erase_if(files, [this](const std::string& file) { return SameName(file, OpenFile()); });
        files.insert(files.begin(), OpenFile());
        ShowRecent(files);
    }
    if (DatabasesChanged) DatabasesChanged();
}

void frmTRProg::ChooseFolder(const std::string& folder) {
    ReadDefaultPaths(3);
    const bool isDefault = IsSameFolder(folder, Suite.DefaultPaths[path::Database]);
    optDefaultDB.SetChecked(isDefault);
    optBrouseDB.SetChecked(!isDefault);
    Suite.BrowsePath = isDefault ? "" : folder;
}

void frmTRProg::OpenByName(const std::string& file) {
    cmdDBClose_Click();
    ChooseFolder(FolderOf(file));
    cmdDBOpen_Click();
}

void frmTRProg::OpenAgain(const std::string& file) {
    const NoPatience atTheStart;
    ChooseFolder(FolderOf(file));
    try {
        view_ = std::make_unique<RecordView>(file);
        Suite.DatabaseFile = file;
        Suite.DatabasePath = FolderOf(file);
        ShowOpened();
        if (!view_->HasRecord()) SetStatus("The database is empty");
        if (view_->HasRecord()) cmdDisplayCalc.SetFocus();
    } catch (const RuntimeError& error) {
        CloseView();
        optDefaultDB.SetChecked(true);
        Suite.BrowsePath.clear();
        const std::string reason = FileExists(file) ? error.Description : "the file is gone";
        SetStatus("Not opened again: " + file + ", " + reason);
    }
}

}  // namespace quillmetra
