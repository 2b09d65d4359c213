// See FluidPanels.h.
#include "forms/FluidPanels.h"

#include <algorithm>

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {
constexpr std::initializer_list<int> Components = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
}

FluidList::FluidList(CalculationForm& form, const std::string& frameName, const std::string& caption)
    : Panel(form, frameName, caption),
      lstFluid(Panel, "lstFluid"),
      cmdSelect(Panel, "cmdSelect", "&Select"),
      cmdCancel(Panel, "cmdCancel", "Cancel"),
      form_(form) {
    Panel.SetVisible(false);
    lstFluid.Describe(&Panel);
    cmdCancel.Click = [this] { Close(); };
}

void FluidList::Open(const std::string& fluidType) {
    std::vector<std::string> rows;
    try {
        rows = ReadFluidRows(fluidType);
    } catch (const RuntimeError&) {
        Tell("File " + fluidType + ".txt", Calc.ProgramTitle, Icon::Stop);
    }
    const int known = FindFluidName(rows, Calc.FluidName);
    const int current = rows.empty() ? -1 : std::max(known, 0);
    if (!IsOpen()) cameFrom_ = form_.Focus.Current();
    lstFluid.SetRows(std::move(rows));
    lstFluid.Preselect(current);
    cmdSelect.SetEnabled(current >= 0);
    form_.Picture1.SetEnabled(false);
    form_.mnuFluiProp.SetEnabled(false);  // the list is for the case that opened it
    Panel.SetVisible(true);
    form_.DefaultButton = &cmdSelect;
    form_.CancelButton = &cmdCancel;
    (current >= 0 ? static_cast<Control&>(lstFluid) : cmdCancel).SetFocus();
}

void FluidList::Close() {
    if (!IsOpen()) return;
    Panel.SetVisible(false);
    lstFluid.Clear();
    form_.Picture1.SetEnabled(true);
    form_.mnuFluiProp.SetEnabled(true);
    form_.DefaultButton = nullptr;
    form_.CancelButton = nullptr;
    if (cameFrom_ != nullptr) cameFrom_->SetFocus();
}

MixturePanel::MixturePanel(CalculationForm& form)
    : fraComponent(form, "fraComponent", "Mixture components"),
      lblComponent(fraComponent, "lblComponent", Components, ""),
      txtPercent(fraComponent, "txtPercent", Components),
      lblRemainingCaption(fraComponent, "lblRemainingCaption", "Remaining percent"),
      lblRemaining(fraComponent, "lblRemaining", "100"),
      cmdCalcPseudo(fraComponent, "cmdCalcPseudo", "Calc&ulate mixture"),
      cmdClear(fraComponent, "cmdClear", "C&lear") {
    fraComponent.SetVisible(false);
    txtPercent.Each([this](TextBox& box, int i) {
        box.IsNumber = true;
        box.Describe(&lblComponent(i), nullptr, "percent");
    });
}

}  // namespace quillmetra
