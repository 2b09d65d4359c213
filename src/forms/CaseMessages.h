// What the boxes of several cases tell while one act runs over them, gathered for one box at its end. What
// decides is asked at its case all the same.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

class CaseMessages {
public:
    explicit CaseMessages(const char* title) : title_(title) {}

    // Runs the part of a case. What nobody caught ends it and is told with the rest.
    void Run(const std::string& caseName, const Handler& part);

    // In one box: a line for each case and message, or for each message, with its cases before it.
    void TellByCase() const;
    void TellOnce() const;

private:
    using Message = std::pair<std::string, std::string>;  // case or cases, text
    void TellLines(const std::vector<Message>& messages) const;

    const char* title_;
    std::vector<Message> messages_;
};

}  // namespace quillmetra
