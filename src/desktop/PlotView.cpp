// The view of a plot, drawn by the plotting library. Its menu copies and saves the picture.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string_view>
#include <vector>

#include <qcustomplot.h>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"
#include "desktop/PlotMenu.h"
#include "desktop/SchemePalette.h"
#include "forms/ColourShades.h"
#include "platform/Plot.h"

namespace quillmetra {

namespace {

// Curves in the order of the drawing: blue, vermilion, green, told apart by the colour-blind as well.
constexpr Colour CurveColours[] = {0xB27200, 0x005ED5, 0x739E00};
constexpr double CurveContrast = 3;
// Of cases where each has one curve, else of the curves of a case.
constexpr Qt::PenStyle Strokes[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
constexpr int TextShade = -1;  // a curve in the colour of the text
constexpr int LegendColumns = 3;
constexpr int LegendRow = 2;  // below title and axes
constexpr double CurveWidth = 1.8;
constexpr double MarkLabelGap = 0.02;  // of the picture's height or width, from its edge

constexpr double PictureScale = 2;  // dots of a copied picture for each on the screen

constexpr const char* Nothing = "Drawn when calculated";

// The stretch of an axis that a drawing takes.
class Span {
public:
    void Take(double value) {
        low_ = std::min(low_, value);
        high_ = std::max(high_, value);
    }

    // With so much room at both ends, as a part of the span. A level curve gets room above and below.
    QCPRange Widened(double part) const {
        if (low_ > high_) return {0, 1};
        const double magnitude = std::max(std::fabs(low_), std::fabs(high_));
        constexpr double level = 1e-9;
        if (high_ - low_ <= level * magnitude) {
            const double room = magnitude == 0 ? 1 : magnitude / 20;
            return {low_ - room, high_ + room};
        }
        const double room = part * (high_ - low_);
        return {low_ - room, high_ + room};
    }

private:
    double low_ = std::numeric_limits<double>::infinity();
    double high_ = -std::numeric_limits<double>::infinity();
};

// The cases of a drawing, or the curves of each, by name in their order.
std::vector<std::string> NamesIn(const PlotDrawing& drawing, std::string PlotSeries::*name) {
    std::vector<std::string> names;
    for (const PlotSeries& series : drawing.Series) {
        if (std::find(names.begin(), names.end(), series.*name) == names.end()) names.push_back(series.*name);
    }
    return names;
}

int PlaceOf(const std::string& name, const std::vector<std::string>& names) {
    return static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
}

// "Maximum case" is "Maximum" where it has little room.
std::string ShortCase(const std::string& name) {
    constexpr std::string_view tail = " case";
    return name.ends_with(tail) ? name.substr(0, name.size() - tail.size()) : name;
}

Qt::PenStyle StrokeOf(int place) { return Strokes[static_cast<std::size_t>(place) % std::size(Strokes)]; }

QString AxisLabel(const PlotAxis& axis) {
    return ToQt(axis.Unit.empty() ? axis.Title : axis.Title + ", " + axis.Unit);
}

class Picture : public QCustomPlot {
public:
    explicit Picture(QWidget* parent) : QCustomPlot(parent) {
        setFocusPolicy(Qt::TabFocus);
        setMinimumSize(DigitsWide(*this, 40), 9 * fontMetrics().height());
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        plotLayout()->insertRow(0);
        plotLayout()->addElement(0, 0, title_ = new QCPTextElement(this));
        plotLayout()->setRowSpacing(2);
        legend->setFillOrder(QCPLegend::foColumnsFirst);
        legend->setWrap(LegendColumns);
        legend->setBorderPen(Qt::NoPen);
        legend->setBrush(Qt::NoBrush);
        legend->setMargins({4, 0, 4, 2});
        legend->setIconSize(20, 12);
        axisRect()->setMinimumMargins({4, 4, 12, 4});
        for (QCPAxis* axis : Axes()) {
            axis->setNumberFormat("g");
            axis->setLabelPadding(2);
            axis->ticker()->setTickCount(4);
            axis->setSubTicks(false);
        }
        xAxis->ticker()->setTickCount(5);
        TakeFont();
    }

    QSize sizeHint() const override { return minimumSize(); }

    void Show(const PlotDrawing& drawing) {
        clearPlottables();
        clearItems();
        shades_.clear();
        const bool isEmpty = drawing.Series.empty();
        title_->setText(isEmpty ? QString(Nothing) : ToQt(drawing.Title));
        axisRect()->setVisible(!isEmpty);
        AddCurves(drawing);
        ShowLegend(drawing.Series.size() > 1);
        for (const PlotMark& mark : drawing.Marks) AddMark(mark);
        xAxis->setLabel(AxisLabel(drawing.Bottom));
        yAxis->setLabel(AxisLabel(drawing.Left));
        yAxis2->setLabel(AxisLabel(drawing.Right));
        SetRanges(drawing);
        replot(rpQueuedReplot);
    }

    void TakeColours(Colour ground, const QColor& fore) {
        ground_ = ground;
        fore_ = fore;
        const QColor back = ToQt(ground);
        setBackground(QBrush(back));
        QColor faint = fore;
        faint.setAlphaF(0.15F);
        for (QCPAxis* axis : Axes()) {
            axis->setBasePen(QPen(fore));
            axis->setTickPen(QPen(fore));
            axis->setTickLabelColor(fore);
            axis->setLabelColor(fore);
            axis->grid()->setPen(QPen(faint));
            axis->grid()->setZeroLinePen(Qt::NoPen);
        }
        title_->setTextColor(fore);
        legend->setTextColor(fore);
        for (int i = 0; i < itemCount(); ++i) ColourItem(*item(i));
        for (int i = 0; i < graphCount(); ++i) {
            QPen pen = graph(i)->pen();
            pen.setColor(CurveColour(shades_[static_cast<std::size_t>(i)]));
            graph(i)->setPen(pen);
        }
        replot(rpQueuedReplot);
    }

    void DrawOn(QPaintDevice& device) {
        QCPPainter painter(&device);
        painter.setMode(QCPPainter::pmVectorized);
        painter.setMode(QCPPainter::pmNoCaching);
        toPainter(&painter, width(), height());
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QCustomPlot::paintEvent(event);
        QPainter painter(this);
        if (hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
        } else {
            painter.setPen(QPen(palette().color(role::HairLine), 1));
            painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        }
    }

    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::FontChange) TakeFont();
        QCustomPlot::changeEvent(event);
    }

private:
    std::array<QCPAxis*, 3> Axes() const { return {xAxis, yAxis, yAxis2}; }

    void TakeFont() {
        QFont small = font();
        small.setPointSizeF(small.pointSizeF() - 1);
        for (QCPAxis* axis : Axes()) {
            axis->setTickLabelFont(small);
            axis->setLabelFont(small);
        }
        legend->setFont(small);
        title_->setFont(font());
    }

    // As bright as its ground demands.
    QColor CurveColour(int curve) const {
        if (curve == TextShade) return fore_;
        const auto place = static_cast<std::size_t>(curve) % std::size(CurveColours);
        return ToQt(Readable(ground_, CurveColours[place], CurveContrast));
    }

    // Below the axes, where it hides no curve. An empty one would take the width away from the picture.
    void ShowLegend(bool show) {
        legend->setVisible(show);
        const bool stands = legend->layout() == plotLayout();
        if (show && !stands) {
            plotLayout()->addElement(LegendRow, 0, legend);
            plotLayout()->setRowStretchFactor(LegendRow, 0.001);
        } else if (!show && stands) {
            plotLayout()->take(legend);
            plotLayout()->simplify();
        }
    }

    void AddCurves(const PlotDrawing& drawing) {
        const std::vector<std::string> cases = NamesIn(drawing, &PlotSeries::Case);
        if (cases.size() < 2) {
            for (const PlotSeries& series : drawing.Series) {
                const Qt::PenStyle stroke = series.Dashed ? Qt::DashLine : Qt::SolidLine;
                AddCurve(series, series.Name, graphCount(), stroke);
            }
            return;
        }
        AddCases(drawing, cases, NamesIn(drawing, &PlotSeries::Name));
    }

    // A colour for each case. Where a case has several curves, the legend tells cases and curves apart, not
    // each of their pairs.
    void AddCases(const PlotDrawing& drawing, const std::vector<std::string>& cases,
                  const std::vector<std::string>& curves) {
        const bool isOne = curves.size() == 1;
        for (const PlotSeries& series : drawing.Series) {
            const int place = PlaceOf(series.Case, cases);
            const Qt::PenStyle stroke = StrokeOf(isOne ? place : PlaceOf(series.Name, curves));
            QCPGraph* const curve = AddCurve(series, ShortCase(series.Case), place, stroke);
            if (!isOne && series.Name != curves.front()) curve->removeFromLegend();
        }
        if (isOne) return;
        for (const std::string& name : curves) {
            AddCurve({}, name, TextShade, StrokeOf(PlaceOf(name, curves)));
        }
    }

    QCPGraph* AddCurve(const PlotSeries& series, const std::string& name, int shade, Qt::PenStyle stroke) {
        QCPGraph* const curve = addGraph(xAxis, series.OnRightAxis ? yAxis2 : yAxis);
        shades_.push_back(shade);
        curve->setName(ToQt(name));
        curve->setPen(QPen(CurveColour(shade), CurveWidth, stroke));
        curve->setData(QVector<double>(series.X.begin(), series.X.end()),
                       QVector<double>(series.Y.begin(), series.Y.end()));
        return curve;
    }

    void AddMark(const PlotMark& mark) {
        auto* const line = new QCPItemStraightLine(this);
        line->point1->setCoords(mark.Vertical ? QPointF(mark.At, 0) : QPointF(0, mark.At));
        line->point2->setCoords(mark.Vertical ? QPointF(mark.At, 1) : QPointF(1, mark.At));
        auto* const label = new QCPItemText(this);
        label->setText(ToQt(mark.Name));
        label->setFont(legend->font());
        label->setPadding({3, 1, 3, 1});
        if (mark.Vertical) {
            label->position->setTypeY(QCPItemPosition::ptAxisRectRatio);
            label->position->setCoords(mark.At, MarkLabelGap);
            label->setRotation(-90);
        } else {
            label->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
            label->position->setCoords(1 - MarkLabelGap, mark.At);
        }
        label->setPositionAlignment(Qt::AlignRight | Qt::AlignBottom);
        ColourItem(*line);
        ColourItem(*label);
    }

    void ColourItem(QCPAbstractItem& item) {
        if (auto* const line = qobject_cast<QCPItemStraightLine*>(&item)) {
            line->setPen(QPen(fore_, 1, Qt::DotLine));
        } else if (auto* const label = qobject_cast<QCPItemText*>(&item)) {
            label->setColor(fore_);
        }
    }

    void SetRanges(const PlotDrawing& drawing) {
        Span bottom, left, right;
        bool usesRight = false;
        for (const PlotSeries& series : drawing.Series) {
            usesRight = usesRight || series.OnRightAxis;
            for (const double x : series.X) bottom.Take(x);
            for (const double y : series.Y) (series.OnRightAxis ? right : left).Take(y);
        }
        for (const PlotMark& mark : drawing.Marks) (mark.Vertical ? bottom : left).Take(mark.At);
        constexpr double room = 0.08;
        xAxis->setRange(bottom.Widened(0));
        yAxis->setRange(left.Widened(room));
        yAxis2->setRange(right.Widened(room));
        yAxis2->setVisible(usesRight);
        yAxis2->setTickLabels(usesRight);
    }

    QCPTextElement* title_;
    std::vector<int> shades_;  // of each curve
    Colour ground_ = 0xFFFFFF;
    QColor fore_ = Qt::black;
};

class PlotView : public ControlView {
public:
    PlotView(Plot& plot, Picture* picture) : ControlView(plot, picture), plot_(plot), picture_(picture) {
        picture_->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(picture_, &QWidget::customContextMenuRequested, this,
                [this](const QPoint& at) { ShowMenu(at); });
    }

protected:
    // The words go with the picture: to the screen reader as its name, and as its tip.
    void RenewRows() override {
        picture_->Show(plot_.Drawing());
        picture_->setAccessibleName(plot_.IsEmpty() ? QString(Nothing) : ToQt(plot_.Text()));
        RenewToolTip();
    }

    void RenewToolTip() override {
        picture_->setToolTip(ToQt(plot_.ToolTip().empty() ? plot_.Text() : plot_.ToolTip()));
    }

    void RenewColours() override { picture_->TakeColours(plot_.BackColour(), ToQt(plot_.ForeColour())); }

private:
    // What is taken of the menu is done while the form is still there.
    void ShowMenu(const QPoint& at) {
        const PlotPicture drawn{.Pixels = [this] { return picture_->toPixmap(0, 0, PictureScale).toImage(); },
                                .Paint = [this](QPaintDevice& device) { picture_->DrawOn(device); },
                                .Size = picture_->size()};
        const auto later = [this](const Handler& act) {
            Later([this, act] {
                if (Model() != nullptr && !plot_.IsEmpty()) act();
            });
        };
        MakePlotMenu(plot_, &drawn, *picture_, later)->popup(picture_->mapToGlobal(at));
    }

    Plot& plot_;
    Picture* picture_;
};

}  // namespace

ControlView* MakePlotView(Plot& plot, QWidget* parent) { return new PlotView(plot, new Picture(parent)); }

}  // namespace quillmetra
