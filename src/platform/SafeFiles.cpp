// See SafeFiles.h.
#include "platform/SafeFiles.h"

#include <csignal>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "platform/TextFiles.h"

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

// A colleague who could write the former file must be able to write the new one. Owner and group are kept as
// far as this user may give files away; without a former file the new one keeps its own rights.
void TakeRights([[maybe_unused]] const fs::path& from, [[maybe_unused]] const fs::path& to) {
#ifndef _WIN32
    struct stat rights {};
    if (stat(from.c_str(), &rights) != 0 || !S_ISREG(rights.st_mode)) return;
    const bool given = chown(to.c_str(), rights.st_uid, rights.st_gid) == 0 ||
                       chown(to.c_str(), static_cast<uid_t>(-1), rights.st_gid) == 0;
    // Another group gets no more than everybody.
    const mode_t mode = given ? rights.st_mode : (rights.st_mode & ~070U) | (rights.st_mode & 07U) << 3U;
    if (chmod(to.c_str(), mode & 0777U) != 0) return;
#endif
}

void MoveOver(const fs::path& from, const fs::path& to) {
    TakeRights(to, from);
    Synchronise(from);
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw FileFailure(to, error);
    Synchronise(to.parent_path());
}

void CopyWhole(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    if (error) {
        RemoveIfThere(to);
        throw FileFailure(to, error);
    }
    TakeRights(from, to);
    Synchronise(to);
}

void RemoveIfThere(const fs::path& file) {
    std::error_code ignored;
    fs::remove(file, ignored);
}

void Scratch::Remove() const {
    RemoveIfThere(File);
    RemoveIfThere(fs::path(File) += "-journal");
}

RuntimeError FileFailure(const fs::path& file, const std::error_code& reason) {
    return {failure::PathAccess().Number,
            failure::PathAccess().Description + "\n" + SuitePath(file) + "\n" + reason.message()};
}

RuntimeError WriteProtected(const fs::path& file) {
    return FileFailure(file, std::make_error_code(std::errc::permission_denied));
}

void OutliveFileSizeLimit() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace quillmetra
