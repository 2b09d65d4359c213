// See StoredRows.h.
#include "records/StoredRows.h"

#include <map>
#include <vector>

#include "core/CalcRecord.h"

namespace quillmetra {

namespace {

using Stored = std::vector<FieldValue>;

// None for a table without the tag.
Stored StoredRow(Database& database, const RecordTable& table) {
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index(TagIndex);
    Stored row;
    if (!rows.Seek(Calc.Tag)) return row;
    for (std::size_t i = 0; i < table.Fields.size(); ++i) row.push_back(rows.Value(i));
    return row;
}

std::map<const RecordTable*, Stored>& Remembered() {
    static std::map<const RecordTable*, Stored> rows;
    return rows;
}

}  // namespace

void RememberRows(Database& database) {
    Remembered().clear();
    for (const RecordTable* table : {ProgramTable(Calc.CurrentProgram), &MixtureTable()}) {
        if (table != nullptr) Remembered()[table] = StoredRow(database, *table);
    }
}

bool IsAsRemembered(Database& database, const RecordTable& table) {
    const Stored row = StoredRow(database, table);
    const auto known = Remembered().find(&table);
    return !row.empty() && known != Remembered().end() && row == known->second;
}

}  // namespace quillmetra
