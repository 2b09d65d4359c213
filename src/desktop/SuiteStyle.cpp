// See SuiteStyle.h.
#include "desktop/SuiteStyle.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

#include "desktop/Painting.h"
#include "desktop/SchemePalette.h"

namespace quillmetra {

namespace {

constexpr double Corner = 3;
constexpr double Ring = 1.6;  // the border of what has the focus
// Numbers keep apart from the words beside them; a head has three of its own.
constexpr int CellMargin = 6, HeadMargin = CellMargin - 3;
constexpr int ScrollBarWidth = 12;
constexpr int ShortestSlider = 28;

// Nothing that was set for one part of a widget is left for the next.
class Brushwork {
public:
    explicit Brushwork(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Brushwork() { painter_.restore(); }
    Brushwork(const Brushwork&) = delete;
    Brushwork& operator=(const Brushwork&) = delete;

    void Rounded(const QRect& rect, const QBrush& fill, const QPen& line) const {
        const double inset = line.style() == Qt::NoPen ? 0 : line.widthF() / 2;
        painter_.setBrush(fill);
        painter_.setPen(line);
        painter_.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), Corner, Corner);
    }

private:
    QPainter& painter_;
};

bool Has(const QStyleOption& option, QStyle::StateFlag flag) { return (option.state & flag) != 0; }

QColor LineOf(const QStyleOption& option) {
    return option.palette.color(Has(option, QStyle::State_Enabled) ? role::Border : role::HairLine);
}

QPen RingOf(const QStyleOption& option) { return {option.palette.color(QPalette::Highlight), Ring}; }

// A picked row of a list of several is the colour of the ring all over.
QPen FocusOf(const QStyleOption& option, const QWidget* widget) {
    const auto* const list = qobject_cast<const QAbstractItemView*>(widget);
    const bool picked = list != nullptr && list->selectionMode() == QAbstractItemView::MultiSelection &&
                        Has(option, QStyle::State_Selected);
    return {option.palette.color(picked ? QPalette::HighlightedText : QPalette::Highlight), 1};
}

// An input is a box; a result is text on its ground until the keyboard comes to it.
void DrawBox(const QStyleOptionFrame& option, QPainter& painter) {
    if (option.lineWidth <= 0) return painter.fillRect(option.rect, option.palette.base());
    const bool isResult = Has(option, QStyle::State_ReadOnly);
    QPen line = isResult ? QPen(Qt::NoPen) : QPen(LineOf(option), 1);
    if (Has(option, QStyle::State_HasFocus)) line = RingOf(option);
    Brushwork(painter).Rounded(option.rect, option.palette.base(), line);
}

void DrawFrame(const QStyleOption& option, QPainter& painter) {
    const bool focus = Has(option, QStyle::State_HasFocus);
    Brushwork(painter).Rounded(option.rect, Qt::NoBrush, focus ? RingOf(option) : QPen(LineOf(option), 1));
}

bool IsDefault(const QStyleOption& option) {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && Has(option, QStyle::State_Enabled) &&
           (button->features & QStyleOptionButton::DefaultButton) != 0;
}

// How far a button leans to its text: at rest, under the mouse, pressed.
double LeanOf(const QStyleOption& option) {
    if (Has(option, QStyle::State_Sunken)) return 0.2;
    return Has(option, QStyle::State_MouseOver) && Has(option, QStyle::State_Enabled) ? 0.08 : 0;
}

void DrawButton(const QStyleOption& option, QPainter& painter) {
    const bool isDefault = IsDefault(option);
    const QColor rest = option.palette.color(isDefault ? QPalette::Highlight : QPalette::Button);
    const QColor text = option.palette.color(isDefault ? QPalette::HighlightedText : QPalette::ButtonText);
    const QColor fill = Between(rest, text, LeanOf(option));
    const QColor line = isDefault ? fill : Between(rest, LineOf(option), 0.75);
    const Brushwork work(painter);
    work.Rounded(option.rect, fill, QPen(line, 1));
    if (!Has(option, QStyle::State_HasFocus)) return;
    if (!isDefault) return work.Rounded(option.rect, Qt::NoBrush, RingOf(option));
    work.Rounded(option.rect.adjusted(2, 2, -2, -2), Qt::NoBrush, QPen(text, 1));
}

// The square or the circle of a tick; filled when it is ticked, with its sign in the other colour.
QPen MarkPen(const QStyleOption& option) {
    const bool enabled = Has(option, QStyle::State_Enabled);
    const bool on = Has(option, QStyle::State_On) && enabled;
    return QPen(on ? option.palette.color(QPalette::Highlight) : LineOf(option), 1.2);
}

QBrush MarkFill(const QStyleOption& option) {
    return option.palette.color(Has(option, QStyle::State_On) ? QPalette::Highlight : QPalette::Base);
}

void DrawCheck(const QStyleOption& option, QPainter& painter) {
    Brushwork(painter).Rounded(option.rect, MarkFill(option), MarkPen(option));
    if (!Has(option, QStyle::State_On)) return;
    const QRectF box(option.rect);
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    const Brushwork work(painter);
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), box.width() / 7, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {at(0.25, 0.52), at(0.43, 0.70), at(0.76, 0.31)};
    painter.drawPolyline(tick, 3);
}

void DrawOption(const QStyleOption& option, QPainter& painter) {
    const Brushwork work(painter);
    painter.setBrush(MarkFill(option));
    painter.setPen(MarkPen(option));
    const QRectF circle = QRectF(option.rect).adjusted(0.6, 0.6, -0.6, -0.6);
    painter.drawEllipse(circle);
    if (!Has(option, QStyle::State_On)) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(circle.center(), circle.width() / 5, circle.height() / 5);
}

void DrawTip(const QStyleOption& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.color(QPalette::ToolTipBase));
    painter.setPen(option.palette.color(role::Border));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void DrawStatusBar(const QStyleOption& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.window());
    painter.setPen(option.palette.color(role::HairLine));
    painter.drawLine(option.rect.topLeft(), option.rect.topRight());
}

void DrawHead(const QStyleOption& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.button());
    painter.setPen(option.palette.color(role::HairLine));
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
}

// The whole length of a scroll bar is its groove: it has no arrows.
QRect SliderOf(const QStyleOptionSlider& bar) {
    const bool lies = bar.orientation == Qt::Horizontal;
    const int length = lies ? bar.rect.width() : bar.rect.height();
    const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
    const qint64 share =
        range <= 0 ? length : length * static_cast<qint64>(bar.pageStep) / (range + bar.pageStep);
    const int slider = std::min(length, std::max(static_cast<int>(share), ShortestSlider));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - slider, bar.upsideDown);
    const QRect along =
        lies ? QRect(start, 0, slider, bar.rect.height()) : QRect(0, start, bar.rect.width(), slider);
    return along.translated(bar.rect.topLeft());
}

QRect ScrollPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const QRect slider = SliderOf(bar);
    const bool lies = bar.orientation == Qt::Horizontal;
    QRect rect = bar.rect;
    switch (part) {
        case QStyle::SC_ScrollBarGroove: return rect;
        case QStyle::SC_ScrollBarSlider: return slider;
        case QStyle::SC_ScrollBarSubPage:
            lies ? rect.setRight(slider.left() - 1) : rect.setBottom(slider.top() - 1);
            return rect;
        case QStyle::SC_ScrollBarAddPage:
            lies ? rect.setLeft(slider.right() + 1) : rect.setTop(slider.bottom() + 1);
            return rect;
        default: return {};
    }
}

void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) {
    const QColor ground = bar.palette.color(QPalette::Window);
    painter.fillRect(bar.rect, Between(ground, bar.palette.color(QPalette::WindowText), 0.05));
    if (bar.maximum <= bar.minimum) return;
    const bool held = (bar.activeSubControls & QStyle::SC_ScrollBarSlider) != 0;
    const QColor slider = bar.palette.color(held ? QPalette::Highlight : role::Border);
    Brushwork(painter).Rounded(SliderOf(bar).adjusted(3, 3, -3, -3), slider, Qt::NoPen);
}

}  // namespace

int SuiteStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

int SuiteStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent) return ScrollBarWidth;
    if (metric == PM_FocusFrameHMargin) return CellMargin;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize SuiteStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_HeaderSection ? whole + QSize(2 * HeadMargin, 0) : whole;
}

QRect SuiteStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) return ScrollPart(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void SuiteStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand: return DrawButton(*option, *painter);
        case PE_FrameDefaultButton: return;
        case PE_IndicatorCheckBox: return DrawCheck(*option, *painter);
        case PE_IndicatorRadioButton: return DrawOption(*option, *painter);
        case PE_Frame: return DrawFrame(*option, *painter);
        case PE_PanelTipLabel: return DrawTip(*option, *painter);
        case PE_PanelStatusBar: return DrawStatusBar(*option, *painter);
        case PE_PanelLineEdit:
            if (const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option)) {
                return DrawBox(*frame, *painter);
            }
            break;
        case PE_FrameFocusRect:
            if (qobject_cast<const QPushButton*>(widget) != nullptr) return;  // has a ring
            return Brushwork(*painter).Rounded(option->rect, Qt::NoBrush, FocusOf(*option, widget));
        default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void SuiteStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) return DrawHead(*option, *painter);
    if (element == CE_HeaderLabel) {
        QStyleOptionHeader label = *qstyleoption_cast<const QStyleOptionHeader*>(option);
        label.rect.adjust(HeadMargin, 0, -HeadMargin, 0);
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    if (element == CE_PushButtonLabel && IsDefault(*option)) {
        QStyleOptionButton label = *qstyleoption_cast<const QStyleOptionButton*>(option);
        label.palette.setColor(QPalette::ButtonText, label.palette.color(QPalette::HighlightedText));
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void SuiteStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) return DrawScrollBar(*bar, *painter);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace quillmetra
