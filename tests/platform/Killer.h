// Acts that are killed at a write, in the middle of it, in a process of their own.
#pragma once

#include <functional>
#include <string>

namespace quillmetra {

struct KilledAct {
    std::string Name;    // one of its own within a test
    std::string Folder;  // where it writes
    std::function<void(const std::string& folder)> Do;
};

// True when the act came to its end without as many writes; else it was killed at that one, counted from 0.
// Where a process cannot be doubled another one plays the test up to this act, and writes into the folder.
bool EndsBefore(int write, const KilledAct& act);

}  // namespace quillmetra
