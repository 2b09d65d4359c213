// See ColourSchemes.h.
#include "forms/ColourSchemes.h"

#include "core/StartUp.h"
#include "core/Suite.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"

namespace quillmetra {

Colour SlotColour(int slot) { return Suite.Colours.at(static_cast<std::size_t>(slot)) & 0xFFFFFFU; }

namespace {
constexpr int FormGroup = 5;

void Paint(Control& control) {
    const int group = control.ColourGroup;
    if (group >= 1 && group <= 6) control.SetColours(SlotColour(2 * group - 1), SlotColour(2 * group));
}
}  // namespace

void ApplyColours(Form& form) {
    form.SetBackColour(SlotColour(slot::Form));
    for (Control* control : form.Controls()) Paint(*control);
}

void RepaintGroup(Form& form, int group) {
    if (group == FormGroup) form.SetBackColour(SlotColour(slot::Form));
    for (Control* control : form.Controls()) {
        if (control->ColourGroup == group) Paint(*control);
    }
}

bool PickColour(Form& form, int slot, int group, const std::string& title) {
    const std::optional<unsigned> colour = AskColour(SlotColour(slot), title);
    if (!colour) return false;
    Suite.Colours.at(static_cast<std::size_t>(slot)) = *colour;
    RepaintGroup(form, group);
    return true;
}

void ListBackgrounds(Form& form, const std::string& title) {
    TextWriter file(Suite.DefaultPaths[path::DataFiles] + "\\Background.TXT");
    int counter = 1;
    while (!ProcessHasEnded()) {
        if (PickColour(form, slot::Form, FormGroup, title)) {
            if (!AskYesNo("Save this color?", Str(counter) + "Color option #")) continue;
            file.Line(TrimmedStr(SlotColour(slot::Form)));
            ++counter;
        } else if (AskYesNo("Close file??", Str(counter - 1) + " Color Options on File")) {
            return file.Commit();
        }
    }
}

void LoadColourScheme(Form& form) {
    constexpr const char* title = "Colour scheme";
    const std::optional<std::string> file =
        AskFile(title, "Colour schemes(*.txt)|*.txt", Suite.DefaultPaths[path::DataFiles]);
    if (!file) return;
    try {
        ReadColourFile(*file);
        ApplyColours(form);
    } catch (const RuntimeError& error) {
        Tell("File " + *file + " holds no twelve colours\n" + error.Description, title, Icon::Exclamation);
    }
}

}  // namespace quillmetra
