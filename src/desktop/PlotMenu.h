// The menu of a plot: its picture to the clipboard or a file, its figures to the clipboard.
#pragma once

#include <functional>

#include <QImage>

#include "desktop/ControlView.h"

class QMenu;
class QPaintDevice;

namespace quillmetra {

// How a view gives its picture away.
struct PlotPicture {
    std::function<QImage()> Pixels;
    std::function<void(QPaintDevice&)> Paint;
    QSize Size;
};

using RunLater = std::function<void(const Handler&)>;

// The menu of a plot over a widget, to be shown; a view without a picture has figures alone. What is taken
// runs by later, when the menu has closed.
QMenu* MakePlotMenu(Plot& plot, const PlotPicture* picture, QWidget& over, const RunLater& later);

}  // namespace quillmetra
