// Colours of the model on widgets of the toolkit, and the panel that groups of controls stand on.
#pragma once

#include <string>

#include <QColor>
#include <QString>
#include <QWidget>

#include "platform/Controls.h"
#include "platform/PathText.h"

namespace quillmetra {

inline QString ToQt(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
// The same, with paths as this system writes them: for words that are read and not typed.
inline QString ToRead(const std::string& text) { return ToQt(WithSystemPaths(text)); }
QColor ToQt(Colour colour);

QColor Between(const QColor& from, const QColor& to, double part);

// The style of the whole program, the same on every machine, in the colours of the slots.
void UseSuiteStyle();

// Paints an area with what stands on it and has no colours of its own, or a field with what is typed in it.
void PaintAreaRoles(QPalette& palette, Colour back, Colour fore);
void PaintArea(QWidget& widget, Colour back, Colour fore);
void PaintField(QWidget& widget, Colour back, Colour fore);

// Data in the changed colour is bold too.
void MarkChanged(QWidget& widget, const Control& control);

// The width of so many digits in the font of a widget, for fields sized by what they hold.
int DigitsWide(const QWidget& widget, int digits);
// The property of a list that is larger at first than it must be.
inline constexpr const char* FirstSize = "firstSize";

// A flat area with a thin border and, where it has one, a heading in bold at its top.
class Panel : public QWidget {
public:
    explicit Panel(QWidget* parent, const QString& heading = {});

    const QString& Heading() const { return heading_; }
    void SetHeading(const QString& heading);
    // One that stands over others: its colour covers them and its border is strong.
    void SetRaised(bool raised);
    // One that only holds things together shows nothing of its own.
    void SetBare();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent* event) override;

private:
    int HeadingHeight() const;
    QSize WithHeading(const QSize& content) const;
    QFont HeadingFont() const;
    void Measure();

    QString heading_;
    bool raised_ = false;
    bool bare_ = false;
};

}  // namespace quillmetra
