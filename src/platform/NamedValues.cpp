// See NamedValues.h.
#include "platform/NamedValues.h"

#include <sqlite3.h>

#include "platform/Engine.h"

namespace quillmetra {

NamedValues::NamedValues(Database& database, const TableShape& table)
    : database_(database), table_(table), exists_(database.HasTable(table.Name)) {}

void NamedValues::MakeTable() {
    if (exists_) return;
    database_.AddTable(table_);
    exists_ = true;
}

// In the statement "%t" is the table, "%k", "%n" and "%v" are its fields.
std::string NamedValues::SqlOf(std::string_view pattern) const {
    std::string sql;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%') {
            sql += pattern[i];
            continue;
        }
        constexpr std::string_view fields = "knv";
        const char mark = pattern[++i];
        sql += Quoted(mark == 't' ? table_.Name : table_.Fields[fields.find(mark)].Name);
    }
    return sql;
}

std::string NamedValues::Run(std::string_view pattern, std::initializer_list<std::string_view> texts) {
    if (!exists_) return {};
    sqlite3_stmt* const statement = database_.Prepared(SqlOf(pattern));
    const quillmetra::Run run(statement);
    int place = 0;
    for (const std::string_view text : texts) {
        sqlite3_bind_text(statement, ++place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return TextAt(statement, 0);
    if (result != SQLITE_DONE) database_.Fail();
    return {};
}

std::string NamedValues::Value(std::string_view key, std::string_view name) {
    return Run("SELECT %v FROM %t WHERE %k = ?1 AND %n = ?2", {key, name});
}

void NamedValues::Set(std::string_view key, std::string_view name, std::string_view value) {
    if (value.empty()) {
        Run("DELETE FROM %t WHERE %k = ?1 AND %n = ?2", {key, name});
    } else {
        Run("INSERT OR REPLACE INTO %t(%k, %n, %v) VALUES(?1, ?2, ?3)", {key, name, value});
    }
}

void NamedValues::Delete(std::string_view key) { Run("DELETE FROM %t WHERE %k = ?1", {key}); }

void NamedValues::Copy(std::string_view key, std::string_view newKey) {
    Run("INSERT OR REPLACE INTO %t(%k, %n, %v) SELECT ?2, %n, %v FROM %t WHERE %k = ?1", {key, newKey});
}

void NamedValues::DeleteWithout(const TableShape& keys) {
    Run("DELETE FROM %t WHERE %k NOT IN (SELECT " + Quoted(keys.Fields[0].Name) + " FROM " +
            Quoted(keys.Name) + ")",
        {});
}

}  // namespace quillmetra
