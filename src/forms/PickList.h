// A list that opens over the inputs of a calculation form, with its two buttons. Only the frame takes input
// while it is open, and Cancel gives the focus back to the control that had it. What its buttons do is the
// form's business.
#pragma once

#include <string>
#include <vector>

#include "platform/Form.h"

namespace quillmetra {

class CalculationForm;

class PickList {
public:
    struct Names {
        const char* Frame = "";
        const char* Caption = "";
        const char* List = "";
        const char* Select = "";
        const char* Cancel = "";
        const char* SelectCaption = "Se&lect";
    };

    PickList(CalculationForm& form, const Names& names);

    // Opens with these rows, one of them selected; none of an empty list.
    void Open(std::vector<std::string> rows, int current);
    void Close();
    bool IsOpen() const { return Panel.Visible(); }
    // The row that is selected, empty for none.
    const std::string& Picked() const { return List.Row(List.Selected()); }

    Frame Panel;
    ListBox List;
    CommandButton cmdSelect;
    CommandButton cmdCancel;

private:
    CalculationForm& form_;
    Control* cameFrom_ = nullptr;
};

}  // namespace quillmetra
