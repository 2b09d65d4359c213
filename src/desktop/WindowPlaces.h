// Size and place of each window from one run to the next, in a file of their own in the program's folder; and
// what keeps a window with its frame on its screen.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSettings>
#include <QString>

class QWidget;

namespace quillmetra {

// What the window manager puts around a window. It is known once a window stands; of one that does not, it is
// taken as it was around the last one.
QMargins FrameOf(const QWidget& window);

// Puts the inside of a window at a place, but the window with its frame into a part of a screen.
void PlaceWithin(QWidget& window, const QRect& place, const QRect& room);

// Moves a window that reaches out of its screen back into it.
void MoveIntoScreen(QWidget& window);

class WindowPlaces {
public:
    // An unreadable file counts as empty.
    explicit WindowPlaces(const QString& file) : settings_(file, QSettings::IniFormat) {}

    // Puts a window where one of its name stood, kept on the screens there are. False when none is known.
    bool Restore(QWidget& window, const QString& name) const;
    void Keep(const QWidget& window, const QString& name);

private:
    QSettings settings_;
};

}  // namespace quillmetra
