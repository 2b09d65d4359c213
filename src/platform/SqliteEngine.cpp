// See SqliteEngine.h.
#include "platform/SqliteEngine.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

#include <sqlite3.h>

#include "platform/KeyOrder.h"
#include "platform/SafeFiles.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr const char* KeyCollation = "KEYORDER";

int CompareForEngine(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return CompareKeys({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

struct FailureWords {
    const char* Text;
    int Code;
    bool TellsReason;  // the words of the system belong to it
};
constexpr FailureWords WordsOfFailures[] = {
    {"The database is locked by another program", SQLITE_BUSY, false},
    {"The database is locked by another program", SQLITE_LOCKED, false},
    {"The disk is full", SQLITE_FULL, false},
    {"The database is write-protected", SQLITE_READONLY, false},
    {"The database may not be opened", SQLITE_PERM, true},
    {"The database, or a file beside it, cannot be opened", SQLITE_CANTOPEN, true},
    {"The disk reports an error", SQLITE_IOERR, true},
};
// What a damaged file, or one whose tables are not those of the suite, brings about.
constexpr int DamageCodes[] = {SQLITE_ERROR, SQLITE_CORRUPT, SQLITE_NOTADB, SQLITE_FORMAT};

bool IsDamage(int code) { return std::ranges::find(DamageCodes, code) != std::end(DamageCodes); }

RuntimeError FailureOf(sqlite3* engine, const fs::path& file) {
    const int code = sqlite3_errcode(engine) & 0xFF;
    if (IsDamage(code)) return failure::DatabaseInvalid();
    for (const FailureWords& each : WordsOfFailures) {
        if (each.Code != code) continue;
        std::string words = each.Text + ("\n" + SuitePath(file));
        const int reason = sqlite3_system_errno(engine);
        if (each.TellsReason && reason != 0) words += "\n" + std::generic_category().message(reason);
        return {EngineFailures + code, words};
    }
    return {EngineFailures + code, sqlite3_errmsg(engine)};
}

// A number of the file's first bytes, high byte first.
std::uint32_t NumberAt(std::string_view header, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number = number << 8U | static_cast<std::uint8_t>(header[place + i]);
    return number;
}

// Judged by the plain bytes: the engine would undo what it takes for a crash of a foreign file's owner.
void CheckKind(const fs::path& file, const DatabaseKind& kind) {
    constexpr std::size_t headerLength = 100, schemaPlace = 60, applicationPlace = 68;
    constexpr std::string_view mark("SQLite format 3\0", 16);
    std::error_code error;
    if (!fs::is_regular_file(file, error)) throw failure::DatabaseInvalid();
    std::string header(headerLength, '\0');
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw FileFailure(file, {errno, std::generic_category()});
    if (!stream.read(header.data(), headerLength) || !header.starts_with(mark)) {
        throw failure::DatabaseInvalid();
    }
    if (NumberAt(header, applicationPlace) != kind.Application) throw failure::DatabaseInvalid();
    if (NumberAt(header, schemaPlace) > static_cast<std::uint32_t>(kind.Schema))
        throw failure::DatabaseNewer();
}

const char* EngineType(FieldType type) {
    switch (type) {
        case FieldType::Integer: return "INTEGER";
        case FieldType::Single: return "REAL";
        default: return "TEXT";
    }
}

std::string KeyOf(const TableShape& table) {
    std::string key;
    for (std::size_t i = 0; i < table.KeyFields; ++i)
        key += (i > 0 ? ", " : "") + Quoted(table.Fields[i].Name);
    return key;
}

// The key has an index of its own beside the rows, so that keys are listed and counted without reading rows.
std::string DefinitionOf(const TableShape& table) {
    std::string sql = Quoted(table.Name) + "(";
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        const FieldShape& field = table.Fields[i];
        if (i > 0) sql += ", ";
        sql += Quoted(field.Name) + " " + EngineType(field.Type);
        if (i == 0) sql += " COLLATE " + std::string(KeyCollation);
        if (i < table.KeyFields) sql += table.KeyFields == 1 ? " NOT NULL PRIMARY KEY" : " NOT NULL";
    }
    return sql + (table.KeyFields == 1 ? "" : ", PRIMARY KEY(" + KeyOf(table) + ")") + ")";
}

}  // namespace

SqliteEngine::SqliteEngine(const fs::path& file, const DatabaseKind& kind) {
    CheckKind(file, kind);
    Open(file, IsWriteProtected(file) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
}

SqliteEngine::~SqliteEngine() {
    for (const auto& [sql, statement] : statements_) sqlite3_finalize(statement);
    sqlite3_close(handle_);
}

// A file from elsewhere may hold triggers and views, which stay without effect, and may lack fields, whose
// quoted names the engine would else take for texts.
void SqliteEngine::Open(const fs::path& file, int flags) {
    file_ = file;
    sqlite3_open_v2(SuitePath(file).c_str(), &handle_, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (sqlite3_errcode(handle_) != SQLITE_OK) GiveUp();
    sqlite3_busy_timeout(handle_, Database::BusyMilliseconds);
    for (const int harmful :
         {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_TRUSTED_SCHEMA,
          SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL}) {
        sqlite3_db_config(handle_, harmful, 0, nullptr);
    }
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_create_collation_v2(handle_, KeyCollation, SQLITE_UTF8, nullptr, CompareForEngine, nullptr);
    // What is deleted is overwritten: a repair, which goes by the pages, must not bring it back.
    sqlite3_exec(handle_, "PRAGMA secure_delete = ON", nullptr, nullptr, nullptr);
    // The first look at the file, which waits for a lock: it must not be waited for again.
    if (sqlite3_exec(handle_, "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr) == SQLITE_BUSY)
        GiveUp();
}

void SqliteEngine::GiveUp() {
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> engine(std::exchange(handle_, nullptr),
                                                                    sqlite3_close);
    throw FailureOf(engine.get(), file_);
}

void SqliteEngine::Create(const fs::path& file, const DatabaseKind& kind,
                          const std::vector<TableShape>& tables) {
    try {
        SqliteEngine database;
        database.Open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        database.Begin(0);
        database.Execute("PRAGMA application_id = " + std::to_string(kind.Application));
        database.Execute("PRAGMA user_version = " + std::to_string(kind.Schema));
        for (const TableShape& table : tables) database.AddTable(table);
        database.Commit(0);
    } catch (const RuntimeError&) {
        std::error_code ignored;
        fs::remove(file, ignored);
        throw;
    }
}

void SqliteEngine::Fail() const {
    // The engine takes the new file for a fault of the disk or a protected one.
    const int code = sqlite3_errcode(handle_) & 0xFF;
    if ((code == SQLITE_IOERR || code == SQLITE_READONLY) && IsReplaced()) throw failure::DatabaseReplaced();
    throw FailureOf(handle_, file_);
}

void SqliteEngine::Execute(const std::string& sql) {
    if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

sqlite3_stmt* SqliteEngine::Prepared(const std::string& sql) {
    sqlite3_stmt*& statement = statements_[sql];
    if (statement == nullptr && sqlite3_prepare_v3(handle_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT,
                                                   &statement, nullptr) != SQLITE_OK) {
        Fail();
    }
    return statement;
}

bool SqliteEngine::HasTable(std::string_view name) {
    sqlite3_stmt* const statement =
        Prepared("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
    const Run run(statement);
    const FieldValue sought = std::string(name);
    Bind(statement, 1, sought);
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE) Fail();
    return result == SQLITE_ROW;
}

std::string SqliteEngine::SchemaText(const TableShape& table) {
    return "CREATE TABLE " + DefinitionOf(table);
}

void SqliteEngine::AddTable(const TableShape& table) {
    Execute("CREATE TABLE IF NOT EXISTS " + DefinitionOf(table));
}

void SqliteEngine::CompactInto(const fs::path& file) {
    sqlite3_stmt* const statement = Prepared("VACUUM INTO ?1");
    const Run run(statement);
    const FieldValue target = SuitePath(file);
    Bind(statement, 1, target);
    if (sqlite3_step(statement) != SQLITE_DONE) Fail();
}

void SqliteEngine::CopyInto(const fs::path& file) {
    SqliteEngine copy;
    copy.Open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    copy.Execute("PRAGMA synchronous = OFF");
    sqlite3_backup* const pages = sqlite3_backup_init(copy.handle_, "main", handle_, "main");
    if (pages == nullptr) copy.Fail();
    sqlite3_backup_step(pages, -1);
    if (sqlite3_backup_finish(pages) != SQLITE_OK) copy.Fail();
}

void SqliteEngine::Reindex() { Execute("REINDEX"); }

// The engine reads a last page that is cut as if it ended in zeros.
bool SqliteEngine::IsCutShort() {
    sqlite3_stmt* const statement =
        Prepared("SELECT page_size * page_count FROM pragma_page_size, pragma_page_count");
    const Run run(statement);
    if (sqlite3_step(statement) != SQLITE_ROW) Fail();
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file_, error);
    return !error && size < static_cast<std::uintmax_t>(sqlite3_column_int64(statement, 0));
}

std::string SqliteEngine::Fault() {
    if (IsCutShort()) return "The file is cut short";
    sqlite3_stmt* statement = nullptr;
    std::string found;
    if (sqlite3_prepare_v2(handle_, "PRAGMA integrity_check(1)", -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW) {
        found = TextAt(statement, 0);
    }
    const int code = sqlite3_errcode(handle_) & 0xFF;
    if (found.empty()) found = sqlite3_errmsg(handle_);
    sqlite3_finalize(statement);
    if (code != SQLITE_ROW && !IsDamage(code)) Fail();
    return found == "ok" ? "" : found;
}

void SqliteEngine::TryToWrite() { Execute("CREATE TABLE \"TryToWrite\"(x)"); }

std::int64_t SqliteEngine::Version() {
    sqlite3_stmt* const statement = Prepared("PRAGMA data_version");
    const Run run(statement);
    if (sqlite3_step(statement) != SQLITE_ROW) Fail();
    return sqlite3_column_int64(statement, 0) + sqlite3_total_changes64(handle_);
}

bool SqliteEngine::InTransaction() const { return sqlite3_get_autocommit(handle_) == 0; }

bool SqliteEngine::IsReplaced() const {
    int moved = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

void SqliteEngine::Begin(int level) {
    Execute(level == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT level" + std::to_string(level));
    // From here on whoever wants to replace the file waits for the lock.
    if (level == 0 && IsReplaced()) {
        Execute("ROLLBACK");
        throw failure::DatabaseReplaced();
    }
}

void SqliteEngine::Commit(int level) {
    Execute(level == 0 ? "COMMIT" : "RELEASE level" + std::to_string(level));
}

void SqliteEngine::Undo(int level) noexcept {
    if (!InTransaction()) return;
    const std::string name = "level" + std::to_string(level);
    const std::string undo = level == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name;
    sqlite3_exec(handle_, undo.c_str(), nullptr, nullptr, nullptr);
}

}  // namespace quillmetra
