// See WindowPlaces.h. A place is that of the inside of a window: that of the frame would be another one for a
// window that has not got its frame yet.
#include "desktop/WindowPlaces.h"

#include <algorithm>

#include <QApplication>
#include <QScreen>
#include <QWidget>

namespace quillmetra {

namespace {

// The first window of a run: more than most window managers take.
QMargins LastFrame(4, 36, 4, 4);

// False for a window that has no frame, or has not got it yet.
bool TakeFrame(const QWidget& window) {
    const QRect inside = window.geometry();
    const QRect outside = window.frameGeometry();
    if (outside == inside) return false;
    LastFrame = QMargins(inside.left() - outside.left(), inside.top() - outside.top(),
                         outside.right() - inside.right(), outside.bottom() - inside.bottom());
    return true;
}

int Within(int from, int size, int first, int last) {
    return std::clamp(from, first, std::max(first, last + 1 - size));
}

}  // namespace

QMargins FrameOf(const QWidget& window) {
    if (TakeFrame(window)) return LastFrame;
    const QWidgetList all = QApplication::topLevelWidgets();
    std::any_of(all.begin(), all.end(), [](const QWidget* each) { return TakeFrame(*each); });
    return LastFrame;
}

void PlaceWithin(QWidget& window, const QRect& place, const QRect& room) {
    const QRect inside = room.marginsRemoved(FrameOf(window));
    const QSize size = place.size().boundedTo(inside.size());
    window.setGeometry(QRect(QPoint(Within(place.left(), size.width(), inside.left(), inside.right()),
                                    Within(place.top(), size.height(), inside.top(), inside.bottom())),
                             size));
}

void MoveIntoScreen(QWidget& window) {
    PlaceWithin(window, window.geometry(), window.screen()->availableGeometry());
}

bool WindowPlaces::Restore(QWidget& window, const QString& name) const {
    QRect place = settings_.value("windows/" + name).toRect();
    const QScreen* const screen = QGuiApplication::screenAt(place.center());
    if (!place.isValid() || screen == nullptr) return false;
    place.setSize(place.size()
                      .expandedTo(window.minimumSizeHint())
                      .expandedTo(window.minimumSize())
                      .boundedTo(window.maximumSize()));
    PlaceWithin(window, place, screen->availableGeometry());
    return true;
}

void WindowPlaces::Keep(const QWidget& window, const QString& name) {
    if (window.isMinimized() || window.isMaximized()) return;
    settings_.setValue("windows/" + name, window.geometry());
}

}  // namespace quillmetra
