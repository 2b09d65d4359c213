// See FluidPanels.h.
#include "forms/FluidPanels.h"

#include <algorithm>
#include <array>

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/Mixtures.h"
#include "forms/CalculationForm.h"
#include "forms/ListTables.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {
constexpr std::initializer_list<int> Components = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
constexpr std::size_t NameLength = 20;  // of a component
constexpr const char* NothingTaken = "100";
}  // namespace

FluidList::FluidList(CalculationForm& form, const char* frameName, const char* caption, bool isGas)
    : PickList(form, {.Frame = frameName,
                      .Caption = caption,
                      .List = "lstFluid",
                      .Select = "cmdSelect",
                      .Cancel = "cmdCancel"}) {
    ShowAsFluids(List, isGas);
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
    PickList::Open(std::move(rows), current);
}

MixturePanel::MixturePanel(CalculationForm& form)
    : fraComponent(form, "fraComponent", "Mixture components"),
      lblComponent(fraComponent, "lblComponent", Components, ""),
      txtPercent(fraComponent, "txtPercent", Components),
      lblRemainingCaption(fraComponent, "lblRemainingCaption", "Remaining percent"),
      lblRemaining(fraComponent, "lblRemaining", NothingTaken),
      cmdCalcPseudo(fraComponent, "cmdCalcPseudo", "C&alculate mixture"),
      cmdClear(fraComponent, "cmdClear", "Clea&r"),
      form_(form) {
    fraComponent.SetVisible(false);
    txtPercent.Each([this](TextBox& box, int i) {
        box.IsNumber = true;
        box.SetToolTip("R takes what remains; Shift+Tab leads back to the list");
        box.Describe(&lblComponent(i), nullptr, "percent");
        box.Change = [this] { ShowRemaining(); };
        box.KeyPress = [this, i](Key& key) {
            if (key.Name != "R" && key.Name != "r") return;
            key.Handled = true;
            TakeRemainder(i);
        };
    });
}

void MixturePanel::Open() {
    for (int i = 0; i < MostComponents; ++i) {
        const double percent = Calc.FluidPercent[static_cast<std::size_t>(i)];
        txtPercent(i).SetText(percent == 0 ? "" : TrimmedStr(percent));
    }
    ShowComponents();
    fraComponent.SetVisible(true);
    form_.DefaultButton = nullptr;  // Enter in a percentage goes on to the next
}

void MixturePanel::Show(int place) {
    ShowComponents();
    txtPercent(place).SetFocus();
}

void MixturePanel::ShowComponents() {
    const int count = ComponentCount();
    for (int i = 0; i < MostComponents; ++i) {
        // A row that comes from the database has lost the blanks behind its name.
        const std::string_view name = FluidRowName(Calc.FluidData[static_cast<std::size_t>(i)]);
        lblComponent(i).SetCaption(FirstCharacters(name, NameLength));
        lblComponent(i).SetVisible(i < count);
        txtPercent(i).SetVisible(i < count);
    }
    cmdCalcPseudo.SetEnabled(count > 0);
    cmdClear.SetEnabled(count > 0);
    ShowRemaining();
}

void MixturePanel::Close() {
    if (!fraComponent.Visible()) return;
    fraComponent.SetVisible(false);
    ClearPercents();
    lblRemaining.SetCaption(NothingTaken);
}

void MixturePanel::StorePercents() const {
    Calc.FluidPercent.fill(0);
    for (int i = 0; i < ComponentCount(); ++i) {
        Calc.FluidPercent[static_cast<std::size_t>(i)] = Val(txtPercent(i).Text());
    }
}

bool MixturePanel::CheckPercents() const {
    constexpr int gasData = 5;
    const auto& percents = Calc.FluidPercent;
    const bool negative = std::any_of(percents.begin(), percents.end(), [](double each) { return each < 0; });
    const bool any = std::any_of(percents.begin(), percents.end(), [](double each) { return each > 0; });
    if (any && !negative) return true;
    Tell(negative ? "A percentage must not be less than zero" : "Sum of percentages must equal 100",
         "Mixture Calculation", Calc.CurrentProgram == gasData ? Icon::Stop : Icon::None);
    return false;
}

void MixturePanel::ClearPercents() {
    txtPercent.Each([](TextBox& box, int) { box.SetText(""); });
}

void MixturePanel::ShowRemaining() {
    std::array<double, MostComponents> percents{};
    for (int i = 0; i < MostComponents; ++i) {
        percents[static_cast<std::size_t>(i)] = Val(txtPercent(i).Text());
    }
    lblRemaining.SetCaption(TrimmedStr(RemainingPercent(percents)));
}

// What the others leave of 100, so that the box counts with what it takes, not on top of what it had.
void MixturePanel::TakeRemainder(int place) {
    txtPercent(place).SetText("");
    const double rest = Val(lblRemaining.Caption());
    txtPercent(place).SetText(rest > 0 ? TrimmedStr(rest) : "");
}

}  // namespace quillmetra
