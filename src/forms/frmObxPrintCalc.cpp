// See frmObxPrintCalc.h.
#include "forms/frmObxPrintCalc.h"

#include <algorithm>
#include <span>
#include <utility>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/ColourSchemes.h"
#include "forms/PanelReturn.h"
#include "forms/PrintTargets.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/Printer.h"
#include "records/SaveRecord.h"
#include "records/TextLengths.h"

namespace quillmetra {

namespace {

using Headings = decltype(Calc.HeadingText);
constexpr std::size_t FirstOfRecord = 6;  // manufacturer, model and notes; the lines before are of the page

constexpr const char* ProblemOfPrinting = "Printing Problem";
constexpr const char* DatePrompt = "Date";
constexpr double SmallestFont = 8;  // points: below it a page is hard to read,
constexpr double LargestFont = 12;  // above it lines run into each other

bool IsBatch() { return IsYes(Suite.BatchPrinting); }

void TellProblem(const RuntimeError& error) {
    Tell(error.Description + " (Error " + std::to_string(error.Number) + ")", ProblemOfPrinting, Icon::Stop);
}

}  // namespace

frmObxPrintCalc::frmObxPrintCalc() : SuiteForm("frmObxPrintCalc") {
    SetCaption("Calculation printout");
    Fixed = true;
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    for (const auto& [box, label] :
         std::initializer_list<std::pair<TextBox*, Label*>>{{&txtTitle, &lblTitle},
                                                            {&txtSubTitle, &lblSubTitle},
                                                            {&txtProjectName, &lblProjectName},
                                                            {&txtProjectNo, &lblProjectNo},
                                                            {&txtManufacturer, &lblManufacturer},
                                                            {&txtModel, &lblModel}}) {
        box->Describe(label);
        box->MaxLength = longest::Heading;
    }
    txtManufacturer.MaxLength = txtModel.MaxLength = longest::Maker;
    txtComments.Each([this](TextBox& box, int i) {
        box.Describe(&lblComments, nullptr, std::to_string(i + 1));
        box.MaxLength = longest::Note;
    });
    cmdDate.Describe(&lblDate);
    cmdDate.SetToolTip("Takes today's date; Escape puts the former one back");
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind == ControlKind::TextBox) control->ColourGroup = 2;
        if (kind == ControlKind::Label || kind == ControlKind::Frame) control->ColourGroup = 1;
    }

    cmdDate.Click = [this] { cmdDate_Click(); };
    cmdDate.KeyPress = [this](Key& key) {
        if (key.Name != keys::Escape) return;
        ShowDate(Calc.CaseText[text::CalcDate]);
        key.Handled = true;
    };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdPreview.Click = [this] { mnuPreview_Click(); };
    cmdPdf.Click = [this] { mnuPdf_Click(); };
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdSave.SetToolTip("Keeps the headings as the default of the office");
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    mnuPreview.Click = [this] { mnuPreview_Click(); };
    mnuPageSetup.Click = [this] { mnuPageSetup_Click(); };
    mnuPdf.Click = [this] { mnuPdf_Click(); };
    mnuReload.Click = [this] { mnuReload_Click(); };
    mnuPrinterFonts.Click = [this] { mnuPrinterFonts_Click(); };
}

void frmObxPrintCalc::Load() {
    if (!IsBatch()) {
        ApplyColours(*this);
        return;
    }
    std::copy(Suite.ReportHeadings.begin(), Suite.ReportHeadings.end(), Calc.HeadingText.begin());
    ShowHeadings(Calc.HeadingText, 10);
    cmdOK_Click();
}

void frmObxPrintCalc::FillFromRecord() {
    ShowHeadings(Calc.HeadingText, 10);
    if (!Calc.CaseUnitsText[printed::Date].empty()) ShowDate(Calc.CaseUnitsText[printed::Date]);
    txtComments.Each([](TextBox& box, int i) {
        if (box.Text().empty()) box.SetText(Calc.NoteText[static_cast<std::size_t>(i) + 1]);
    });
}

void frmObxPrintCalc::ShowHeadings(const Headings& lines, std::size_t last) {
    ShowDate(lines[1]);
    std::size_t line = 2;
    for (TextBox* box : HeadingBoxes()) box->SetText(lines[line++]);
    txtComments.Each([&](TextBox& box, int) {
        if (line <= last) box.SetText(lines[line++]);
    });
}

// The calculation form shows two of the notes.
void frmObxPrintCalc::StoreHeadings() {
    const Headings before = Calc.HeadingText;
    Calc.HeadingText[heading::PrintDate] = ShownDate();
    std::size_t line = 2;
    for (const TextBox* box : HeadingBoxes()) Calc.HeadingText[line++] = box->Text();
    txtComments.Each([&](const TextBox& box, int i) {
        Calc.HeadingText[line++] = Calc.NoteText[static_cast<std::size_t>(i) + 1] = box.Text();
    });
    if (IsBatch()) return;
    if (!std::equal(before.begin() + FirstOfRecord, before.end(), Calc.HeadingText.begin() + FirstOfRecord)) {
        Calc.ChangedFlag = words::No;
    }
    if (CalculationForm* form = OpenCalculation()) form->ShowPrintedTexts();
}

void frmObxPrintCalc::cmdDate_Click() { ShowDate(Today()); }

// Without a date the button says what it is for.
void frmObxPrintCalc::ShowDate(const std::string& date) {
    cmdDate.SetCaption(date.empty() ? DatePrompt : date);
}

std::string frmObxPrintCalc::ShownDate() const {
    return cmdDate.Caption() == DatePrompt ? "" : cmdDate.Caption();
}

void frmObxPrintCalc::cmdSave_Click() {
    StoreHeadings();
    for (Control* control : Controls()) {
        if (control->Kind() == ControlKind::TextBox) {
            control->SetColours(control->BackColour(), SlotColour(slot::InputText));
        }
    }
    try {
        SaveHeadings(Calc.HeadingText);
    } catch (const RuntimeError& error) {
        TellProblem(error);
    }
}

void frmObxPrintCalc::mnuReload_Click() {
    Headings lines = Calc.HeadingText;
    ReadHeadingLines(std::span(lines).first<8>());
    ShowHeadings(lines, 7);
}

void frmObxPrintCalc::mnuPrinterFonts_Click() {
    if (const auto font = AskFont(Printer.Font)) Printer.Font = *font;
}

void frmObxPrintCalc::mnuPageSetup_Click() { AskPageSetup(); }

void frmObxPrintCalc::cmdCancel_Click() {
    const bool stored = IsYes(Calc.BrowserOpen);
    if (!stored && Calc.CaseUnitsText[printed::Date].empty())
        Calc.CaseUnitsText[printed::Date] = Calc.HeadingText[heading::PrintDate];
    UnloadForm(Name());
}

void frmObxPrintCalc::cmdOK_Click() {
    StoreHeadings();
    if (IsBatch()) {
        // The run has opened the paper, and it tells of a printer that fails.
        PrintCopies(Suite.PrintCopies);
        return;
    }
    const auto job = AskPages(ProblemOfPrinting);
    if (job && Print(*job, Suite.PrintCopies)) UnloadForm(Name());
}

void frmObxPrintCalc::mnuPreview_Click() {
    StoreHeadings();
    Print({.To = PrintJob::Target::Preview}, 1);
}

void frmObxPrintCalc::mnuPdf_Click() {
    const auto job = AskPdf(Calc.Tag);
    if (!job) return;
    StoreHeadings();
    SetStatus(Print(*job, 1) ? PrintedPages(*job)
                             : "");  // a page that failed leaves no words of one before it
}

// Prints the record in hand on a paper of its own; false after a failure, which is told.
bool frmObxPrintCalc::Print(PrintJob job, int copies) {
    job.Name = Calc.ProgramTitle + " " + Calc.Tag;
    const BusyPointer busy;
    try {
        Printer.Open(job);
        PrintCopies(copies);
        if (!HeldPages(job, ProblemOfPrinting)) {
            Printer.Abandon();
            return false;
        }
        Printer.Close();
        return true;
    } catch (const RuntimeError& error) {
        Printer.Abandon();
        TellProblem(error);
        return false;
    }
}

// A calculation that is of no database yet takes the date of its print.
void frmObxPrintCalc::DateRecord() {
    if (std::exchange(Calc.CaseText[text::CalcDate], Calc.HeadingText[heading::PrintDate]) ==
        Calc.HeadingText[heading::PrintDate])
        return;
    Calc.ChangedFlag = words::No;
    if (CalculationForm* form = OpenCalculation()) form->ShowPrintedTexts();
}

void frmObxPrintCalc::PrintCopies(int copies) {
    Printer.Font.Size = std::clamp(Printer.Font.Size, SmallestFont, LargestFont);
    const double base = Printer.Font.Size;
    const ReportTexts texts{.Date = ShownDate(),
                            .Title = txtTitle.Text(),
                            .SubTitle = txtSubTitle.Text(),
                            .ProjectName = txtProjectName.Text(),
                            .ProjectNo = txtProjectNo.Text(),
                            .Notes = {txtComments(0).Text(), txtComments(1).Text(), txtComments(2).Text()}};
    try {
        for (int copy = 1; copy <= copies; ++copy) PrintReportPage(texts, base);
        if (IsBatch()) {
            Printer.NewPage();
        } else {
            Printer.EndDoc();
        }
    } catch (const RuntimeError&) {
        Printer.Font.Size = base;
        throw;
    }
    if (!IsYes(Calc.BrowserOpen)) DateRecord();
}

}  // namespace quillmetra
