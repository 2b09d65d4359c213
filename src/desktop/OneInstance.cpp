// See OneInstance.h.
#include "desktop/OneInstance.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QLocalSocket>
#include <QWidget>

#include "platform/TextFiles.h"

namespace quillmetra {

namespace {
constexpr int Patience = 500;  // ms that a running suite has to answer
}

OneInstance::OneInstance(const std::string& programFolder) {
    const std::string folder = SuitePath(MachinePath(programFolder).lexically_normal());
    const QByteArray mark =
        QCryptographicHash::hash(QByteArray::fromStdString(folder), QCryptographicHash::Sha1);
    name_ = "quillmetra-" + QString::fromLatin1(mark.toHex().left(16));
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* caller = server_.nextPendingConnection()) caller->deleteLater();
        ComeToFront();
    });
}

bool OneInstance::AnotherRuns() {
    QLocalSocket other;
    other.connectToServer(name_);
    return other.waitForConnected(Patience);
}

void OneInstance::Listen() {
    QLocalServer::removeServer(name_);  // left by one that crashed
    server_.listen(name_);
}

void OneInstance::ComeToFront() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        if (window->isMinimized()) window->showNormal();
        window->raise();
        window->activateWindow();
    }
}

}  // namespace quillmetra
