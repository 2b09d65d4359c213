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

// The components of a mixture, which stand beside the open list of fluids, and their percentages. A component
// is shown by the first 20 characters of its table row.
class MixturePanel {
public:
    explicit MixturePanel(CalculationForm& form);

    // Opens the panel with the components of the record.
    void Open();
    // Shows the components of the record and leads to the percentage of one.
    void Show(int place);
    void Close();
    // Takes the percentages of the boxes into the record.
    void StorePercents() const;
    void ClearPercents();

    Frame fraComponent;
    ControlArray<Label> lblComponent;
    ControlArray<TextBox> txtPercent;
    Label lblRemainingCaption;
    Label lblRemaining;
    CommandButton cmdCalcPseudo;
    CommandButton cmdClear;

private:
    void ShowComponents();
    void ShowRemaining();
    void TakeRemainder(int place);

    CalculationForm& form_;
};

}  // namespace quillmetra
