// What the boxes of several cases tell while one act runs over them, gathered for one box at its end. What
// decides is asked at its case all the same.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

// Of a case, by its name.
using TextOfCase = std::pair<std::string, std::string>;

// The hints of the cases, once where they are the same.
std::string JoinedHints(const std::vector<TextOfCase>& hints);

class CaseMessages {
public:
    explicit CaseMessages(const char* title) : title_(title) {}

    // Runs the part of a case. What nobody caught ends it and is told with the rest.
    void Run(const std::string& caseName, const Handler& part);

    // In one box: a line for each case and message, or for each message, with its cases before it.
    void TellByCase() const;
    void TellOnce() const;

private:
    void TellLines(const std::vector<TextOfCase>& messages) const;

    const char* title_;
    std::vector<TextOfCase> messages_;  // of a case or several
};

}  // namespace quillmetra
