// See frmFluid.h.
#include "forms/frmFluid.h"

#include <algorithm>

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "forms/CaseMessages.h"
#include "forms/ColourSchemes.h"
#include "forms/GridText.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/RuntimeError.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {
constexpr const char* Title = "Fluid Properties";
constexpr std::size_t LongestFilter = 60;
}  // namespace

frmFluid::frmFluid() : SuiteForm("frmFluid") {
    SetCaption("Fluid");
    FitsFrames = true;
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    for (OptionButton* tab : {&optPure, &optMixture, &optSteam}) tab->IsTab = true;
    optPure.SetChecked(true);
    optSaturated.SetChecked(true);
    lblSteam.SetCaption(
        "Saturated steam needs the pressure alone: its temperature follows from it. Superheated steam needs "
        "both.");
    HookTable();
    HookKinds();
    for (Control* control : Controls()) {
        if (control->ColourGroup == 0 && control->Kind() != ControlKind::CommandButton)
            control->ColourGroup = 1;
    }
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    OrderTabs();
}

void frmFluid::HookTable() {
    grdFluids.FixedColumns = 0;
    grdFluids.IsList = true;
    grdFluids.PicksOne = true;
    grdFluids.ColourGroup = 4;
    for (int column = FluidRows::FirstNumber; column < FluidRows::Columns; ++column) {
        grdFluids.NumberColumns.push_back(column);
    }
    grdFluids.Describe(&fraTable);
    grdFluids.Click = [this] { grdFluids_Click(); };
    grdFluids.DoubleClick = [this] { TakeRow(); };
    grdFluids.KeyPress = [this](Key& key) { grdFluids_KeyPress(key); };
    txtFilter.ColourGroup = 2;
    txtFilter.MaxLength = LongestFilter;
    txtFilter.Describe(&lblFilter);
    txtFilter.SetToolTip("Shows the fluids that have these words in their names");
    txtFilter.Change = [this] {
        rows_.Filter(txtFilter.Text());
        const int best = txtFilter.Text().empty() ? -1 : rows_.BestPlace();
        if (best >= 0) marked_ = rows_.Cell(best, FluidRows::Name);
        ShowTable();
    };
    txtFilter.KeyPress = [this](Key& key) { txtFilter_KeyPress(key); };
    cmdAdd.SetToolTip("Takes the fluid in hand as the next component (Enter)");
    cmdAdd.Click = [this] { TakeRow(); };
}

void frmFluid::HookKinds() {
    for (OptionButton* tab : {&optPure, &optMixture, &optSteam}) {
        tab->Click = [this] { ShowKind(); };
        tab->KeyPress = [this](Key& key) { key.Handled = LookFor(key.Name); };
    }
    for (OptionButton* kind : {&optSaturated, &optSuperheated}) kind->Click = [this] { ShowCases(); };
    chkCase.Each([this](CheckBox& tick, int i) {
        tick.Click = [this, i] {
            wanted_[static_cast<std::size_t>(i)] = chkCase(i).Checked();
            EnableButtons();
        };
        tick.Describe(nullptr, &lblLack(i));
        tick.SetCaption(words::Cases[static_cast<std::size_t>(i)]);
    });
    Components.Changed = [this] { EnableButtons(); };
    Components.Ended = [this] {
        (Components.IsWhole() && cmdOK.Enabled() ? static_cast<Control&>(cmdOK) : txtFilter).SetFocus();
    };
    wanted_.assign(CaseCount, true);
}

void frmFluid::OrderTabs() {
    TabOrder = {&optPure, &optMixture, &optSteam, &txtFilter, &grdFluids, &cmdAdd};
    Components.txtPercent.Each([this](TextBox& box, int i) {
        TabOrder.push_back(&box);
        TabOrder.push_back(&Components.cmdRemove(i));
    });
    for (Control* control :
         std::initializer_list<Control*>{&Components.cmdClear, &optSaturated, &optSuperheated, &chkCase(0),
                                         &chkCase(1), &chkCase(2), &cmdOK, &cmdCancel}) {
        TabOrder.push_back(control);
    }
}

void frmFluid::Load() {
    ApplyColours(*this);
    ShowTable();
    ShowKind();
}

// --- What it shows -----------------------------------------------------------------------------------------

void frmFluid::Open(FluidForm& calculation) {
    calculation_ = &calculation;
    const bool isGas = Calc.FluidType == words::Gas;
    SetCaption(isGas ? "Gas of the calculation" : "Liquid of the calculation");
    optPure.SetCaption(isGas ? "&Pure gas" : "&Pure liquid");
    optSteam.SetVisible(isGas);
    Components.lblRemainingCaption.SetCaption(isGas ? "Remaining mole percent" : "Remaining percent");
    ReadTable();
    const FluidPick pick = FluidForm::PickInForce();
    marked_ = pick.Name;
    Components.Take(pick.Parts);
    optMixture.SetChecked(pick.What == FluidPick::Kind::Mixture);
    optSteam.SetChecked(pick.What == FluidPick::Kind::Saturated || pick.What == FluidPick::Kind::Superheated);
    optSuperheated.SetChecked(pick.What == FluidPick::Kind::Superheated);
    optPure.SetChecked(pick.What == FluidPick::Kind::Pure);
    ShowTable();
    ShowKind();
    const bool isSteam = optSteam.Checked();
    (isSteam ? static_cast<Control&>(optSuperheated.Checked() ? optSuperheated : optSaturated) : txtFilter)
        .SetFocus();
}

void frmFluid::ReadTable() {
    std::vector<std::string> rows;
    try {
        rows = ReadFluidRows(Calc.FluidType);
    } catch (const RuntimeError&) {
        Tell("File " + Calc.FluidType + ".txt", Calc.ProgramTitle, Icon::Stop);
    }
    rows_.Take(rows, Calc.FluidType == words::Gas);
    ShowHeads();
}

FluidPick::Kind frmFluid::KindInHand() const {
    if (optMixture.Checked()) return FluidPick::Kind::Mixture;
    if (!optSteam.Checked()) return FluidPick::Kind::Pure;
    return optSuperheated.Checked() ? FluidPick::Kind::Superheated : FluidPick::Kind::Saturated;
}

void frmFluid::ShowKind() {
    const bool mixture = optMixture.Checked(), steam = optSteam.Checked();
    fraTable.SetVisible(!steam);
    fraTable.SetCaption(Calc.FluidType == words::Gas ? "Gases" : "Liquids");
    Components.fraComponent.SetVisible(mixture);
    cmdAdd.SetVisible(mixture);
    fraSteam.SetVisible(steam);
    SetStatus("");
    ShowCases();
}

void frmFluid::ShowCases() {
    const int cases = calculation_ == nullptr ? CaseCount : calculation_->FluidCases();
    for (int i = 0; i < CaseCount; ++i) {
        for (Control* control : std::initializer_list<Control*>{&chkCase(i), &lblLack(i)})
            control->SetVisible(i < cases);
        if (calculation_ == nullptr || i >= cases) continue;
        const std::string lack = calculation_->LackOf(i, KindInHand());
        chkCase(i).SetCaption(calculation_->CaptionOfCase(i));
        chkCase(i).SetEnabled(lack.empty());
        chkCase(i).SetChecked(lack.empty() && wanted_[static_cast<std::size_t>(i)]);
        chkCase(i).SetToolTip(lack);
        lblLack(i).SetCaption(lack);
    }
    EnableButtons();
}

void frmFluid::ShowHeads() {
    Grid::Cells heads;
    for (int column = 0; column < FluidRows::Columns; ++column) heads.push_back(rows_.Head(column));
    grdFluids.SetHeads(WithUnitsBelow(heads));
}

void frmFluid::ShowTable() {
    grdFluids.SetSource(rows_.Count() + 1, FluidRows::Columns,
                        [this](int row, int column) -> const std::string& {
                            return row == 0 ? rows_.Head(column) : rows_.Cell(row - 1, column);
                        });
    const std::string total = std::to_string(rows_.Total());
    lblShown.SetCaption(rows_.Count() == rows_.Total() ? total
                                                       : std::to_string(rows_.Count()) + " of " + total);
    Mark(rows_.PlaceOf(marked_));
}

void frmFluid::Mark(int place) {
    if (place >= 0) {
        marked_ = rows_.Cell(place, FluidRows::Name);
        grdFluids.Preselect(place + grdFluids.FixedRows, 0);
    } else {
        grdFluids.Deselect();
    }
    EnableButtons();
}

void frmFluid::EnableButtons() {
    const bool row = Place() >= 0;
    const FluidPick::Kind kind = KindInHand();
    const bool has = kind == FluidPick::Kind::Pure      ? row
                     : kind == FluidPick::Kind::Mixture ? Components.Count() > 0
                                                        : true;
    cmdAdd.SetEnabled(row);
    cmdOK.SetEnabled(calculation_ != nullptr && has && !TickedCases().empty());
}

// --- What is done in it ------------------------------------------------------------------------------------

void frmFluid::grdFluids_Click() {
    const int place = Place();
    if (place >= 0) return Mark(place);
    SortBy(grdFluids.SelectedColumn());
}

// Down goes on to the fluids that were found.
void frmFluid::txtFilter_KeyPress(Key& key) {
    key.Handled = (key.Name == keys::Escape && !txtFilter.Text().empty()) ||
                  (key.Name == keys::Down && rows_.Count() > 0) ||
                  (key.Name == keys::Enter && optMixture.Checked());
    if (!key.Handled) return;
    if (key.Name == keys::Escape) return txtFilter.SetText("");
    if (key.Name == keys::Enter) return TakeRow();
    if (Place() < 0) Mark(0);
    grdFluids.SetFocus();
}

// What is typed outside of the search is looked for too.
bool frmFluid::LookFor(const std::string& key) {
    if (!fraTable.Visible() || CharacterCount(key) != 1 || key == " ") return false;
    txtFilter.SetText(txtFilter.Text() + key);
    txtFilter.SetFocus();
    return true;
}

// Ctrl and the number of a column sorts, as a click on its head.
void frmFluid::grdFluids_KeyPress(Key& key) {
    const bool sorts = key.Name.starts_with(keys::Ctrl) && key.Name.size() == 6 && key.Name.back() >= '1' &&
                       key.Name.back() < '1' + FluidRows::Columns;
    key.Handled = sorts || key.Name == keys::Enter || LookFor(key.Name);
    if (sorts) SortBy(key.Name.back() - '1');
    if (key.Name == keys::Enter) TakeRow();
}

void frmFluid::SortBy(int column) {
    rows_.SortBy(column);
    ShowHeads();
    ShowTable();
}

void frmFluid::TakeRow() {
    if (Place() < 0) return;
    if (!optMixture.Checked()) {
        if (cmdOK.Enabled()) cmdOK_Click();
        return;
    }
    Components.Add(rows_.Row(Place()));
    txtFilter.SetText("");
}

std::vector<int> frmFluid::TickedCases() const {
    std::vector<int> cases;
    chkCase.Each([&cases](const CheckBox& tick, int i) {
        if (tick.Checked() && tick.Enabled() && tick.Visible()) cases.push_back(i);
    });
    return cases;
}

FluidPick frmFluid::PickInHand() const {
    FluidPick pick{.What = KindInHand()};
    if (pick.What == FluidPick::Kind::Mixture) pick.Parts = Components.Parts();
    if (pick.What == FluidPick::Kind::Pure) pick.Row = rows_.Row(Place());
    return pick;
}

// Where no case takes the fluid, the dialog stays as it is. A case alone is told as its menu tells it; of
// several, what is only to be told is told at their end, and the status line names the one that is asked
// about.
void frmFluid::cmdOK_Click() {
    if (optMixture.Checked() && !Components.Check()) return;
    const FluidPick pick = PickInHand();
    const std::vector<int> cases = TickedCases();
    CaseMessages messages(Title);
    bool taken = false;
    for (const int i : cases) {
        const auto take = [&] { taken = calculation_->Pick(i, pick) || taken; };
        const std::string name = SpokenCaption(chkCase(i).Caption());
        if (cases.size() > 1) {
            SetStatus("For " + name);
            messages.Run(name, take);
        } else {
            take();
        }
    }
    SetStatus("");
    if (taken) UnloadForm(Name());
    messages.TellOnce();
}

void frmFluid::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
