// See FileGuard.h.
#include "forms/FileGuard.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "core/FileNames.h"
#include "core/Suite.h"
#include "platform/Dialogs.h"
#include "platform/Folders.h"
#include "platform/ServerLink.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"
#include "tables/TableDescriptions.h"

namespace quillmetra {

namespace {

namespace fs = std::filesystem;

// What the suite reads from its folders, beside its tables.
constexpr std::array OwnFiles = {filename::DefaultPaths,
                                 filename::Colours,
                                 filename::Background,
                                 filename::LightScheme,
                                 filename::ClassicScheme,
                                 filename::DarkScheme,
                                 filename::HighContrastScheme,
                                 filename::StandardConditions,
                                 filename::Headings,
                                 filename::UserUnits,
                                 filename::UnitLibrary,
                                 filename::SteamPressures,
                                 filename::SteamRows,
                                 filename::Help,
                                 filename::Backup,
                                 filename::Damaged,
                                 filename::Recovery,
                                 filename::ShippedRows};

bool IsOwnName(const std::string& name) {
    const auto same = [&name](std::string_view own) { return SameName(own, name); };
    return std::ranges::any_of(OwnFiles, same) || IsTableFile(name);
}

bool IsOwnFile(const fs::path& file) {
    const auto holds = [place = SuitePath(file.parent_path())](const std::string& folder) {
        return !folder.empty() && IsSameFolder(folder, place);
    };
    return IsOwnName(SuitePath(file.filename())) && std::ranges::any_of(Suite.DefaultPaths, holds);
}

bool BeginsAsDatabase(const fs::path& file) {
    constexpr std::string_view mark = "SQLite format 3";
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return false;
    std::array<char, mark.size()> start{};
    std::ifstream(file, std::ios::binary).read(start.data(), start.size());
    return std::string_view(start.data(), start.size()) == mark || IsServerLink(file);
}

}  // namespace

std::string WhyNotToWrite(const std::string& file, const std::string& by) {
    if (IsDevice(file)) return file + " is the name of a device: it cannot be written over by " + by;
    const fs::path name = TruePath(file);  // links and letters of another case lead to the same file
    if (IsDatabaseName(file) || BeginsAsDatabase(name)) return "A database cannot be written over by " + by;
    if (!IsOwnFile(name)) return "";
    return SuitePath(name.filename()) + " is a file of the suite: it cannot be written over by " + by;
}

bool MayWrite(const std::string& file, const std::string& by, const std::string& title) {
    const std::string reason = WhyNotToWrite(file, by);
    if (!reason.empty()) Tell(reason, title);
    return reason.empty();
}

}  // namespace quillmetra
