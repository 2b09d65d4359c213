// Folders as the suite sees them: names in its own words with "\" between the parts, listings in a fixed
// order, and failures as RuntimeErrors: "Device unavailable" (68), "Path not found" (76), "Path/File access
// error" (75), "Disk full" (61), "Bad file name or number" (52).
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

// A path of the machine with "\" alone between its parts.
std::string ShownPath(const std::filesystem::path& path);

// A path from the root on. MachinePath says what it makes of a name.
std::filesystem::path AbsolutePath(std::string_view suitePath);

// The same with links followed, as far as it exists; on a share as it stands.
std::filesystem::path TruePath(std::string_view suitePath);

// The folder of the machine by the suite's name of it. A drive alone ("C:") is its root and not the folder
// that happens to be current there.
std::filesystem::path MachineFolder(std::string_view suitePath);

// Path, "\", name; a path that ends in "\" gets no second one.
std::string Joined(const std::string& path, const std::string& name);

// The file that a dialog proposes in a folder: what no file's name may hold becomes "-", and what some
// machine takes for a device ends in "-". Without a folder, the name alone.
std::string ProposedFile(const std::string& folder, std::string name);

// Whether the machine takes a file of this name for a device, as Windows does with "NUL" and "con.pdf": what
// is written there is gone.
bool IsDevice(std::string_view file);

struct FolderContents {
    std::vector<std::string> Folders;  // links to folders are left out
    std::vector<std::string> Files;
};
// The names in a folder, by name without regard to case. Names that the suite cannot write, with "\" or a
// control character in them, are left out. Throws when the folder cannot be opened.
FolderContents ListFolder(std::string_view suitePath);

// True when a name matches one of the patterns parted by ";", with "*" and "?", without regard to case.
bool MatchesPattern(std::string_view name, std::string_view patterns);

// Throws unless the folder is there.
void RequireFolder(std::string_view suitePath);
void MakeFolder(std::string_view suitePath);
// Writes a file of its own into a folder and takes it out again. What a user has there is not touched.
void TryToWrite(std::string_view suitePath);

std::string CurrentFolder();
// Drives, and where there are none the root and what is mounted in the usual places.
std::vector<std::string> Drives();

}  // namespace quillmetra
