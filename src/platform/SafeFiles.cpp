// See SafeFiles.h.
#include "platform/SafeFiles.h"

#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/RuntimeError.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

// Waits until a file or a folder is on the disk. A file system that cannot tell is trusted.
void Synchronise(const fs::path& path) {
#ifdef _WIN32
    // Folders cannot be opened so; the system keeps those in order by itself.
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;
    FlushFileBuffers(file);
    CloseHandle(file);
#else
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
