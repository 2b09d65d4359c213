// See PipeFamilyList.h.
#include "forms/PipeFamilyList.h"

#include <algorithm>

#include "platform/TextCase.h"

namespace quillmetra {

void ListFamilies(ListBox& list, std::vector<PipeFile>& families) {
    families = PipeFiles();
    std::vector<std::string> names;
    names.reserve(families.size());
    for (const PipeFile& each : families) names.push_back(each.Name);
    list.SetRows(std::move(names));
    const std::string file = PipeFamilyFile();
    const auto inHand =
        std::ranges::find_if(families, [&](const PipeFile& each) { return SameName(each.File, file); });
    list.Select(inHand == families.end() ? 0 : static_cast<int>(inHand - families.begin()));
}

}  // namespace quillmetra
