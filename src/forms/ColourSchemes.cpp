// See ColourSchemes.h.
#include "forms/ColourSchemes.h"

#include "core/FileNames.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "forms/RegisterForms.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/ProgramPlaces.h"
#include "platform/TextFiles.h"

namespace quillmetra {

Colour SlotColour(int slot) { return Suite.Colours.at(static_cast<std::size_t>(slot)) & 0xFFFFFFU; }

namespace {
constexpr int FormGroup = 5;
constexpr const char* SchemeTitle = "Colour scheme";

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
    TextWriter file(InDefaultPath(path::DataFiles, filename::Background));
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

namespace {

using Slots = decltype(Suite.Colours);

Colour ColourOf(const Slots& slots, int slot) { return slots.at(static_cast<std::size_t>(slot)) & 0xFFFFFFU; }

// What a control shows of its own state, by its colours: that it has the focus, or that its data is changed.
void PaintAnew(Control& control, const Slots& former) {
    const int back = 2 * control.ColourGroup - 1, fore = 2 * control.ColourGroup;
    const auto was = [&former](Colour colour, int slot, int usual) {
        return colour == ColourOf(former, slot) && colour != ColourOf(former, usual);
    };
    if (was(control.BackColour(), slot::SelectedBack, back)) {
        return control.SetColours(SlotColour(slot::SelectedBack), SlotColour(slot::SelectedText));
    }
    const bool changed = was(control.ForeColour(), slot::Changed, fore);
    control.SetColours(SlotColour(back), SlotColour(changed ? slot::Changed : fore));
}

void PaintFormsAnew(const Slots& former) {
    for (const std::string_view name : FormNames()) {
        Form* const form = LoadedForm(name);
        if (form == nullptr) continue;
        form->SetBackColour(SlotColour(slot::Form));
        for (Control* control : form->Controls()) {
            if (control->ColourGroup != 0) PaintAnew(*control, former);
        }
    }
}

void TakeColourFile(const std::string& file) {
    const Slots former = Suite.Colours;
    try {
        ReadColourFile(file);
        PaintFormsAnew(former);
    } catch (const RuntimeError& error) {
        Tell("File " + file + " holds no twelve colours\n" + error.Description, SchemeTitle,
             Icon::Exclamation);
    }
}

std::string SchemeFile(const std::string& name) {
    const std::string shipped = SuitePath(ShippedDataFolder() / (name + ".txt"));
    return FileExists(shipped) ? shipped : Suite.DefaultPaths[path::DataFiles] + "\\" + name + ".txt";
}

}  // namespace

void LoadColourScheme() {
    const std::optional<std::string> file =
        AskFile(SchemeTitle, "Colour schemes(*.txt)|*.txt", Suite.DefaultPaths[path::DataFiles]);
    if (file) TakeColourFile(*file);
}

void TakeScheme(const std::string& name) { TakeColourFile(SchemeFile(name)); }

int SchemeInForce() {
    const Slots inForce = Suite.Colours;
    int found = -1;
    for (std::size_t i = 0; i < SchemeNames.size() && found < 0; ++i) {
        try {
            ReadColourFile(SchemeFile(SchemeNames[i]));
            if (Suite.Colours == inForce) found = static_cast<int>(i);
        } catch (const RuntimeError&) {
            // one that cannot be read is not in force
        }
    }
    Suite.Colours = inForce;
    return found;
}

}  // namespace quillmetra
