// Makes the screen ready for a question to the user, for as long as it lives.
#pragma once

#include <QApplication>
#include <QWidget>

namespace quillmetra {

inline void CloseMenus() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close()) return;
    }
}

// The window that a dialog belongs to. One that has closed may still count as active, and would take the
// dialog with it when it goes.
inline QWidget* WindowInHand() {
    QWidget* const window = QApplication::activeWindow();
    return window != nullptr && window->isVisible() ? window : nullptr;
}

// A box is not made larger or put away: its frame has no buttons for that.
inline constexpr Qt::WindowFlags DialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

// An open menu would keep the mouse from a box, and a busy pointer would say that nobody waits for the user.
class ReadyForUser {
public:
    ReadyForUser() {
        CloseMenus();
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ReadyForUser() { QApplication::restoreOverrideCursor(); }
    ReadyForUser(const ReadyForUser&) = delete;
    ReadyForUser& operator=(const ReadyForUser&) = delete;
};

}  // namespace quillmetra
