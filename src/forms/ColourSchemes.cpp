// See ColourSchemes.h.
#include "forms/ColourSchemes.h"

#include "core/Suite.h"

namespace quillmetra {

Colour SlotColour(int slot) { return Suite.Colours.at(static_cast<std::size_t>(slot)); }

void ApplyColours(Form& form) {
    form.SetBackColour(SlotColour(slot::Form));
    for (Control* control : form.Controls()) {
        const int group = control->ColourGroup;
        if (group >= 1 && group <= 6) control->SetColours(SlotColour(2 * group - 1), SlotColour(2 * group));
    }
}

}  // namespace quillmetra
