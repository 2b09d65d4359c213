// Whole files put in their place so that neither a crash nor a full disk leaves half of one.
#pragma once

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/RuntimeError.h"

namespace quillmetra {

// Whether a file may be replaced while it is open.
#ifdef _WIN32
inline constexpr bool OpenFilesCanBeReplaced = false;
#else
inline constexpr bool OpenFilesCanBeReplaced = true;
#endif

// Puts a file in the place of another, whose rights it takes over, in one step that is on the disk when the
// routine returns. Throws, with the file and the reason, and both files are as they were.
void MoveOver(const std::filesystem::path& from, const std::filesystem::path& to);

// Copies a file and its rights to a name that is overwritten. A failure throws the same and leaves no copy.
void CopyWhole(const std::filesystem::path& from, const std::filesystem::path& to);

// Gives a file the rights of another, as far as this user may.
void TakeRights(const std::filesystem::path& from, const std::filesystem::path& to);

// Removes a file if it is there; never throws.
void RemoveIfThere(const std::filesystem::path& file);

// A file that is removed on every way out, and first of all when a former run has left it behind.
class Scratch {
public:
    explicit Scratch(std::filesystem::path file) : File(std::move(file)) { Remove(); }
    ~Scratch() { Remove(); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const std::filesystem::path File;

private:
    // With what an engine has beside a database that it writes.
    void Remove() const;
};

// What tells a user that a file could not be written or read, with the reason.
RuntimeError FileFailure(const std::filesystem::path& file, const std::error_code& reason);
// Of a file that is there and that this user may not write (IsWriteProtected).
RuntimeError WriteProtected(const std::filesystem::path& file);

// A write beyond the limit that the system sets to the size of a file fails from here on as any other write;
// by itself it would end the program.
void OutliveFileSizeLimit();

}  // namespace quillmetra
