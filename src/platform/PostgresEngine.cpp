// See PostgresEngine.h.
#include "platform/PostgresEngine.h"

#include <algorithm>
#include <utility>

#include "platform/KeyOrder.h"
#include "platform/ServerEngine.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostIdle = 4;
constexpr int LongestLockWait = 3500;  // milliseconds; a silence of the server must be longer

// Connections that nobody uses at the moment: making one takes much longer than what is asked of it.
std::vector<std::unique_ptr<PostgresConnection>>& Idle() {
    static std::vector<std::unique_ptr<PostgresConnection>> idle;
    return idle;
}

std::unique_ptr<PostgresConnection> TakeIdle(const ServerLink& link) {
    const auto found = std::ranges::find_if(Idle(), [&](const auto& each) { return each->Link() == link; });
    if (found == Idle().end()) return nullptr;
    std::unique_ptr<PostgresConnection> taken = std::move(*found);
    Idle().erase(found);
    return taken;
}

bool IsQuestion(std::string_view sql) { return sql.starts_with("SELECT"); }

}  // namespace

PostgresEngine::PostgresEngine(const ServerLink& link) : link_(link), stamp_{} {}

PostgresEngine::PostgresEngine(const fs::path& file, const DatabaseKind& kind)
    : link_(ReadServerLink(file)), file_(file), stamp_(StampOf(file)) {
    CheckKind(kind);
}

PostgresEngine::~PostgresEngine() {
    if (connection_ == nullptr || !connection_->IsAlive() || connection_->InTransaction()) return;
    if (Idle().size() == MostIdle) Idle().erase(Idle().begin());
    Idle().push_back(std::move(connection_));
}

void PostgresEngine::Connect() {
    if (connection_ != nullptr && connection_->IsAlive()) return;
    connection_ = TakeIdle(link_);
    if (connection_ == nullptr) connection_ = std::make_unique<PostgresConnection>(link_);
}

PostgresResult PostgresEngine::Run(const std::string& sql, const PostgresParameters& parameters) {
    if (!IsQuestion(sql)) ahead_.clear();
    return depth_ > 0 ? RunWithin(sql, parameters) : Ask({&sql, 1}, parameters).front();
}

std::vector<PostgresResult> PostgresEngine::Ask(std::span<const std::string> statements,
                                                const PostgresParameters& parameters) {
    Connect();
    try {
        return connection_->RunAll(statements, parameters);
    } catch (const RuntimeError&) {
        if (!connection_->HasDiedUnused() || !std::ranges::all_of(statements, IsQuestion)) throw;
    }
    connection_ = std::make_unique<PostgresConnection>(link_);
    return connection_->RunAll(statements, parameters);
}

PostgresResult PostgresEngine::OfKey(const std::string& sql, std::string_view key) {
    const std::string order = SortKey(key);
    const auto read = order == aheadOf_ ? ahead_.find(sql) : ahead_.end();
    if (read != ahead_.end()) return read->second;
    PostgresParameters parameters;
    parameters.AddBytes(order);
    return Run(sql, parameters);
}

// A want of room ends the whole, as it does with a file: what still finds room would be half a record.
PostgresResult PostgresEngine::RunWithin(const std::string& sql, const PostgresParameters& parameters) {
    try {
        return connection_->Run(sql, parameters);
    } catch (const RuntimeError& error) {
        hasGivenUp_ = hasGivenUp_ || error.Number == ServerHasNoRoom;
        throw;
    }
}

std::string PostgresEngine::Named(std::string_view table) const {
    return Quoted(link_.Schema) + "." + Quoted(table);
}

// In one answer what kind of database it is and which tables it has.
void PostgresEngine::CheckKind(const DatabaseKind& kind) {
    const PostgresResult found =
        Run(OfSchema("SELECT application, number, relname FROM %s.\"Suite\", pg_class"
                     " WHERE relnamespace = to_regnamespace(quote_ident(%l)) AND relkind IN ('r', 'p', 'v')",
                     link_.Schema));
    TakeNumber(found, kind);
    for (int i = 0; i < found.Rows(); ++i) tables_.emplace(found.At(i, 2));
}

bool PostgresEngine::HasTable(std::string_view name) { return tables_.contains(name); }

// What begins and ends an inner transaction goes with the statement behind it.
void PostgresEngine::Begin(int level) {
    if (level > 0) {
        connection_->PutOff("SAVEPOINT level" + std::to_string(level));
        depth_ = level + 1;
        return;
    }
    const auto begin = [&] {
        connection_->PutOff("BEGIN");
        connection_->PutOff("SET LOCAL lock_timeout = " +
                            std::to_string(std::min(Database::BusyMilliseconds, LongestLockWait)));
        connection_->Run(OfSchema("SELECT pg_advisory_xact_lock(hashtextextended(%l, 81))", link_.Schema));
    };
    Connect();
    ahead_.clear();
    depth_ = 1;
    hasGivenUp_ = false;
    try {
        begin();
    } catch (const RuntimeError&) {
        Undo(0);
        if (!connection_->HasDiedUnused()) throw;
        connection_ = std::make_unique<PostgresConnection>(link_);
        depth_ = 1;
        try {
            begin();
        } catch (const RuntimeError&) {
            Undo(0);
            throw;
        }
    }
}

void PostgresEngine::Commit(int level) {
    if (level > 0) {
        connection_->PutOff("RELEASE level" + std::to_string(level));
        depth_ = level;
        return;
    }
    connection_->Run("COMMIT");
    added_.clear();
    depth_ = 0;
}

void PostgresEngine::Undo(int level) noexcept {
    depth_ = level;
    for (const std::string& table : std::exchange(added_, {})) tables_.erase(table);
    if (connection_ == nullptr || !connection_->IsAlive()) return;
    const std::string name = "level" + std::to_string(level);
    try {
        if (level > 0) {
            connection_->PutOff("ROLLBACK TO " + name);
            connection_->Run("RELEASE " + name);
        } else {
            connection_->Run("ROLLBACK");
        }
    } catch (const std::exception&) {
        connection_->Abandon();
    }
}

bool PostgresEngine::InTransaction() const {
    return depth_ > 0 && !hasGivenUp_ && connection_ != nullptr && connection_->InTransaction();
}

void PostgresEngine::TryToWrite() {
    const PostgresResult found =
        Run(OfSchema("SELECT relname FROM pg_class WHERE relnamespace = to_regnamespace(quote_ident(%l))"
                     " AND relkind = 'r' AND relname <> 'Suite' AND NOT (has_table_privilege(oid, 'INSERT')"
                     " AND has_table_privilege(oid, 'UPDATE') AND has_table_privilege(oid, 'DELETE'))",
                     link_.Schema));
    if (found.Rows() == 0) return;
    Run("DELETE FROM " + Named(found.At(0, 0)) + " WHERE false");
    Run("UPDATE " + Named(found.At(0, 0)) + " SET changed_by = '' WHERE false");
    Run("INSERT INTO " + Named(found.At(0, 0)) + " SELECT FROM pg_class WHERE false");
}

bool KnowsServers() { return true; }

std::unique_ptr<Engine> OpenOnServer(const fs::path& file, const DatabaseKind& kind) {
    return std::make_unique<PostgresEngine>(file, kind);
}

std::int64_t PostgresEngine::Version() { return Run("SELECT change FROM " + Named("Suite")).Number(0, 0); }

// A connection that is gone is made anew by the next act, not by this.
bool PostgresEngine::HasNews() {
    return depth_ == 0 && connection_ != nullptr && connection_->IsAlive() && connection_->HasNotice();
}

bool PostgresEngine::IsReplaced() const { return StampOf(file_) != stamp_; }

}  // namespace quillmetra
