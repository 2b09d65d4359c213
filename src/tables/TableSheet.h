// A data table as its editor holds it: all lines as fields, the heading line first, read from the table's
// file and written back to it. One pair of routines serves every table; what differs is in its description.
//
// Failures are RuntimeErrors, as of any text file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tables/TableDescriptions.h"
#include "tables/TableFiles.h"

namespace quillmetra {

// A line of the file that is not, or not wholly, among the fields, so that a save loses text of it; the last
// one may be all that stands behind the byte that ends the file.
struct LostLine {
    int Number;  // counted from 1, the heading line
    std::string Text;
};

struct TableSheet {
    std::vector<TableFields> Rows;  // row 0 is the heading line, whatever its length
    std::vector<LostLine> Lost;
};

// Lines shorter than the table's minimum are no rows; a file without any line has no rows at all.
TableSheet LoadTable(const TableDescription& table, const TableVariant& variant = {});

// The line of a row as it is saved: fields without the blanks around them, the first one padded, each with
// the table's separator behind it. Nothing for a row that a save drops. Characters that would end a line or
// the file are written as blanks.
std::optional<std::string> SavedTableLine(const TableDescription& table, const TableFields& fields);

// Why no calculation can be saved with a row, or which of its fields is not the number that it should be, in
// words for the user; empty when all is well.
std::string RowWarning(const TableDescription& table, const TableFields& fields);

// Writes the table's file anew, in one step; a failure leaves the old one. The heading is written whatever it
// holds.
void SaveTable(const TableDescription& table, const std::vector<TableFields>& rows,
               const TableVariant& variant = {});

}  // namespace quillmetra
