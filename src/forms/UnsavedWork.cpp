// See UnsavedWork.h.
#include "forms/UnsavedWork.h"

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/PanelReturn.h"
#include "forms/RecordInHand.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "records/Recovery.h"

namespace quillmetra {

void KeepUnsavedWork() {
    CalculationForm* const form = OpenCalculation();
    if (form == nullptr || !form->Visible() || UserActRuns() || Calc.ChangedFlag.empty()) return;
    // A panel or a list has the record half changed.
    if (!form->Enabled() || !form->Picture1.Enabled()) return;
    const std::string tag = form->txtTagNum.Text();
    form->StoreForm();
    if (form->txtTagNum.Text() != tag) {  // one in the making may end in a blank for now
        const Filling filling;
        form->txtTagNum.SetText(tag);
    }
    KeepRecovery();
}

void OfferRecovery() {
    if (!HasRecovery()) return;
    const bool wanted =
        AskYesNo("The suite did not end properly.\nRecover the calculation that was not saved?", "Recovery",
                 Icon::Question);
    if (wanted && TakeRecovery()) {
        DropRecovery();
        ShowLoadedRecord();
        KeepRecovery();
        return;
    }
    DropRecovery();
    if (wanted) Tell("The calculation cannot be recovered", "Recovery", Icon::Exclamation);
}

}  // namespace quillmetra
