// See DropButtonView.h.
#include "desktop/DropButtonView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QStyleOptionButton>

#include "desktop/FormWindow.h"
#include "desktop/Painting.h"

namespace quillmetra {

namespace {

// The first letter leads to the line; an "&" of a unit stands for itself.
QString EntryText(const DropLine& line) { return '&' + ToQt(line.Text).replace('&', QLatin1String("&&")); }

}  // namespace

int DropPushButton::ArrowWidth() const {
    return Drops() ? style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, this) : 0;
}

QSize DropPushButton::sizeHint() const { return QPushButton::sizeHint() + QSize(ArrowWidth(), 0); }

void DropPushButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (Drops()) option->features |= QStyleOptionButton::HasMenu;
}

void DropPushButton::mousePressEvent(QMouseEvent* event) {
    constexpr int margin = 6;
    const bool onArrow =
        Drops() && (model_->DropsAtPress() || event->position().x() >= width() - ArrowWidth() - margin);
    if (!onArrow || event->button() != Qt::LeftButton) return QPushButton::mousePressEvent(event);
    // The press that closed the menu comes by here too.
    constexpr qint64 samePress = 200;  // ms
    if (!closed_.isValid() || closed_.elapsed() > samePress) DropSoon();
}

void DropPushButton::contextMenuEvent(QContextMenuEvent* event) {
    if (!Drops()) return QPushButton::contextMenuEvent(event);
    event->accept();
    DropSoon();
}

void DropPushButton::keyPressEvent(QKeyEvent* event) {
    const bool drops = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if (!drops || !Drops()) return QPushButton::keyPressEvent(event);
    DropSoon();
}

// What the focus leaves may put up a box, which must not come out of an event in hand.
void DropPushButton::DropSoon() {
    static_cast<FormWindow*>(window())->Later([self = QPointer(this)] {
        if (self != nullptr) self->Drop();
    });
}

void DropPushButton::Drop() {
    if (!Drops()) return;
    const QPointer self(this);
    const DropLines lines = OpenDropList(*model_);
    if (self == nullptr || lines.empty()) return;
    auto* const menu = new QMenu(this);
    menu->setObjectName("dropMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(accessibleName());
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        const DropLine& line = lines[static_cast<std::size_t>(i)];
        if (line.StandsApart) menu->addSeparator();
        QAction* const entry = menu->addAction(EntryText(line));
        entry->setCheckable(line.InForce);
        entry->setChecked(line.InForce);
        if (line.InForce) menu->setActiveAction(entry);
        connect(entry, &QAction::triggered, this, [this, i] {
            static_cast<FormWindow*>(window())->Later([self = QPointer(this), i] {
                if (self != nullptr && self->model_ != nullptr) TakeDropLine(*self->model_, i);
            });
        });
    }
    connect(menu, &QMenu::aboutToHide, this, [this] {
        closed_.start();
        setAttribute(Qt::WA_UnderMouse, false);  // nobody tells that the mouse has left meanwhile
        update();
    });
    menu->popup(mapToGlobal(QPoint(0, height())));
}

}  // namespace quillmetra
