// See UndoHistory.h.
#include "forms/UndoHistory.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/Filling.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {

// What a load and a save write, and what tells them which rows there are. Units and fittings have their shown
// copy as reference.
constexpr auto SavedSide = std::tuple{&CalcRecord::CaseInputSaved,
                                      &CalcRecord::CaseResultSaved,
                                      &CalcRecord::PipeDataSaved,
                                      &CalcRecord::HammerResultSaved,
                                      &CalcRecord::HeadingTextSaved,
                                      &CalcRecord::CaseTextSaved,
                                      &CalcRecord::CaseUnitsTextSaved,
                                      &CalcRecord::FluidPercentSaved,
                                      &CalcRecord::FluidDataSaved,
                                      &CalcRecord::PipeFoulingSaved,
                                      &CalcRecord::BasisSaved,
                                      &CalcRecord::LiquidBasisSaved,
                                      &CalcRecord::BaroPressureSaved,
                                      &CalcRecord::TagSaved,
                                      &CalcRecord::ProgramTitleSaved,
                                      &CalcRecord::FluidNameSaved,
                                      &CalcRecord::PressureDirectionSaved,
                                      &CalcRecord::PipeMaterialSaved,
                                      &CalcRecord::PipeMaterialNumberSaved,
                                      &CalcRecord::PipeNameSaved,
                                      &CalcRecord::ServiceSaved,
                                      &CalcRecord::UnitNameShown,
                                      &CalcRecord::UnitFactorShown,
                                      &CalcRecord::FittingCountShown,
                                      &CalcRecord::LoadedDatabaseFile,
                                      &CalcRecord::PDRowLoaded,
                                      &CalcRecord::FDRowLoaded,
                                      &CalcRecord::WHRowLoaded};

// What a save keeps and no control of the form says by its text or tick. The numbers of the boxes are not
// among it: a box may say more than has been stored by now.
constexpr auto Unseen =
    std::tuple{&CalcRecord::FluidData,    &CalcRecord::FluidPercent, &CalcRecord::MixtureCount,
               &CalcRecord::MixtureFlag,  &CalcRecord::SteamKind,    &CalcRecord::FluidDataSource,
               &CalcRecord::Basis,        &CalcRecord::LiquidBasis,  &CalcRecord::LiquidDensityMode,
               &CalcRecord::PressureMode, &CalcRecord::UnitSystem,   &CalcRecord::UnitSetName,
               &CalcRecord::CalcMode,     &CalcRecord::DataMode,     &CalcRecord::LiquidUnitSet,
               &CalcRecord::GasUnitSet,   &CalcRecord::RoundedFlag,  &CalcRecord::StdTemperature,
               &CalcRecord::StdPressure,  &CalcRecord::PipeName,     &CalcRecord::BaroPressure};

bool SameUnits(const CalcRecord& one, const CalcRecord& other) {
    constexpr std::ptrdiff_t kept = 28;  // those after it are the pipe lookup's
    const auto same = [](const auto& a, const auto& b) {
        return std::equal(a.begin(), a.begin() + kept, b.begin());
    };
    return same(one.UnitName, other.UnitName) && same(one.UnitFactor, other.UnitFactor);
}

// What the printout form may change. Two of the notes are boxes of the form.
bool SameTexts(const CalcRecord& one, const CalcRecord& other) {
    for (const int i : {heading::Title, heading::Subtitle, heading::ProjectName, heading::ProjectNumber,
                        heading::Manufacturer, heading::Model, heading::Note3}) {
        if (one.HeadingText[At(i)] != other.HeadingText[At(i)]) return false;
    }
    return one.CaseText[text::DataDate] == other.CaseText[text::DataDate];
}

bool SameUnseen(const CalcRecord& one, const CalcRecord& other) {
    const bool same =
        std::apply([&](auto... field) { return ((one.*field == other.*field) && ...); }, Unseen);
    return same && SameUnits(one, other) && SameTexts(one, other);
}

bool IsTick(const Control& control) {
    return control.Kind() == ControlKind::CheckBox || control.Kind() == ControlKind::OptionButton;
}

bool IsInput(const Control& control) {
    return control.Kind() == ControlKind::TextBox && !static_cast<const TextBox&>(control).Locked;
}

// A refresh writes a number in its own way.
bool SaysSame(const Control& control, const std::string& one, const std::string& other) {
    if (one == other) return true;
    if (control.Kind() != ControlKind::TextBox || Trim(one).empty() != Trim(other).empty()) return false;
    const bool isNumber = static_cast<const TextBox&>(control).IsNumber;
    return isNumber ? Val(one) == Val(other) : Trim(one) == Trim(other);
}

const Tickable* AsTickable(const Control& control) {
    const bool ticks = IsTick(control) || control.Kind() == ControlKind::MenuItem;
    return ticks ? static_cast<const Tickable*>(&control) : nullptr;
}

}  // namespace

CalcRecord WithSavedSideOf(CalcRecord record, const CalcRecord& other) {
    std::apply([&](auto... field) { ((record.*field = other.*field), ...); }, SavedSide);
    return record;
}

UndoHistory::Kept UndoHistory::Remember() {
    if (controls_.empty()) {
        std::ranges::copy_if(form_.Controls(), std::back_inserter(controls_),
                             [this](const Control* control) { return form_.Remembers(*control); });
    }
    auto memory = std::make_shared<Memory>(Memory{Calc, {}, form_.KeepBeside()});
    memory->Controls.reserve(controls_.size());
    for (const Control* control : controls_) {
        const Tickable* const tick = AsTickable(*control);
        memory->Controls.push_back(
            {control->Text(), tick != nullptr && tick->Checked(), control->Enabled(), control->Visible()});
    }
    return memory;
}

bool UndoHistory::IsSame(const Memory& one, const Memory& other) const {
    return FirstChanged(one, other, [](const Control&) { return true; }) == nullptr &&
           SameUnseen(one.Record, other.Record);
}

TextBox* UndoHistory::BoxInHand() const {
    Control* const current = form_.Focus.Current();
    return current != nullptr && IsInput(*current) ? static_cast<TextBox*>(current) : nullptr;
}

bool UndoHistory::IsTyping(const Memory& one, const Memory& other, const TextBox& box) const {
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        if (!IsInput(*controls_[i])) continue;
        const bool same = SaysSame(*controls_[i], one.Controls[i].Text, other.Controls[i].Text);
        if (same == (controls_[i] == &box)) return false;
    }
    return true;
}

void UndoHistory::Take() {
    if (!form_.IsAtRest()) return;
    Kept now = Remember();
    if (steps_.empty() || !IsSame(*steps_[at_].Left, *now)) {
        Add(std::move(now));
    } else {
        steps_[at_].Left = std::move(now);
    }
    if (Calc.ChangedFlag.empty()) savedNumber_ = steps_[at_].Number;
    ShowEntries();
}

void UndoHistory::Add(Kept now) {
    const TextBox* const box = BoxInHand();
    const bool types = box != nullptr && !steps_.empty() && IsTyping(*steps_[at_].Left, *now, *box);
    const bool isLast = at_ + 1 == steps_.size();
    if (types && box == typing_ && isLast && steps_[at_].Number != savedNumber_)
        return Retype(std::move(now));
    typing_ = types ? box : nullptr;
    if (!steps_.empty()) steps_.resize(at_ + 1);
    steps_.push_back({now, now, ++lastNumber_});
    if (steps_.size() > MostSteps + 1) steps_.pop_front();
    at_ = steps_.size() - 1;
}

// A box that says again what it said before, with nothing lost by it, is no step.
void UndoHistory::Retype(Kept now) {
    if (at_ == 0 || !IsSame(*steps_[at_ - 1].Left, *now)) {
        steps_[at_].Begun = steps_[at_].Left = std::move(now);
        return;
    }
    steps_.pop_back();
    steps_[--at_].Left = std::move(now);
    typing_ = nullptr;
}

void UndoHistory::LeaveBox() {
    Take();
    typing_ = nullptr;
}

void UndoHistory::Forget() {
    steps_.clear();
    at_ = 0;
    savedNumber_ = 0;
    typing_ = nullptr;
}

// What is open over the inputs closes first, and that is all then: it was the last thing that was done.
void UndoHistory::Go(int way) {
    if (!form_.IsAtRest()) return form_.CloseOverlays();
    Take();
    const std::size_t to = at_ + static_cast<std::size_t>(way);
    if (to >= steps_.size()) return;
    const Kept former = steps_[at_].Left;
    at_ = to;
    typing_ = nullptr;
    const Kept now = way < 0 ? steps_[at_].Begun : steps_[at_].Left;
    Restore(*now);
    TellChange(way, *former, *now);
    ShowEntries();
}

void UndoHistory::Restore(const Memory& memory) {
    for (const char* panel : {"frmUnits", "frmCalcOptions", "frmObxPrintCalc"}) UnloadForm(panel);
    Calc = WithSavedSideOf(memory.Record, Calc);
    if (steps_[at_].Number == savedNumber_) {
        Calc.ChangedFlag.clear();
        Calc.RecordUpdated.clear();
        Calc.RecordChanged = words::No;
    } else {
        Calc.ChangedFlag = words::No;
    }
    const Filling filling;
    ShowControls(memory.Controls);
    memory.PutBeside();
    form_.ShowRestored();
}

void UndoHistory::ShowControls(const std::vector<ControlState>& states) {
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        Control& control = *controls_[i];
        const ControlState& state = states[i];
        if (control.Kind() == ControlKind::TextBox) {
            static_cast<TextBox&>(control).SetText(state.Text);
        } else {
            control.SetCaption(state.Text);
        }
        if (AsTickable(control) != nullptr) static_cast<Tickable&>(control).SetChecked(state.Checked);
        control.SetEnabled(state.Enabled);
        control.SetVisible(state.Visible);
    }
}

Control* UndoHistory::FirstChanged(const Memory& former, const Memory& now,
                                   bool (*isMeant)(const Control&)) const {
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const ControlState &a = former.Controls[i], &b = now.Controls[i];
        const bool differs = a.Checked != b.Checked || !SaysSame(*controls_[i], a.Text, b.Text);
        if (differs && isMeant(*controls_[i])) return controls_[i];
    }
    return nullptr;
}

// The focus goes to the first input that is another now, and the status line names what is.
void UndoHistory::TellChange(int way, const Memory& former, const Memory& now) {
    Control* what =
        FirstChanged(former, now, [](const Control& each) { return IsInput(each) || IsTick(each); });
    if (what != nullptr && what->Works()) form_.Focus.CodeMoves(*what);
    if (what == nullptr) {
        what = FirstChanged(former, now, [](const Control& each) {
            return each.Kind() == ControlKind::CommandButton || each.Kind() == ControlKind::TextBox;
        });
    }
    const std::string name = what == nullptr ? "" : ": " + what->AccessibleName();
    form_.SetStatus((way < 0 ? "Undone" : "Done again") + name);
}

void UndoHistory::ShowEntries() {
    form_.mnuUndo.SetEnabled(at_ > 0);
    form_.mnuRedo.SetEnabled(at_ + 1 < steps_.size());
}

}  // namespace quillmetra
