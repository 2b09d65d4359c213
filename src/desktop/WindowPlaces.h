// Size and place of each window from one run to the next, in a file of their own in the program's folder.
#pragma once

#include <QSettings>
#include <QString>

class QWidget;

namespace quillmetra {

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
