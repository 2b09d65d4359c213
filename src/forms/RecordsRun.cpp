// See RecordsRun.h.
#include "forms/RecordsRun.h"

#include "core/CalcRecord.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

bool RunWhole(Form& form, const std::string& doing, const std::function<void(bool)>& showRunning,
              const std::function<bool()>& run) {
    const CalcRecord before = Calc;
    showRunning(true);
    form.SetStatus(doing + "; Escape stops it");
    bool isWhole = false;
    std::string failure;
    try {
        isWhole = run();
    } catch (const RuntimeError& error) {
        failure = error.Description;
    }
    Calc = before;
    showRunning(false);
    form.SetStatus(isWhole ? "" : failure.empty() ? "Stopped; nothing was changed" : failure);
    if (!failure.empty()) Tell(failure, form.Caption(), Icon::Stop);
    return isWhole;
}

bool SaveOnConsent(const Form& form, const std::string& question, const std::function<void()>& save) {
    if (!AskYesNo(question, form.Caption(), Icon::Question)) return false;
    try {
        const BusyPointer busy;
        save();
    } catch (const RuntimeError& error) {
        Tell(error.Description, form.Caption(), Icon::Stop);
        return false;
    }
    return true;
}

}  // namespace quillmetra
