// See Painting.h.
#include "desktop/Painting.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

#include "desktop/SchemePalette.h"
#include "desktop/SuiteStyle.h"
#include "forms/ColourSchemes.h"
#include "forms/ColourShades.h"

namespace quillmetra {

namespace {
constexpr int Margin = 9;
constexpr int Corner = 4;

void PaintField(QPalette& palette, Colour back, Colour fore) {
    palette.setColor(QPalette::Base, ToQt(back));
    palette.setColor(QPalette::Text, ToQt(fore));
    palette.setColor(QPalette::Disabled, QPalette::Text, ToQt(FaintText(back, fore)));
}

void Take(QWidget& widget, const QPalette& palette) {
    // Also where it looks alike: what it has of its own does not go with what it stands on.
    const QPalette& former = widget.palette();
    if (palette != former || palette.resolveMask() != former.resolveMask()) widget.setPalette(palette);
}
}  // namespace

QColor ToQt(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

QColor Between(const QColor& from, const QColor& to, double part) {
    const auto mix = [part](int x, int y) { return static_cast<int>(x + (y - x) * part); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

void UseSuiteStyle() {
    QApplication::setStyle(new SuiteStyle);
    FollowScheme();
}

void PaintAreaRoles(QPalette& palette, Colour back, Colour fore) {
    palette.setColor(QPalette::Window, ToQt(back));
    palette.setColor(QPalette::WindowText, ToQt(fore));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, ToQt(FaintText(back, fore)));
    palette.setColor(role::Border, ToQt(BoxBorder(back, SlotColour(slot::InputBack), fore)));
    palette.setColor(role::HairLine, ToQt(HairLineOn(back, fore)));
}

void PaintArea(QWidget& widget, Colour back, Colour fore) {
    QPalette palette = widget.palette();
    PaintAreaRoles(palette, back, fore);
    Take(widget, palette);
}

void PaintField(QWidget& widget, Colour back, Colour fore) {
    QPalette palette = widget.palette();
    PaintField(palette, back, fore);
    Take(widget, palette);
}

void MarkChanged(QWidget& widget, const Control& control) {
    const Colour changed = SlotColour(slot::Changed);
    QFont font = widget.font();
    font.setBold(control.ForeColour() == changed && changed != SlotColour(2 * control.ColourGroup));
    if (font != widget.font()) widget.setFont(font);
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
    painter.setBrush(palette().window());
    painter.setPen(QPen(palette().color(raised_ ? role::Border : role::HairLine), 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    if (heading_.isEmpty()) return;
    painter.setFont(HeadingFont());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(Margin, Margin - 3, width() - 2 * Margin, HeadingHeight()),
                     static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter), heading_);
}

}  // namespace quillmetra
