// What is kept of a record beside its tables, by name, in the table "Calculation Extras" (tag, name, value).
// A program that does not know the table leaves it alone: so a value that belongs to numbers of the record
// has them in it and counts only while they are still the record's, and rows whose head is gone are dropped
// by the next save. The first value makes the table.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/CalcRecord.h"
#include "platform/NamedValues.h"
#include "records/RecordTables.h"

namespace quillmetra {

struct RecordExtra {
    const char* Name;
    TextMember Text;
    std::array<const char*, 2> Figures;  // the fields of the program's row that the text belongs to, if any
};

// A new one is a line here.
inline constexpr std::array RecordExtras = {
    RecordExtra{"Pipe", &CalcRecord::PipeName, {"Pipe Size", "Pipe Wall"}},
    RecordExtra{"Service", &CalcRecord::Service, {}}};

const TableShape& ExtrasTable();
// All tables that hold something of a record, this one behind those of RecordTables.
const std::vector<const TableShape*>& ShapesOfRecords();

// Those of the record in hand. To be saved after its rows, in their transaction; to be loaded after them too.
void SaveExtras(Database& database);
void GetExtras(Database& database);
void DeleteExtras(Database& database, std::string_view tag);
void CopyExtras(Database& database, std::string_view tag, std::string_view newTag);

// The text of an extra of a record, of whose program this is the row; empty when it no longer fits.
std::string ExtraText(NamedValues& extras, const RecordExtra& extra, const RecordTable& table,
                      const Recordset& row);

// Stores it beside that row, an empty one by taking it away. The table must be there for one that is not.
void PutExtra(NamedValues& extras, const RecordExtra& extra, const RecordTable& table, const Recordset& row,
              const std::string& text);

}  // namespace quillmetra
