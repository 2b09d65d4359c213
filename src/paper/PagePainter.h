// Draws recorded pages with Qt: the one replay for printer, preview and PDF.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>

#include "platform/PageLayout.h"

namespace quillmetra {

// The letters of pages, measured without a device so that a page is laid out the same for all of them.
class PageLetters : public TextMetric {
public:
    double Width(const std::string& text, const FontChoice& font) const override;
    double AverageWidth(const FontChoice& font) const override;
    double Ascent(const FontChoice& font) const override;
};

// Draws a page on the sheet that the device has in hand, its frame centred; a sheet that is too small for
// the frame gets it smaller.
void PaintPage(QPainter& painter, const QPagedPaintDevice& device, const PrintedPage& page);

}  // namespace quillmetra
