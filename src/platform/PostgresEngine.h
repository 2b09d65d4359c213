// A database as a schema on a PostgreSQL server.
//
// Each table has the fields of its shape, and beside them "key_order", the bytes by which keys compare
// (KeyOrder.h) and the primary key, and "changed_by" and "changed_at", which the server fills by itself. The
// table "Suite" has one row: what kind of database this is, the number of its form, and one that changes with
// every transaction that writes. Whoever writes has the database to himself, as with a file.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Engine.h"
#include "platform/PostgresConnection.h"
#include "platform/TextFiles.h"

namespace quillmetra {

class PostgresEngine : public Engine {
public:
    PostgresEngine(const std::filesystem::path& file, const DatabaseKind& kind);
    ~PostgresEngine() override;

    // Makes the schema and its tables where they are not there yet, all or nothing. A table of named texts
    // belongs to the rows of the first table.
    static void Create(const ServerLink& link, const DatabaseKind& kind,
                       const std::vector<TableShape>& tables);

    std::unique_ptr<EngineRows> Rows(const TableShape& table) override;
    std::unique_ptr<EngineNames> Names(const TableShape& table) override;
    bool HasTable(std::string_view name) override;
    void AddTable(const TableShape& table) override;
    bool IsOfEarlierForm() const override { return number_ < newest_; }
    void BringUp(const std::vector<TableShape>& tables) override;
    void Begin(int level) override;
    void Commit(int level) override;
    void Undo(int level) noexcept override;
    bool InTransaction() const override;
    void TryToWrite() override;
    std::int64_t Version() override;
    bool HasNews() override;
    bool IsReplaced() const override;
    void ReadAhead(std::string_view key, std::span<const TableShape* const> tables) override;
    void ForgetAhead() override { ahead_.clear(); }

    // Runs a statement; one that only reads is asked once more when the connection has died since the last.
    PostgresResult Run(const std::string& sql, const PostgresParameters& parameters = {});
    // The same for a key as the one parameter, unless its answer was read ahead.
    PostgresResult OfKey(const std::string& sql, std::string_view key);
    // With the schema before it.
    std::string Named(std::string_view table) const;

private:
    explicit PostgresEngine(const ServerLink& link);
    void Connect();
    std::vector<PostgresResult> Ask(std::span<const std::string> statements,
                                    const PostgresParameters& parameters);
    PostgresResult RunWithin(const std::string& sql, const PostgresParameters& parameters);
    void CheckKind(const DatabaseKind& kind);
    void TakeNumber(const PostgresResult& found, const DatabaseKind& kind);
    void AddMissing(const std::vector<TableShape>& tables);
    void TakeSteps(const std::vector<TableShape>& tables);
    void MustBeOwner();
    std::string OfNames(std::string_view pattern, const TableShape& names, const TableShape& keys) const;

    const ServerLink link_;
    const std::filesystem::path file_;
    const FileStamp stamp_;
    std::unique_ptr<PostgresConnection> connection_;
    std::set<std::string, std::less<>> tables_, added_;
    std::string aheadOf_;                          // a key, as it compares
    std::map<std::string, PostgresResult> ahead_;  // by statements
    int depth_ = 0, number_ = 0, newest_ = 0;      // of its form: as it is, and as it should be
    bool hasGivenUp_ = false;                      // the transaction at hand
};

// In a statement "%s" is the schema as a name and "%l" as a text.
std::string OfSchema(std::string_view pattern, const std::string& schema);

// A text as the server keeps it, and back. It takes no byte 0 and no byte that is part of no character: such
// a byte becomes a character of those that nobody uses.
std::string ToServer(std::string_view text);
std::string FromServer(std::string_view text);

}  // namespace quillmetra
