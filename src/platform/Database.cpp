// See Database.h.
#include "platform/Database.h"

#include <algorithm>

#include "platform/Engine.h"
#include "platform/ServerEngine.h"
#include "platform/SqliteEngine.h"

namespace quillmetra {

namespace fs = std::filesystem;

Database::Database(const fs::path& file, const DatabaseKind& kind)
    : engine_(IsServerLink(file) ? OpenOnServer(file, kind) : std::make_unique<SqliteEngine>(file, kind)) {}

Database::~Database() = default;

void Database::Create(const fs::path& file, const DatabaseKind& kind, const std::vector<TableShape>& tables) {
    SqliteEngine::Create(file, kind, tables);
}

void Database::CreateOnServer(const ServerLink& link, const DatabaseKind& kind,
                              const std::vector<TableShape>& tables) {
    quillmetra::CreateOnServer(link, kind, tables);
}

std::string Database::SchemaText(const TableShape& table) { return SqliteEngine::SchemaText(table); }

bool Database::HasTable(std::string_view name) { return engine_->HasTable(name); }
void Database::AddTable(const TableShape& table) { engine_->AddTable(table); }
bool Database::IsOfEarlierForm() const { return engine_->IsOfEarlierForm(); }
void Database::BringUp(const std::vector<TableShape>& tables) { engine_->BringUp(tables); }
void Database::CompactInto(const fs::path& file) { engine_->CompactInto(file); }
void Database::CopyInto(const fs::path& file) const { engine_->CopyInto(file); }
void Database::Reindex() { engine_->Reindex(); }
std::string Database::Fault() { return engine_->Fault(); }
std::int64_t Database::Version() { return engine_->Version(); }
bool Database::HasNews() noexcept {
    try {
        return engine_->HasNews();
    } catch (const std::exception&) {
        return false;  // the next act tells
    }
}

bool Database::IsReplaced() const { return engine_->IsReplaced(); }
bool Database::InTransaction() const { return engine_->InTransaction(); }

void Database::TryToWrite() {
    const Transaction never(*this);
    engine_->TryToWrite();
}

bool IsLock(const RuntimeError& error) {
    return std::ranges::find(LockFailures, error.Number) != std::end(LockFailures);
}

Transaction::Transaction(Database& database) : database_(database), level_(database.depth_) {
    database_.engine_->Begin(level_);
    ++database_.depth_;
}

Transaction::~Transaction() {
    if (!open_) return;
    --database_.depth_;
    database_.engine_->Undo(level_);
}

void Transaction::Commit() {
    database_.engine_->Commit(level_);
    --database_.depth_;
    open_ = false;
}

ReadAhead::ReadAhead(Database& database, std::string_view key, std::span<const TableShape* const> tables)
    : engine_(*database.engine_) {
    engine_.ReadAhead(key, tables);
}

ReadAhead::~ReadAhead() { engine_.ForgetAhead(); }

}  // namespace quillmetra
