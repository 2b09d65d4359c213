// The focus of a form. It belongs to the model and not to a toolkit, so that every host gives the same
// events in the same order:
// - LostFocus comes when the focus goes from one control to another control of the same form; a menu, a
//   message box or another window is no loss of focus;
// - while a LostFocus handler runs, no other LostFocus of that form starts;
// - a move asked for by a handler is done when the outermost handler of its modal level has ended; the last
//   one asked for wins, and it fires GotFocus but not LostFocus;
// - a move asked for while the form is not shown is done when it is.
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
    // The form is not shown: the control gets the focus, and its GotFocus, when it is.
    void WhenShown(Control& target);
    // The form is shown. The first time, the first control that can take it has the focus unless a handler
    // asked for another one.
    void Start();

private:
    void Lose();
    void Gain(Control& target);

    Form& form_;
    Control* current_ = nullptr;
    bool losing_ = false;
    bool waiting_ = false;  // the current control has the focus, but has not been told
};

}  // namespace quillmetra
