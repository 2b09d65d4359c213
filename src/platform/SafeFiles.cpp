// See SafeFiles.h.
#include "platform/SafeFiles.h"

#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/RuntimeError.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

// Waits until a file or a folder is on the disk. A file system that cannot tell is trusted.
void Synchronise([[maybe_unused]] const fs::path& path) {
#if defined(__unix__) || defined(__APPLE__)
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    fsync(file);
    close(file);
#endif
}

}  // namespace

void MoveOver(const fs::path& from, const fs::path& to) {
    Synchronise(from);
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw failure::PathAccess();
    Synchronise(to.parent_path());
}

void CopyWhole(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    if (!error) return Synchronise(to);
    RemoveIfThere(to);
    throw failure::PathAccess();
}

void RemoveIfThere(const fs::path& file) {
    std::error_code ignored;
    fs::remove(file, ignored);
}

}  // namespace quillmetra
