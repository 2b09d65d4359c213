// See PagePainter.h.
#include "paper/PagePainter.h"

#include <algorithm>

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>

// Outside of every namespace, as Qt wants it.
static void InitResources() { Q_INIT_RESOURCE(letters); }

namespace quillmetra {

namespace {

// Letters are made in one size and scaled when they are drawn, so that no device rounds their widths.
constexpr int UnitSize = 100;
constexpr double ThinLine = 10;  // twips

// The letters that the program brings along are added to the machine's at their first use.
void AddLetters() {
    static const bool added = [] {
        InitResources();
        for (const char* file : {":/letters/DejaVuSans.ttf", ":/letters/DejaVuSans-Bold.ttf"}) {
            QFontDatabase::addApplicationFont(QString::fromLatin1(file));
        }
        return true;
    }();
    static_cast<void>(added);
}

QFont UnitFont(const FontChoice& choice) {
    AddLetters();
    QFont font(QString::fromStdString(choice.Name));
    font.setPixelSize(UnitSize);
    font.setBold(choice.Bold);
    font.setItalic(choice.Italic);
    font.setUnderline(choice.Underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferNoShaping);  // ligatures would keep "fi" from being found in a PDF
    return font;
}

double TwipsPerUnit(const FontChoice& choice) { return choice.Size * TwipsPerPoint / UnitSize; }

}  // namespace

double PageLetters::Width(const std::string& text, const FontChoice& font) const {
    return QFontMetricsF(UnitFont(font)).horizontalAdvance(QString::fromStdString(text)) * TwipsPerUnit(font);
}

double PageLetters::AverageWidth(const FontChoice& font) const {
    return QFontMetricsF(UnitFont(font)).averageCharWidth() * TwipsPerUnit(font);
}

double PageLetters::Ascent(const FontChoice& font) const {
    return QFontMetricsF(UnitFont(font)).ascent() * TwipsPerUnit(font);
}

void PaintPage(QPainter& painter, const QPagedPaintDevice& device, const PrintedPage& page) {
    const PageLayout layout = LayOut(page, PageLetters());
    double bottom = 0;
    for (const PlacedLine& line : layout.Lines) bottom = std::max(bottom, line.Y2);

    const QSizeF sheet = device.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
    const double fit = std::min({1.0, sheet.width() / (page.FrameWidth + page.FrameTop),
                                 sheet.height() / (bottom + 2 * page.FrameTop)});
    painter.save();
    painter.scale(device.logicalDpiX() / TwipsPerInch, device.logicalDpiY() / TwipsPerInch);
    painter.translate((sheet.width() - page.FrameWidth * fit) / 2, page.FrameTop * fit);
    painter.scale(fit, fit);

    painter.setPen(QPen(Qt::black, ThinLine));
    for (const PlacedLine& line : layout.Lines) {
        painter.drawLine(QPointF(line.X1, line.Y1), QPointF(line.X2, line.Y2));
    }
    for (const PlacedText& text : layout.Texts) {
        painter.save();
        painter.translate(text.X, text.Baseline);
        const double scale = TwipsPerUnit(text.Font);
        painter.scale(scale * text.Stretch, scale);
        painter.setFont(UnitFont(text.Font));
        painter.drawText(QPointF(0, 0), QString::fromStdString(text.Text));
        painter.restore();
    }
    painter.restore();
}

}  // namespace quillmetra
