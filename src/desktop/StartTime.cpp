// See StartTime.h.
#include "desktop/StartTime.h"

#include <cstdio>

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include "platform/Forms.h"
#include "platform/ProgramPlaces.h"

namespace quillmetra {

namespace {

class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !seen_ && qobject_cast<QMainWindow*>(watched) != nullptr) {
            seen_ = true;
            QTimer::singleShot(0, this, [] {
                std::printf("%.0f ms\n", ProcessAge());
                EndProcess();
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool seen_ = false;
};

}  // namespace

void PrintFirstPaintAndEnd() {
    ProcessAge();
    qApp->installEventFilter(new FirstPaint(qApp));
}

}  // namespace quillmetra
