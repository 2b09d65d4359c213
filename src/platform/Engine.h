// What recordsets, transactions and named values ask of the engine that keeps the rows. Each engine has its
// own files, and nobody but platform/ includes this.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Database.h"
#include "platform/ServerLink.h"

namespace quillmetra {

// Where the numbers of the engines' failures begin, and those of a lock, whichever engine tells of it.
inline constexpr int EngineFailures = 3000;
inline constexpr int LockFailures[] = {EngineFailures + 5, EngineFailures + 6};

// A name in a statement.
inline std::string Quoted(std::string_view name) {
    std::string quoted(1, '"');
    for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
    return quoted.append(1, '"');
}

// A number as a field reads it; one that no field of ours can have written reads 0.
double NumberRead(FieldType type, double stored);

using RowData = std::vector<FieldValue>;

// A row by its key, or beside it in the order of the keys; the key counts for neither end.
enum class RowAt { Key, First, Last, Next, Previous };

// The rows of one table.
class EngineRows {
public:
    EngineRows() = default;
    virtual ~EngineRows() = default;
    EngineRows(const EngineRows&) = delete;
    EngineRows& operator=(const EngineRows&) = delete;

    // False, with the row left as it was, when there is none.
    virtual bool Fetch(RowAt place, std::string_view key, RowData& row) = 0;
    // Reads the rows behind a key, in their order, until one is wanted; false when none is.
    virtual bool FetchNextOf(std::string_view key, RowData& row, const std::function<bool()>& wanted) = 0;
    virtual RowChange LastChange(std::string_view) { return {}; }
    virtual std::int64_t Count() = 0;
    virtual std::vector<std::string> Keys() = 0;
    virtual void EachRow(std::span<const std::string_view> fields,
                         const std::function<void(Recordset::TextRow)>& act) = 0;
    virtual void Insert(const RowData& row) = 0;
    virtual void InsertAll(std::span<const RowData> rows) {
        for (const RowData& row : rows) Insert(row);
    }
    virtual void Update(const FieldValue& key, const RowData& row) = 0;
    virtual void Delete(const FieldValue& key) = 0;
};

// A table of named texts, see NamedValues.h.
class EngineNames {
public:
    EngineNames() = default;
    virtual ~EngineNames() = default;
    EngineNames(const EngineNames&) = delete;
    EngineNames& operator=(const EngineNames&) = delete;

    virtual std::string Value(std::string_view key, std::string_view name) = 0;
    virtual void Put(std::string_view key, std::string_view name, std::string_view value) = 0;
    virtual void Remove(std::string_view key, std::string_view name) = 0;
    virtual void RemoveAll(std::string_view key) = 0;
    virtual void Copy(std::string_view key, std::string_view newKey) = 0;
    virtual void RemoveWithout(const TableShape& keys) = 0;
};

// Transactions stand in one another; the outermost has the level 0. A shape outlives what is made of it.
class Engine {
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    virtual std::unique_ptr<EngineRows> Rows(const TableShape& table) = 0;
    virtual std::unique_ptr<EngineNames> Names(const TableShape& table) = 0;
    virtual bool HasTable(std::string_view name) = 0;
    virtual void AddTable(const TableShape& table) = 0;
    virtual bool IsOfEarlierForm() const { return false; }
    virtual void BringUp(const std::vector<TableShape>&) {}

    virtual void Begin(int level) = 0;
    virtual void Commit(int level) = 0;
    virtual void Undo(int level) noexcept = 0;
    virtual bool InTransaction() const = 0;

    virtual void TryToWrite() = 0;  // within a transaction that is undone
    virtual std::int64_t Version() = 0;
    virtual bool HasNews() { return false; }
    // See ReadAhead in Database.h; of use where each question takes its time.
    virtual void ReadAhead(std::string_view, std::span<const TableShape* const>) {}
    virtual void ForgetAhead() {}
    virtual bool IsReplaced() const = 0;

    // Of the file, which not every engine has.
    virtual std::string Fault() { return {}; }
    virtual void Reindex() { throw failure::OnServer(); }
    virtual void CompactInto(const std::filesystem::path&) { throw failure::OnServer(); }
    virtual void CopyInto(const std::filesystem::path&) { throw failure::OnServer(); }
};

}  // namespace quillmetra
