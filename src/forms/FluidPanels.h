// The two frames that open over the inputs of a calculation form: the list of fluids and the components of
// a mixture.
#pragma once

#include <string>

#include "forms/PickList.h"

namespace quillmetra {

// The list of a fluid table.
class FluidList : public PickList {
public:
    FluidList(CalculationForm& form, const char* frameName, const char* caption, bool isGas);

    // Fills the list from the data files' table and opens it. The row of the fluid in hand is selected, the
    // first one when there is none. A table that cannot be read is told, and the list opens empty.
    void Open(const std::string& fluidType);

    ListBox& lstFluid = List;
};

// The components of a mixture, which stand beside the open list of fluids, and their percentages. A component
// is shown by the first 20 characters of its name.
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
    // False, after a message, when no component has a percentage or one has less than none.
    bool CheckPercents() const;

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
