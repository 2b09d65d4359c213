// Lists of table rows, which hosts draw as tables under the heads of the table's description.
#pragma once

#include <span>
#include <string>

#include "platform/Controls.h"
#include "tables/TableDescriptions.h"

namespace quillmetra {

// The list reads as these columns of the table, counted from 1, or as all of them. The lengths of its rows
// may be in another unit than the inches of the file.
void ShowAsTable(ListBox& list, const TableDescription& table, std::span<const int> columns = {},
                 const std::string& lengthUnit = "in");

// The fluids' columns, what tells them apart in front.
void ShowAsFluids(ListBox& list, bool isGas);

}  // namespace quillmetra
