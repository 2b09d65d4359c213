// See Plot.h.
#include "platform/Plot.h"

#include <algorithm>
#include <charconv>
#include <cmath>

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

}  // namespace

void Plot::Draw(PlotDrawing drawing) {
    for (PlotSeries& series : drawing.Series) series = FinitePointsOf(std::move(series));
    std::erase_if(drawing.Series, [](const PlotSeries& series) { return series.X.empty(); });
    std::erase_if(drawing.Marks, [](const PlotMark& mark) { return !std::isfinite(mark.At); });
    drawing_ = std::move(drawing);
    text_ = InWords(drawing_);
    Notify(Aspect::Rows);
}

void Plot::Clear() {
    if (!IsEmpty()) Draw({});
}

std::string InWords(const PlotDrawing& drawing) {
    if (drawing.Series.empty()) return {};
    std::string text = drawing.Title.empty() ? "" : drawing.Title + ": ";
    for (const PlotSeries& series : drawing.Series) {
        if (&series != &drawing.Series.front()) text += ", ";
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

}  // namespace quillmetra
