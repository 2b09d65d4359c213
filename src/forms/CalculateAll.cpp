// See CalculationForm.h: all cases in one act.
#include <utility>
#include <vector>

#include "forms/CalculationForm.h"
#include "forms/CaseMessages.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {

constexpr const char* Title = "Calculate all";

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

}  // namespace

std::string CalculationForm::CaseName(int caseIndex) const {
    const Control* const head = Find("lblCase", caseIndex);
    return head == nullptr ? "" : head->Caption();
}

void CalculationForm::CalculateAll() {
    CaseMessages messages(Title);
    std::vector<std::pair<std::string, std::string>> hints;
    for (int i = 0; i < CaseCount && !UserWantsToStop(); ++i) {
        Control* const button = CalculateButton(i);
        if (button == nullptr || !button->Works() || !HasData(i)) continue;
        ShowHint("");
        messages.Run(CaseName(i), button->Click);
        hints.emplace_back(CaseName(i), hint_);
    }
    if (hints.empty()) return SetStatus("No case has its data yet");
    if (hints.size() > 1) {
        ShowHint(Joined(hints));
        hintedCase_ = EveryCase;
    }
    messages.TellByCase();
}

}  // namespace quillmetra
