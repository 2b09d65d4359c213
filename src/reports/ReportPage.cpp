// See ReportPage.h. The bodies are in ReportBodies.cpp.
#include "reports/ReportPage.h"

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Arithmetic.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

constexpr double Small = 0.9;
constexpr double Large = 1.2;
constexpr int TitleRaise = 150;  // twips
constexpr int EdgeGap = 200;     // twips, between the date and the frame's right border
constexpr int NoteLeft = 500;    // twips

void PrintCentred(const ReportPage& page, const std::string& text, int raise = 0) {
    Printer.CurrentX = (static_cast<double>(page.ReportWidth) - Printer.TextWidth(text)) / 2;
    Printer.CurrentY = page.RowTop(raise);
    Printer.Print(text, Anchor::Centre);
}

// A name under the heading: it is measured with two blanks on either side of its word and printed without
// the first two, so that it ends short of the border. A box that still shows its prompt prints nothing.
void PrintSignature(const ReportPage& page, const std::string& word, const std::string& name, int rowsLower) {
    if (name.empty() || name == word) return;
    Printer.CurrentX = static_cast<double>(page.ReportWidth) - Printer.TextWidth("  " + word + "  " + name);
    Printer.CurrentY = page.RowTop() + rowsLower * page.LineHeight;
    Printer.Print(word + "  " + name, Anchor::Right);
}

std::string FormText(const char* control) {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    return program == nullptr ? "" : ControlOf(program->Form, control).Text();
}

void PrintHeading(ReportPage& page, const ReportTexts& texts) {
    Printer.CurrentY = -page.LineHeight;
    Printer.CurrentX = EdgeGap;
    Printer.Print();

    page.Letters(Small, false);
    Printer.CurrentX = static_cast<double>(page.ReportWidth) - Printer.TextWidth(texts.Date) - EdgeGap;
    Printer.CurrentY = page.LineHeight;
    Printer.Print(texts.Date, Anchor::Right);
    page.ReportRow = 1;

    page.Letters(Large, true);
    PrintCentred(page, texts.Title, TitleRaise);
    page.ReportRow = 2;
    page.Letters(Large, false);
    PrintCentred(page, texts.SubTitle);
    page.ReportRow = 3;
    PrintCentred(page, "Project " + texts.ProjectNo + ".     " + texts.ProjectName);
    page.ReportRow = 4;
    Printer.Print();
    page.ReportRow = 5;
    page.Letters(Large, true);
    PrintCentred(page, Calc.ProgramTitle);
    page.ReportRow = 7;
    PrintCentred(page, "Tag number    " + Calc.Tag);

    page.Letters(1, false);
    PrintSignature(page, words::ByPrompt, FormText("txtBy"), 0);
    PrintSignature(page, words::ApprovedPrompt, FormText("txtApprov"), 1);
    Printer.Print();
    page.ReportRow += 2;
}

void PrintNotes(ReportPage& page, const ReportTexts& texts) {
    Printer.Print();
    page.ReportRow += 2;
    const auto printNote = [&page](const std::string& text) {
        Printer.CurrentX = NoteLeft;
        Printer.CurrentY = page.RowTop();
        Printer.Print(text);
        ++page.ReportRow;
    };
    printNote("Note");
    for (std::size_t i = 0; i < texts.Notes.size(); ++i) {
        Calc.HeadingText[8 + i] = Calc.NoteText[1 + i] = texts.Notes[i];
        printNote(texts.Notes[i]);
    }
}

// The frame, the rule under the heading and the rule over the notes.
void PrintFrame(const ReportPage& page) {
    constexpr int headingRows = 5;
    constexpr int noteRows = 4;
    const auto width = static_cast<double>(page.ReportWidth);
    const double height = page.RowTop();
    Printer.CurrentX = 0;
    Printer.CurrentY = 0;
    Printer.Line(0, 0, width, 0);
    Printer.Line(0, height, width, 0);
    Printer.Line(0, 0, 0, height);
    Printer.Line(width, 0, 0, height);
    Printer.Line(0, headingRows * page.LineHeight, width, 0);
    Printer.Line(0, height - noteRows * page.LineHeight, width, 0);
}

// The name of a component: its table row up to the first comma.
std::string ComponentName(const std::string& row) {
    return CharacterCount(row) > 3 ? std::string(Trim(std::string_view(row).substr(0, row.find(',')))) : "";
}

}  // namespace

void ReportPage::Letters(double factor, bool bold) const {
    Printer.Font.Size = BaseFontSize * factor;
    Printer.Font.Bold = bold;
}

void PrintReportPage(const ReportTexts& texts, double baseFontSize) {
    ReportPage page{.BaseFontSize = baseFontSize};
    page.Letters(1, false);
    Printer.StartCopy();
    PrintHeading(page, texts);
    PrintReportBody(page);
    page.Letters(1, false);  // whatever a failed body has left
    if (page.DocumentEnded) return;
    PrintNotes(page, texts);
    PrintFrame(page);
}

void MixturePrint(ReportPage& page) {
    constexpr std::size_t longest = 100;  // characters
    std::string line;
    const auto printLine = [&] {
        Printer.CurrentY = page.RowTop();
        Printer.Print({{10, line}});
        ++page.ReportRow;
    };
    try {
        for (std::size_t i = 0; i < Calc.FluidData.size(); ++i) {
            const std::string name = ComponentName(Calc.FluidData[i]);
            const double percent = CheckFinite(Calc.FluidPercent[i]);
            if (percent <= 0 || CharacterCount(name) <= 3) continue;
            const std::string piece = TrimmedStr(percent) + "% " + name + ",  ";
            if (CharacterCount(line + piece) > longest) {
                printLine();
                line.clear();
            }
            line += piece;
        }
        if (CharacterCount(line) > 3 && CharacterCount(line) < longest) printLine();
    } catch (const RuntimeError&) {
        page.DocumentEnded = true;
        Printer.EndDoc();
    }
}

}  // namespace quillmetra
