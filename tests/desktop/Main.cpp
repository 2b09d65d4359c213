// The application of the window tests. They choose their font themselves: a machine without one of its own
// draws boxes.
#include <gtest/gtest.h>
#include <QApplication>

#include "desktop/Painting.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    quillmetra::UseSuiteStyle();
    QApplication::setFont(QFont("DejaVu Sans", 9));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
