// See WindowPlaces.h.
#include "desktop/WindowPlaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace quillmetra {

bool WindowPlaces::Restore(QWidget& window, const QString& name) const {
    const QRect place = settings_.value("windows/" + name).toRect();
    const QScreen* const screen = QGuiApplication::screenAt(place.center());
    if (!place.isValid() || screen == nullptr) return false;
    const QRect room = screen->availableGeometry();
    const QSize size = place.size().expandedTo(window.minimumSizeHint()).boundedTo(room.size());
    window.resize(size);
    window.move(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - size.width())),
                std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - size.height())));
    return true;
}

void WindowPlaces::Keep(const QWidget& window, const QString& name) {
    if (window.isMinimized() || window.isMaximized()) return;
    settings_.setValue("windows/" + name, QRect(window.pos(), window.size()));
}

}  // namespace quillmetra
