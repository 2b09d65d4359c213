// The fixture of the window tests: the suite's fixture with the desktop host on an invisible screen.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/Programs.h"
#include "desktop/DesktopHost.h"
#include "desktop/FormWindow.h"
#include "desktop/Painting.h"
#include "forms/RegisterForms.h"
#include "platform/TextCase.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

inline void Settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The keys of a keyboard, but for those that only hold others down.
inline std::vector<int> KeyCodes() {
    std::vector<int> codes = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Insert, Qt::Key_Delete,
                              Qt::Key_Pause,  Qt::Key_Print,  Qt::Key_Menu,   Qt::Key_Backspace};
    for (int code = Qt::Key_Space; code <= Qt::Key_Z; ++code) codes.push_back(code);
    for (int code = Qt::Key_Home; code <= Qt::Key_PageDown; ++code) codes.push_back(code);
    for (int code = Qt::Key_F1; code <= Qt::Key_F12; ++code) codes.push_back(code);
    return codes;
}

class DesktopTest : public SuiteTest {
protected:
    DesktopTest() {
        RegisterForms();
        QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { CloseForgottenDialog(); });
        watch_.start(3000);
    }
    ~DesktopTest() override {
        ResetForms();
        Settle();
    }

    // Shows a form as its program would and returns it with its window.
    Form& Show(std::string_view name) {
        for (const Program& program : Programs) {
            if (SameName(program.Form, name)) Calc.CurrentProgram = program.Number;
        }
        Suite.TableKind = "Liquid";  // the table of most columns
        ShowForm(name);
        Form& form = LoadForm(name);
        EXPECT_TRUE(QTest::qWaitForWindowActive(Screen.WindowOf(form)));
        Settle();
        return form;
    }

    FormWindow& WindowOf(const Form& form) { return *Screen.WindowOf(form); }
    ControlView& ViewOf(const Control& control) { return *WindowOf(control.Owner()).ViewOf(control); }
    QWidget& WidgetOf(const Control& control) { return *ViewOf(control).Widget(); }

    void Click(const Control& control) {
        QTest::mouseClick(&WidgetOf(control), Qt::LeftButton);
        Settle();
    }

    DesktopHost Screen;

private:
    // A dialog that no test expects would wait for ever: one that is there at two looks is forgotten.
    void CloseForgottenDialog() {
        QWidget* const dialog = QApplication::activeModalWidget();
        const bool isForgotten = dialog != nullptr && dialog == seen_;
        seen_ = dialog;
        if (!isForgotten) return;
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        ADD_FAILURE() << "nobody answered " << dialog->windowTitle().toStdString() << ": "
                      << (box == nullptr ? "" : box->text().toStdString());
        if (box != nullptr) {
            box->buttons().back()->click();
        } else {
            HideForm(dialog->objectName().toStdString());
        }
    }

    QPointer<QWidget> seen_;
    QTimer watch_;
};

// Runs once a message box or another dialog has opened, from within its loop.
inline void WhenDialogOpens(const std::function<void(QWidget&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isActiveWindow()) {
            WhenDialogOpens(act);
        } else {
            act(*dialog);
        }
    });
}

}  // namespace quillmetra
