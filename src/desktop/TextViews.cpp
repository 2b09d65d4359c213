// Views of boxes, labels, frames and progress bars.
#include <algorithm>

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

#include "desktop/ControlView.h"
#include "desktop/KeyNames.h"
#include "desktop/Painting.h"
#include "platform/Keys.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

class BoxView : public ControlView {
public:
    BoxView(TextBox& box, QLineEdit* edit) : ControlView(box, edit), box_(box), edit_(edit) {
        edit_->setReadOnly(box.Locked);
        if (box.IsNumber) edit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) { Typed(text); });
        edit_->installEventFilter(this);
    }

    // What was typed since the box was entered is the box's own to undo; what it has no use for is the
    // form's.
    bool eventFilter(QObject* watched, QEvent* event) override {
        // It loses the focus once more while it is destroyed, when it is no line edit any more.
        if (qobject_cast<QLineEdit*>(watched) == nullptr) return false;
        if (event->type() == QEvent::FocusOut) ForgetTyping(*static_cast<QFocusEvent*>(event));
        const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
        if (!isKey) return ControlView::eventFilter(watched, event);
        const std::string key = NameOfKey(*static_cast<QKeyEvent*>(event));
        const bool undo = SameName(key, keys::Undo), redo = SameName(key, keys::Redo);
        if (!undo && !redo) return false;
        const bool isOwn = undo ? edit_->isUndoAvailable() : edit_->isRedoAvailable();
        event->setAccepted(isOwn);
        if (isOwn && event->type() == QEvent::KeyPress) undo ? edit_->undo() : edit_->redo();
        return true;
    }

protected:
    void RenewColours() override {
        if (box_.ColourGroup == 0) return;
        PaintField(*edit_, box_.BackColour(), box_.ForeColour());
        MarkChanged(*edit_, box_);
    }

    // Written only when it differs, so that the caret of the box being edited stays.
    void RenewText() override {
        const QString text = ToQt(box_.Text());
        if (edit_->text() == text) return;
        const int caret = text.size() == edit_->text().size() ? edit_->cursorPosition() : -1;
        edit_->setText(text);
        if (caret >= 0) edit_->setCursorPosition(caret);  // a letter was put for another
        // The end of a long number matters less than its beginning.
        if (box_.Locked || (box_.IsNumber && !edit_->hasFocus())) edit_->setCursorPosition(0);
    }

    // What the user marked with the mouse stays marked.
    void SelectAll() override {
        if (!edit_->hasSelectedText() || !edit_->hasFocus()) edit_->selectAll();
    }

private:
    // A menu or another window takes the keyboard for a while and leaves the box in hand.
    void ForgetTyping(const QFocusEvent& event) {
        const auto reason = event.reason();
        const bool stays = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
                           reason == Qt::ActiveWindowFocusReason;
        if (!stays && (edit_->isUndoAvailable() || edit_->isRedoAvailable())) edit_->setText(edit_->text());
    }

    void Typed(const QString& text) {
        if (Model() == nullptr) return;
        TypeText(box_, text.toStdString());
        if (Model() != nullptr) RenewText();  // the model may have taken less
    }

    TextBox& box_;
    QLineEdit* edit_;
};

class LabelView : public ControlView {
public:
    LabelView(Label& label, QLabel* widget) : ControlView(label, widget), widget_(widget) {
        widget_->setTextFormat(Qt::PlainText);
    }

protected:
    void RenewText() override { widget_->setText(ToRead(Model()->Caption())); }

private:
    QLabel* widget_;
};

class FrameView : public ControlView {
public:
    FrameView(Frame& frame, Panel* panel) : ControlView(frame, panel), panel_(panel) {}

protected:
    void RenewText() override { panel_->SetHeading(ToQt(Model()->Caption()).remove(QLatin1Char('&'))); }

private:
    Panel* panel_;
};

class ProgressView : public ControlView {
public:
    ProgressView(ProgressBar& bar, QProgressBar* widget)
        : ControlView(bar, widget), bar_(bar), widget_(widget) {}

protected:
    void RenewText() override {
        widget_->setRange(0, std::max(bar_.Total(), 1));
        widget_->setValue(bar_.Done());
        widget_->setFormat(ToQt(bar_.Text()));
    }

private:
    ProgressBar& bar_;
    QProgressBar* widget_;
};

}  // namespace

ControlView* MakeTextView(Control& control, QWidget* parent) {
    switch (control.Kind()) {
        case ControlKind::TextBox: return new BoxView(static_cast<TextBox&>(control), new QLineEdit(parent));
        case ControlKind::Frame: return new FrameView(static_cast<Frame&>(control), new Panel(parent));
        case ControlKind::ProgressBar:
            return new ProgressView(static_cast<ProgressBar&>(control), new QProgressBar(parent));
        default: return new LabelView(static_cast<Label&>(control), new QLabel(parent));
    }
}

}  // namespace quillmetra
