// The desktop program.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include "core/StartUp.h"
#include "core/Version.h"
#include "desktop/DesktopHost.h"
#include "desktop/Painting.h"
#include "desktop/StartTime.h"
#include "forms/RegisterForms.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("quillmetra");
    QApplication::setApplicationDisplayName("Quillmetra");
    QApplication::setApplicationVersion(quillmetra::version::Text);
    QApplication::setWindowIcon(QIcon(":/quillmetra.png"));
    QApplication::setQuitOnLastWindowClosed(false);
    quillmetra::UseSuiteStyle();

    QCommandLineParser parser;
    parser.setApplicationDescription("Line loss, water hammer and fluid properties for piping engineers.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption folder("folder", "Use PATH as the program's own folder.", "PATH");
    const QCommandLineOption timeStart("time-start", "Print the milliseconds to the first paint and end.");
    parser.addOptions({folder, timeStart});
    parser.process(app);

    quillmetra::DesktopHost host;
    quillmetra::RegisterForms();
    if (parser.isSet(timeStart)) quillmetra::PrintFirstPaintAndEnd();
    const std::string home = parser.isSet(folder)
                                 ? quillmetra::SuitePath(parser.value(folder).toStdU16String())
                                 : quillmetra::ProgramFolder();
    quillmetra::SeedShippedData(home);
    quillmetra::StartUp(home);
    const int result = quillmetra::ProcessHasEnded() ? 0 : QApplication::exec();
    quillmetra::ResetForms();
    return result;
}
