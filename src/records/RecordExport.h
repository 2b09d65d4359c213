// The records of a database as tables for spreadsheets.
#pragma once

#include <string>
#include <vector>

namespace quillmetra {

// Writes the cells of all columns (RecordColumns) of each record, in the order of the tags, under their
// heads; of some tags alone when they are given. Numbers are in the record's own units. The name of the file
// says its kind:
//   .xlsx   a workbook with a sheet for each program that has records, or for all when there are none; below
//           the heads stands the unit of a column, where all records of the sheet have the same one
//   other   comma-separated values, numbers with "." as the decimal point, dates as "2026-11-24"; in code
//   page
//           1252, or, where a text has letters beyond it, in UTF-8 with its mark
// Gives the number of records. Throws for a database or a file that fails, with a former file as it was.
int ExportRecords(const std::string& databaseFile, const std::string& file,
                  const std::vector<std::string>& tags = {});

// Whether a name is one of a workbook.
bool IsWorkbookName(const std::string& file);

}  // namespace quillmetra
