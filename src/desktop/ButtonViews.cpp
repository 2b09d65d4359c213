// Views of command buttons, options and check boxes. A press of the mouse does not take the keyboard: the
// model moves the focus when the click comes, so that what is left sees the release and not the press.
#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/ControlView.h"
#include "desktop/DropButtonView.h"
#include "desktop/Painting.h"
#include "desktop/SchemePalette.h"

namespace quillmetra {

namespace {

class ButtonView : public ControlView {
public:
    ButtonView(Control& control, QAbstractButton* button) : ControlView(control, button), button_(button) {
        button_->setFocusPolicy(Qt::TabFocus);
        button_->setAutoExclusive(false);  // the model knows which options exclude one another
        connect(button_, &QAbstractButton::clicked, this, [this] { Clicked(); });
    }

protected:
    void RenewText() override { button_->setText(ToQt(Model()->Caption())); }

    void RenewChecked() override {
        if (!button_->isCheckable()) return;
        const QSignalBlocker quiet(button_);
        button_->setChecked(static_cast<Tickable*>(Model())->Checked());
    }

private:
    void Clicked() {
        if (Model() == nullptr) return;
        ClickControl(*Model());
        if (Model() != nullptr) RenewChecked();  // the widget has ticked itself, the model may not have
    }

    QAbstractButton* button_;
};

class DropView : public ButtonView {
public:
    DropView(DropButton& control, DropPushButton* button) : ButtonView(control, button), button_(button) {
        button->SetModel(&control);
        connect(button, &QAbstractButton::clicked, button, &DropPushButton::DropAtPress);
    }
    void Forget() override {
        button_->SetModel(nullptr);
        ButtonView::Forget();
    }

private:
    DropPushButton* button_;
};

// An option that chooses what the form shows: its words over a line, strong under the one in hand. To a
// screen reader it is an option as any other.
class TabButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override {
        const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
        return words + QSize(2 * Beside, 2 * Over);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Window),
                     words = palette().color(QPalette::WindowText);
        if (underMouse() && isEnabled()) painter.fillRect(rect(), Between(ground, words, 0.06));
        const int line = isChecked() ? Strong : 1;
        const auto colour = isChecked() ? QPalette::Highlight : role::HairLine;
        painter.fillRect(QRect(0, height() - line, width(), line), palette().color(colour));
        painter.setPen(words);
        painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextShowMnemonic),
                         text());
        if (hasFocus()) DrawRing(painter);
    }

private:
    static constexpr int Beside = 14, Over = 6, Strong = 3;

    void DrawRing(QPainter& painter) const {
        constexpr double corner = 3;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -Strong - 1.5), corner, corner);
    }
};

QAbstractButton* MakeButton(const Control& control, QWidget* parent) {
    const ControlKind kind = control.Kind();
    if (kind == ControlKind::OptionButton && static_cast<const OptionButton&>(control).IsTab)
        return new TabButton(parent);
    if (kind == ControlKind::OptionButton) return new QRadioButton(parent);
    if (kind == ControlKind::CheckBox) return new QCheckBox(parent);
    return new QPushButton(parent);
}

}  // namespace

ControlView* MakeButtonView(Control& control, QWidget* parent) {
    if (auto* const drops = dynamic_cast<DropButton*>(&control)) {
        return new DropView(*drops, new DropPushButton(parent));
    }
    return new ButtonView(control, MakeButton(control, parent));
}

}  // namespace quillmetra
