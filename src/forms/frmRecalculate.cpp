// See frmRecalculate.h.
#include "forms/frmRecalculate.h"

#include <utility>

#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "forms/GridText.h"
#include "forms/RecordsRun.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"

namespace quillmetra {

namespace {

constexpr const char* FormName = "frmRecalculate";

}  // namespace

frmRecalculate::frmRecalculate() : SuiteForm(FormName) {
    SetCaption("Recalculate records");
    DefaultButton = &cmdRun;
    CancelButton = &cmdCancel;
    grdChanges.IsList = true;
    grdChanges.FixedColumns = 0;
    grdChanges.NumberColumns = {1, 2, 3};
    grdChanges.Describe(&lblChanges);
    grdChanges.ColourGroup = 4;
    for (Label* label : {&lblRecords, &lblChanges, &lblSummary}) label->ColourGroup = 1;
    chkFluids.ColourGroup = 1;
    barProgress.Describe(&lblRecords);
    barProgress.SetVisible(false);
    cmdRun.SetToolTip("Calculates each record as its form does; nothing is written");
    cmdSave.SetToolTip("Writes the records that have changed, all or none");
    cmdRun.Click = [this] { cmdRun_Click(); };
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    for (CommandButton* button : {&cmdCopy, &cmdSave}) button->SetEnabled(false);
}

void frmRecalculate::Load() { ApplyColours(*this); }

void frmRecalculate::TakeTags(std::vector<std::string> tags) {
    tags_ = std::move(tags);
    lblRecords.SetCaption(Counted(tags_.size(), "record"));
}

void frmRecalculate::ShowRunning(bool running) {
    barProgress.SetVisible(running);
    for (Control* control : std::initializer_list<Control*>{&chkFluids, &cmdRun})
        control->SetEnabled(!running);
    for (CommandButton* button : {&cmdCopy, &cmdSave}) button->SetEnabled(false);
}

void frmRecalculate::cmdRun_Click() {
    const bool isWhole = RunWhole(
        *this, "Calculating", [this](bool running) { ShowRunning(running); }, [this] { return Run(); });
    if (!isWhole) run_.reset();
    ShowList();
}

bool frmRecalculate::Run() {
    run_ = std::make_unique<Recalculation>(chkFluids.Checked());
    RecordView view(Suite.DatabaseFile);
    int done = 0;
    for (const std::string& tag : tags_) {
        barProgress.SetProgress(done++, static_cast<int>(tags_.size()));
        if (UserWantsToStop()) return false;
        if (view.Find(tag)) run_->Take(view.Head());
    }
    return true;
}

// What was told is as long as a sentence, so that it stands behind the numbers.
void frmRecalculate::ShowList() {
    std::vector<Grid::Cells> rows = {{"Tag", "Before", "Now", "Change, %", "Result"}};
    if (run_ != nullptr) {
        for (const ResultChange& each : run_->Changes())
            rows.push_back({each.Tag, each.Before, each.After, PercentText(each), each.Result});
        for (const auto* told : {&run_->Problems(), &run_->Remarks()}) {
            for (const RecordProblem& each : *told) rows.push_back({each.Tag, "", "", "", each.Text});
        }
        lblSummary.SetCaption(run_->Summary());
    } else {
        lblSummary.SetCaption("");
    }
    const bool any = rows.size() > 1;
    grdChanges.SetRows(std::move(rows), 5);
    cmdCopy.SetEnabled(any);
    cmdSave.SetEnabled(run_ != nullptr && run_->Changed() > 0);
}

void frmRecalculate::cmdCopy_Click() {
    CopyText(TabSeparated(grdChanges));
    SetStatus("The table is on the clipboard");
}

void frmRecalculate::cmdSave_Click() {
    const int changed = run_ == nullptr ? 0 : run_->Changed();
    if (changed == 0) return;
    const std::string count = Counted(static_cast<std::size_t>(changed), "record");
    const auto save = [this] { run_->Save(); };
    if (!SaveOnConsent(*this, "Save the new results of " + count + "?", save)) return;
    if (Saved) Saved();
    cmdSave.SetEnabled(false);
    SetStatus(count + " saved");
}

void frmRecalculate::cmdCancel_Click() { UnloadForm(Name()); }

bool RecalculateRecords(std::vector<std::string> tags) {
    bool saved = false;
    auto& form = dynamic_cast<frmRecalculate&>(LoadForm(FormName));
    form.TakeTags(std::move(tags));
    form.Saved = [&saved] { saved = true; };
    ShowForm(FormName, Modal::Yes);
    return saved;
}

}  // namespace quillmetra
