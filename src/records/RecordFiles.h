// The database file TRDB.MDB as a whole: create, open, compact, repair. At every moment of these there is a
// whole database under the name, the former or the new one.
//
// Files are named in the suite's words, with "\" or "/" between the parts. Failures are RuntimeErrors with
// words for the user, unless a routine says otherwise. A caller closes its own view of a file (RecordView)
// before it has the file replaced.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Database.h"

namespace quillmetra {

struct ServerLink;

// Folder & "\TRDB.MDB".
std::string DatabaseFileOf(const std::string& folder);

// The title of the boxes about the database as a whole.
inline constexpr const char* DatabaseTitle = "Database TRDB.MDB";

// False, after a message, for an empty folder.
bool MustHaveDataPath(const std::string& folder);

// Whether a file is named TRDB.MDB, in whatever case: the whole name, not just its end.
bool IsDatabaseName(const std::string& file);

// The two parts of a file's full name.
std::string_view FileNameOf(std::string_view file);
std::string FolderOf(const std::string& file);

// Whether two full names mean one file: the file's own name without regard to case, the folder as the machine
// tells folders apart.
bool IsSameFile(const std::string& a, const std::string& b);
bool IsSameFolder(const std::string& a, const std::string& b);

// Opens a database and checks that it is one of the suite's with its six tables. "Open failed (Database
// invalid)" for anything else, which is left untouched; a database of a later version, a locked one and a
// damaged one are refused in words of their own.
std::unique_ptr<Database> OpenRecords(const std::string& file);

// Makes an empty database under a name, in place of one that is there, without a word. Throws when another
// program is at work on that.
void MakeEmptyDatabase(const std::string& name);

// Makes the tables of the suite on a server where they are not there yet, and puts a link to them under a
// name, in place of a database that is there. Throws when the server refuses; all is then as it was.
void MakeServerDatabase(const std::string& name, const ServerLink& link);

// Makes an empty database in Suite.DatabasePath and tells so with the title Calc.MessageTitle; sets
// Suite.DatabaseFile. A database that is there already is replaced without a question when the user has
// agreed and it may be written; else the user is asked. False when the user said No.
bool CreateDB(bool agreed);
// Asks whether to make the database that Suite.DatabasePath lacks; false when the user says No.
bool OfferDatabase(const std::string& title);
// Asks for the name of a database, from Suite.DatabasePath on; empty when the user cancels, and after a
// message for a file of another name.
std::string AskDatabaseFile(bool forSaving = false);

// Rewrites the database without the room of deleted records. The former file stays as the one backup
// TRDB.BAK.
void CompactDB(const std::string& folder);

// Puts a backup in the place of a database, which is kept under the name aside. Throws for a backup that is
// damaged, for a protected database and for one that another program is at work on; all is then as it was.
void RestoreDatabase(const std::string& name, const std::string& backup, const std::string& aside);

struct RepairReport {
    bool WasDamaged = false;
    std::size_t Records = 0;        // that were saved
    std::size_t MissingPages = 0;   // of a file that broke off; what was on them may have left no trace
    std::vector<std::string> Lost;  // rows that could not be read, in words; empty when all was kept
    std::string KeptAs;             // where the damaged file stays
};
// Checks the database. A sound one gets its keys sorted anew; of a damaged one every row that can be read
// goes to a new file, and the damaged file stays beside it as TRDB.BAD.
RepairReport RepairDB(const std::string& folder);
// "1 record", "2 records".
std::string Counted(std::size_t count, const std::string& thing);
// The report in words for the user; empty for a sound database.
std::string RepairText(const RepairReport& report);

// Removes a record's rows from all tables. False with "Database is empty" when there are none.
bool DeleteRecord(const std::string& file, const std::string& tag);
// Those of several records, all or none.
bool DeleteRecords(const std::string& file, const std::vector<std::string>& tags);
// The rows of a record once more under another tag. Throws when that is on file, too long or empty, or the
// record is gone.
void CopyRecord(const std::string& file, const std::string& tag, const std::string& newTag);

}  // namespace quillmetra
