// The two ways in which a script ends before its last line. They are no std::exception on purpose: a form
// catches those that escape from its handlers and goes on, and these must end the player at once.
#pragma once

#include <string>

namespace quillmetra {

// An expectation that did not hold, a name that does not exist, an act that the form refuses.
struct ScriptFailure {
    std::string Words;
};

// The script said "quit", or ended while a form waits for its answer.
struct ScriptQuit {};

}  // namespace quillmetra
