// See ProgramConversion.h.
#include <utility>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "units/ProgramConversion.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

std::function<void()> ShowConverted;

// The answer No has no memory; Cancel hides the question for the rest of the run.
bool AskWhetherToRound() {
    if (!Suite.HideRoundReminder.empty()) return true;
    if (ShowConverted) ShowConverted();
    const Answer answer =
        ShowMessage({"Round converted data?\n  Yes or No to round\n\n(or Cancel to hide the message)",
                     Calc.ProgramTitle, Buttons::YesNoCancel});
    if (answer == Answer::Cancel) {
        Suite.HideRoundReminder = words::Yes;
        SaveStandardConditions();
    }
    return answer != Answer::No;
}

bool WantsRounding() {
    switch (Suite.ConvertedFigures) {
        case Figures::Round: return true;
        case Figures::Keep: return false;
        default: return AskWhetherToRound();
    }
}

template <typename Values, typename Rounder>
void RoundFirst(Values& values, std::size_t count, Rounder rounder) {
    for (std::size_t i = 0; i < count; ++i) values[i] = rounder(values[i]);
}

}  // namespace

BeforeRounding::BeforeRounding(std::function<void()> show)
    : outer_(std::exchange(ShowConverted, std::move(show))) {}
BeforeRounding::~BeforeRounding() { ShowConverted = std::move(outer_); }

void RoundRecord() {
    if (WantsRounding()) RoundNumbers();
}

void RoundNumbers() {
    for (std::size_t row = 0; row < input::Count; ++row)
        RoundFirst(Calc.CaseInput[row], CaseCount, RoundedSix);
    for (auto& results : Calc.CaseResult) RoundFirst(results, CaseCount, RoundedSix);
    RoundFirst(Calc.PipeData, Calc.PipeData.size(), RoundedSix);
    RoundFirst(Calc.HammerResult, Calc.HammerResult.size(), RoundedFour);
    Calc.RoundedFlag = words::Yes;
}

}  // namespace quillmetra
