// See frmPrintControl.h: the run over the records that are picked. It goes on past a record that cannot be
// read and tells of those at its end; only a printer that fails, or the user, stops it.
#include <algorithm>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/frmPrintControl.h"
#include "forms/PrintTargets.h"
#include "forms/RecordInHand.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Printer.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr const char* PrintoutForm = "frmObxPrintCalc";

std::string CountOfRecords(int count) {
    return std::to_string(count) + (count == 1 ? " record" : " records");
}

}  // namespace

void frmPrintControl::cmdProceed_Click() {
    if (!AnyPicked()) return;
    const Setting run(Suite.RunActive, words::Yes, "");
    if (const auto job = AskPages(Caption())) Run(*job);
}

void frmPrintControl::cmdPdf_Click() {
    if (!AnyPicked()) return;
    const Setting run(Suite.RunActive, words::Yes, "");
    if (const auto job = AskPdf(NameForPdf())) Run(*job);
}

int frmPrintControl::CountPicked() const {
    int picked = 0;
    for (int row = 0; row < lstTags.RowCount(); ++row) picked += lstTags.IsPicked(row) ? 1 : 0;
    return picked;
}

// The tag of one record, else the name of the database.
std::string frmPrintControl::NameForPdf() const {
    const std::string database(FileNameOf(Suite.DatabaseFile));
    if (CountPicked() != 1) return database.substr(0, database.rfind('.'));
    int row = 0;
    while (!lstTags.IsPicked(row)) ++row;
    return lstTags.Row(row);
}

bool frmPrintControl::AnyPicked() {
    if (CountPicked() > 0) return true;
    Tell("Select the records to print first", Caption(), Icon::Exclamation);
    return false;
}

void frmPrintControl::ShowRunning(bool running) {
    barProgress.SetVisible(running);
    for (Control* control :
         std::initializer_list<Control*>{&fraTags, &fraRecord, &fraHeadings, &cmdProceed, &cmdPdf}) {
        control->SetEnabled(!running);
    }
}

void frmPrintControl::Run(PrintJob job) {
    job.Name = "Process Data Calculation printouts";
    Suite.UseDefaultHeadings = chkUse.Checked() ? words::Yes : "";
    if (chkUse.Checked()) cmdTitleDefault_Click();
    chkPrintDate_Click();
    Suite.PrintDateOverride = chkPrintDate.Checked() ? txtPrintoutDate.Text() : "";
    // The boxes are emptied for each record: what the run prints is taken here.
    runDate_ = Suite.PrintDateOverride;
    runTitles_ = TitleTexts();
    unprinted_.clear();

    bool complete = false;
    ShowRunning(true);
    SetStatus("Printing; Escape or Cancel stops it");
    try {
        Printer.Open(job);
        complete = PrintPicked();
        if (complete) Printer.EndDoc();
        SetStatus(complete ? "" : "Printing was stopped");
        complete = complete && HeldPages(job, Caption());
        if (complete) Printer.Close();
    } catch (const RuntimeError& error) {
        complete = false;
        Tell(error.Description + " (Error " + std::to_string(error.Number) + ")", "Printing Problem",
             Icon::Stop);
    }
    Printer.Abandon();  // what was not closed
    ShowRunning(false);
    ShowTitles(runTitles_);
    TellUnprinted();
    if (complete)
        Leave(CountOfRecords(CountPicked() - static_cast<int>(unprinted_.size())) + ", " + PrintedPages(job));
}

bool frmPrintControl::PrintPicked() {
    const int total = CountPicked();
    int done = 0;
    for (int row = 0; row < lstTags.RowCount(); ++row) {
        if (!lstTags.IsPicked(row)) continue;
        barProgress.SetProgress(done, total);
        if (UserWantsToStop()) return false;
        Calc.MessageText = words::Bypass;
        lstTags.Select(row);
        Calc.MessageText.clear();
        PrintOne(lstTags.Row(row));
        ++done;
    }
    return true;
}

// What is told meanwhile would stop the run at a box: it is kept for the end.
void frmPrintControl::PrintOne(const std::string& tag) {
    const Setting batch(Suite.BatchPrinting, words::Yes, "");
    const FormsOfRecord forms;
    const HeldMessages held;
    std::string failure;
    bool read = false;
    try {
        Calc.Tag = tag;
        read = PrintRecords();
    } catch (const RuntimeError& error) {
        failure = error.Description;
    }
    // A record that was read in part would make a page that looks whole.
    if (read && held.Texts().empty()) LoadForm(PrintoutForm);
    if (failure.empty() && !held.Texts().empty()) failure = held.Texts().front();
    if (!failure.empty()) unprinted_.push_back(tag + ": " + failure);
}

bool frmPrintControl::PrintRecords() {
    if (Calc.Tag.empty()) {
        Tell("Record must have a tag number", "Display Record", Icon::Stop);
        return false;
    }
    const std::string tag = Calc.Tag;
    ClearPrintData();
    if (!view_->Find(tag)) {
        Tell("Not found", Suite.DatabaseFile);
        return false;
    }
    ShowHead();
    if (!TakeRecord(view_->Head()) || FillCalculationForm() == nullptr) return false;
    auto& headings = Suite.ReportHeadings;
    headings[1] = runDate_.empty() ? Calc.CaseText[text::CalcDate] : runDate_;
    std::ranges::copy(runTitles_, headings.begin() + 2);
    std::copy_n(Calc.HeadingText.begin() + 6, 5, headings.begin() + 6);
    return true;
}

void frmPrintControl::TellUnprinted() {
    constexpr std::size_t most = 20;  // that a box on the screen has room for
    if (unprinted_.empty()) return;
    std::string text = "Not printed, or not whole:\n";
    for (std::size_t i = 0; i < std::min(most, unprinted_.size()); ++i) text += "\n" + unprinted_[i];
    if (unprinted_.size() > most) text += "\nand " + std::to_string(unprinted_.size() - most) + " more";
    Tell(text, Caption(), Icon::Exclamation);
}

}  // namespace quillmetra
