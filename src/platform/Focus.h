// The focus of a form. It belongs to the model and not to a toolkit, so that every host gives the same
// events in the same order:
// - LostFocus comes when the focus goes from one control to another control of the same form; a menu, a
//   message box or another window is no loss of focus;
// - while a LostFocus handler runs, no other LostFocus of that form starts;
// - a move asked for by a handler is done when the outermost handler of its modal level has ended; the last
//   one asked for wins, and it fires GotFocus but not LostFocus.
#pragma once

namespace quillmetra {

class Control;
class Form;

class FocusModel {
public:
    explicit FocusModel(Form& form) : form_(form) {}

    Control* Current() const { return current_; }

    // The user goes to a control: LostFocus of the old one, then GotFocus of the new one, each to its end.
    void UserMoves(Control& target);
    // The user leaves the control that has the focus without going to another.
    void UserLeaves();
    // A handler asked for the focus: GotFocus alone.
    void CodeMoves(Control& target);
    // The first control that can take it has the focus when the form is first shown.
    void Start();

private:
    void Lose();
    void Gain(Control& target);

    Form& form_;
    Control* current_ = nullptr;
    bool losing_ = false;
};

}  // namespace quillmetra
