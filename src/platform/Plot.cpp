// See Plot.h.
#include "platform/Plot.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {

// Four figures, or all of the whole part.
std::string Figure(double value) {
    if (std::fabs(value) >= 1000) return TrimmedStr(std::round(value));
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 4).ptr;
    return TrimmedStr(Val(std::string_view(text, static_cast<std::size_t>(end - text))));
}

std::string WithUnit(const std::string& figures, const PlotAxis& axis) {
    return axis.Unit.empty() ? figures : figures + " " + axis.Unit;
}

std::string FromTo(double from, double to, const PlotAxis& axis) {
    const std::string first = Figure(from), last = Figure(to);
    return WithUnit(first == last ? first : first + " to " + last, axis);
}

PlotSeries FinitePointsOf(PlotSeries series) {
    const std::size_t points = std::min(series.X.size(), series.Y.size());
    std::size_t kept = 0;
    for (std::size_t i = 0; i < points; ++i) {
        if (!std::isfinite(series.X[i]) || !std::isfinite(series.Y[i])) continue;
        series.X[kept] = series.X[i];
        series.Y[kept++] = series.Y[i];
    }
    series.X.resize(kept);
    series.Y.resize(kept);
    return series;
}

std::string BottomInWords(const PlotDrawing& drawing) {
    double least = HUGE_VAL, most = -HUGE_VAL;
    for (const PlotSeries& series : drawing.Series) {
        const auto [low, high] = std::minmax_element(series.X.begin(), series.X.end());
        least = std::min(least, *low);
        most = std::max(most, *high);
    }
    return least == 0 ? WithUnit(Figure(most), drawing.Bottom) : FromTo(least, most, drawing.Bottom);
}

// Enough digits to draw the curve anew.
std::string TableFigure(double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 8).ptr;
    return {text, end};
}

std::string Heading(const std::string& name, const PlotAxis& axis) {
    return axis.Unit.empty() ? name : name + ", " + axis.Unit;
}

// A column of the table: its heading and its figures.
struct Figures {
    std::string Head;
    const std::vector<double>* Values;
};

std::vector<Figures> ColumnsOf(const PlotDrawing& drawing) {
    std::vector<Figures> columns;
    const std::vector<double>* shared = nullptr;
    for (const PlotSeries& series : drawing.Series) {
        if (shared == nullptr || *shared != series.X) {
            columns.push_back({Heading(drawing.Bottom.Title, drawing.Bottom), shared = &series.X});
        }
        const std::string name = series.Case.empty() ? series.Name : series.Case + " " + series.Name;
        columns.push_back({Heading(name, series.OnRightAxis ? drawing.Right : drawing.Left), &series.Y});
    }
    return columns;
}

std::string RowOf(const std::vector<Figures>& columns, std::size_t row) {
    std::string line;
    for (const Figures& column : columns) {
        if (&column != &columns.front()) line += '\t';
        if (row < column.Values->size()) line += TableFigure((*column.Values)[row]);
    }
    return line + "\n";
}

}  // namespace

Plot::Plot(const Parent& parent, std::string name, int index)
    : Control(parent, ControlKind::Plot, std::move(name), {}, index) {
    TabStop = true;
    SetEnabled(false);
    KeyPress = [this](Key& key) {
        if (key.Name != Plot::CopyKey) return;
        CopyText(FiguresOf(drawing_));
        Owner().SetStatus("The figures of the plot are copied");
        key.Handled = true;
    };
}

void Plot::Draw(PlotDrawing drawing) {
    for (PlotSeries& series : drawing.Series) series = FinitePointsOf(std::move(series));
    std::erase_if(drawing.Series, [](const PlotSeries& series) { return series.X.empty(); });
    std::erase_if(drawing.Marks, [](const PlotMark& mark) { return !std::isfinite(mark.At); });
    drawing_ = std::move(drawing);
    text_ = InWords(drawing_);
    SetEnabled(!IsEmpty());
    Notify(Aspect::Rows);
}

void Plot::Clear() {
    if (!IsEmpty()) Draw({});
}

std::string InWords(const PlotDrawing& drawing) {
    if (drawing.Series.empty()) return {};
    std::string text = drawing.Title.empty() ? "" : drawing.Title + ": ";
    const std::string* former = nullptr;
    for (const PlotSeries& series : drawing.Series) {
        const bool isNext = former == nullptr || *former != series.Case;
        if (former != nullptr) text += isNext ? "; " : ", ";
        if (isNext && !series.Case.empty()) text += series.Case + ": ";
        former = &series.Case;
        text += series.Name + " " +
                FromTo(series.Y.front(), series.Y.back(), series.OnRightAxis ? drawing.Right : drawing.Left);
    }
    text += " over " + BottomInWords(drawing);
    for (const PlotMark& mark : drawing.Marks) {
        const PlotAxis& axis = mark.Vertical ? drawing.Bottom : drawing.Left;
        text += ", " + mark.Name + " " + WithUnit(Figure(mark.At), axis);
    }
    return text;
}

std::string FiguresOf(const PlotDrawing& drawing) {
    const std::vector<Figures> columns = ColumnsOf(drawing);
    std::string table;
    if (columns.empty()) return table;
    if (!drawing.Title.empty()) table += drawing.Title + "\n";
    std::size_t rows = 0;
    for (const Figures& column : columns) {
        table += (&column == &columns.front() ? "" : "\t") + column.Head;
        rows = std::max(rows, column.Values->size());
    }
    table += "\n";
    for (std::size_t row = 0; row < rows; ++row) table += RowOf(columns, row);
    for (const PlotMark& mark : drawing.Marks) {
        table += Heading(mark.Name, mark.Vertical ? drawing.Bottom : drawing.Left) + "\t" +
                 TableFigure(mark.At) + "\n";
    }
    return table;
}

PlotDrawing AllCasesOf(std::vector<PlotDrawing> cases) {
    std::erase_if(cases, [](const PlotDrawing& each) { return each.Series.empty(); });
    if (cases.empty()) return {};
    PlotDrawing all = std::move(cases.front());
    if (cases.size() == 1) return all;
    for (PlotSeries& series : all.Series) series.Case = all.Title;
    all.Title.clear();
    for (auto other = cases.begin() + 1; other != cases.end(); ++other) {
        for (PlotSeries& series : other->Series) {
            series.Case = other->Title;
            all.Series.push_back(std::move(series));
        }
    }
    return all;
}

}  // namespace quillmetra
