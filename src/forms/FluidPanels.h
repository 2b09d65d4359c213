// The two frames that open over the inputs of a calculation form: the list of fluids and the components of
// a mixture.
#pragma once

#include <string>
#include <vector>

#include "platform/Form.h"

namespace quillmetra {

class CalculationForm;

// The list of a fluid table with its two buttons. Only the frame takes input while it is open, and Cancel
// gives the focus back to the control that had it.
class FluidList {
public:
    FluidList(CalculationForm& form, const std::string& frameName, const std::string& caption);

    // Fills the list from the data files' table and opens it. The row of the fluid in hand is selected, the
    // first one when there is none. A table that cannot be read is told, and the list opens empty.
    void Open(const std::string& fluidType);
    void Close();
    bool IsOpen() const { return Panel.Visible(); }

    Frame Panel;
    ListBox lstFluid;
    CommandButton cmdSelect;
    CommandButton cmdCancel;

private:
    CalculationForm& form_;
    Control* cameFrom_ = nullptr;
};

// The rows of a mixture and their percentages.
class MixturePanel {
public:
    explicit MixturePanel(CalculationForm& form);

    Frame fraComponent;
    ControlArray<Label> lblComponent;
    ControlArray<TextBox> txtPercent;
    Label lblRemainingCaption;
    Label lblRemaining;
    CommandButton cmdCalcPseudo;
    CommandButton cmdClear;
};

}  // namespace quillmetra
