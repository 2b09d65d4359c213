// The head table on the bare engine, without a layer: the work that the database layer is measured against.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "records/RecordTables.h"
#include "records/RecordTransfer.h"

namespace quillmetra {

class PlainHeads {
public:
    explicit PlainHeads(const std::string& file) {
        sqlite3_open(file.c_str(), &engine_);
        std::string fields, marks;
        for (const FieldShape& field : HeadTable().Shape.Fields) {
            const bool isText = field.Type == FieldType::Text || field.Type == FieldType::Date;
            fields += (fields.empty() ? "\"" : ", \"") + field.Name + "\" " + (isText ? "TEXT" : "REAL");
            if (marks.empty()) fields += " COLLATE NOCASE NOT NULL PRIMARY KEY";
            marks += marks.empty() ? "?" : ", ?";
        }
        Execute("CREATE TABLE IF NOT EXISTS heads(" + fields + ")");
        insert_ = Prepare("INSERT INTO heads VALUES(" + marks + ")");
        seek_ = Prepare("SELECT * FROM heads WHERE \"Tag\" = ?");
        next_ = Prepare("SELECT * FROM heads WHERE \"Tag\" > ? ORDER BY \"Tag\" LIMIT 1");
    }
    ~PlainHeads() {
        for (sqlite3_stmt* each : {insert_, seek_, next_}) sqlite3_finalize(each);
        sqlite3_close(engine_);
    }
    PlainHeads(const PlainHeads&) = delete;
    PlainHeads& operator=(const PlainHeads&) = delete;

    void Execute(const std::string& sql) {
        if (sqlite3_exec(engine_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(engine_));
        }
    }

    void Insert(const RowValues& values) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int place = static_cast<int>(i) + 1;
            if (!values[i]) continue;
            if (const auto* text = std::get_if<std::string>(&*values[i])) {
                sqlite3_bind_text(insert_, place, text->data(), static_cast<int>(text->size()),
                                  SQLITE_STATIC);
            } else if (const auto* number = std::get_if<double>(&*values[i])) {
                sqlite3_bind_double(insert_, place, static_cast<double>(static_cast<float>(*number)));
            }
        }
        sqlite3_step(insert_);
        sqlite3_reset(insert_);
        sqlite3_clear_bindings(insert_);
    }

    // The fields of a row, as texts and numbers; empty when there is none.
    const std::vector<FieldValue>& Seek(const std::string& tag) { return Read(seek_, tag); }
    const std::vector<FieldValue>& Next(const std::string& tag) { return Read(next_, tag); }

private:
    sqlite3_stmt* Prepare(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(engine_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(engine_));
        }
        return statement;
    }

    const std::vector<FieldValue>& Read(sqlite3_stmt* statement, const std::string& tag) {
        sqlite3_bind_text(statement, 1, tag.data(), static_cast<int>(tag.size()), SQLITE_STATIC);
        row_.clear();
        if (sqlite3_step(statement) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                switch (sqlite3_column_type(statement, i)) {
                    case SQLITE_TEXT:
                        row_.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)));
                        break;
                    case SQLITE_NULL: row_.emplace_back(); break;
                    default: row_.emplace_back(sqlite3_column_double(statement, i));
                }
            }
        }
        sqlite3_reset(statement);
        return row_;
    }

    sqlite3* engine_ = nullptr;
    sqlite3_stmt *insert_ = nullptr, *seek_ = nullptr, *next_ = nullptr;
    std::vector<FieldValue> row_;
};

}  // namespace quillmetra
