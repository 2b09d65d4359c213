// What the tables as shipped have over those of the user: rows that are new, and newer figures of rows that
// stand exactly as they were once shipped. A row that the user has changed, added or taken out is the user's
// own and is never spoken of.
//
// The former tables (former/ of the shipped data) hold each row with the figures that it was shipped with
// before; a row may stand there several times.
#pragma once

#include <string>
#include <vector>

#include "tables/TableDescriptions.h"

namespace quillmetra {

enum class Newness {
    File,    // the folder has no such table, or an empty file
    Row,     // the table has no row of that name
    Figures  // the row stands as it was shipped before
};

struct ShippedRow {
    const TableDescription* Table;
    std::string File, Line;  // the row as shipped; the heading for a whole file
    Newness What;
    std::string Text;  // in words: "new: Acetic Acid 80%", "Propane: BulkMod 54.6, now 39.4"
};

// Table by table, each in the order of its rows. A table that cannot be read has none.
std::vector<ShippedRow> NewerShippedRows();

// Writes these rows of one file into the table of the user, whose other lines stay as they are, byte by byte
// but for their ends. Throws a RuntimeError with the table as it was.
void WriteShippedRows(const std::string& file, const std::vector<ShippedRow>& rows);

}  // namespace quillmetra
