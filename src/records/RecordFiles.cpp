// See RecordFiles.h.
#include "records/RecordFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "platform/Dialogs.h"
#include "platform/SafeFiles.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/RecordTables.h"

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

fs::path InFolder(const std::string& folder, const char* name) {
    return MachinePath(folder + "\\" + std::string(name));
}

// What an engine leaves beside a database after a crash belongs to it under its name: it must be gone before
// another file takes the name.
void ForgetJournal(const fs::path& file) {
    try {
        Database(file, Kind).HasTable(FileName);  // the first look recovers
    } catch (const RuntimeError&) {
        // No database of ours: there is nothing to recover.
    }
    for (const char* ending : {"-journal", "-wal", "-shm"}) RemoveIfThere(fs::path(file) += ending);
}

// A file that is removed on every way out, and first of all when a former run has left it behind.
class Scratch {
public:
    explicit Scratch(fs::path file) : File(std::move(file)) { Remove(); }
    ~Scratch() { Remove(); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const fs::path File;

private:
    void Remove() const {
        RemoveIfThere(File);
        RemoveIfThere(fs::path(File) += "-journal");
    }
};

std::vector<std::int64_t> RowCounts(Database& database) {
    std::vector<std::int64_t> counts;
    for (const RecordTable* table : RecordTables()) {
        if (database.HasTable(table->Shape.Name)) {
            counts.push_back(Recordset(database, table->Shape).RecordCount());
        }
    }
    return counts;
}

bool SameFile(const std::string& a, const std::string& b) { return SameName(a, b); }

// --- What can still be read of a damaged file --------------------------------------------------------------

std::int64_t LastNumber(Recordset& rows, std::size_t known) {
    // Behind the largest number that can be found so many more are tried; a damaged number may be any.
    constexpr std::int64_t beyond = 1000, most = 10'000'000;
    return std::min(std::max(rows.LargestNumber(), static_cast<std::int64_t>(known)), most) + beyond;
}

// Copies each row that can be read by its number, and tells the tags that the key knows but that are lost.
// Gives the number of rows that were kept.
std::size_t Salvage(Database& from, Database& to, const RecordTable& table, std::vector<std::string>& lost) {
    const TableShape& shape = table.Shape;
    Recordset source(from, shape, Recordset::Unplaced());
    Recordset target(to, shape);
    target.Index("Tag_Number");
    const std::vector<std::string> known = source.ReadableKeys();
    std::vector<std::string> kept;
    const std::int64_t last = LastNumber(source, known.size());
    for (std::int64_t number = 1; number <= last; ++number) {
        if (!source.ReadNumbered(number)) continue;
        const std::string tag = source.Text("Tag");
        if (target.Seek(tag)) continue;
        try {
            target.AddNew();
            target.SetAll(source);
            target.Update();
            kept.push_back(tag);
        } catch (const RuntimeError&) {
            lost.push_back(shape.Name + ": " + tag);
        }
    }
    std::sort(kept.begin(), kept.end());
    for (const std::string& tag : known) {
        if (!std::binary_search(kept.begin(), kept.end(), tag)) lost.push_back(shape.Name + ": " + tag);
    }
    return kept.size();
}

std::vector<std::string> SalvageAll(Database& from, const fs::path& to) {
    Database::Create(to, Kind, Shapes());
    Database target(to, Kind);
    Transaction all(target);
    std::vector<std::string> lost;
    std::size_t kept = 0;
    for (const RecordTable* table : RecordTables()) {
        try {
            kept += Salvage(from, target, *table, lost);
        } catch (const RuntimeError& error) {
            lost.push_back(table->Shape.Name + ": " + error.Description);
        }
    }
    if (kept == 0) throw RuntimeError(3049, "Nothing of this database can be read; it stays as it is");
    all.Commit();
    return lost;
}

std::uintmax_t BigEndian(std::string_view bytes) {
    std::uintmax_t value = 0;
    for (const char byte : bytes) value = value << 8U | static_cast<unsigned char>(byte);
    return value;
}

// The engine refuses a file that is shorter than its first page says, as a copy that broke off. Makes a copy
// of the full length, whose missing pages are blank; false for a file that is not cut.
bool PadCutFile(const fs::path& file, const fs::path& padded) {
    constexpr std::size_t header = 100, pageSizeAt = 16, pageCountAt = 28;
    constexpr std::uintmax_t mostMissing = 256U << 20U;
    std::string first(header, '\0');
    std::ifstream source(file, std::ios::binary);
    if (!source.read(first.data(), static_cast<std::streamsize>(header))) return false;
    std::uintmax_t pageSize = BigEndian(std::string_view(first).substr(pageSizeAt, 2));
    if (pageSize == 1) pageSize = 65536;
    const std::uintmax_t full = pageSize * BigEndian(std::string_view(first).substr(pageCountAt, 4));
    const std::uintmax_t size = fs::file_size(file);
    if (size >= full || full - size > mostMissing) return false;
    CopyWhole(file, padded);
    fs::resize_file(padded, full);
    return true;
}

void DeleteRows(Database& database, const std::string& tag) {
    for (const RecordTable* table : RecordTables()) {
        if (!database.HasTable(table->Shape.Name)) continue;
        Recordset rows(database, table->Shape);
        rows.Index("Tag_Number");
        if (rows.Seek(tag)) rows.Delete();
    }
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

std::unique_ptr<Database> OpenRecords(const std::string& file) {
    auto database = std::make_unique<Database>(MachinePath(file), Kind);
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
    ForgetJournal(file);
    MoveOver(beside.File, file);
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

void CompactDB(const std::string& folder) {
    const std::string name = DatabaseFileOf(folder);
    const fs::path file = MachinePath(name);
    if (IsWriteProtected(file)) throw failure::PathAccess();
    const Scratch beside(InFolder(folder, "Temp.mdb"));
    const Scratch backup(InFolder(folder, "TRDB.BAK.new"));
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
    MoveOver(backup.File, InFolder(folder, "TRDB.BAK"));
    MoveOver(beside.File, file);
}

RepairReport RepairDB(const std::string& folder) {
    const std::string name = DatabaseFileOf(folder);
    const Scratch padded(InFolder(folder, "TRDB.FIX"));
    const bool isCut = PadCutFile(MachinePath(name), padded.File);
    std::unique_ptr<Database> database = OpenRecords(isCut ? SuitePath(padded.File) : name);
    RepairReport report;
    if (!isCut && database->Fault().empty()) {
        database->Reindex();
        return report;
    }
    report.WasDamaged = true;
    const fs::path file = MachinePath(name);
    if (IsWriteProtected(file)) throw failure::PathAccess();
    const Scratch beside(InFolder(folder, "Temp.mdb"));
    const Scratch aside(InFolder(folder, "TRDB.BAD.new"));
    report.Lost = SalvageAll(*database, beside.File);
    CopyWhole(file, aside.File);
    report.KeptAs = SuitePath(InFolder(folder, "TRDB.BAD"));
    if (!OpenFilesCanBeReplaced) database.reset();
    MoveOver(aside.File, report.KeptAs);
    MoveOver(beside.File, file);
    return report;
}

std::string RepairText(const RepairReport& report) {
    if (!report.WasDamaged) return "";
    constexpr std::size_t mostShown = 20;
    std::string text = "The database was damaged. ";
    text += report.Lost.empty() ? "All its records could be read." : "These rows could not be read:";
    for (std::size_t i = 0; i < std::min(report.Lost.size(), mostShown); ++i) text += "\n" + report.Lost[i];
    if (report.Lost.size() > mostShown) {
        text += "\nand " + std::to_string(report.Lost.size() - mostShown) + " more";
    }
    return text + "\nThe damaged file is kept as " + report.KeptAs;
}

bool DeleteRecord(const std::string& file, const std::string& tag) {
    const std::unique_ptr<Database> database = OpenRecords(file);
    if (Recordset(*database, HeadTable().Shape).AtEnd()) {
        Tell("Database is empty", file);
        return false;
    }
    Transaction all(*database);
    DeleteRows(*database, tag);
    all.Commit();
    if (SameName(Calc.TagSaved, tag) && SameFile(Calc.LoadedDatabaseFile, file)) {
        // The record may still be open in a form: its next save writes every row.
        Calc.TagSaved.clear();
        Calc.LoadedDatabaseFile.clear();
    }
    return true;
}

}  // namespace quillmetra
