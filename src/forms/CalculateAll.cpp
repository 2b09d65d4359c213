// See CalculationForm.h: all cases in one act.
#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/CalculationForm.h"
#include "lineloss/FlowStatus.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

namespace {

constexpr const char* Title = "Calculate all";

// A line of a box that begins with a capital is a sentence of its own, but for one of a list of advices.
const char* Joint(std::string_view before, std::string_view after) {
    const bool begins = !after.empty() && after.front() >= 'A' && after.front() <= 'Z';
    return before.empty() || !begins || before.ends_with(",") || before.ends_with(", or") ? " " : ". ";
}

// What a box said, in one line.
std::string InOneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view part = Trim(text.substr(0, end));
        if (!part.empty()) line += (line.empty() ? "" : Joint(line, part)) + std::string(part);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return line;
}

// Some boxes name their case themselves.
std::string OfCase(const std::string& name, const std::string& text) {
    const bool isNamed = text.starts_with(name + " ");
    return name + ": " + InOneLine(isNamed ? text.substr(name.size()) : text);
}

// The hints of the cases, once where they are the same.
std::string Joined(const std::vector<std::pair<std::string, std::string>>& hints) {
    std::string all;
    bool same = true;
    for (const auto& [name, hint] : hints) {
        same = same && hint == hints.front().second;
        if (hint.empty()) continue;
        if (!all.empty()) all += ' ';
        all.append(name).append(": ").append(hint);
    }
    return same ? hints.front().second : all;
}

void TellLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
    if (!text.empty()) Tell(text, Title, Icon::Information);
}

}  // namespace

std::string CalculationForm::CaseName(int caseIndex) const {
    const Control* const head = Find("lblCase", caseIndex);
    return head == nullptr ? "" : head->Caption();
}

// What nobody caught ends its case and is told with the rest.
void CalculationForm::PressCase(Control& button) {
    try {
        button.Click();
    } catch (const RuntimeError& error) {
        Tell(error.Description, Title, Icon::Stop);
    }
}

void CalculationForm::CalculateAll() {
    std::vector<std::string> lines;
    std::vector<std::pair<std::string, std::string>> hints;
    for (int i = 0; i < CaseCount && !UserWantsToStop(); ++i) {
        Control* const button = CalculateButton(i);
        if (button == nullptr || !button->Works() || !HasData(i)) continue;
        const FlowStatusAlone zone;
        const HeldMessages held;
        ShowHint("");
        PressCase(*button);
        for (const std::string& text : held.Texts()) lines.push_back(OfCase(CaseName(i), text));
        hints.emplace_back(CaseName(i), hint_);
    }
    if (hints.empty()) return SetStatus("No case has its data yet");
    if (hints.size() > 1) {
        ShowHint(Joined(hints));
        hintedCase_ = EveryCase;
    }
    TellLines(lines);
}

}  // namespace quillmetra
