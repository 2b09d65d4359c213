// What the cells of a list say in the columns of a record.
#pragma once

#include <string>

#include "forms/ListUnits.h"
#include "platform/Controls.h"
#include "platform/SheetReader.h"

namespace quillmetra {

// Throws a ListRefusal without its column: for what is no number or date where one belongs, for errors of the
// spreadsheet, and for a tag that it has made a date or that has lines.
FieldValue CellValue(const RecordColumn& column, const SheetCell& cell, bool decimalCommas);

// The text of a cell for a message.
std::string QuotedCell(const SheetCell& cell);

// The column that a box of the form in hand is filled from; empty for none.
std::string ColumnOfBox(const Control* box);

}  // namespace quillmetra
