// See DesktopHost.h. The questions to the user are in Questions.cpp.
#include "desktop/DesktopHost.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QPrinter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include "desktop/FormWindow.h"
#include "desktop/HelpWindow.h"
#include "desktop/ReadyForUser.h"
#include "desktop/SchemePalette.h"
#include "desktop/WindowPlaces.h"
#include "platform/Forms.h"
#include "platform/Printer.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

bool IsCancelButton(const QObject& widget) {
    const auto* const part = qobject_cast<const QWidget*>(&widget);
    const auto* const window = part == nullptr ? nullptr : dynamic_cast<const FormWindow*>(part->window());
    return window != nullptr && window->IsCancelButton(*part);
}

}  // namespace

DesktopHost::DesktopHost() { InstallHost(this); }

DesktopHost::~DesktopHost() {
    if (CurrentHost() == this) InstallHost(nullptr);
    for (const auto& [form, window] : windows_) {
        window->Forget();
        delete window;
    }
}

void DesktopHost::RememberPlaces(const std::string& suitePath) {
    places_ = std::make_unique<WindowPlaces>(QString::fromStdU16String(MachinePath(suitePath).u16string()));
}

bool DesktopHost::IsOwnThread() const {
    return QThread::currentThread() == thread() && thread() == qApp->thread();
}

FormWindow* DesktopHost::WindowOf(const Form& form) const {
    Q_ASSERT(IsOwnThread());
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

FormWindow& DesktopHost::Window(Form& form) {
    Q_ASSERT(IsOwnThread());
    FormWindow*& window = windows_[&form];
    if (window == nullptr) window = new FormWindow(form);
    return *window;
}

void DesktopHost::FormShown(Form& form) {
    FollowScheme();
    FormWindow& window = Window(form);
    if (!window.isVisible()) PutInPlace(window);
    window.show();
    window.raise();
    window.activateWindow();
    window.FollowFocus();
}

void DesktopHost::RunModal(Form& form) {
    if (ProcessHasEnded()) return;
    FormWindow& window = Window(form);
    const QPointer<QWidget> under = WindowInHand();
    window.setWindowModality(Qt::ApplicationModal);
    window.winId();  // makes the native window, which knows the one that it stands over
    if (under != nullptr) window.windowHandle()->setTransientParent(under->windowHandle());
    FormShown(form);

    QEventLoop loop;
    loops_[&form] = &loop;
    loop.exec();
    loops_.erase(&form);
    if (FormWindow* left = WindowOf(form)) left->setWindowModality(Qt::NonModal);
    if (under != nullptr && under->isVisible()) under->activateWindow();
}

// A window opens where the one that led to it stands or stood, and gives its place back the same way.
void DesktopHost::PutInPlace(FormWindow& window) {
    if (places_ != nullptr && places_->Restore(window, window.objectName())) return;
    const QWidget* const under = QApplication::activeWindow();
    const QRect room = window.screen()->availableGeometry();
    QPoint centre = room.center();
    if (under != nullptr && under->isVisible()) {
        centre = under->frameGeometry().center();
    } else if (lastCentre_) {
        centre = *lastCentre_;
    }
    QRect frame = QRect(QPoint(), window.size()).marginsAdded(FrameOf(window));
    frame.moveCenter(centre);
    PlaceWithin(window, frame.marginsRemoved(FrameOf(window)), room);
}

void DesktopHost::FormHidden(Form& form) {
    const auto loop = loops_.find(&form);
    if (FormWindow* window = WindowOf(form)) {
        if (loop == loops_.end()) lastCentre_ = window->frameGeometry().center();
        if (places_ != nullptr && window->isVisible()) places_->Keep(*window, window->objectName());
        window->hide();
    }
    if (loop != loops_.end()) loop->second->quit();
}

void DesktopHost::FormGone(Form& form) {
    const auto found = windows_.find(&form);
    if (found == windows_.end()) return;
    FormWindow* const window = found->second;
    windows_.erase(found);
    window->Forget();
    window->deleteLater();
}

void DesktopHost::FormChanged(Form& form) {
    if (FormWindow* window = WindowOf(form)) window->RenewForm();
}

void DesktopHost::ControlChanged(Control& control, Aspect aspect) {
    if (aspect == Aspect::Colours) FollowScheme();
    if (FormWindow* window = WindowOf(control.Owner())) window->Renew(control, aspect);
}

void DesktopHost::FocusMoved(Form& form) {
    if (FormWindow* window = WindowOf(form)) window->FollowFocus();
}

void DesktopHost::ProcessEnded() {
    for (const auto& [form, window] : windows_) {
        if (places_ != nullptr && window->isVisible()) places_->Keep(*window, window->objectName());
        window->hide();
    }
    if (help_ != nullptr) help_->hide();
    for (const auto& [form, loop] : loops_) loop->quit();
    QCoreApplication::quit();
}

void DesktopHost::SetBusyPointer(bool busy) {
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

bool DesktopHost::Yield() {
    const QScopedValueRollback now(yielding_, true);
    escaped_ = false;
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    return escaped_;
}

// A search asks at every folder; the screen need not be looked at more often than anybody sees.
void DesktopHost::ServeUser() {
    constexpr qint64 pause = 20;  // ms
    if (served_.isValid() && served_.elapsed() < pause) return;
    QCoreApplication::processEvents();
    served_.start();
}

bool DesktopHost::eventFilter(QObject* watched, QEvent* event) {
    if (!yielding_) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) escaped_ = true;
            return true;
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonRelease:
            if (IsCancelButton(*watched)) escaped_ = true;
            [[fallthrough]];
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return !watched->isWindowType();  // on to its widget, and no further
        case QEvent::Wheel:
        case QEvent::ContextMenu: return true;
        case QEvent::Close: event->ignore(); return true;
        default: return false;
    }
}

}  // namespace quillmetra
