// See Folders.h.
#include "platform/Folders.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/RuntimeError.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

bool IsDrive(std::string_view path) { return path.size() == 2 && path[1] == ':'; }

RuntimeError FailureOf(const std::error_code& error) {
    const std::error_condition kind = error.default_error_condition();
    if (kind == std::errc::no_such_file_or_directory || kind == std::errc::not_a_directory) {
        return failure::PathNotFound();
    }
    if (kind == std::errc::filename_too_long || kind == std::errc::invalid_argument) {
        return failure::BadFileName();
    }
    if (kind == std::errc::no_space_on_device) return failure::DiskFull();
    if (kind == std::errc::no_such_device || kind == std::errc::no_such_device_or_address) {
        return failure::NoDevice();
    }
    return failure::PathAccess();
}

// Not every library takes the share, "\\server\share", for the root of such a path.
bool IsOnShare(const fs::path& path) { return SuitePath(path).starts_with("\\\\"); }

// A way to another place, which could be one above it: a link or a junction.
bool IsLink(const fs::directory_entry& entry) {
#ifdef _WIN32
    const DWORD marks = GetFileAttributesW(entry.path().c_str());
    return marks != INVALID_FILE_ATTRIBUTES && (marks & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
#else
    std::error_code unknown;
    return entry.is_symlink(unknown);
#endif
}

// Not every system tells it: to some it is a name that is not there.
bool HasTooLongName(const fs::path& path) {
    constexpr std::size_t longest = 255;
    return std::any_of(path.begin(), path.end(),
                       [](const fs::path& part) { return part.native().size() > longest; });
}

// Makes an empty file and never opens what is there already. The name goes to the system in its own letters.
std::error_code MakeNewFile(const fs::path& path) {
#ifdef _WIN32
    const int file = _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE);
#else
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
#endif
    if (file < 0) return {errno, std::generic_category()};
#ifdef _WIN32
    _close(file);
#else
    close(file);
#endif
    return {};
}

// Names that Windows gives to devices, in any case of letters and with any ending.
bool IsDeviceName(std::string_view name) {
    constexpr std::array devices = {"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4",
                                    "COM5", "COM6", "COM7", "COM8", "COM9", "LPT1", "LPT2", "LPT3",
                                    "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};
    const std::string stem(name.substr(0, name.find('.')));
    return std::any_of(devices.begin(), devices.end(),
                       [&stem](const char* device) { return SameName(device, stem); });
}

bool CanBeWritten(const std::string& name) {
    return std::none_of(name.begin(), name.end(),
                        [](char c) { return c == '\\' || (c >= '\0' && c < ' ') || c == '\x7F'; });
}

void SortByName(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) keyed.emplace_back(LowerCase(name), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto& each) { return std::move(each.second); });
}

// The usual matching of one pattern by going back to the last "*".
bool MatchesOne(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || LowerCase(pattern[p]) == LowerCase(name[n]))) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(p), pattern.end(),
                       [](char c) { return c == '*'; });
}

}  // namespace

std::string ShownPath(const fs::path& path) {
    std::string text = SuitePath(path);
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

fs::path AbsolutePath(std::string_view suitePath) {
    const fs::path path = MachinePath(suitePath);
    return IsOnShare(path) ? path : fs::absolute(path).lexically_normal();
}

fs::path TruePath(std::string_view suitePath) {
    const fs::path path = MachinePath(suitePath);
    std::error_code error;
    const fs::path name = IsOnShare(path) ? path : fs::weakly_canonical(path, error);
    return error ? path : name;
}

fs::path MachineFolder(std::string_view suitePath) {
    std::string name(suitePath);
    if (IsDrive(name)) name += '\\';
    return MachinePath(name);
}

std::string Joined(const std::string& path, const std::string& name) {
    return path.ends_with('\\') ? path + name : path + "\\" + name;
}

std::string ProposedFile(const std::string& folder, std::string name) {
    std::replace_if(
        name.begin(), name.end(),
        [](unsigned char c) {
            return c < ' ' ||
                   std::string_view("\\/:*?\"<>|").find(static_cast<char>(c)) != std::string_view::npos;
        },
        '-');
    if (IsDeviceName(name)) name.insert(std::min(name.find('.'), name.size()), "-");
    return folder.empty() ? name : Joined(folder, name);
}

bool IsDevice([[maybe_unused]] std::string_view file) {
#ifdef _WIN32
    return IsDeviceName(file.substr(file.find_last_of("\\/:") + 1));
#else
    return false;
#endif
}

FolderContents ListFolder(std::string_view suitePath) {
    FolderContents contents;
    std::error_code error;
    fs::directory_iterator entry(MachineFolder(suitePath), error);
    if (error) throw FailureOf(error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::string name = SuitePath(entry->path().filename());
        if (!CanBeWritten(name)) continue;
        std::error_code unknown;
        if (entry->is_directory(unknown) && !IsLink(*entry)) {
            contents.Folders.push_back(std::move(name));
        } else if (entry->is_regular_file(unknown)) {
            contents.Files.push_back(std::move(name));
        }
    }
    SortByName(contents.Folders);
    SortByName(contents.Files);
    return contents;
}

bool MatchesPattern(std::string_view name, std::string_view patterns) {
    while (true) {
        const std::size_t end = std::min(patterns.find(';'), patterns.size());
        std::string_view one = patterns.substr(0, end);
        while (one.starts_with(' ')) one.remove_prefix(1);
        while (one.ends_with(' ')) one.remove_suffix(1);
        if (!one.empty() && MatchesOne(name, one)) return true;
        if (end == patterns.size()) return false;
        patterns.remove_prefix(end + 1);
    }
}

void RequireFolder(std::string_view suitePath) {
    const fs::path path = MachineFolder(suitePath);
    if (HasTooLongName(path)) throw failure::BadFileName();
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        throw IsDrive(suitePath) ? failure::NoDevice() : failure::PathNotFound();
    }
    if (error) throw FailureOf(error);
    if (!fs::is_directory(status)) throw failure::PathAccess();
}

void MakeFolder(std::string_view suitePath) {
    std::error_code error;
    fs::create_directory(MachineFolder(suitePath), error);
    if (error) throw FailureOf(error);
}

void TryToWrite(std::string_view suitePath) {
    const fs::path folder = MachineFolder(suitePath);
    for (int number = 0; number < 1000; ++number) {
        const fs::path test = folder / (number == 0 ? "TEST" : "TEST" + std::to_string(number));
        std::error_code error = MakeNewFile(test);
        if (error == std::errc::file_exists) continue;
        if (error) throw FailureOf(error);
        fs::remove(test, error);
        if (error) throw FailureOf(error);
        return;
    }
    throw failure::PathAccess();
}

std::string CurrentFolder() {
    std::error_code error;
    const fs::path path = fs::current_path(error);
    return error ? "\\" : ShownPath(path);
}

std::vector<std::string> Drives() {
    std::vector<std::string> drives;
    std::error_code error;
#ifdef _WIN32
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (fs::exists(std::string(1, letter) + ":\\", error))
            drives.push_back(std::string(1, letter) + ":\\");
    }
#else
    drives.emplace_back("\\");
    for (const char* place : {"\\media", "\\mnt", "\\Volumes"}) {
        try {
            for (const std::string& name : ListFolder(place).Folders) drives.push_back(Joined(place, name));
        } catch (const RuntimeError&) {
            // this machine has no such place
        }
    }
#endif
    return drives;
}

}  // namespace quillmetra
