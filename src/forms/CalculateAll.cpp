// See CalculationForm.h: all cases in one act.
#include <utility>
#include <vector>

#include "forms/CalculationForm.h"
#include "forms/CaseMessages.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {

constexpr const char* Title = "Calculate all";

}  // namespace

std::string CalculationForm::CaseName(int caseIndex) const {
    const Control* const head = Find("lblCase", caseIndex);
    return head == nullptr ? "" : head->Caption();
}

void CalculationForm::CalculateAll() {
    CaseMessages messages(Title);
    std::vector<TextOfCase> hints;
    for (int i = 0; i < CaseCount && !UserWantsToStop(); ++i) {
        Control* const button = CalculateButton(i);
        if (button == nullptr || !button->Works() || !HasData(i)) continue;
        ShowHint("");
        messages.Run(CaseName(i), button->Click);
        hints.emplace_back(CaseName(i), hint_);
    }
    if (hints.empty()) return SetStatus("No case has its data yet");
    if (hints.size() > 1) ShowHints(hints);
    messages.TellByCase();
}

void CalculationForm::ShowHints(const std::vector<TextOfCase>& hints) {
    ShowHint(JoinedHints(hints));
    hintedCase_ = EveryCase;
}

}  // namespace quillmetra
