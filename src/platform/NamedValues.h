// A table of named texts: for each key any number of names with a value each. It need not be there: then no
// key has a value, and nothing but MakeTable makes it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Database.h"

namespace quillmetra {

class NamedValues {
public:
    // The fields of the table: the key, the name, the value; the first two are its key.
    NamedValues(Database& database, const TableShape& table);
    ~NamedValues();
    NamedValues(const NamedValues&) = delete;
    NamedValues& operator=(const NamedValues&) = delete;

    bool Exists() const { return exists_; }
    void MakeTable();

    std::string Value(std::string_view key, std::string_view name);
    // An empty value takes the name away.
    void Set(std::string_view key, std::string_view name, std::string_view value);
    void Delete(std::string_view key);
    // All that one key has to another, which has none.
    void Copy(std::string_view key, std::string_view newKey);
    // Drops the keys that another table does not have.
    void DeleteWithout(const TableShape& keys);

private:
    Database& database_;
    const TableShape& table_;
    const std::unique_ptr<EngineNames> names_;
    bool exists_;
};

}  // namespace quillmetra
