// Between the record and the rows of its tables, field by field as the descriptor arrays tell.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/RecordTables.h"

namespace quillmetra {

// For each field of a table what a save writes, or nothing where it leaves the field as it is: spare fields,
// an empty calculation date, the force unit outside the water hammer program.
using RowValues = std::vector<std::optional<FieldValue>>;

// The row of the record in hand. Throws, naming the field, for a text that is too long and a number out of
// range. An empty text is one blank; results that do not stand are empty; a text that is no date leaves its
// date empty.
RowValues RowOfRecord(const RecordTable& table);

// Takes the current row into the record. Empty fields give 0 and "". With standIn it takes those fields of a
// head row alone that are left to the program's own row, for a record that has lost it.
void TakeRow(const RecordTable& table, const Recordset& row, bool standIn = false);
void TakeRow(const RecordTable& table, const std::vector<FieldValue>& row);

// The stored program number, and what it says: a number of 90 or less is the program itself.
int StoredProgramNumber();
void SplitProgramNumber(int stored);

// A mixture's table row as it is stored: every field trimmed and followed by a comma.
std::string CompactFluidRow(const std::string& row);

// A number with the most digits that fit so many characters.
std::string NumberToFit(double value, std::size_t characters);

}  // namespace quillmetra
