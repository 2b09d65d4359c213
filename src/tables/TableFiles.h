// The readers of the data tables. A file that cannot be read is a RuntimeError ("File not found",
// "Path/File access error"); one without even a heading is "Input past end of file".
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tables/TableDescriptions.h"

namespace quillmetra {

// The fields of one line, first field 0; those that the line or its table does not have are empty. More than
// any table has columns, since some lookups read one field past the last.
constexpr std::size_t MostFields = 20;
using TableFields = std::array<std::string, MostFields>;

// Splits a line at its commas. Missing fields read empty, text past the last column is left out, and a line
// not longer than the table's limit gives empty fields.
TableFields SplitTableLine(const TableDescription& table, std::string_view line);
// The same for a line that is split whatever its length, as the heading is.
TableFields SplitFields(const TableDescription& table, std::string_view line);

// The text before the first comma, without the blanks around it: what a row is found by.
std::string_view RowName(std::string_view line);

// All rows of a table's file as whole lines, without its heading and without lines too short to be a row.
std::vector<std::string> ReadTable(const TableDescription& table, const TableVariant& variant = {});

// The index of the first row of that name, 0 when none has it. Names are compared exactly.
int FindTableRow(const std::vector<std::string>& rows, std::string_view name);

}  // namespace quillmetra
