// See Database.h.
#include "platform/Database.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>

#include <sqlite3.h>

#include "platform/Engine.h"
#include "platform/KeyOrder.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr int EngineFailures = 3000;
constexpr const char* KeyCollation = "KEYORDER";

int CompareForEngine(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return CompareKeys({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
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
    std::ifstream stream(file, std::ios::binary);
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

// The key has an index of its own beside the rows, so that keys are listed and counted without reading rows.
std::string CreateSql(const TableShape& table) {
    std::string sql = "CREATE TABLE IF NOT EXISTS " + Quoted(table.Name) + "(";
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        const FieldShape& field = table.Fields[i];
        if (i > 0) sql += ", ";
        sql += Quoted(field.Name) + " " + EngineType(field.Type);
        if (i == 0) sql += " COLLATE " + std::string(KeyCollation) + " NOT NULL PRIMARY KEY";
    }
    return sql + ")";
}

}  // namespace

Database::Database(const fs::path& file, const DatabaseKind& kind) {
    CheckKind(file, kind);
    Open(file, IsWriteProtected(file) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
}

Database::~Database() {
    for (const auto& [sql, statement] : statements_) sqlite3_finalize(statement);
    sqlite3_close(handle_);
}

// A file from elsewhere may hold triggers and views, which stay without effect, and may lack fields, whose
// quoted names the engine would else take for texts.
void Database::Open(const fs::path& file, int flags) {
    if (sqlite3_open_v2(SuitePath(file).c_str(), &handle_, flags | SQLITE_OPEN_NOMUTEX, nullptr) !=
        SQLITE_OK) {
        const int code = sqlite3_errcode(handle_);
        const std::string description = sqlite3_errmsg(handle_);
        sqlite3_close(handle_);
        handle_ = nullptr;
        throw RuntimeError(EngineFailures + code, description);
    }
    sqlite3_busy_timeout(handle_, BusyMilliseconds);
    for (const int harmful :
         {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_TRUSTED_SCHEMA,
          SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL}) {
        sqlite3_db_config(handle_, harmful, 0, nullptr);
    }
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_create_collation_v2(handle_, KeyCollation, SQLITE_UTF8, nullptr, CompareForEngine, nullptr);
    sqlite3_exec(handle_, "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
}

void Database::Create(const fs::path& file, const DatabaseKind& kind, const std::vector<TableShape>& tables) {
    try {
        Database database;
        database.Open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        Transaction transaction(database);
        database.Execute("PRAGMA application_id = " + std::to_string(kind.Application));
        database.Execute("PRAGMA user_version = " + std::to_string(kind.Schema));
        for (const TableShape& table : tables) database.AddTable(table);
        transaction.Commit();
    } catch (const RuntimeError&) {
        std::error_code ignored;
        fs::remove(file, ignored);
        throw;
    }
}

void Database::Fail() const {
    throw RuntimeError(EngineFailures + sqlite3_errcode(handle_), sqlite3_errmsg(handle_));
}

void Database::Execute(const std::string& sql) {
    if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

sqlite3_stmt* Database::Prepared(const std::string& sql) {
    sqlite3_stmt*& statement = statements_[sql];
    if (statement == nullptr && sqlite3_prepare_v3(handle_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT,
                                                   &statement, nullptr) != SQLITE_OK) {
        Fail();
    }
    return statement;
}

bool Database::HasTable(std::string_view name) {
    sqlite3_stmt* const statement =
        Prepared("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
    const Run run(statement);
    const FieldValue sought = std::string(name);
    Bind(statement, 1, sought);
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE) Fail();
    return result == SQLITE_ROW;
}

void Database::AddTable(const TableShape& table) { Execute(CreateSql(table)); }

void Database::CompactInto(const fs::path& file) {
    sqlite3_stmt* const statement = Prepared("VACUUM INTO ?1");
    const Run run(statement);
    const FieldValue target = SuitePath(file);
    Bind(statement, 1, target);
    if (sqlite3_step(statement) != SQLITE_DONE) Fail();
}

void Database::Reindex() { Execute("REINDEX"); }

std::string Database::Fault() {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, "PRAGMA integrity_check(1)", -1, &statement, nullptr) != SQLITE_OK) {
        return sqlite3_errmsg(handle_);
    }
    const std::string found =
        sqlite3_step(statement) == SQLITE_ROW ? TextAt(statement, 0) : sqlite3_errmsg(handle_);
    sqlite3_finalize(statement);
    return found == "ok" ? "" : found;
}

std::int64_t Database::Version() {
    sqlite3_stmt* const statement = Prepared("PRAGMA data_version");
    const Run run(statement);
    if (sqlite3_step(statement) != SQLITE_ROW) Fail();
    return sqlite3_column_int64(statement, 0) + sqlite3_total_changes64(handle_);
}

bool Database::InTransaction() const { return sqlite3_get_autocommit(handle_) == 0; }

bool Database::IsReplaced() const {
    int moved = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

Transaction::Transaction(Database& database) : database_(database), level_(database.depth_) {
    database_.Execute(level_ == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT level" + std::to_string(level_));
    // From here on whoever wants to replace the file waits for the lock.
    if (level_ == 0 && database_.IsReplaced()) {
        database_.Execute("ROLLBACK");
        throw failure::DatabaseReplaced();
    }
    ++database_.depth_;
}

Transaction::~Transaction() {
    if (!open_) return;
    --database_.depth_;
    if (!database_.InTransaction()) return;
    const std::string name = "level" + std::to_string(level_);
    const std::string undo = level_ == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name;
    sqlite3_exec(database_.handle_, undo.c_str(), nullptr, nullptr, nullptr);
}

void Transaction::Commit() {
    database_.Execute(level_ == 0 ? "COMMIT" : "RELEASE level" + std::to_string(level_));
    --database_.depth_;
    open_ = false;
}

}  // namespace quillmetra
