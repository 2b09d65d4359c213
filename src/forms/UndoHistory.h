// Undo and redo on a calculation form: what the record and the form were after each act of the user, as far
// as the act changed something that the user sees or a save keeps. What is typed into a box is one step until
// the box is left. A step back restores the whole record but for its saved side, which follows the database.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "core/CalcRecord.h"
#include "platform/Form.h"

namespace quillmetra {

class CalculationForm;

class UndoHistory {
public:
    explicit UndoHistory(CalculationForm& form) : form_(form) {}

    // After an act, and before a box is left.
    void Take();
    void LeaveBox();
    // Another calculation begins.
    void Forget();
    void Undo() { Go(-1); }
    void Redo() { Go(1); }

private:
    static constexpr std::size_t MostSteps = 200;

    struct ControlState {
        std::string Text;
        bool Checked = false, Enabled = true, Visible = true;
    };
    struct Memory {
        CalcRecord Record;
        std::vector<ControlState> Controls;
        Handler PutBeside;  // what the form keeps beside the record
    };
    using Kept = std::shared_ptr<const Memory>;
    // A step may change in what no user sees, as where the focus went last: a step back leads to how it
    // began, a step on to how it was left.
    struct Step {
        Kept Begun, Left;
        int Number = 0;
    };

    Kept Remember();
    bool IsSame(const Memory& one, const Memory& other) const;
    TextBox* BoxInHand() const;
    // Whether the box is the only input in which they differ.
    bool IsTyping(const Memory& one, const Memory& other, const TextBox& box) const;
    void Add(Kept now);
    void Retype(Kept now);
    void Go(int way);
    void Restore(const Memory& memory);
    void ShowControls(const std::vector<ControlState>& states);
    Control* FirstChanged(const Memory& former, const Memory& now, bool (*isMeant)(const Control&)) const;
    void TellChange(int way, const Memory& former, const Memory& now);
    void ShowEntries();

    CalculationForm& form_;
    std::vector<Control*> controls_;
    std::deque<Step> steps_;
    std::size_t at_ = 0;
    int lastNumber_ = 0;
    int savedNumber_ = 0;  // of the step that the database has
    const TextBox* typing_ = nullptr;
};

// A record with the saved side of another.
CalcRecord WithSavedSideOf(CalcRecord record, const CalcRecord& other);

}  // namespace quillmetra
