// See ComparisonPage.h.
#include "reports/ComparisonPage.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/Clock.h"
#include "reports/ReportPage.h"

namespace quillmetra {

namespace {

using Cells = std::vector<std::vector<std::string>>;

constexpr std::array Columns = {2, 4, 28, 37, 53, 69, 77, 87};  // mark, row, case, first, second, unit, ...
constexpr std::size_t RowsOfAPage = 46;
constexpr int HeadingRows = 4;
constexpr double Gap = 60;  // twips, of a rule over the letters below it

void PrintLine(ReportPage& page, std::span<const std::string> cells) {
    std::vector<PrintCell> line;
    for (std::size_t i = 0; i < cells.size(); ++i) line.push_back({Columns[i], cells[i]});
    Printer.CurrentY = page.RowTop();
    Printer.Print(line);
    ++page.ReportRow;
}

void PrintHeading(ReportPage& page, const Comparison& comparison, const std::string& number) {
    const auto line = [&page](const std::string& left, const std::string& right) {
        Printer.CurrentY = page.RowTop(-page.LineHeight / 2);
        Printer.Print({{2, left}, {77, right}});
        ++page.ReportRow;
    };
    page.Letters(1, true);
    line(comparison.Title, Today());
    page.Letters(1, false);
    line(comparison.FirstTag + " and " + comparison.SecondTag + ", in the units of " + comparison.FirstTag,
         number);
    page.ReportRow = HeadingRows;
}

// The frame, the rule under the heading and the one under the heads of the columns.
void PrintFrame(const ReportPage& page) {
    const auto width = static_cast<double>(page.ReportWidth);
    const double height = page.RowTop(-page.LineHeight / 2);
    const double heads = HeadingRows * page.LineHeight;
    for (const double y : {0.0, heads - Gap, heads + page.LineHeight - Gap / 2, height})
        Printer.Line(0, y, width, 0);
    for (const double x : {0.0, width}) Printer.Line(x, 0, 0, height);
}

void PrintPage(const Comparison& comparison, const Cells& cells, std::size_t from, const std::string& number,
               double baseFontSize) {
    ReportPage page{.BaseFontSize = baseFontSize};
    page.Letters(1, false);
    Printer.StartCopy();
    PrintHeading(page, comparison, number);
    page.Letters(1, true);
    PrintLine(page, cells.front());
    for (std::size_t i = from; i < std::min(from + RowsOfAPage, cells.size()); ++i) {
        page.Letters(1, !cells[i].front().empty());  // a difference is bold as well
        PrintLine(page, cells[i]);
    }
    PrintFrame(page);
}

}  // namespace

void PrintComparison(const Comparison& comparison, bool onlyDiffering, double baseFontSize) {
    const Cells cells = ComparisonCells(comparison, onlyDiffering);
    const std::size_t pages = std::max<std::size_t>(1, (cells.size() - 1 + RowsOfAPage - 1) / RowsOfAPage);
    for (std::size_t i = 0; i < pages; ++i) {
        const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages);
        PrintPage(comparison, cells, 1 + i * RowsOfAPage, number, baseFontSize);
        if (i + 1 < pages) Printer.NewPage();
    }
    Printer.EndDoc();
}

}  // namespace quillmetra
