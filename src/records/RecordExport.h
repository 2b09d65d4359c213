// The records of a database as one table for spreadsheets.
#pragma once

#include <string>
#include <vector>

namespace quillmetra {

// Writes a file of comma-separated values: a line of heads, then a line for each record in the order of the
// tags, with the cells of all its columns (RecordColumns). Numbers are in the record's own units, with "." as
// the decimal point, dates as "2026-11-24". The file is in code page 1252, or, where a text has letters
// beyond it, in UTF-8 with its mark. Gives the number of records; of some tags alone when they are given.
// Throws for a database or a file that fails, with a former file as it was.
int ExportRecords(const std::string& databaseFile, const std::string& csvFile,
                  const std::vector<std::string>& tags = {});

}  // namespace quillmetra
