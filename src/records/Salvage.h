// What can still be read of a damaged database, copied into a new one.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Database.h"

namespace quillmetra {

struct SalvageReport {
    std::size_t Records = 0;        // whose head was read
    std::size_t Rows = 0;           // of all tables
    std::size_t MissingPages = 0;   // of a file that broke off
    std::vector<std::string> Lost;  // "Units: P-101", each row that must have been there and was not read
    bool IsOurs = false;  // the file still says that its tables are those of this version, and no more
};

// Copies every row of the file that can be taken apart into a database of empty tables. Throws when the file
// cannot be read at all or the database cannot be written.
SalvageReport Salvage(const std::filesystem::path& damaged, Database& target);

}  // namespace quillmetra
