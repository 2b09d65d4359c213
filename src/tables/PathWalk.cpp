// See PathWalk.h.
#include "tables/PathWalk.h"

#include <algorithm>

#include "platform/Folders.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

namespace {

constexpr int NoDevice = 68;
constexpr int NoAccess = 75;
constexpr int NotFound = 76;

constexpr const char* Separators = "\\/";  // a pasted path may hold the machine's own

bool IsRooted(const std::string& path) {
    return path.find_first_of(Separators) == 0 || (path.size() >= 2 && path[1] == ':');
}

// Where the first level ends: behind the host of a network path.
std::size_t FirstLevel(const std::string& path) {
    if (path.size() < 2 || path.find_first_not_of(Separators) != 2) return 0;
    const std::size_t host = path.find_first_of(Separators, 2);
    return host == std::string::npos ? path.size() : host + 1;
}

void TellFailure(const RuntimeError& error, const std::string& path, const PathQuestions& user) {
    switch (error.Number) {
        case NoDevice: return user.Tell("Drive does not exist", true);
        case NoAccess: return user.Tell("File access error occurred 0n path " + path, false);  // 0 as shipped
        default: return user.Tell(error.Description + " occurred Path " + path, false);
    }
}

// A level that is missing is made on Yes and tested again.
bool LevelStands(const std::string& level, const PathQuestions& user) {
    try {
        try {
            RequireFolder(level);
        } catch (const RuntimeError& error) {
            if (error.Number != NotFound) throw;
            if (!user.MayCreate(level)) return false;
            MakeFolder(level);
            RequireFolder(level);
        }
        return true;
    } catch (const RuntimeError& error) {
        TellFailure(error, level, user);
        return false;
    }
}

bool CanWriteTo(const std::string& path, const PathQuestions& user) {
    try {
        TryToWrite(path);
        return true;
    } catch (const RuntimeError& error) {
        if (error.Number == NotFound) {
            user.Tell("Cannot create " + Joined(path, "TEST") + ". Problem with path", false);
        } else {
            TellFailure(error, path, user);
        }
        return false;
    }
}

}  // namespace

bool PathWalk::Run(const std::string& path) {
    Hits.clear();
    SearchFlag = -1;
    const bool broken = DirDiver(path, 1);
    SearchFlag = 0;
    return broken;
}

bool PathWalk::DirDiver(const std::string& path, int level) {
    // The flag is set once, in Run: a Stop is not undone by the next folder.
    if (Yield) Yield();
    if (SearchFlag == 0) return true;

    FolderContents contents;
    try {
        contents = ListFolder(path);
    } catch (const RuntimeError&) {
        return false;
    }
    for (auto name = contents.Folders.rbegin(); level < MostLevels && name != contents.Folders.rend();
         ++name) {
        if (DirDiver(Joined(path, *name), level + 1)) return true;
    }
    for (const std::string& name : contents.Files) {
        if (!MatchesPattern(name, Pattern)) continue;
        if (Hits.size() >= MostHits) {
            if (ListFull) ListFull();
            return true;
        }
        Hits.push_back(Joined(path, name));
    }
    return false;
}

bool IsUsablePath(const std::string& path, const PathQuestions& user) {
    if (path.empty()) return false;
    if (!IsRooted(path)) {  // it would name another folder each time that the program starts elsewhere
        TellFailure(failure::BadFileName(), path, user);
        return false;
    }
    std::size_t position = FirstLevel(path);
    while (position < path.size()) {
        const std::size_t end = std::min(path.find_first_of(Separators, position), path.size());
        // Empty levels, as of "C:\\Data", name nothing.
        if (end > position && !LevelStands(path.substr(0, end), user)) return false;
        position = end + 1;
    }
    return CanWriteTo(path, user);
}

}  // namespace quillmetra
