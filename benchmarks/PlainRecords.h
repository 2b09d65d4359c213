// The tables of a records database on the bare engine, without a layer: the work that the suite's own layer
// is measured against. It opens the same files.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "platform/KeyOrder.h"
#include "platform/TextFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"

namespace quillmetra {

class PlainRecords {
public:
    using Row = std::vector<FieldValue>;

    explicit PlainRecords(const std::string& file) {
        sqlite3_open(MachinePath(file).c_str(), &engine_);
        sqlite3_create_collation_v2(
            engine_, "KEYORDER", SQLITE_UTF8, nullptr,
            [](void*, int lengthA, const void* a, int lengthB, const void* b) {
                return CompareKeys({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                                   {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
            },
            nullptr);
        Execute("PRAGMA synchronous = FULL");
    }
    ~PlainRecords() {
        for (const auto& [sql, statement] : statements_) sqlite3_finalize(statement);
        sqlite3_close(engine_);
    }
    PlainRecords(const PlainRecords&) = delete;
    PlainRecords& operator=(const PlainRecords&) = delete;

    void Execute(const char* sql) {
        if (sqlite3_exec(engine_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
    }

    void Insert(const RecordTable& table, const RowValues& values) {
        std::string marks(values.size() * 2 - 1, ',');
        for (std::size_t i = 0; i < marks.size(); i += 2) marks[i] = '?';
        sqlite3_stmt* const statement =
            Prepared("INSERT INTO \"" + table.Shape.Name + "\" VALUES(" + marks + ")");
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int place = static_cast<int>(i) + 1;
            if (!values[i]) continue;
            if (const auto* text = std::get_if<std::string>(&*values[i])) {
                sqlite3_bind_text(statement, place, text->data(), static_cast<int>(text->size()),
                                  SQLITE_STATIC);
            } else if (const auto* number = std::get_if<double>(&*values[i])) {
                sqlite3_bind_double(statement, place, static_cast<double>(static_cast<float>(*number)));
            }
        }
        if (sqlite3_step(statement) != SQLITE_DONE) Fail();
        sqlite3_reset(statement);
        sqlite3_clear_bindings(statement);
    }

    // The fields of the rows that a query ends up with, one row in hand at a time.
    template <typename Take>
    void EachRow(const std::string& sql, std::string_view tag, Take take) {
        sqlite3_stmt* const statement = Prepared(sql);
        if (!tag.empty()) {
            sqlite3_bind_text(statement, 1, tag.data(), static_cast<int>(tag.size()), SQLITE_STATIC);
        }
        while (sqlite3_step(statement) == SQLITE_ROW) {
            row_.clear();
            for (int i = 0; i < sqlite3_column_count(statement); ++i) row_.push_back(ValueAt(statement, i));
            take(row_);
        }
        sqlite3_reset(statement);
    }

    // Fields of the row of a tag, and of the row next to it; empty when there is none.
    const Row& Seek(const RecordTable& table, std::string_view tag) { return One(table, " = ?", tag); }
    const Row& Next(const RecordTable& table, std::string_view tag) {
        return One(table, " > ? ORDER BY \"Tag\" LIMIT 1", tag);
    }
    const Row& Previous(const RecordTable& table, std::string_view tag) {
        return One(table, " < ? ORDER BY \"Tag\" DESC LIMIT 1", tag);
    }

    std::vector<std::string> Tags() {
        std::vector<std::string> tags;
        sqlite3_stmt* const statement =
            Prepared("SELECT \"Tag\" FROM \"" + HeadTable().Shape.Name + "\" ORDER BY \"Tag\"");
        while (sqlite3_step(statement) == SQLITE_ROW) tags.push_back(TextAt(statement, 0));
        sqlite3_reset(statement);
        return tags;
    }

private:
    [[noreturn]] void Fail() const { throw std::runtime_error(sqlite3_errmsg(engine_)); }

    sqlite3_stmt* Prepared(const std::string& sql) {
        sqlite3_stmt*& statement = statements_[sql];
        if (statement == nullptr &&
            sqlite3_prepare_v2(engine_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            Fail();
        }
        return statement;
    }

    static std::string TextAt(sqlite3_stmt* statement, int column) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
    }

    static FieldValue ValueAt(sqlite3_stmt* statement, int column) {
        switch (sqlite3_column_type(statement, column)) {
            case SQLITE_TEXT: return TextAt(statement, column);
            case SQLITE_NULL: return {};
            default: return sqlite3_column_double(statement, column);
        }
    }

    const Row& One(const RecordTable& table, const char* condition, std::string_view tag) {
        row_.clear();
        EachRow("SELECT * FROM \"" + table.Shape.Name + "\" WHERE \"Tag\"" + condition, tag, [](Row&) {});
        return row_;
    }

    sqlite3* engine_ = nullptr;
    std::map<std::string, sqlite3_stmt*> statements_;
    Row row_;
};

}  // namespace quillmetra
