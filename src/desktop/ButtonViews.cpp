// Views of command buttons, options and check boxes. A press of the mouse does not take the keyboard: the
// model moves the focus when the click comes, so that what is left sees the release and not the press.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/ControlView.h"
#include "desktop/DropButtonView.h"
#include "desktop/Painting.h"

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
    }
    void Forget() override {
        button_->SetModel(nullptr);
        ButtonView::Forget();
    }

private:
    DropPushButton* button_;
};

QAbstractButton* MakeButton(ControlKind kind, QWidget* parent) {
    if (kind == ControlKind::OptionButton) return new QRadioButton(parent);
    if (kind == ControlKind::CheckBox) return new QCheckBox(parent);
    return new QPushButton(parent);
}

}  // namespace

ControlView* MakeButtonView(Control& control, QWidget* parent) {
    if (auto* const drops = dynamic_cast<DropButton*>(&control)) {
        return new DropView(*drops, new DropPushButton(parent));
    }
    return new ButtonView(control, MakeButton(control.Kind(), parent));
}

}  // namespace quillmetra
