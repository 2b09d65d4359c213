// All records of one database into another, as one act: from a file to a server and back.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quillmetra {

// Told between two rows: how many of how many are done; false ends the act.
using CopyProgress = std::function<bool(std::int64_t done, std::int64_t total)>;

// Copies every row as it is stored; the target must be there and have no records. False when it was ended,
// with nothing copied. Throws when one of the two refuses, or the records have changed meanwhile.
bool CopyAllRecords(const std::string& from, const std::string& to, const CopyProgress& progress);

}  // namespace quillmetra
