// See PageLayout.h.
#include "platform/PageLayout.h"

#include <algorithm>

namespace quillmetra {

namespace {

constexpr double LineHeight = 240;  // twips
constexpr double Margin = 100;      // within the frame's borders, twips
constexpr double Gap = 90;          // between two texts of a line, twips
constexpr double Narrowest = 0.75;  // of the width of letters, before they get smaller
// The baseline within a line, at most: plain letters of 12 points keep within their row, and a heading has
// room below it.
constexpr double Baseline = 0.77;
constexpr double HeadingBaseline = 0.85;
constexpr double SideShare = 1.0 / 3;  // of the frame's width, for a text at its right border

// A text before it is fitted, with the room that it may take.
struct Run {
    PlacedText Text;
    double Top;  // twips
    Anchor Fit;
    double From, To;  // the room
    double At;        // the left end, the middle or the right end, by the anchor
};

class Layouter {
public:
    Layouter(const PrintedPage& page, const TextMetric& metric)
        : page_(page), metric_(metric), left_(Margin), right_(page.FrameWidth - Margin) {}

    PageLayout Make() {
        PageLayout layout;
        for (const PrintOp& op : page_.Ops) {
            if (op.What == PrintOp::Kind::Text) AddRuns(op);
            if (op.What == PrintOp::Kind::Line) {
                const double x = op.X.value_or(0);
                layout.Lines.push_back({x, op.Y, x + op.StepX, op.Y + op.StepY});
            }
        }
        LowerHeadings();
        KeepCentredTextsApart();
        for (Run& run : runs_) layout.Texts.push_back(Fitted(run));
        return layout;
    }

private:
    // The column of the font in force: a narrow font's average letter, at most the grid on which pages are
    // planned, and wider under larger letters.
    double ColumnWidth(double size) const {
        const double base = page_.Font.Size;
        return std::min(metric_.AverageWidth(page_.Font), Paper::ColumnWidth) * size / base;
    }

    void AddRuns(const PrintOp& op) {
        FontChoice font = page_.Font;
        font.Size = op.FontSize;
        font.Bold = op.FontBold;
        double pen = op.X.value_or(0);
        for (std::size_t i = 0; i < op.Cells.size(); ++i) {
            const PrintCell& cell = op.Cells[i];
            const double x = cell.Column > 0 ? (cell.Column - 1) * ColumnWidth(op.FontSize) : pen;
            const double width = metric_.Width(cell.Text, font);
            pen = x + width;
            if (cell.Text.find_first_not_of(' ') == std::string::npos) continue;
            Run run{.Text = {.Font = font, .Text = cell.Text, .Width = width},
                    .Top = op.Y,
                    .Fit = op.Fit,
                    .From = left_,
                    .To = right_,
                    .At = x};
            if (op.Fit == Anchor::Centre) run.At = x + op.Width / 2;
            if (op.Fit == Anchor::Right) {
                run.At = std::min(x + op.Width, right_);
                run.From = run.At - page_.FrameWidth * SideShare;
            }
            const bool hasNext = i + 1 < op.Cells.size() && op.Cells[i + 1].Column > 0;
            if (hasNext) run.To = (op.Cells[i + 1].Column - 1) * ColumnWidth(op.FontSize) - Gap;
            runs_.push_back(std::move(run));
        }
    }

    double Height(const Run& run) const { return LineHeight * run.Text.Font.Size / page_.Font.Size; }

    double Lowest(const Run& run) const {
        return run.Text.Font.Size > page_.Font.Size ? HeadingBaseline : Baseline;
    }

    // A heading may be planned less than half a line under a text: it moves down to that text's end.
    void LowerHeadings() {
        for (std::size_t i = 1; i < runs_.size(); ++i) {
            const Run& above = runs_[i - 1];
            Run& run = runs_[i];
            const double distance = run.Top - above.Top;
            const bool heading = run.Text.Font.Size > above.Text.Font.Size;
            if (heading && distance > 0 && distance < LineHeight / 2) run.Top = above.Top + Height(above);
        }
    }

    // What is centred keeps its middle and ends before what stands at the right border of the same line.
    void KeepCentredTextsApart() {
        for (Run& run : runs_) {
            if (run.Fit != Anchor::Centre) continue;
            for (const Run& side : runs_) {
                if (side.Fit != Anchor::Right) continue;
                const bool beside =
                    run.Top < side.Top + Height(side) && side.Top < run.Top + Height(run) * Baseline;
                const double sideLeft = std::max(side.From, side.At - side.Text.Width);
                if (beside) run.To = std::min(run.To, sideLeft - Gap);
            }
            const double half = std::min(run.At - run.From, run.To - run.At);
            run.From = run.At - half;
            run.To = run.At + half;
        }
    }

    PlacedText Fitted(const Run& run) const {
        PlacedText text = run.Text;
        const double from = run.Fit == Anchor::Left ? std::max(run.At, 0.0) : run.From;
        const double to = run.Fit == Anchor::Right ? run.At : run.To;
        const double room = std::max(to - from, 1.0);
        // The size of the letters changes, their line does not.
        text.Baseline = run.Top + std::min(metric_.Ascent(text.Font), Lowest(run) * Height(run));
        if (text.Width > room) {
            const double share = room / text.Width;
            text.Stretch = std::max(share, Narrowest);
            text.Font.Size *= share / text.Stretch;
            text.Width = room;
        }
        switch (run.Fit) {
            case Anchor::Left: text.X = from; break;
            case Anchor::Centre: text.X = run.At - text.Width / 2; break;
            case Anchor::Right: text.X = run.At - text.Width; break;
        }
        return text;
    }

    const PrintedPage& page_;
    const TextMetric& metric_;
    double left_, right_;
    std::vector<Run> runs_;
};

}  // namespace

PageLayout LayOut(const PrintedPage& page, const TextMetric& metric) { return Layouter(page, metric).Make(); }

}  // namespace quillmetra
