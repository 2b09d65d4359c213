// A small picture of curves over a common bottom axis, as pressure along a line. It is a control like any
// other: a form gives it figures, a host draws them, and its text says in words what the curves show, for
// screen readers, scripts and whoever has no picture.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Controls.h"

namespace quillmetra {

struct PlotAxis {
    std::string Title;
    std::string Unit;  // empty for a number without one
};

struct PlotSeries {
    std::string Name;          // for the legend and the text
    std::vector<double> X, Y;  // point by point; when one is longer, its rest does not count
    bool OnRightAxis = false;
    bool Dashed = false;
    std::string Case = {};  // which of several cases it belongs to; empty where the title says it
};

// A straight line across the picture, as a limit or a selected time.
struct PlotMark {
    std::string Name;
    double At = 0;         // on the bottom axis when vertical, else on the left
    bool Vertical = true;  // else level
};

struct PlotDrawing {
    std::string Title;  // what the curves belong to, as a case
    PlotAxis Bottom, Left, Right;
    std::vector<PlotSeries> Series;
    std::vector<PlotMark> Marks;
};

class Plot : public Control {
public:
    // On the plot it copies the figures.
    static constexpr const char* CopyKey = "Ctrl+c";

    Plot(const Parent& parent, std::string name, int index = NoIndex);

    // Shows a drawing in place of the one before. Points and marks that are not finite are left out, and so
    // is a curve without points.
    void Draw(PlotDrawing drawing);
    void Clear();

    // The drawing as it is shown: finite, and X as long as Y. Without a curve there is nothing to see.
    const PlotDrawing& Drawing() const { return drawing_; }
    bool IsEmpty() const { return drawing_.Series.empty(); }

private:
    PlotDrawing drawing_;
};

// "Maximum case: Pressure 114.7 to 105.1 psia over 1000 ft": each curve from its first to its last point,
// then the marks; of several cases one after the other. Empty without a curve.
std::string InWords(const PlotDrawing& drawing);

// The points as a table for a spreadsheet, tabs between the columns: a column of X before the curves that
// share it, each under its heading; then the marks. Empty without a curve.
std::string FiguresOf(const PlotDrawing& drawing);

// The curves of several cases in one picture: the first has the axes and marks. The title says of which case
// they are where there is one alone.
PlotDrawing AllCasesOf(std::vector<PlotDrawing> cases);

}  // namespace quillmetra
