// The list of the families of pipe, as the lookup of a size and the sizes of a line show it.
#pragma once

#include <vector>

#include "platform/Controls.h"
#include "tables/PipeSizes.h"

namespace quillmetra {

// Fills the list and selects the family in hand, with Click. A row of the list each.
void ListFamilies(ListBox& list, std::vector<PipeFile>& families);

}  // namespace quillmetra
