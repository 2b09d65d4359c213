// The desktop program.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>

#include "core/FileNames.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Version.h"
#include "desktop/DatabaseMemory.h"
#include "desktop/DesktopHost.h"
#include "desktop/FiguresMemory.h"
#include "desktop/OneInstance.h"
#include "desktop/Painting.h"
#include "desktop/StartTime.h"
#include "forms/frmShippedRows.h"
#include "forms/frmTRProg.h"
#include "forms/RegisterForms.h"
#include "forms/UnsavedWork.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"

namespace {

// What a shell asks is answered without a display.
void AnswerTheShell(const QCommandLineParser& parser, const QStringList& arguments) {
    const auto asked = [&](const char* one, const char* other) {
        return arguments.contains(one) || arguments.contains(other);
    };
    if (!asked("--version", "-v") && !asked("--help", "-h")) return;
    int count = 1;
    char name[] = "quillmetra";
    char* words[] = {name, nullptr};
    const QCoreApplication shell(count, words);
    std::puts(asked("--version", "-v") ? qPrintable("quillmetra " + QCoreApplication::applicationVersion())
                                       : qPrintable(parser.helpText()));
    std::exit(0);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("quillmetra");
    QCoreApplication::setApplicationVersion(quillmetra::version::Text);
    QCommandLineParser parser;
    parser.setApplicationDescription("Line loss, water hammer and fluid properties for piping engineers.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption folder("folder", "Use PATH as the program's own folder.", "PATH");
    const QCommandLineOption timeStart("time-start", "Print the milliseconds to the first paint and end.");
    parser.addOptions({folder, timeStart});
    AnswerTheShell(parser, QStringList(argv + 1, argv + argc));

    const QApplication app(argc, argv);
    QApplication::setWindowIcon(QIcon(":/quillmetra.png"));
    QApplication::setQuitOnLastWindowClosed(false);
    quillmetra::UseSuiteStyle();
    parser.process(app);

    quillmetra::DesktopHost host;
    quillmetra::RegisterForms();
    if (parser.isSet(timeStart)) quillmetra::PrintFirstPaintAndEnd();
    const std::string home = parser.isSet(folder)
                                 ? quillmetra::SuitePath(parser.value(folder).toStdU16String())
                                 : quillmetra::ProgramFolder();
    quillmetra::OneInstance instance(home);
    if (instance.AnotherRuns()) return 0;
    instance.Listen();
    quillmetra::SeedShippedData(home);
    quillmetra::Suite.RecoveryFile = home + "\\" + quillmetra::filename::Recovery;
    host.RememberPlaces(home + "\\TRWIN.ini");
    quillmetra::StartUp(home);
    QTimer minute;
    QObject::connect(&minute, &QTimer::timeout, [] { quillmetra::KeepUnsavedWork(); });
    minute.start(std::chrono::minutes(1));
    QTimer halfSecond;
    QObject::connect(&halfSecond, &QTimer::timeout, [] {
        if (auto* browser = dynamic_cast<quillmetra::frmTRProg*>(quillmetra::LoadedForm("frmTRProg")))
            browser->Follow();
    });
    halfSecond.start(std::chrono::milliseconds(500));
    quillmetra::DatabaseMemory databases(home + "\\TRWIN.ini");
    quillmetra::RememberFigures(home + "\\TRWIN.ini");
    // A folder that was named is another one than that of the last run.
    QTimer::singleShot(0, [&databases, opens = !parser.isSet(folder)] {
        if (opens) databases.OpenAgain();
        quillmetra::TellOfShippedRows();
        quillmetra::OfferRecovery();
    });
    const int result = quillmetra::ProcessHasEnded() ? 0 : QApplication::exec();
    quillmetra::ResetForms();
    return result;
}
