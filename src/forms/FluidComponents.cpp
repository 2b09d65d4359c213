// See FluidComponents.h.
#include "forms/FluidComponents.h"

#include <algorithm>
#include <utility>

#include "fluids/FluidTables.h"
#include "fluids/Mixtures.h"
#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {
constexpr std::initializer_list<int> Places = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
constexpr const char* Title = "Mixture Calculation";

std::string PercentText(double percent) { return percent == 0 ? "" : TrimmedStr(percent); }

bool AreAlike(const std::vector<FluidPart>& a, const std::vector<FluidPart>& b) {
    return std::ranges::equal(a, b, [](const FluidPart& one, const FluidPart& other) {
        return one.Row == other.Row && one.Percent == other.Percent;
    });
}
}  // namespace

FluidComponents::FluidComponents(Form& form)
    : fraComponent(form, "fraComponent", "Components"),
      lblNone(fraComponent, "lblNone", "Pick a fluid in the table and add it"),
      lblComponent(fraComponent, "lblComponent", Places, ""),
      txtPercent(fraComponent, "txtPercent", Places),
      cmdRemove(fraComponent, "cmdRemove", Places, "Remove"),
      lblRemainingCaption(fraComponent, "lblRemainingCaption", "Remaining percent"),
      lblRemaining(fraComponent, "lblRemaining"),
      lblNote(fraComponent, "lblNote"),
      cmdClear(fraComponent, "cmdClear", "Clea&r") {
    for (const int place : Places) HookRow(place);
    for (Label* label : {&lblNone, &lblRemainingCaption, &lblRemaining, &lblNote}) label->ColourGroup = 1;
    cmdClear.SetToolTip("Takes all components away");
    cmdClear.Click = [this] { Take({}); };
}

void FluidComponents::HookRow(int place) {
    TextBox& box = txtPercent(place);
    lblComponent(place).ColourGroup = 1;
    box.ColourGroup = 2;
    box.IsNumber = true;
    box.SetToolTip("R takes what remains, Enter goes on to the next");
    box.Describe(&lblComponent(place), nullptr, "percent");
    box.Change = [this] {
        if (!filling_) ShowRemaining();
    };
    box.KeyPress = [this, place](Key& key) {
        key.Handled = key.Name == keys::Enter || key.Name == "R" || key.Name == "r";
        if (key.Name == keys::Enter) return GoOn(place);
        if (key.Handled) TakeRemainder(place);
    };
    cmdRemove(place).Describe(&lblComponent(place));
    cmdRemove(place).Click = [this, place] { Remove(place); };
}

void FluidComponents::Take(const std::vector<FluidPart>& parts) {
    before_ = parts;
    rows_.clear();
    filling_ = true;
    for (const int place : Places) {
        const bool has = place < static_cast<int>(parts.size());
        txtPercent(place).SetText(has ? PercentText(parts[static_cast<std::size_t>(place)].Percent) : "");
        if (has) rows_.push_back(parts[static_cast<std::size_t>(place)].Row);
    }
    filling_ = false;
    Show();
}

std::vector<FluidPart> FluidComponents::Parts() const {
    std::vector<FluidPart> parts;
    parts.reserve(rows_.size());
    for (int i = 0; i < Count(); ++i) {
        parts.push_back({rows_[static_cast<std::size_t>(i)], Val(txtPercent(i).Text())});
    }
    return parts;
}

void FluidComponents::Show() {
    for (const int place : Places) {
        const bool has = place < Count();
        lblComponent(place).SetCaption(has ? std::string(FluidRowName(rows_[static_cast<std::size_t>(place)]))
                                           : "");
        for (Control* control :
             std::initializer_list<Control*>{&lblComponent(place), &txtPercent(place), &cmdRemove(place)}) {
            control->SetVisible(has);
        }
    }
    lblNone.SetVisible(rows_.empty());
    cmdClear.SetEnabled(!rows_.empty());
    ShowRemaining();
}

double FluidComponents::Remaining() const {
    std::vector<double> percents;
    for (const FluidPart& part : Parts()) percents.push_back(part.Percent);
    return RemainingPercent(percents);
}

void FluidComponents::ShowRemaining() {
    lblRemaining.SetCaption(TrimmedStr(Remaining()));
    ShowNote("");
    if (Changed) Changed();
}

// What cannot be is seen as it is typed, and what was refused until something else is done.
void FluidComponents::ShowNote(const std::string& refused) {
    const std::vector<FluidPart> parts = Parts();
    const bool negative = std::ranges::any_of(parts, [](const FluidPart& part) { return part.Percent < 0; });
    const bool over = Remaining() < 0;
    lblNote.SetCaption(!refused.empty() ? refused
                       : negative       ? "A percentage is less than zero"
                       : over           ? "The sum is over 100"
                                        : "");
    const Colour usual = SlotColour(slot::AreaText), marked = SlotColour(slot::Changed);
    lblNote.SetColours(fraComponent.BackColour(), marked);
    lblRemaining.SetColours(fraComponent.BackColour(), negative || over ? marked : usual);
}

void FluidComponents::Add(const std::string& row) {
    const std::string_view name = FluidRowName(row);
    const auto same =
        std::ranges::find_if(rows_, [name](const std::string& each) { return FluidRowName(each) == name; });
    const auto last = static_cast<std::size_t>(MostComponents);
    std::string refused;
    if (same != rows_.end()) refused = std::string(name) + " is a component already";
    if (same == rows_.end() && rows_.size() == last) refused = "Maximum number is " + std::to_string(last);
    const auto place = std::min(static_cast<std::size_t>(same - rows_.begin()), last - 1);
    if (refused.empty()) {
        rows_.push_back(row);
        Show();
    }
    ShowNote(refused);
    txtPercent(static_cast<int>(place)).SetFocus();
}

// The percentages below move up with their components.
void FluidComponents::Remove(int place) {
    std::vector<FluidPart> parts = Parts();
    const std::vector<FluidPart> before = before_;
    parts.erase(parts.begin() + place);
    Take(parts);
    before_ = before;
    if (Count() > 0) return cmdRemove(std::min(place, Count() - 1)).SetFocus();
    if (Ended) Ended();
}

void FluidComponents::GoOn(int place) {
    if (place + 1 < Count()) return txtPercent(place + 1).SetFocus();
    if (Ended) Ended();
}

// What the others leave of 100, so that the box counts with what it takes, not on top of what it had.
void FluidComponents::TakeRemainder(int place) {
    txtPercent(place).SetText("");
    const double rest = Remaining();
    txtPercent(place).SetText(rest > 0 ? TrimmedStr(rest) : "");
}

bool FluidComponents::Check() const {
    const std::vector<FluidPart> parts = Parts();
    if (std::ranges::any_of(parts, [](const FluidPart& part) { return part.Percent < 0; })) {
        Tell("A percentage must not be less than zero", Title);
        return false;
    }
    const bool any = std::ranges::any_of(parts, [](const FluidPart& part) { return part.Percent > 0; });
    if (any && (Remaining() == 0 || AreAlike(parts, before_))) return true;
    Tell("Sum of percentages must equal 100", Title);
    return false;
}

}  // namespace quillmetra
