// What all forms of the suite have in common: colours, the look of the box that has the focus, and the
// title of an unexpected failure.
#pragma once

#include "platform/Form.h"

namespace quillmetra {

// What the status line says of a number that is not read to its end: "2,5 is read as 2". Empty when it is.
std::string ReadAs(const std::string& text);

class SuiteForm : public Form {
public:
    using Form::Form;

    std::string ProblemTitle() const override;
    // The box that takes the focus shows the selected colours; a number box is selected whole.
    void ControlGotFocus(Control& control) override;
    // The box that loses it goes back to the input colours, in the changed colour when its value differs
    // from what was last calculated or loaded. A number that is not read to its end is told in the status
    // line, until the next box is left.
    void ControlLostFocus(Control& control) override;

protected:
    // The text colour slot of an input box that is left.
    virtual int InputSlot(const Control& box) const;
    // What the status line says when it has nothing of the moment to tell.
    virtual std::string StandingStatus() const { return {}; }
};

}  // namespace quillmetra
