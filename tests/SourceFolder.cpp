// The one file that is compiled with the place of the source tree.
#include <cstdlib>

#include "tests/SuiteFixture.h"

namespace quillmetra {

std::filesystem::path SourceFolder() {
    const char* const folder = std::getenv("QUILLMETRA_SOURCE");
    return folder == nullptr ? QUILLMETRA_SOURCE_FOLDER : folder;
}

}  // namespace quillmetra
