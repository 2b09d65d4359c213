// A fresh folder that goes, with all in it, when the object goes.
#pragma once

#include <filesystem>

namespace quillmetra {

class TemporaryFolder {
public:
    // Throws std::filesystem::filesystem_error when the machine has no place for it.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace quillmetra
