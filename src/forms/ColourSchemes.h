// The twelve colour slots at work. A control carries a group 1 to 6, and group g paints it with slot 2g - 1
// behind and slot 2g in front: 1 input frame, 2 input box, 3 options frame, 4 output box, 5 form and changed
// data, 6 the box that has the focus.
#pragma once

#include <array>
#include <string>

#include "platform/Form.h"

namespace quillmetra {

// Slots that are asked for by their use.
namespace slot {
inline constexpr int Area = 1;
inline constexpr int AreaText = 2;
inline constexpr int InputBack = 3;
inline constexpr int InputText = 4;  // and the text of unchanged data
inline constexpr int ResultBack = 7;
inline constexpr int ResultText = 8;
inline constexpr int Form = 9;
inline constexpr int Changed = 10;
inline constexpr int SelectedBack = 11;
inline constexpr int SelectedText = 12;
}  // namespace slot

// Only the 24 bits of colour of what the slot holds.
Colour SlotColour(int slot);

// Paints every control of the form that has a group, and the form itself.
void ApplyColours(Form& form);

// Paints the controls of one group anew, and the form itself for group 5.
void RepaintGroup(Form& form, int group);

// Asks for the colour of a slot and repaints its group; false when cancelled, with the slot as it was.
bool PickColour(Form& form, int slot, int group, const std::string& title);

// Asks for one form background after the other, tries each on the form, and writes those that the user
// wants to keep to Background.TXT, a number a line. The file of before stays unless the user closes the new
// one.
void ListBackgrounds(Form& form, const std::string& title);

// Takes the colours of a file that the user chooses, on all forms that are loaded; tells when it holds no
// twelve colours.
void LoadColourScheme();

// The schemes that come with the suite, by the names of their files.
inline constexpr std::array SchemeNames = {"Light", "Dark", "High contrast", "Classic"};
// Takes one of them, as LoadColourScheme. The file of the suite goes before one of the user's tables, which
// an earlier version may have laid there.
void TakeScheme(const std::string& name);
// Which of them the colours in force are, -1 for none.
int SchemeInForce();

}  // namespace quillmetra
