// See Backups.h.
#include "records/Backups.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <tuple>
#include <utility>

#include "platform/Clock.h"
#include "platform/Database.h"
#include "platform/Folders.h"
#include "platform/SafeFiles.h"
#include "platform/ServerLink.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Start = "TRDB-", Ending = ".BAK";  // around the day, as in TRDB-2026-11-25.BAK
constexpr std::size_t DayLength = 10;

std::string Trouble;
std::string Told;  // the copy that could not be made, of which the user knows

std::string NameBeside(const std::string& file, const std::string& addition = "") {
    return FolderOf(file) + "\\" + std::string(Start) + IsoDate(Today()) + addition + std::string(Ending);
}

std::string DayOf(const std::string& name) { return name.substr(Start.size(), DayLength); }

bool IsDaily(const std::string& name) { return name.size() == Start.size() + DayLength + Ending.size(); }

// The names of the copies, the newest first; of one day those that were put aside, as the later ones.
std::vector<std::string> NamesOf(const std::string& file) {
    std::vector<std::string> names = ListFolder(FolderOf(file)).Files;
    std::erase_if(names, [](const std::string& name) {
        return !MatchesPattern(name, "TRDB-*.BAK") || DateText(DayOf(name)).empty();
    });
    const auto key = [](const std::string& name) { return std::tuple(DayOf(name), name.size(), name); };
    std::ranges::sort(names, [&](const std::string& a, const std::string& b) { return key(a) > key(b); });
    return names;
}

void RemoveOldest(const std::string& file) {
    std::vector<std::string> daily = NamesOf(file);
    std::erase_if(daily, [](const std::string& name) { return !IsDaily(name); });
    for (auto i = static_cast<std::size_t>(BackupsKept); i < daily.size(); ++i)
        RemoveIfThere(MachinePath(FolderOf(file) + "\\" + daily[i]));
}

// Whoever writes next needs room as well.
bool HasRoomTwice(const fs::path& file) {
    std::error_code failed;
    const fs::space_info space = fs::space(file.parent_path(), failed);
    return failed || space.available / 2 > fs::file_size(file, failed);
}

// Under a lock, so that of two programs one makes the copy. The reader is opened before it: a file that is
// opened and closed again gives up the locks of its process.
void MakeCopy(const std::string& file, const fs::path& backup) {
    const std::unique_ptr<Database> reader = OpenRecords(file), keeper = OpenRecords(file);
    const Transaction lock(*keeper);
    if (fs::exists(backup) || Recordset(*reader, HeadTable().Shape).AtEnd()) return;
    if (!HasRoomTwice(MachinePath(file))) throw failure::DiskFull();
    const Scratch half(fs::path(backup) += ".new");
    reader->CopyInto(half.File);
    TakeRights(MachinePath(file), half.File);
    MoveOver(half.File, backup);
}

std::string ContentOf(const std::string& backup) {
    try {
        const std::unique_ptr<Database> database = OpenRecords(backup);
        const auto records = Recordset(*database, HeadTable().Shape, Recordset::Unplaced()).RecordCount();
        return Counted(static_cast<std::size_t>(records), "record");
    } catch (const RuntimeError& error) {
        return error.Number == failure::DatabaseInvalid().Number ? "damaged" : error.Description;
    }
}

}  // namespace

void KeepBackupOfToday(const std::string& file) {
    Trouble.clear();
    if (BackupsKept <= 0 || !IsDatabaseName(file) || IsServerLink(MachinePath(file))) return;
    const std::string backup = NameBeside(file);
    if (FileExists(backup)) return;
    try {
        MakeCopy(file, MachinePath(backup));
        RemoveOldest(file);
    } catch (const RuntimeError& error) {
        if (std::exchange(Told, backup) == backup) return;
        Trouble = ". There is no backup of today: " + error.Description;
        std::ranges::replace(Trouble, '\n', ' ');
    }
}

std::string BackupTrouble() { return std::exchange(Trouble, {}); }

std::vector<Backup> BackupsOf(const std::string& file) {
    std::vector<Backup> backups;
    for (const std::string& name : NamesOf(file)) {
        const std::string full = FolderOf(file) + "\\" + name;
        std::error_code failed;
        const std::uintmax_t size = fs::file_size(MachinePath(full), failed);
        backups.push_back({full, DayOf(name), !IsDaily(name), ContentOf(full), failed ? 0 : size});
    }
    return backups;
}

std::string RestoreBackup(const std::string& file, const std::string& backup) {
    std::string aside;
    for (int i = 1; aside.empty() || FileExists(aside); ++i)
        aside = NameBeside(file, " put aside " + std::to_string(i));
    RestoreDatabase(file, backup, aside);
    return FileExists(aside) ? aside : "";
}

}  // namespace quillmetra
