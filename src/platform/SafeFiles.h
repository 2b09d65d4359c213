// Whole files put in their place so that neither a crash nor a full disk leaves half of one.
#pragma once

#include <filesystem>

namespace quillmetra {

// Whether a file may be replaced while it is open.
#ifdef _WIN32
inline constexpr bool OpenFilesCanBeReplaced = false;
#else
inline constexpr bool OpenFilesCanBeReplaced = true;
#endif

// Puts a file in the place of another, in one step that is on the disk when the routine returns. Throws
// "Path/File access error" with both files as they were.
void MoveOver(const std::filesystem::path& from, const std::filesystem::path& to);

// Copies a file to a name that is overwritten. A failure throws the same and leaves no copy.
void CopyWhole(const std::filesystem::path& from, const std::filesystem::path& to);

// Removes a file if it is there; never throws.
void RemoveIfThere(const std::filesystem::path& file);

}  // namespace quillmetra
