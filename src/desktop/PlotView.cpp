// The view of a plot, drawn by the plotting library. The user reads it and does nothing to it.
#include <cmath>
#include <limits>

#include <qcustomplot.h>

#include "desktop/ControlView.h"
#include "desktop/Painting.h"
#include "desktop/SchemePalette.h"
#include "forms/ColourShades.h"
#include "platform/Plot.h"

namespace quillmetra {

namespace {

// Curves in the order of the drawing: blue, vermilion, green, told apart by the colour-blind as well.
constexpr Colour CurveColours[] = {0xB27200, 0x005ED5, 0x739E00};
constexpr double CurveContrast = 3;
constexpr int LegendRow = 2;  // below title and axes
constexpr double CurveWidth = 1.8;
constexpr double MarkLabelGap = 0.02;  // of the picture's height or width, from its edge

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

QString AxisLabel(const PlotAxis& axis) {
    return ToQt(axis.Unit.empty() ? axis.Title : axis.Title + ", " + axis.Unit);
}

class Picture : public QCustomPlot {
public:
    explicit Picture(QWidget* parent) : QCustomPlot(parent) {
        setFocusPolicy(Qt::NoFocus);
        setMinimumSize(DigitsWide(*this, 40), 9 * fontMetrics().height());
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        plotLayout()->insertRow(0);
        plotLayout()->addElement(0, 0, title_ = new QCPTextElement(this));
        plotLayout()->setRowSpacing(2);
        legend->setFillOrder(QCPLegend::foColumnsFirst);
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
        const bool isEmpty = drawing.Series.empty();
        title_->setText(isEmpty ? QString(Nothing) : ToQt(drawing.Title));
        axisRect()->setVisible(!isEmpty);
        for (const PlotSeries& series : drawing.Series) AddCurve(series);
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
            pen.setColor(CurveColour(i));
            graph(i)->setPen(pen);
        }
        replot(rpQueuedReplot);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QCustomPlot::paintEvent(event);
        QPainter painter(this);
        painter.setPen(QPen(palette().color(role::HairLine), 1));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
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

    void AddCurve(const PlotSeries& series) {
        const QColor colour = CurveColour(graphCount());
        QCPGraph* const curve = addGraph(xAxis, series.OnRightAxis ? yAxis2 : yAxis);
        curve->setName(ToQt(series.Name));
        curve->setPen(QPen(colour, CurveWidth, series.Dashed ? Qt::DashLine : Qt::SolidLine));
        curve->setData(QVector<double>(series.X.begin(), series.X.end()),
                       QVector<double>(series.Y.begin(), series.Y.end()));
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
    Colour ground_ = 0xFFFFFF;
    QColor fore_ = Qt::black;
};

class PlotView : public ControlView {
public:
    PlotView(Plot& plot, Picture* picture) : ControlView(plot, picture), plot_(plot), picture_(picture) {}

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
    Plot& plot_;
    Picture* picture_;
};

}  // namespace

ControlView* MakePlotView(Plot& plot, QWidget* parent) { return new PlotView(plot, new Picture(parent)); }

}  // namespace quillmetra
