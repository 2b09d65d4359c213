// See Painting.h.
#include "desktop/Painting.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace quillmetra {

namespace {
constexpr int Margin = 8;
constexpr int Corner = 3;

QColor Between(const QColor& a, const QColor& b, double part) {
    const auto mix = [part](int x, int y) { return static_cast<int>(x + (y - x) * part); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

void PaintRoles(QWidget& widget, Colour back, QPalette::ColorRole under, Colour fore,
                QPalette::ColorRole text) {
    QPalette palette = widget.palette();
    palette.setColor(under, ToQt(back));
    palette.setColor(text, ToQt(fore));
    palette.setColor(QPalette::Disabled, text, Between(ToQt(fore), ToQt(back), 0.5));
    if (palette != widget.palette()) widget.setPalette(palette);
}

class SuiteStyle : public QProxyStyle {
public:
    SuiteStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

    // A list with the focus has a border as a box has; without a row in hand nothing else would tell.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_Frame || (option->state & State_HasFocus) == 0) return;
        painter->setPen(option->palette.color(QPalette::Highlight));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
};
}  // namespace

QColor ToQt(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

void UseSuiteStyle() {
    QApplication::setStyle(new SuiteStyle);
    QPalette palette = QApplication::style()->standardPalette();
    const QColor faint(105, 105, 105);  // what is off, as a unit, is still read
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setPalette(palette);
}

void PaintArea(QWidget& widget, Colour back, Colour fore) {
    PaintRoles(widget, back, QPalette::Window, fore, QPalette::WindowText);
}

void PaintField(QWidget& widget, Colour back, Colour fore) {
    PaintRoles(widget, back, QPalette::Base, fore, QPalette::Text);
}

int DigitsWide(const QWidget& widget, int digits) {
    return QFontMetrics(widget.font()).horizontalAdvance(QLatin1Char('0')) * digits;
}

Panel::Panel(QWidget* parent, const QString& heading) : QWidget(parent), heading_(heading) { Measure(); }

void Panel::SetHeading(const QString& heading) {
    heading_ = heading;
    Measure();
    update();
}

void Panel::SetRaised(bool raised) {
    raised_ = raised;
    update();
}

void Panel::SetBare() {
    bare_ = true;
    Measure();
}

QFont Panel::HeadingFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

int Panel::HeadingHeight() const { return heading_.isEmpty() ? 0 : QFontMetrics(HeadingFont()).height() + 4; }

void Panel::Measure() {
    if (bare_) return setContentsMargins(0, 0, 0, 0);
    setContentsMargins(Margin, (heading_.isEmpty() ? Margin : Margin - 2) + HeadingHeight(), Margin, Margin);
}

QSize Panel::WithHeading(const QSize& content) const {
    if (heading_.isEmpty()) return content;
    return content.expandedTo(
        {QFontMetrics(HeadingFont()).horizontalAdvance(heading_) + 2 * Margin, HeadingHeight()});
}

QSize Panel::sizeHint() const { return WithHeading(QWidget::sizeHint()); }
QSize Panel::minimumSizeHint() const { return WithHeading(QWidget::minimumSizeHint()); }

void Panel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) Measure();
    QWidget::changeEvent(event);
}

void Panel::paintEvent(QPaintEvent*) {
    if (bare_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor under = palette().color(QPalette::Window);
    painter.setBrush(under);
    painter.setPen(QPen(under.darker(raised_ ? 220 : 130), 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    if (heading_.isEmpty()) return;
    painter.setFont(HeadingFont());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(Margin, Margin - 3, width() - 2 * Margin, HeadingHeight()),
                     static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter), heading_);
}

}  // namespace quillmetra
