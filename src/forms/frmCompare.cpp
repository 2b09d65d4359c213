// See frmCompare.h.
#include "forms/frmCompare.h"

#include <utility>

#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "forms/PrintTargets.h"
#include "forms/RecordInHand.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Plot.h"
#include "platform/Printer.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "records/StoredRows.h"
#include "reports/ComparisonPage.h"

namespace quillmetra {

namespace {

// What was in hand is in hand again afterwards, and the form that gave the names is gone.
class RecordsInTurn {
public:
    RecordsInTurn() = default;
    ~RecordsInTurn() { Calc = former_; }
    RecordsInTurn(const RecordsInTurn&) = delete;
    RecordsInTurn& operator=(const RecordsInTurn&) = delete;

private:
    FormsOfRecord forms_;
    const CalcRecord former_ = Calc;
};

// A record that was read in part would differ in what it lacks.
void TakeWhole(RecordView& view, const std::string& tag) {
    const HeldMessages held;
    const bool taken = view.Find(tag) && TakeRecord(view.Head());
    if (!held.Texts().empty()) throw RuntimeError(failure::ValueRefused, tag + ": " + held.Texts().front());
    if (!taken) throw RuntimeError(failure::ValueRefused, tag + ": Not found");
}

Comparison ComparisonOf(const std::string& firstTag, const std::string& secondTag) {
    RecordView view(Suite.DatabaseFile);
    const RecordsInTurn records;
    TakeWhole(view, secondTag);
    const CalcRecord second = Calc;
    TakeWhole(view, firstTag);
    const CalcRecord first = Calc;
    return CompareRecords(first, second, LoadForm(FillCalculationForm()));
}

}  // namespace

frmCompare::frmCompare() : SuiteForm("frmCompare") {
    SetCaption("Compare");
    CancelButton = &cmdCancel;
    grdRows.IsList = true;
    grdRows.FixedColumns = 0;
    grdRows.ColourGroup = 4;
    grdRows.Describe(&lblRecords);
    lblRecords.ColourGroup = chkOnly.ColourGroup = 1;
    cmdExchange.SetToolTip("The second record first, and both in its units");
    cmdCopy.SetToolTip("Copies the table, apart by tabs, for a spreadsheet (Ctrl+C)");
    chkOnly.Click = [this] { chkOnly_Click(); };
    grdRows.KeyPress = [this](Key& key) {
        key.Handled = key.Name == Plot::CopyKey;
        if (key.Handled) cmdCopy_Click();
    };
    cmdExchange.Click = [this] { cmdExchange_Click(); };
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdPreview.Click = [this] { Print({.To = PrintJob::Target::Preview}, 1); };
    cmdPdf.Click = [this] { cmdPdf_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmCompare::Load() {
    ApplyColours(*this);
    chkOnly_Click();
}

bool frmCompare::Take(const std::string& first, const std::string& second) {
    try {
        const BusyPointer busy;
        Show(ComparisonOf(first, second));
        return true;
    } catch (const RuntimeError& error) {
        Tell(error.Description, Caption(), Icon::Stop);
        return false;
    }
}

bool frmCompare::TakeStored(const Form& form) {
    const CalcRecord here = Calc;
    CalcRecord stored;
    try {
        const KeptRows rowsOfHere;
        RecordView view(Suite.DatabaseFile);
        TakeWhole(view, here.Tag);
        stored = std::exchange(Calc, here);
    } catch (const RuntimeError& error) {
        Calc = here;
        Tell(error.Description, Caption(), Icon::Stop);
        return false;
    }
    TakeChangeAsKnown(*OpenRecords(Suite.DatabaseFile));
    Comparison comparison = CompareRecords(here, stored, form);
    comparison.FirstTag += " here";
    comparison.SecondTag += " as it is stored";
    Show(std::move(comparison));
    cmdExchange.SetEnabled(false);
    return true;
}

void frmCompare::Show(Comparison comparison) {
    comparison_ = std::move(comparison);
    lblRecords.SetCaption(Names() + ", in the units of " + comparison_.FirstTag + ": " +
                          std::to_string(comparison_.Differing()) + " of " +
                          std::to_string(comparison_.Rows.size()) + " rows differ");
    SetStatus(comparison_.OfOneProgram
                  ? ""
                  : "Calculations of two kinds: only the rows that both have are compared");
    chkOnly_Click();
}

void frmCompare::chkOnly_Click() {
    auto cells = ComparisonCells(comparison_, chkOnly.Checked());
    const auto columns = static_cast<int>(cells.front().size());
    grdRows.SetRows(std::move(cells), columns);
}

void frmCompare::cmdExchange_Click() {
    Take(std::string(comparison_.SecondTag), std::string(comparison_.FirstTag));
}

void frmCompare::cmdCopy_Click() {
    CopyText(ComparisonTable(comparison_, chkOnly.Checked()));
    SetStatus("Copied");
}

void frmCompare::cmdPrint_Click() {
    if (const auto job = AskPages(Caption())) Print(*job, Suite.PrintCopies);
}

void frmCompare::cmdPdf_Click() {
    if (const auto job = AskPdf(Names()); job && Print(*job, 1)) SetStatus(PrintedPages(*job));
}

bool frmCompare::Print(PrintJob job, int copies) {
    constexpr double fontSize = 9;  // points: eight columns in the width of a page
    job.Name = "Comparison of " + Names();
    SetStatus("");
    const BusyPointer busy;
    const FontChoice font = Printer.Font;
    bool printed = false;
    try {
        Printer.Open(job);
        Printer.Font.Size = fontSize;
        for (int copy = 1; copy <= copies; ++copy) PrintComparison(comparison_, chkOnly.Checked(), fontSize);
        printed = HeldPages(job, Caption());
        if (printed) Printer.Close();
    } catch (const RuntimeError& error) {
        printed = false;
        Tell(error.Description + " (Error " + std::to_string(error.Number) + ")", "Printing Problem",
             Icon::Stop);
    }
    Printer.Abandon();  // what was not closed
    Printer.Font = font;
    return printed;
}

void frmCompare::cmdCancel_Click() { UnloadForm(Name()); }

void ShowComparison(const Form& form) {
    UnloadForm("frmCompare");
    if (static_cast<frmCompare&>(LoadForm("frmCompare")).TakeStored(form))
        ShowForm("frmCompare", Modal::Yes);
    else
        UnloadForm("frmCompare");
}

}  // namespace quillmetra
