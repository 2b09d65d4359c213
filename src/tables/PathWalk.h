// The search for a file over the folders of a disk, deepest and last listed folders first, and the test of
// a path that is to become a default path.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quillmetra {

struct PathWalk {
    // What a search may find, and how deep it goes: a list of a screen holds no more, and no tree that
    // people make is as deep.
    static constexpr std::size_t MostHits = 32767;
    static constexpr int MostLevels = 128;

    std::string Pattern;             // patterns parted by ";", with "*" and "?"
    std::function<void()> Yield;     // called at every folder; may set SearchFlag to 0
    std::function<void()> ListFull;  // tells the user that no more will be found

    int SearchFlag = 0;  // -1 while a search runs, 0 to stop it
    std::vector<std::string> Hits;

    // Starts at a folder; true when it was stopped or the list is full. Hits so far stay. Links to folders
    // are not followed, and a folder that cannot be opened is passed over.
    bool Run(const std::string& path);

private:
    bool DirDiver(const std::string& path, int level);
};

// How the test of a path speaks with the user: asks whether to make a folder, tells a failure.
struct PathQuestions {
    std::function<bool(const std::string& path)> MayCreate;
    std::function<void(const std::string& words, bool stop)> Tell;
};

// True when every level of the path is there, or was made on the user's word, and the last one can be
// written to. A network path begins below its host.
bool IsUsablePath(const std::string& path, const PathQuestions& user);

}  // namespace quillmetra
