// Tables with a text key in one database, in the operations that the suite works with: seek a key, walk in
// key order, add, edit, delete, in transactions. Engine.h is what stands behind them.
//
// Keys compare as KeyOrder.h tells. A single field keeps 32 bits and reads back as the shortest decimal text
// of its value, so 0.1 comes back as 0.1. The engine's failures are RuntimeErrors with a number from 3000 on,
// in words for the user where he can do something about it, else in its own.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/RuntimeError.h"

namespace quillmetra {

class Engine;
class EngineNames;
class EngineRows;
struct ServerLink;

enum class FieldType { Text, Integer, Single, Date };

struct FieldShape {
    std::string Name;
    FieldType Type = FieldType::Text;
    int Size = 0;  // of a text, in characters
};

// The first field is the key, a text; in a table of several rows to a key the first fields together.
struct TableShape {
    std::string Name;
    std::vector<FieldShape> Fields;
    std::size_t KeyFields = 1;
};

// Empty, a number (integer, single), or a text (text, and date as "2026-11-24").
using FieldValue = std::variant<std::monostate, double, std::string>;

// A value as its field keeps it: a number that is not finite becomes empty, an integer is rounded half to
// even, a single goes through 32 bits. Throws for a text that is too long and a number out of range, naming
// the field.
FieldValue FittedValue(const FieldShape& field, FieldValue value);

// While one lives no text is too long: for a file that nobody else will read.
class AnyLength {
public:
    AnyLength() { ++Count; }
    ~AnyLength() { --Count; }
    AnyLength(const AnyLength&) = delete;
    AnyLength& operator=(const AnyLength&) = delete;

    static inline int Count = 0;
};

// A number that was kept as a single, as the user typed it: the shortest text of the 32-bit value, 0.1 rather
// than 0.10000000149. What is no single reads 0.
double SingleRead(double stored);

namespace failure {
inline constexpr int ValueRefused = 3163;  // the number of a value that its field cannot hold
inline RuntimeError NoIndex() { return {3019, "Seek needs an index"}; }
inline RuntimeError NothingToUpdate() { return {3020, "Update needs AddNew or Edit before it"}; }
inline RuntimeError NoCurrentRecord() { return {3021, "No current record."}; }
inline RuntimeError NoSuchField(std::string_view name) {
    return {3265, "Field '" + std::string(name) + "' does not exist"};
}
inline RuntimeError DatabaseInvalid() { return {3343, "Open failed (Database invalid)"}; }
inline RuntimeError DatabaseReplaced() {
    return {3345, "Another program has replaced the database meanwhile; please try again"};
}
inline RuntimeError DatabaseNewer() {
    return {3344, "This database was made by a later version of the suite and cannot be used by this one"};
}
}  // namespace failure

// Whether a failure is one of another program that has locked the file.
bool IsLock(const RuntimeError& error);

// What tells a database of the suite from any other file.
struct DatabaseKind {
    std::uint32_t Application = 0;
    int Schema = 0;  // the newest that is understood
};

class Database {
public:
    // Opens a database that exists, or follows a link to a server (ServerLink.h). A file of another kind, and
    // one of a newer schema, is refused before the engine touches it. A file that nobody may write is opened
    // for reading.
    Database(const std::filesystem::path& file, const DatabaseKind& kind);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Makes a file with these tables, where there is none; a failure leaves none.
    static void Create(const std::filesystem::path& file, const DatabaseKind& kind,
                       const std::vector<TableShape>& tables);
    // Makes the tables that a server does not have yet; those that are there stay as they are.
    static void CreateOnServer(const ServerLink& link, const DatabaseKind& kind,
                               const std::vector<TableShape>& tables);

    // How the engine writes a table down in its list of tables.
    static std::string SchemaText(const TableShape& table);

    bool HasTable(std::string_view name);
    // Adds a table that is absent. Inside a transaction it goes with it.
    void AddTable(const TableShape& table);

    // Whether a server keeps it in the form of an earlier version, which must be brought up before anything
    // else is done with it; all or nothing. Throws for one who is not its owner, naming him.
    bool IsOfEarlierForm() const;
    void BringUp(const std::vector<TableShape>& tables);

    // Writes a copy without gaps, sorted by key, to a file that must not exist.
    void CompactInto(const std::filesystem::path& file);
    // Writes a copy page by page, which is quicker, to a file that must not exist. The caller sees to it that
    // it comes to the disk.
    void CopyInto(const std::filesystem::path& file) const;
    void Reindex();
    // The first fault that the engine finds in the file; empty for none. Throws when it cannot look.
    std::string Fault();
    // Throws when nothing can be written, as for a lock or for want of room or rights. Writes nothing.
    void TryToWrite();
    // A number that changes whenever the file does, by whatever process.
    std::int64_t Version();
    // Whether a server has told that something was changed since this was asked last; false of a file. It
    // asks the server nothing and never throws.
    bool HasNews() noexcept;
    // Whether another file has taken the place of the one that is open, as a compaction by another process
    // brings about. What is written then would be lost, and a transaction refuses to begin.
    bool IsReplaced() const;
    // False when the engine has given up a transaction by itself, as on a full disk.
    bool InTransaction() const;

    // How long a locked file is waited for.
    static inline int BusyMilliseconds = 5000;

private:
    friend class NamedValues;
    friend class ReadAhead;
    friend class Recordset;
    friend class Transaction;

    const std::unique_ptr<Engine> engine_;
    int depth_ = 0;  // of transactions
};

// Changes between its start and Commit come about together or, without Commit, not at all. One inside another
// can be undone alone. The file is locked for writing from the start of the outermost, which throws when the
// file is not in its place any more.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    Database& database_;
    int level_;
    bool open_ = true;
};

// While it lives, a key is sought in these tables among the rows that a server has given all at one go when
// it was made; with a file it does nothing. A write ends it. What could not be read so is asked for when it
// is sought, and fails then.
class ReadAhead {
public:
    ReadAhead(Database& database, std::string_view key, std::span<const TableShape* const> tables);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

private:
    Engine& engine_;
};

// Who has written a row last and when, where the engine keeps that: empty of a file.
struct RowChange {
    std::string By, At;  // At as "2026-11-26 14:03:05.123456+00"

    bool operator==(const RowChange&) const = default;
};

// The index of each table, by its key.
inline constexpr std::string_view TagIndex = "Tag_Number";

// The rows of one table. It stands on the first row when it is made. No lock is held between two calls.
class Recordset {
public:
    Recordset(Database& database, const TableShape& table);
    // On no row, nothing read: for one that only seeks, and for a damaged file.
    struct Unplaced {};
    Recordset(Database& database, const TableShape& table, Unplaced);
    ~Recordset();
    Recordset(Recordset&& other) noexcept;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    void Index(std::string_view name);  // TagIndex, no other
    bool Seek(std::string_view key);    // false, NoMatch and no current row when there is none
    // Kept for its name beside Seek, whose answer all callers take.
    bool NoMatch() const { return noMatch_; }

    // A move over the end (start) leaves no current row and AtEnd (AtStart); a move from there, and any move
    // in an empty table, throws "No current record."
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    // Moves to the first row behind the current one that is wanted, at one go; AtEnd when there is none.
    void MoveToNext(const std::function<bool(const Recordset&)>& wanted);
    bool AtEnd() const { return place_ == Place::End || place_ == Place::Empty; }
    bool AtStart() const { return place_ == Place::Start || place_ == Place::Empty; }

    // Of the row of a key; of none where there is no such row.
    RowChange LastChange(std::string_view key);

    std::int64_t RecordCount();
    // All keys in their order, at one go.
    std::vector<std::string> Keys();
    // Some fields of all rows as texts, at one go and as they lie in the file, which is much quicker than by
    // their keys; the texts last for the call.
    using TextRow = std::span<const std::string_view>;
    void EachRow(std::span<const std::string_view> fields, const std::function<void(TextRow)>& act);

    // Fields of the current row.
    const FieldValue& Value(std::string_view field) const;
    const FieldValue& Value(std::size_t field) const;
    std::string Text(std::string_view field) const;  // empty for an empty field
    double Number(std::string_view field) const;     // 0 for an empty field

    // AddNew starts an empty row, Edit a copy of the current one; Update writes it. After AddNew the former
    // row stays current. What is set but not updated is dropped by the next move.
    void AddNew();
    void Edit();
    void Set(std::string_view field, FieldValue value);
    void Set(std::size_t field, FieldValue value);
    void SetAll(const std::vector<FieldValue>& values);
    void Update();
    // Adds many rows at one go, which is much quicker where a server keeps them.
    void AddAll(std::vector<std::vector<FieldValue>> rows);
    // The deleted row stays current, without fields, until a move.
    void Delete();

private:
    enum class Place { Empty, Start, Row, Deleted, End, Nowhere };

    std::string LeaveRow();  // its key
    std::size_t FieldNumber(std::string_view name) const;

    const TableShape& table_;
    std::unique_ptr<EngineRows> rows_;
    std::vector<FieldValue> row_, buffer_;
    Place place_ = Place::Empty;
    bool indexed_ = false, noMatch_ = false;
    enum class Buffer { None, New, Edited } buffered_ = Buffer::None;
};

}  // namespace quillmetra
