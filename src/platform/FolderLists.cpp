// See FolderLists.h.
#include "platform/FolderLists.h"

#include "platform/Folders.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {
constexpr const char* WayUp = "..";

// The path without its last part; empty where there is none.
std::string Above(const std::string& path) {
    const std::size_t cut = path.rfind('\\');
    if (cut == std::string::npos || cut + 1 == path.size()) return {};
    const bool isRoot = path.find('\\') == cut;  // "\usr", "C:\Data"
    return path.substr(0, isRoot ? cut + 1 : cut);
}
}  // namespace

void DriveList::Renew() { SetRows(Drives()); }

void DriveList::SetDrive(const std::string& path) {
    int best = -1;
    for (int row = 0; row < RowCount(); ++row) {
        const std::string& drive = Row(row);
        const bool fits = SameName(path.substr(0, drive.size()), drive);
        if (fits && (best < 0 || drive.size() > Row(best).size())) best = row;
    }
    Preselect(best);
}

bool DirList::HasWayUp() const { return !Above(path_).empty(); }

void DirList::SetPath(const std::string& path) {
    std::string wanted = path;
    if (wanted.size() == 2 && wanted[1] == ':') wanted += '\\';
    while (wanted.size() > 1 && wanted.ends_with('\\') && !wanted.ends_with(":\\")) wanted.pop_back();
    std::vector<std::string> folders = ListFolder(wanted).Folders;
    path_ = wanted;
    std::vector<std::string> rows{path_};
    if (HasWayUp()) rows.emplace_back(WayUp);
    rows.insert(rows.end(), folders.begin(), folders.end());
    SetRows(std::move(rows));
    Preselect(0);
    if (Change) Change();
}

std::string DirList::Highlighted() const {
    if (Selected() <= 0) return path_;
    return Selected() == 1 && HasWayUp() ? Above(path_) : Joined(path_, Row(Selected()));
}

void DirList::OpenHighlighted() {
    const std::string wanted = Highlighted();
    if (wanted == path_) return;
    try {
        SetPath(wanted);
    } catch (const RuntimeError&) {
        Preselect(0);
    }
}

void FileList::SetPattern(const std::string& pattern) {
    pattern_ = pattern;
    Renew();
}

void FileList::SetPath(const std::string& path) {
    path_ = path;
    Renew();
}

void FileList::Renew() {
    std::vector<std::string> rows;
    try {
        FolderContents contents = ListFolder(path_);
        for (std::string& name : contents.Files) {
            if (MatchesPattern(name, pattern_)) rows.push_back(std::move(name));
        }
    } catch (const RuntimeError&) {
        // none of a folder that cannot be read
    }
    SetRows(std::move(rows));
}

}  // namespace quillmetra
