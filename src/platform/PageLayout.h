// From a printed page to what a painter draws: each text at its place with the size that fits there. One
// layout serves paper, preview and PDF.
//
// Places stay as they were printed. A text that is wider than its place shrinks: first it is narrowed to
// three quarters, then its letters get smaller.
#pragma once

#include <string>
#include <vector>

#include "platform/Printer.h"

namespace quillmetra {

// The letters of a device; all in twips.
class TextMetric {
public:
    virtual ~TextMetric() = default;
    virtual double Width(const std::string& text, const FontChoice& font) const = 0;
    virtual double AverageWidth(const FontChoice& font) const = 0;
    virtual double Ascent(const FontChoice& font) const = 0;
};

struct PlacedText {
    double X = 0;         // twips from the frame's left border
    double Baseline = 0;  // twips from the frame's upper border
    FontChoice Font;
    double Stretch = 1;  // of the width of the letters
    std::string Text;
    double Width = 0;  // twips, as drawn
};

struct PlacedLine {
    double X1, Y1, X2, Y2;
};

struct PageLayout {
    std::vector<PlacedText> Texts;
    std::vector<PlacedLine> Lines;
};

PageLayout LayOut(const PrintedPage& page, const TextMetric& metric);

}  // namespace quillmetra
