// The components of a mixture in the making, in the dialog of the fluid: a row of the table each, with its
// percentage. Nothing of it is in the record before the mixture is taken.
#pragma once

#include <string>
#include <vector>

#include "forms/FluidForm.h"

namespace quillmetra {

class FluidComponents {
public:
    explicit FluidComponents(Form& form);

    void Take(const std::vector<FluidPart>& parts);
    std::vector<FluidPart> Parts() const;
    int Count() const { return static_cast<int>(rows_.size()); }

    // Takes a row as the next component and leads to its percentage. One that is there already is led to, and
    // none is taken past the last place; a note below the components says so.
    void Add(const std::string& row);
    // Nothing remains of 100.
    bool IsWhole() const { return Count() > 0 && Remaining() == 0; }
    // False, after a message, unless there are percentages, none below 0, and nothing remains of 100. A
    // mixture that is as the record has it passes with any remainder.
    bool Check() const;

    Frame fraComponent;
    Label lblNone;
    ControlArray<Label> lblComponent;
    ControlArray<TextBox> txtPercent;
    ControlArray<CommandButton> cmdRemove;
    Label lblRemainingCaption;
    Label lblRemaining;
    Label lblNote;
    CommandButton cmdClear;

    // Components or percentages are others than before; Enter in the last percentage.
    Handler Changed, Ended;

private:
    void HookRow(int place);
    void Show();
    void ShowRemaining();
    void ShowNote(const std::string& refused);
    void Remove(int place);
    void GoOn(int place);
    void TakeRemainder(int place);
    double Remaining() const;

    std::vector<std::string> rows_;
    std::vector<FluidPart> before_;  // as the record has them
    bool filling_ = false;
};

}  // namespace quillmetra
