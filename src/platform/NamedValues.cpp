// See NamedValues.h.
#include "platform/NamedValues.h"

#include "platform/Engine.h"

namespace quillmetra {

NamedValues::NamedValues(Database& database, const TableShape& table)
    : database_(database),
      table_(table),
      names_(database.engine_->Names(table)),
      exists_(database.HasTable(table.Name)) {}

NamedValues::~NamedValues() = default;

void NamedValues::MakeTable() {
    if (exists_) return;
    database_.AddTable(table_);
    exists_ = true;
}

std::string NamedValues::Value(std::string_view key, std::string_view name) {
    return exists_ ? names_->Value(key, name) : "";
}

void NamedValues::Set(std::string_view key, std::string_view name, std::string_view value) {
    if (!exists_) return;
    value.empty() ? names_->Remove(key, name) : names_->Put(key, name, value);
}

void NamedValues::Delete(std::string_view key) {
    if (exists_) names_->RemoveAll(key);
}

void NamedValues::Copy(std::string_view key, std::string_view newKey) {
    if (exists_) names_->Copy(key, newKey);
}

void NamedValues::DeleteWithout(const TableShape& keys) {
    if (exists_) names_->RemoveWithout(keys);
}

}  // namespace quillmetra
