// See Printer.h.
#include "platform/Printer.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra {

RecordingPrinter Printer;

namespace {

constexpr double LineHeight = 240;  // twips, of a line of the page as characters
// From line to line, for each point of the letters: 1.2 of their size.
constexpr double LineAdvance = 24;  // twips

double GridWidth(const std::string& text) {
    return Paper::ColumnWidth * static_cast<double>(CharacterCount(text));
}

// A text of one line, whatever a file or a user has put in it.
std::string WithoutControls(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

// Appends a text at its column, counted from 1; where that is taken it starts one blank after the pen.
void Put(std::string& line, std::size_t column, const std::string& text) {
    if (text.empty()) return;
    const std::size_t pen = CharacterCount(line) + 1;
    line.append(column >= pen ? column - pen : 1, ' ');
    line += text;
}

// A print as characters, and the column of its first one.
struct CharacterRun {
    std::size_t Column;
    std::string Text;
};

CharacterRun RunOf(const PrintOp& op) {
    const auto first = static_cast<std::size_t>(std::max(0.0, op.X.value_or(0)) / Paper::ColumnWidth) + 1;
    CharacterRun run{first, {}};
    for (const PrintCell& cell : op.Cells) {
        const auto column = static_cast<std::size_t>(cell.Column);
        if (column == 0) {
            run.Text += cell.Text;
        } else if (run.Text.empty()) {
            run = {column, cell.Text};
        } else {
            Put(run.Text, column - std::min(column, run.Column) + 1, cell.Text);
        }
    }
    return run;
}

std::string LineOf(std::vector<CharacterRun> runs) {
    std::stable_sort(runs.begin(), runs.end(),
                     [](const CharacterRun& a, const CharacterRun& b) { return a.Column < b.Column; });
    std::string line;
    for (const CharacterRun& run : runs) Put(line, run.Column, run.Text);
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

}  // namespace

double Paper::TextWidth(const std::string& text, const FontChoice&) const { return GridWidth(text); }

void RecordingPrinter::Open(const PrintJob& job) {
    Abandon();
    Host* const host = CurrentHost();
    if (host == nullptr) throw failure::PrinterError();
    paper_ = host->OpenPaper(job);
    job_ = job;
    pageNumber_ = 1;
    printed_ = 0;
}

void RecordingPrinter::Close() {
    if (paper_ == nullptr) return;
    HandOver();
    paper_->Finish();
    Abandon();
}

void RecordingPrinter::Abandon() {
    paper_.reset();
    page_ = {};
    CurrentX.reset();
    CurrentY = 0;
}

void RecordingPrinter::Print(std::vector<PrintCell> cells, Anchor fit) {
    for (PrintCell& cell : cells) cell.Text = WithoutControls(std::move(cell.Text));
    PrintOp op{.X = CurrentX, .Y = CurrentY, .FontSize = Font.Size, .FontBold = Font.Bold, .Fit = fit};
    if (CurrentX) op.Width = TextWidth(cells.front().Text);
    op.Cells = std::move(cells);
    page_.Ops.push_back(std::move(op));
    CurrentX.reset();
    CurrentY += Font.Size * LineAdvance;
}

void RecordingPrinter::Line(double x, double y, double stepX, double stepY) {
    page_.Ops.push_back({.What = PrintOp::Kind::Line, .X = x, .Y = y, .StepX = stepX, .StepY = stepY});
    CurrentX = x + stepX;
    CurrentY = y + stepY;
}

double RecordingPrinter::TextWidth(const std::string& text) const {
    return paper_ == nullptr ? GridWidth(text) : paper_->TextWidth(text, Font);
}

void RecordingPrinter::StartCopy() {
    HandOver();
    page_.Font = Font;
    page_.Ops.push_back({.What = PrintOp::Kind::CopyStart});
}

void RecordingPrinter::EndPage(PrintOp::Kind mark) {
    if (page_.Ops.empty()) return;  // a document that has ended already
    page_.Ops.push_back({.What = mark});
    HandOver();
    ++pageNumber_;
}

void RecordingPrinter::HandOver() {
    const PrintedPage page = std::exchange(page_, {});
    CurrentX.reset();
    CurrentY = 0;
    if (page.Ops.empty() || paper_ == nullptr) return;
    const bool wanted = (job_.FromPage <= 0 || pageNumber_ >= job_.FromPage) &&
                        (job_.ToPage <= 0 || pageNumber_ <= job_.ToPage);
    if (!wanted) return;
    paper_->Print(page);
    ++printed_;
}

std::string PageAsText(const PrintedPage& page) {
    std::map<int, std::vector<CharacterRun>> lines;
    for (const PrintOp& op : page.Ops) {
        // Headings stand a little above their row and belong to it all the same.
        const int line = static_cast<int>(std::ceil(op.Y / LineHeight));
        if (op.What == PrintOp::Kind::Text && line >= 1) lines[line].push_back(RunOf(op));
    }
    std::string text;
    int next = 1;
    for (auto& [number, runs] : lines) {
        for (; next < number; ++next) text += '\n';
        text += LineOf(std::move(runs)) + '\n';
        ++next;
    }
    return text;
}

void TextPaper::Print(const PrintedPage& page) {
    if (!text_.empty()) text_ += '\f';
    text_ += PageAsText(page);
}

void TextPaper::Finish() { ReplaceFile(path_, text_); }

}  // namespace quillmetra
