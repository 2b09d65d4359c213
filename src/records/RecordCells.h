// What a database has in the columns of its records, one record after another. It holds no lock between two
// of them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/NamedValues.h"
#include "records/RecordColumns.h"

namespace quillmetra {

class RecordCells {
public:
    explicit RecordCells(Database& database);

    // All tags in their order, or those of them that are wanted.
    std::vector<std::string> Tags(const std::vector<std::string>& wanted = {});
    // Takes a record; false when there is none of that tag.
    bool Take(const std::string& tag);
    int Program() const { return program_; }

    // Texts without the blanks around them. What the record's program has not is empty.
    FieldValue Value(const RecordColumn& column);
    // The name of the unit that the value is in; empty for none.
    std::string Unit(const RecordColumn& column) const;

private:
    struct Part {
        const RecordTable* Table = nullptr;
        Recordset Rows;
        bool Found = false;
    };
    // Null when the record has no row there.
    const Recordset* RowOf(const RecordTable& table) const;
    bool IsDensity(const RecordField& field) const;

    Database& database_;
    std::vector<Part> parts_;
    NamedValues extras_;
    std::optional<ReadAhead> read_;  // of the record
    int program_ = 0;
};

}  // namespace quillmetra
