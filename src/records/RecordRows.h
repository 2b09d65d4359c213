// A whole record as the rows of its tables hold it, for work that goes on beside the record in hand: it is
// read, set field by field, compared and written.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NamedValues.h"
#include "records/RecordColumns.h"
#include "records/RecordExtras.h"

namespace quillmetra {

struct RecordRows {
    using Row = std::vector<FieldValue>;
    std::array<Row, 7> Tables;  // in the order of RecordTables; empty where the record has none
    std::array<std::string, RecordExtras.size()> Extras;

    const Row& Of(const RecordTable& table) const;
    Row& Of(const RecordTable& table);
    std::string Tag() const;
    int Program() const;
    std::string FluidType() const;

    // Of a column; empty where the record has no such row.
    FieldValue Value(const RecordColumn& column) const;
    // Sets a column and its copies, to what their fields keep of it. Throws as FittedValue.
    void Set(const RecordColumn& column, const FieldValue& value);
};

// A value as its field gives it back. Throws as FittedValue.
FieldValue KeptValue(const FieldShape& field, FieldValue value);
// Whether two values are the same to a reader: a blank text is an empty one.
bool SameValue(const FieldValue& a, const FieldValue& b);
std::string ValueText(const FieldValue& value);

// The records of a database, row by row.
class RowStore {
public:
    explicit RowStore(Database& database);

    // None when the tag is not on file.
    std::optional<RecordRows> Read(std::string_view tag);
    // Over the record of the same tag, if there is one: rows that this one has not are gone then.
    void Write(const RecordRows& rows) { Write(rows, false); }
    // The same where no row has the tag.
    void Add(const RecordRows& rows) { Write(rows, true); }

private:
    struct Part {
        const RecordTable* Table;
        Recordset Rows;
    };
    void Write(const RecordRows& rows, bool isNew);
    void WriteExtras(Part& part, const RecordRows& rows, bool isNew);

    Database& database_;
    std::vector<Part> parts_;
    NamedValues extras_;
};

}  // namespace quillmetra
