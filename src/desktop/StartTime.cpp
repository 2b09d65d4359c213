// See StartTime.h.
#include "desktop/StartTime.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#ifdef __linux__
#include <unistd.h>
#endif

#include "platform/Forms.h"

namespace quillmetra {

namespace {

// Milliseconds since this process was started, loading of its libraries included where the system tells
// (in steps of 10 ms), else since the first call.
double ProcessAge() {
#ifdef __linux__
    std::ifstream stat("/proc/self/stat");
    std::string text((std::istreambuf_iterator<char>(stat)), {});
    const std::size_t name = text.rfind(')');
    std::ifstream uptime("/proc/uptime");
    double up = 0;
    if (name != std::string::npos && uptime >> up) {
        std::size_t at = name;
        constexpr int fieldsToStart = 20;  // from the end of the name to the start time, in clock ticks
        for (int field = 0; field < fieldsToStart; ++field) at = text.find(' ', at + 1);
        return (up - std::stod(text.substr(at)) / static_cast<double>(sysconf(_SC_CLK_TCK))) * 1000;
    }
#endif
    static const auto start = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

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
