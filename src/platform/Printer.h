// The recording printer: reports print on it as on a device with a pen, and it keeps what they print as
// pages of plain data. A host's paper takes each page when it is complete, so that a run of any length needs
// the memory of one page.
//
// Positions are in twips (1/1440 inch) from the upper left corner of the report's frame, sizes of letters in
// points. A host centres the frame on its sheet.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace quillmetra {

constexpr double TwipsPerInch = 1440;
constexpr double TwipsPerPoint = 20;

// How a text that is too wide for its place shrinks: towards its left end, its middle or its right end.
enum class Anchor { Left, Centre, Right };

// A text of a line. Column n starts n - 1 column widths right of the frame's left border; Column 0 stands
// for where the pen is.
struct PrintCell {
    int Column = 0;
    std::string Text;
};

struct PrintOp {
    enum class Kind { Text, Line, CopyStart, NewPage, EndDoc };

    Kind What = Kind::Text;
    std::optional<double> X;  // of the pen when the line began; none for the left border
    double Y = 0;             // the upper edge of the text
    // Of a text
    double FontSize = 0;
    bool FontBold = false;
    Anchor Fit = Anchor::Left;
    double Width = 0;  // of a text placed by X, as it was measured for its place
    std::vector<PrintCell> Cells;
    // Of a line, from X, Y
    double StepX = 0, StepY = 0;
};

struct PrintedPage {
    FontChoice Font;           // its size is that of plain text
    double FrameWidth = 9000;  // twips
    double FrameTop = 1000;    // the frame's upper border below that of the sheet
    std::vector<PrintOp> Ops;
};

// What takes printed pages. Each routine throws a RuntimeError when the device fails; destroyed without
// Finish, it leaves nothing behind that it can take back.
class Paper {
public:
    // A letter of the fixed grid that pages are planned on: 93 columns end within the frame.
    static constexpr double ColumnWidth = 96;  // twips

    virtual ~Paper() = default;
    virtual void Print(const PrintedPage& page) = 0;
    virtual void Finish() = 0;
    // In twips; the fixed grid knows no size of letters.
    virtual double TextWidth(const std::string& text, const FontChoice& font) const;
};

class RecordingPrinter {
public:
    // The letters in force. They outlive a print: a size that a print has limited stays limited.
    FontChoice Font{.Name = DefaultFont, .Size = 10};
    // The pen. A print without CurrentX starts at the left border.
    std::optional<double> CurrentX;
    double CurrentY = 0;

    static constexpr const char* DefaultFont = "DejaVu Sans";

    // Opens the host's paper for a job; a job that is still open is given up.
    void Open(const PrintJob& job);
    // Hands the last page over and closes the paper.
    void Close();
    // Gives the job up. Does nothing when there is none.
    void Abandon();
    bool IsOpen() const { return paper_ != nullptr; }
    // Of the job opened last: the sheets that went to its paper, and the pages that it has ended, which its
    // range may leave out.
    int PagesPrinted() const { return printed_; }
    int PagesEnded() const { return pageNumber_ - 1; }

    // Prints a line and puts the pen at the left border of the next.
    void Print(std::vector<PrintCell> cells, Anchor fit = Anchor::Left);
    void Print(const std::string& text = {}, Anchor fit = Anchor::Left) {
        Print(std::vector{PrintCell{0, text}}, fit);
    }
    void Line(double x, double y, double stepX, double stepY);
    double TextWidth(const std::string& text) const;

    // Each copy has a sheet of its own although nothing ends the page between two copies.
    void StartCopy();
    // End the page in hand. EndDoc leaves the paper open: further pages of a run may follow it.
    void NewPage() { EndPage(PrintOp::Kind::NewPage); }
    void EndDoc() { EndPage(PrintOp::Kind::EndDoc); }

private:
    void EndPage(PrintOp::Kind mark);
    void HandOver();

    std::unique_ptr<Paper> paper_;
    PrintJob job_;
    PrintedPage page_;
    int pageNumber_ = 1;  // of the job, the copies of a page counting as one
    int printed_ = 0;
};

// The one printer of the suite.
extern RecordingPrinter Printer;

// The page as characters: a line for each 240 twips, texts by their columns.
std::string PageAsText(const PrintedPage& page);

// Pages as characters, a form feed between two of them.
class TextPaper : public Paper {
public:
    // A machine's path in the suite's words. The file is written in one step by Finish.
    explicit TextPaper(std::string path) : path_(std::move(path)) {}

    void Print(const PrintedPage& page) override;
    void Finish() override;

private:
    std::string path_;
    std::string text_;
};

}  // namespace quillmetra
