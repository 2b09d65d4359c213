// A button that also drops a list, of which one line is taken at once: by its arrow, Alt+Down, a click of the
// right button or the Menu key.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

struct DropLine {
    std::string Text;
    bool InForce = false;      // marked, and the one that the keys begin at
    bool StandsApart = false;  // from the lines before
};
using DropLines = std::vector<DropLine>;

class DropButton : public CommandButton {
public:
    using CommandButton::CommandButton;

    // Without a Click of its own a press drops the list too.
    bool DropsAtPress() const { return Lines != nullptr && Click == nullptr; }

    std::function<DropLines()> Lines;  // as they are now; null for a button that drops no list
    std::function<void(int line)> Take;
};

// What a user does, as in UserActs.h. The list shows once the button has the focus; it is empty when what was
// left has kept it.
DropLines OpenDropList(DropButton& button);
bool TakeDropLine(DropButton& button, int line);

}  // namespace quillmetra
