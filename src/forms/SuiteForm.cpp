// See SuiteForm.h.
#include "forms/SuiteForm.h"

#include "core/CalcRecord.h"
#include "forms/ColourSchemes.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {
bool IsInput(const Control& control) {
    return control.Kind() == ControlKind::TextBox && !static_cast<const TextBox&>(control).Locked;
}
}  // namespace

std::string ReadAs(const std::string& text) {
    if (ValReadsAll(text)) return {};
    return std::string(Trim(text)) + " is read as " + TrimmedStr(Val(text));
}

std::string SuiteForm::ProblemTitle() const {
    return Calc.ProgramTitle.empty() ? Caption() : Calc.ProgramTitle;
}

int SuiteForm::InputSlot(const Control&) const { return slot::InputText; }

void SuiteForm::ControlGotFocus(Control& control) {
    if (!IsInput(control)) return;
    auto& box = static_cast<TextBox&>(control);
    box.SetColours(SlotColour(slot::SelectedBack), SlotColour(slot::SelectedText));
    if (box.IsNumber) box.SelectAll();
}

void SuiteForm::ControlLostFocus(Control& control) {
    if (!IsInput(control)) return;
    auto& box = static_cast<TextBox&>(control);
    box.SetColours(SlotColour(slot::InputBack), SlotColour(InputSlot(box)));
    const std::string readAs = box.IsNumber ? ReadAs(box.Text()) : "";
    SetStatus(readAs.empty() ? StandingStatus() : readAs);
}

}  // namespace quillmetra
