// The twelve colour slots at work. A control carries a group 1 to 6, and group g paints it with slot 2g - 1
// behind and slot 2g in front: 1 input frame, 2 input box, 3 options frame, 4 output box, 5 form and changed
// data, 6 the box that has the focus.
#pragma once

#include "platform/Form.h"

namespace quillmetra {

// Slots that are asked for by their use.
namespace slot {
inline constexpr int InputBack = 3;
inline constexpr int InputText = 4;  // and the text of unchanged data
inline constexpr int Form = 9;
inline constexpr int Changed = 10;
inline constexpr int SelectedBack = 11;
inline constexpr int SelectedText = 12;
}  // namespace slot

Colour SlotColour(int slot);

// Paints every control of the form that has a group, and the form itself.
void ApplyColours(Form& form);

}  // namespace quillmetra
