// A form: its controls in the order in which it made them, its focus, and the one door through which every
// act of a user enters (Dispatch).
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Controls.h"
#include "platform/Focus.h"

namespace quillmetra {

class Form {
public:
    explicit Form(std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Runs once, after the constructor and before the form is first shown.
    virtual void Load() {}
    // Runs each time that the form is shown.
    virtual void Activated() {}
    // The close box of the window.
    virtual void CloseBox() = 0;
    // The title of a message that tells of a failure which nobody caught.
    virtual std::string ProblemTitle() const { return Caption(); }
    // Run around the GotFocus and LostFocus of a control, for what all boxes of the suite have in common.
    virtual void ControlGotFocus(Control&) {}
    virtual void ControlLostFocus(Control&) {}

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    // What the status line says; empty for nothing.
    const std::string& Status() const { return status_; }
    void SetStatus(const std::string& status);
    // An inert form is seen but takes no input, as when a panel works on its calculation.
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    bool Modal() const { return modal_; }
    Colour BackColour() const { return back_; }
    void SetBackColour(Colour colour);

    // All controls in the order in which the form made them.
    const std::vector<Control*>& Controls() const { return controls_; }
    // By name without regard to case; null when there is none.
    Control* Find(std::string_view name, int index = Control::NoIndex) const;
    // A second name by which Find gives a control; the name must outlive the form (a literal).
    void Alias(std::string_view name, Control& control);
    // The controls that Tab visits, in order: TabOrder when the form fills it, else all tab stops as made.
    std::vector<Control*> TabStops() const;

    // Runs an act of the user. What nobody caught is shown with the problem title, the pointer is put back
    // and the form stays usable. When the outermost act ends, the focus moves that it asked for are done.
    void Dispatch(const Handler& act);

    FocusModel Focus{*this};
    std::vector<Control*> TabOrder;
    CommandButton* DefaultButton = nullptr;  // pressed by Enter
    CommandButton* CancelButton = nullptr;   // pressed by Escape
    bool EnterMovesOn = false;               // Enter goes to the next box, as on the calculation forms
    bool Fixed = false;                      // a dialog whose size the user does not change
    // A file of the user's was let fall on the window.
    std::function<void(const std::string& file)> FileDropped;
    bool FitsFrames = false;  // its window grows and shrinks with the frames that show

private:
    friend class Control;
    friend class FormHold;
    friend class FormRegistry;
    void Register(Control& control);
    void Guarded(const Handler& part);
    static void MoveFocusAsAsked();

    std::string name_;
    std::string caption_;
    std::string status_;
    bool enabled_ = true;
    bool visible_ = false;
    bool modal_ = false;
    int holds_ = 0;  // see FormHold
    Colour back_ = 0x00FFFFFF;
    std::vector<Control*> controls_;

    // Names are compared without regard to case, as everywhere in the suite.
    struct NameKey {
        std::string_view Name;
        int Index;
        bool operator==(const NameKey& other) const;
    };
    struct NameHash {
        std::size_t operator()(const NameKey& key) const;
    };
    std::unordered_map<NameKey, Control*, NameHash> byName_;
};

// Keeps the object of a form for as long as this lives: one act may run several handlers, and any of them
// may unload the form.
class FormHold {
public:
    explicit FormHold(Form& form) : form_(form) { ++form_.holds_; }
    ~FormHold();
    FormHold(const FormHold&) = delete;
    FormHold& operator=(const FormHold&) = delete;

private:
    Form& form_;
};

}  // namespace quillmetra
