// See TemporaryFolder.h.
#include "platform/TemporaryFolder.h"

#include <random>
#include <string>
#include <system_error>

namespace quillmetra {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    // A name that is taken belongs to somebody else: create_directory is true only for a folder that it made.
    do {
        path_ = fs::temp_directory_path() / ("quillmetra-" + std::to_string(random()));
    } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace quillmetra
