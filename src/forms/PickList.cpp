// See PickList.h.
#include "forms/PickList.h"

#include "forms/CalculationForm.h"
#include "platform/Keys.h"

namespace quillmetra {

PickList::PickList(CalculationForm& form, const Names& names)
    : Panel(form, names.Frame, names.Caption),
      List(Panel, names.List),
      cmdSelect(Panel, names.Select, names.SelectCaption),
      cmdCancel(Panel, names.Cancel, "Cancel"),
      form_(form) {
    Panel.SetVisible(false);
    List.Describe(&Panel);
    // In a mixture there is no default button, but Enter in the list picks all the same.
    List.KeyPress = [this](Key& key) {
        if (key.Name != keys::Enter || !cmdSelect.Enabled() || !cmdSelect.Click) return;
        key.Handled = true;
        cmdSelect.Click();
    };
}

void PickList::Open(std::vector<std::string> rows, int current) {
    if (!IsOpen()) cameFrom_ = form_.Focus.Current();
    List.SetRows(std::move(rows));
    List.Preselect(current);
    cmdSelect.SetEnabled(current >= 0);
    form_.Picture1.SetEnabled(false);
    form_.mnuFluiProp.SetEnabled(false);  // the list is for the case that opened it
    Panel.SetVisible(true);
    form_.DefaultButton = &cmdSelect;
    form_.CancelButton = &cmdCancel;
    (current >= 0 ? static_cast<Control&>(List) : cmdCancel).SetFocus();
}

void PickList::Close() {
    if (!IsOpen()) return;
    Panel.SetVisible(false);
    List.Clear();
    form_.Picture1.SetEnabled(true);
    form_.mnuFluiProp.SetEnabled(true);
    form_.DefaultButton = nullptr;
    form_.CancelButton = nullptr;
    if (cameFrom_ != nullptr) cameFrom_->SetFocus();
}

}  // namespace quillmetra
