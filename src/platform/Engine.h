// What Database.cpp and Recordset.cpp share of the engine's own interface. Nobody else includes it.
#pragma once

#include <string>
#include <string_view>

#include <sqlite3.h>

#include "platform/Database.h"

namespace quillmetra {

inline std::string Quoted(std::string_view name) {
    std::string quoted(1, '"');
    for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
    return quoted.append(1, '"');
}

// A number as a field reads it; one that no field of ours can have written reads 0.
double NumberRead(FieldType type, double stored);

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

}  // namespace quillmetra
