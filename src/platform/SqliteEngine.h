// A database as one SQLite file. Keys compare by a collation of the suite's own, KeyOrder.h.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "platform/Engine.h"

namespace quillmetra {

// Ends the run of a prepared statement on every way out, so that no lock outlives a call.
class Run {
public:
    explicit Run(sqlite3_stmt* statement) : statement_(statement) {}
    ~Run() {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

private:
    sqlite3_stmt* statement_;
};

// The value stays where it is until the statement has run.
inline void Bind(sqlite3_stmt* statement, int place, const FieldValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        sqlite3_bind_text(statement, place, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
    } else if (const auto* number = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, place, *number);
    }
}

// Lasts until the next step.
inline std::string_view ViewAt(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

inline std::string TextAt(sqlite3_stmt* statement, int column) {
    return std::string(ViewAt(statement, column));
}

class SqliteEngine : public Engine {
public:
    SqliteEngine(const std::filesystem::path& file, const DatabaseKind& kind);
    ~SqliteEngine() override;

    static void Create(const std::filesystem::path& file, const DatabaseKind& kind,
                       const std::vector<TableShape>& tables);
    // How the engine writes a table down in its list of tables.
    static std::string SchemaText(const TableShape& table);

    std::unique_ptr<EngineRows> Rows(const TableShape& table) override;
    std::unique_ptr<EngineNames> Names(const TableShape& table) override;
    bool HasTable(std::string_view name) override;
    void AddTable(const TableShape& table) override;
    void Begin(int level) override;
    void Commit(int level) override;
    void Undo(int level) noexcept override;
    bool InTransaction() const override;
    void TryToWrite() override;
    std::int64_t Version() override;
    bool IsReplaced() const override;
    std::string Fault() override;
    void Reindex() override;
    void CompactInto(const std::filesystem::path& file) override;
    void CopyInto(const std::filesystem::path& file) override;

    // A statement stays prepared for the life of the database.
    sqlite3_stmt* Prepared(const std::string& sql);
    [[noreturn]] void Fail() const;

private:
    SqliteEngine() = default;
    void Open(const std::filesystem::path& file, int flags);
    void Execute(const std::string& sql);
    bool IsCutShort();
    [[noreturn]] void GiveUp();  // of a file that is not open yet

    sqlite3* handle_ = nullptr;
    std::filesystem::path file_;
    std::map<std::string, sqlite3_stmt*> statements_;
};

}  // namespace quillmetra
