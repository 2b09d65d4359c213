// Dated copies of a database beside it. Before the first change of a day the database is kept as it is; the
// last ones of these copies stay.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillmetra {

// How many days are kept, and the most that can be; 0 keeps none and removes none.
inline int BackupsKept = 10;
inline constexpr int MostBackups = 99;

// To be called before records are written. A database without records has nothing to keep. What goes wrong
// keeps nobody from writing, and the next write tries again.
void KeepBackupOfToday(const std::string& file);
// What has gone wrong at the last write, in words that go behind "Saved as P-101"; told once a day.
std::string BackupTrouble();

struct Backup {
    std::string File;         // its full name
    std::string Day;          // "2026-11-24"
    bool PutAside = false;    // by a restore; else kept by the first change of its day
    std::string Content;      // "12 records", or why it does not open
    std::uintmax_t Size = 0;  // bytes
};
// The copies of a database, the newest first.
std::vector<Backup> BackupsOf(const std::string& file);

// Puts a copy in the place of its database, which is kept under a name of its own; gives that, empty where
// there was no database. Throws for a copy that is damaged, and when another program is at work on the
// database, with both as they were.
std::string RestoreBackup(const std::string& file, const std::string& backup);

}  // namespace quillmetra
