// The records of a database as one table for spreadsheets.
#pragma once

#include <string>
#include <vector>

namespace quillmetra {

// Writes a file of comma-separated values: a heading line, then a line for each record in the order of the
// tags, with all fields of its head, its units, the results of its program and its extras; what another
// program calculates stays empty. Numbers are in the record's own units, with "." as the decimal point. Gives
// the number of records; of some tags alone when they are given. Throws for a database or a file that fails,
// with a former file as it was.
int ExportRecords(const std::string& databaseFile, const std::string& csvFile,
                  const std::vector<std::string>& tags = {});

}  // namespace quillmetra
