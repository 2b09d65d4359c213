// The bookkeeping between Form and Forms: which handlers are on the stack, at which modal level, and which
// focus move waits for the outermost of them to end. Nothing outside of platform/ needs it.
#pragma once

#include <string>

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

private:
    int run_;
};

// A handler runs for the life of this.
class HandlerScope {
public:
    HandlerScope();
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    int run_;
};

// The focus move that waits for the handler in hand to end, when that is the outermost of its level; null
// when there is none. Each move is given out once.
Control* DueFocusMove();
// True when no handler runs at any level.
bool Idle();
// True in the handler that no other one waits for, at any level.
bool Outermost();
// Asks for the focus; done at once when no handler runs at this level.
void AskFocus(Control& control);
void ForgetFocusMoves(const Form& form);
// What the user types into a box, until the focus goes on: an undo of the box's own.
void NoteTyping(const Control& box, const std::string& before, const std::string& now);
// The text before it; null when nothing was typed, or code has changed the box since.
const std::string* TypedOver(const Control& box);
void EndTyping();
void Reset();

}  // namespace events

// The hook that follows a user's act.
void RunAfterAct();
// Destroys the forms that were unloaded, unless a handler runs that may still refer to them.
void BuryForms();
}  // namespace quillmetra
