// See CalculationForm.h: what the history of a form keeps, and what follows when it is put back.
#include "core/Suite.h"
#include "forms/CalculationForm.h"
#include "forms/ColourSchemes.h"
#include "platform/Forms.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"

namespace quillmetra {

void CalculationForm::ControlLostFocus(Control& control) {
    History.LeaveBox();
    SuiteForm::ControlLostFocus(control);
}

bool CalculationForm::IsAtRest() const { return TakesInput(*this) && Picture1.Enabled(); }

bool CalculationForm::Remembers(const Control& control) const {
    if (&control == &mnuUndo || &control == &mnuRedo || control.Kind() == ControlKind::ListBox) return false;
    const Control* outermost = &control;
    while (outermost->Container() != nullptr) outermost = outermost->Container();
    return outermost->Kind() == ControlKind::MenuItem || outermost == &Picture1;
}

Handler CalculationForm::KeepBeside() {
    return [this, hint = hint_, hintedCase = hintedCase_] {
        hint_ = hint;
        hintedCase_ = hintedCase;
    };
}

// The box that has the focus keeps its colours until it is left.
void CalculationForm::ShowRestored() {
    SetCaption(Suite.VersionText + Calc.ProgramTitle);
    ShowReportBasis();
    for (Control* control : Controls()) {
        if (control == Focus.Current() || control->Kind() != ControlKind::TextBox || !Remembers(*control))
            continue;
        const FormRow* const row = RowOf(program_, *control);
        const bool isResult = row != nullptr && row->IsResult();
        const int i = control->Index() == Control::NoIndex ? 0 : control->Index();
        const int slot = isResult ? ValueSlot(LiveValue(*row, i), ShownValue(*row, i)) : InputSlot(*control);
        control->SetColours(control->BackColour(), SlotColour(slot));
    }
    DrawResults();
}

}  // namespace quillmetra
