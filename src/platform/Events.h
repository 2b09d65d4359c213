// The bookkeeping between Form and Forms: which handlers are on the stack, at which modal level, and which
// focus move waits for the outermost of them to end. Nothing outside of platform/ needs it.
#pragma once

namespace quillmetra {

class Control;
class Form;

namespace events {

// A modal form opens a level of its own, so that its focus moves do not wait for the handler that showed it.
class ModalLevel {
public:
    ModalLevel();
    ~ModalLevel();
    ModalLevel(const ModalLevel&) = delete;
    ModalLevel& operator=(const ModalLevel&) = delete;
};

void HandlerStarts();
void HandlerEnds();
// The focus move that waits for the handler in hand to end, when that is the outermost of its level; null
// when there is none. Each move is given out once.
Control* DueFocusMove();
// True when no handler runs at any level.
bool Idle();
// Asks for the focus; done at once when no handler runs at this level.
void AskFocus(Control& control);
void ForgetFocusMoves(const Form& form);
void Reset();

}  // namespace events

// What follows a user's act: the after-act hook, and the end of forms that were unloaded meanwhile.
void AfterUserAct();
}  // namespace quillmetra
