// See DropButton.h.
#include "platform/DropButton.h"

#include "platform/UserActs.h"

namespace quillmetra {

DropLines OpenDropList(DropButton& button) {
    const FormHold hold(button.Owner());
    const bool reached = button.Lines && MoveFocus(button) && CanAct(button);
    return reached && button.Owner().Focus.Current() == &button ? button.Lines() : DropLines();
}

bool TakeDropLine(DropButton& button, int line) {
    if (!button.Lines || !CanAct(button)) return false;
    if (line < 0 || line >= static_cast<int>(button.Lines().size())) return false;
    button.Owner().Dispatch([&] { button.Take(line); });
    return true;
}

}  // namespace quillmetra
