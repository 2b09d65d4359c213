// The command that tells what a case of a saved line comes to in each pipe of a family, and which one it
// needs.
#include <algorithm>
#include <ostream>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/frmSizes.h"
#include "forms/GridText.h"
#include "forms/RecordInHand.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/TextCase.h"
#include "records/RecordView.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

namespace {

std::string TextOf(const Arguments& arguments, std::size_t i) {
    return i < arguments.size() ? arguments[i].Text : "";
}

// Without a name the list stays as it is.
void PickNamed(ListBox& list, const char* what, const std::string& name) {
    if (name.empty()) return;
    int row = 0;
    while (row < list.RowCount() && !SameName(list.Row(row), name)) ++row;
    if (row == list.RowCount()) throw ScriptFailure{"there is no " + std::string(what) + " " + name};
    list.Select(row);
}

// The record's case in the working layer, told as the form tells it.
void TakeCase(const RecordHead& head, const std::string& caseNumber) {
    const HeldMessages held(Questions::Answered);
    if (!TakeRecord(head) || FillCalculationForm() == nullptr || OpenLine() == nullptr)
        throw ScriptFailure{head.Tag + " is no line" + (held.Texts().empty() ? "" : ": " + held.Texts()[0])};
    const int index = caseNumber.empty() ? OpenLine()->CaseToTry() : WholeNumber({caseNumber}) - 1;
    if (index < 0 || index >= CaseCount) throw ScriptFailure{"cases are numbered 1 to 3"};
    if (!OpenLine()->TakeCase(index, LineLossForm::Wanted::NoDiameter))
        throw ScriptFailure{head.Tag + ": " + (held.Texts().empty() ? "no data" : held.Texts()[0])};
}

// The dialog, unseen and gone at the end.
class UnseenSizes {
public:
    frmSizes& Form = dynamic_cast<frmSizes&>(LoadForm("frmSizes"));

    UnseenSizes() = default;
    ~UnseenSizes() { DiscardForm("frmSizes"); }
    UnseenSizes(const UnseenSizes&) = delete;
    UnseenSizes& operator=(const UnseenSizes&) = delete;
};

}  // namespace

void Sizes(ScriptPlayer& player, const Arguments& arguments) {
    RequireBrowser(player);
    Suite.DatabaseFile = DatabaseNamed(player, arguments[0].Text);
    RecordView view(Suite.DatabaseFile);
    const std::string tag = arguments[1].Text;
    if (!view.Find(tag)) throw ScriptFailure{"there is no record " + tag};
    const Setting batch(Suite.RunActive, words::Yes, "");
    const Setting zoneUntold(Suite.HideFlowStatus, words::Yes);
    const FormsOfRecord forms;
    TakeCase(view.Head(), TextOf(arguments, 2));

    const UnseenSizes dialog;
    frmSizes& sizes = dialog.Form;
    PickNamed(sizes.lstService, "service", TextOf(arguments, 3));
    PickNamed(sizes.lstFamily, "family", TextOf(arguments, 5));
    PickNamed(sizes.lstSchedule, "schedule", TextOf(arguments, 4));
    player.Out << TabSeparated(sizes.grdSizes) << sizes.Answer() << '\n';
    player.Differs = !sizes.HasAnswer();
}

}  // namespace quillmetra::script
