// See RecordFiles.h.
#include "records/RecordFiles.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "core/CalcRecord.h"
#include "core/FileNames.h"
#include "core/Suite.h"
#include "platform/Dialogs.h"
#include "platform/SafeFiles.h"
#include "platform/ServerLink.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/Backups.h"
#include "records/RecordExtras.h"
#include "records/RecordTables.h"
#include "records/Salvage.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr DatabaseKind Kind = {.Application = 0x514D5244, .Schema = 1};  // "QMRD"
constexpr const char* FileName = "TRDB.MDB";

std::vector<TableShape> Shapes() {
    std::vector<TableShape> shapes;
    for (const RecordTable* table : RecordTables()) shapes.push_back(table->Shape);
    return shapes;
}

// Later only whoever owns the schema could make the table of extras.
std::vector<TableShape> ServerShapes() {
    std::vector<TableShape> shapes = Shapes();
    shapes.push_back(ExtrasTable());
    return shapes;
}

fs::path InFolder(const std::string& folder, const std::string& name) {
    return MachinePath(folder + "\\" + name);
}

// As the engine reads it, which has it locked; as it lies there where the engine is at its end.
void PutAside(Database* reader, const fs::path& file, const fs::path& aside) {
    const Scratch half(fs::path(aside) += ".new");
    try {
        if (reader == nullptr) throw failure::DatabaseInvalid();
        reader->CopyInto(half.File);
    } catch (const RuntimeError&) {
        CopyWhole(file, half.File);
    }
    TakeRights(file, half.File);
    MoveOver(half.File, aside);
}

// Puts a new database in the place of a former one, which no other program may be writing, and which is kept
// under another name when one is given. What an engine leaves beside a database after a crash belongs to it
// under its name: it is undone, and gone before another file takes the name.
void Replace(const fs::path& beside, const fs::path& file, const fs::path& aside = {}) {
    if (IsServerLink(file)) return MoveOver(beside, file);  // what is on the server stays there
    std::unique_ptr<Database> former, reader;
    std::optional<Transaction> lock;
    try {
        former = std::make_unique<Database>(file, Kind);
        if (!aside.empty()) reader = std::make_unique<Database>(file, Kind);
        lock.emplace(*former);
    } catch (const RuntimeError& error) {
        if (IsLock(error)) throw;  // else nobody can be at work on it
    }
    if (!aside.empty() && fs::exists(file)) PutAside(reader.get(), file, aside);
    for (const char* ending : {"-journal", "-wal", "-shm"}) RemoveIfThere(fs::path(file) += ending);
    if (!OpenFilesCanBeReplaced) {
        lock.reset();
        former.reset();
        reader.reset();
    }
    MoveOver(beside, file);
}

void MustBeFile(const fs::path& file) {
    if (IsServerLink(file)) throw failure::OnServer();
}

std::vector<std::int64_t> RowCounts(Database& database) {
    std::vector<std::int64_t> counts;
    for (const RecordTable* table : RecordTables()) {
        if (database.HasTable(table->Shape.Name)) {
            counts.push_back(Recordset(database, table->Shape).RecordCount());
        }
    }
    return counts;
}

// Sorts the keys of a sound database anew. Gives what is wrong with a damaged one, and throws what no repair
// can help.
std::optional<RuntimeError> FaultOf(const std::string& name) {
    try {
        const std::unique_ptr<Database> database = OpenRecords(name);
        if (!database->Fault().empty()) return failure::DatabaseInvalid();
        RowCounts(*database);  // the engine does not mind a field that is misspelt
        database->Reindex();
        return {};
    } catch (const RuntimeError& error) {
        if (error.Number == failure::PathAccess().Number || IsLock(error)) throw;
        if (IsWriteProtected(MachinePath(name))) throw WriteProtected(MachinePath(name));
        return error;
    }
}

// A file that says that it is of a later version is one, unless its tables are those of this version.
SalvageReport SalvageInto(const fs::path& beside, const fs::path& file, const RuntimeError& fault) {
    Database::Create(beside, Kind, Shapes());
    Database target(beside, Kind);
    SalvageReport found = Salvage(file, target);
    if (!found.IsOurs && fault.Number == failure::DatabaseNewer().Number) throw fault;
    if (found.Rows == 0) {
        throw RuntimeError(fault.Number,
                           fault.Description + "\nNothing of it can be read; it stays as it is");
    }
    return found;
}

void DeleteRows(Database& database, const std::string& tag) {
    for (const RecordTable* table : RecordTables()) {
        if (!database.HasTable(table->Shape.Name)) continue;
        Recordset rows(database, table->Shape);
        rows.Index(TagIndex);
        if (rows.Seek(tag)) rows.Delete();
    }
    DeleteExtras(database, tag);
}

void CopyRow(Database& database, const RecordTable& table, const std::string& tag,
             const std::string& newTag) {
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index(TagIndex);
    if (!rows.Seek(tag)) return;
    std::vector<FieldValue> values;
    for (std::size_t field = 0; field < table.Fields.size(); ++field) values.push_back(rows.Value(field));
    values.front() = newTag;
    rows.AddNew();
    rows.SetAll(values);
    rows.Update();
}

}  // namespace

std::string DatabaseFileOf(const std::string& folder) { return folder + "\\" + FileName; }

bool MustHaveDataPath(const std::string& folder) {
    if (!folder.empty()) return true;
    Tell("You must create the default path first", DatabaseTitle);
    return false;
}

bool IsDatabaseName(const std::string& file) { return SameName(FileNameOf(file), FileName); }

std::string_view FileNameOf(std::string_view file) { return file.substr(file.find_last_of("\\/") + 1); }

std::string FolderOf(const std::string& file) {
    const std::size_t end = file.find_last_of("\\/");
    return end == std::string::npos ? "" : file.substr(0, end);
}

bool IsSameFolder(const std::string& a, const std::string& b) {
    const fs::path first = MachinePath(a);
    const fs::path second = MachinePath(b);
    std::error_code error;
    return first == second || fs::equivalent(first, second, error);
}

bool IsSameFile(const std::string& a, const std::string& b) {
    return SameName(FileNameOf(a), FileNameOf(b)) && IsSameFolder(FolderOf(a), FolderOf(b));
}

std::unique_ptr<Database> OpenRecords(const std::string& file) {
    auto database = std::make_unique<Database>(MachinePath(file), Kind);
    if (database->IsOfEarlierForm()) database->BringUp(ServerShapes());
    for (const RecordTable* table : RecordTables()) {
        if (table != &SettingsTable() && !database->HasTable(table->Shape.Name)) {
            throw failure::DatabaseInvalid();
        }
    }
    return database;
}

void MakeEmptyDatabase(const std::string& name) {
    const fs::path file = MachinePath(name);
    const Scratch beside(InFolder(FolderOf(name), "TRDB.new"));
    Database::Create(beside.File, Kind, Shapes());
    Replace(beside.File, file);
}

void MakeServerDatabase(const std::string& name, const ServerLink& link) {
    Database::CreateOnServer(link, Kind, ServerShapes());
    const Scratch beside(InFolder(FolderOf(name), "TRDB.new"));
    WriteServerLink(beside.File, link);
    Replace(beside.File, MachinePath(name));
}

bool CreateDB(bool agreed) {
    const std::string& folder = Suite.DatabasePath;
    Suite.DatabaseFile = DatabaseFileOf(folder);
    const fs::path file = MachinePath(Suite.DatabaseFile);
    if (fs::exists(file) && (!agreed || IsWriteProtected(file)) &&
        !AskYesNo("New database will Replace Existing DataBase\n0n " + folder + "\n\nOK?",
                  "Create New Database File", Icon::None, Answer::No)) {
        return false;
    }
    {
        const BusyPointer busy;
        MakeEmptyDatabase(Suite.DatabaseFile);
    }
    Tell("New database TRDB.MDB created\non " + folder, Calc.MessageTitle);
    return true;
}

bool OfferDatabase(const std::string& title) {
    if (!AskYesNo("There is no TRDB.MDB on\n" + Suite.DatabasePath + "\nCreate it?", title)) return false;
    Calc.MessageTitle = title;
    return CreateDB(true);
}

std::string AskDatabaseFile(bool forSaving) {
    const auto file = AskFile({.Title = DatabaseTitle,
                               .Filter = "Access DB Files(TRDB.MDB)|TRDB.MDB",
                               .Folder = Suite.DatabasePath,
                               .ForSaving = forSaving});
    if (!file || file->empty() || IsDatabaseName(*file)) return file.value_or("");
    Tell("Must find file named TRDB.MDB", "Database file");
    return "";
}

void CompactDB(const std::string& folder) {
    const std::string name = DatabaseFileOf(folder);
    const fs::path file = MachinePath(name);
    MustBeFile(file);
    if (IsWriteProtected(file)) throw WriteProtected(file);
    const Scratch beside(InFolder(folder, "Temp.mdb"));
    const Scratch backup(InFolder(folder, filename::Backup + std::string(".new")));
    std::unique_ptr<Database> database = OpenRecords(name);
    CopyWhole(file, backup.File);
    // Nobody may write between the copying and the renaming, which a second connection sees to. It is opened
    // before it locks: a file that is opened and closed again gives up the locks of its process.
    std::unique_ptr<Database> keeper = OpenRecords(name);
    auto lock = std::make_optional<Transaction>(*keeper);
    database->CompactInto(beside.File);
    if (RowCounts(*OpenRecords(SuitePath(beside.File))) != RowCounts(*database)) throw failure::DeviceError();
    if (!OpenFilesCanBeReplaced) {
        lock.reset();
        keeper.reset();
        database.reset();
    }
    MoveOver(backup.File, InFolder(folder, filename::Backup));
    MoveOver(beside.File, file);
}

RepairReport RepairDB(const std::string& folder) {
    const std::string name = DatabaseFileOf(folder);
    const fs::path file = MachinePath(name);
    MustBeFile(file);
    const std::optional<RuntimeError> fault = FaultOf(name);
    if (!fault) return {};
    const FileStamp stamp = StampOf(file);
    const Scratch beside(InFolder(folder, "Temp.mdb"));
    const Scratch aside(InFolder(folder, filename::Damaged + std::string(".new")));
    SalvageReport found = SalvageInto(beside.File, file, *fault);
    CopyWhole(file, aside.File);
    if (StampOf(file) != stamp) throw failure::DatabaseReplaced();
    RepairReport report{true, found.Records, found.MissingPages, std::move(found.Lost),
                        SuitePath(InFolder(folder, filename::Damaged))};
    MoveOver(aside.File, report.KeptAs);
    Replace(beside.File, file);
    return report;
}

namespace {

// Opens it as the suite does, for the rows as well as for the engine's own order.
bool IsSound(const std::string& name) {
    try {
        const std::unique_ptr<Database> database = OpenRecords(name);
        RowCounts(*database);
        return database->Fault().empty();
    } catch (const RuntimeError& error) {
        if (error.Number == failure::DatabaseInvalid().Number) return false;
        throw;
    }
}

}  // namespace

void RestoreDatabase(const std::string& name, const std::string& backup, const std::string& aside) {
    const fs::path file = MachinePath(name);
    MustBeFile(file);
    if (IsWriteProtected(file)) throw WriteProtected(file);
    const Scratch beside(InFolder(FolderOf(name), "TRDB.new"));
    CopyWhole(MachinePath(backup), beside.File);
    if (!IsSound(SuitePath(beside.File))) {
        throw RuntimeError(failure::DatabaseInvalid().Number,
                           "This backup is damaged; the database stays as it is\n" + backup);
    }
    Replace(beside.File, file, MachinePath(aside));
}

std::string Counted(std::size_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string RepairText(const RepairReport& report) {
    if (!report.WasDamaged) return "";
    constexpr std::size_t mostShown = 20;
    const std::size_t lost = report.Lost.size();
    std::string text = "The database was damaged.\n";
    if (report.MissingPages > 0) {
        text += "It broke off: " + Counted(report.MissingPages, "page") + " of its end " +
                (report.MissingPages == 1 ? "is" : "are") + " missing.\n";
    }
    text += Counted(report.Records, "record") + (report.Records == 1 ? " was saved.\n" : " were saved.\n");
    text += lost > 0                  ? Counted(lost, "row") + " could not be read:"
            : report.MissingPages > 0 ? "All rows that left a trace could be read."
                                      : "All its rows could be read.";
    for (std::size_t i = 0; i < std::min(lost, mostShown); ++i) text += "\n" + report.Lost[i];
    if (lost > mostShown) text += "\nand " + std::to_string(lost - mostShown) + " more";
    return text + "\nThe damaged file is kept as " + report.KeptAs;
}

bool DeleteRecord(const std::string& file, const std::string& tag) { return DeleteRecords(file, {tag}); }

bool DeleteRecords(const std::string& file, const std::vector<std::string>& tags) {
    const std::unique_ptr<Database> database = OpenRecords(file);
    if (Recordset(*database, HeadTable().Shape).AtEnd()) {
        Tell("Database is empty", file);
        return false;
    }
    KeepBackupOfToday(file);
    Transaction all(*database);
    for (const std::string& tag : tags) DeleteRows(*database, tag);
    all.Commit();
    for (const std::string& tag : tags) {
        if (!SameName(Calc.TagSaved, tag) || !IsSameFile(Calc.LoadedDatabaseFile, file)) continue;
        // The record may still be open in a form: its next save writes every row.
        Calc.TagSaved.clear();
        Calc.LoadedDatabaseFile.clear();
    }
    return true;
}

void CopyRecord(const std::string& file, const std::string& tag, const std::string& newTag) {
    if (newTag.empty())
        throw RuntimeError{failure::ValueRefused, "Each record must have a unique Tag number"};
    KeepBackupOfToday(file);
    const std::unique_ptr<Database> database = OpenRecords(file);
    Transaction all(*database);
    Recordset heads(*database, HeadTable().Shape, Recordset::Unplaced());
    heads.Index(TagIndex);
    if (heads.Seek(newTag)) throw RuntimeError{failure::ValueRefused, "Tag Number is on file"};
    if (!heads.Seek(tag)) throw RuntimeError{failure::ValueRefused, "Not found"};
    DeleteRows(*database, newTag);  // rows without a head, which a crash of another program may have left
    for (const RecordTable* table : RecordTables()) {
        if (database->HasTable(table->Shape.Name)) CopyRow(*database, *table, tag, newTag);
    }
    CopyExtras(*database, tag, newTag);
    all.Commit();
}

}  // namespace quillmetra
