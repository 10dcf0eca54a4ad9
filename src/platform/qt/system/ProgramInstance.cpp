#include "platform/qt/system/ProgramInstance.h"

#include "platform/Application.h"
#include "platform/Guard.h"
#include "platform/files/FolderLock.h"
#include "platform/qt/widgets/Conversions.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <cstdlib>

namespace ballhaven::platform {

namespace {

constexpr int longestMessage = 4096;
constexpr int connectAttempts = 20;
constexpr int attemptPause = 100;     // milliseconds
constexpr int answerPatience = 3000;  // milliseconds

/// What a desktop hands to a program that it starts, so that the program may bring a window to the front.
std::string ActivationToken() {
    for (const char* variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

#ifdef __linux__
constexpr QLocalServer::SocketOption serverOptions = QLocalServer::AbstractNamespaceOption;
constexpr QLocalSocket::SocketOption socketOptions = QLocalSocket::AbstractNamespaceOption;
#else
constexpr QLocalServer::SocketOption serverOptions = QLocalServer::UserAccessOption;
constexpr QLocalSocket::SocketOption socketOptions = QLocalSocket::NoOptions;
#endif

}  // namespace

ProgramInstance::ProgramInstance() = default;
ProgramInstance::~ProgramInstance() = default;

bool ProgramInstance::BecomeFirst(const std::string& directory) {
    if (lock == nullptr) {
        lock = std::make_unique<FolderLock>(directory);
        if (!lock->IsTakenByAnother() && !lock->Key().empty()) {
            Listen();
        }
    }
    return !lock->IsTakenByAnother();
}

QString ProgramInstance::ServerName() const {
    return QStringLiteral("ballhaven-") + QString::fromStdString(lock->Key());
}

void ProgramInstance::Listen() {
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(serverOptions);
    QLocalServer::removeServer(ServerName());  // of a process that was killed: the lock says that none is alive
    QObject::connect(server.get(), &QLocalServer::newConnection, server.get(), [this] {
        QLocalSocket* const visitor = server->nextPendingConnection();
        QObject::connect(visitor, &QLocalSocket::disconnected, visitor, &QObject::deleteLater);
        QObject::connect(visitor, &QLocalSocket::readyRead, visitor, [this, visitor] { Serve(*visitor); });
    });
    server->listen(ServerName());
}

// A visitor says two lines: the title of the application that it looks for, and the token.
void ProgramInstance::Serve(QLocalSocket& visitor) const {
    const QByteArray waiting = visitor.peek(longestMessage);
    if (waiting.count('\n') < 2) {
        if (waiting.size() == longestMessage) {
            visitor.abort();
        }
        return;
    }
    const std::string title = visitor.readLine().trimmed().toStdString();
    const std::string token = visitor.readLine().trimmed().toStdString();
    if (title == ApplicationTitle() && comeToFront) {
        RunGuarded([&] { comeToFront(token); });
    }
    visitor.write("done\n");
    visitor.flush();
    visitor.disconnectFromServer();
}

void ProgramInstance::ActivateFirst(const std::string& title) const {
    if (lock == nullptr || !lock->IsTakenByAnother()) {
        return;
    }
    QLocalSocket socket;
    socket.setSocketOptions(socketOptions);
    // The first process may hold its lock already and not listen yet.
    for (int attempt = 0; attempt < connectAttempts; ++attempt) {
        socket.connectToServer(ServerName());
        if (socket.waitForConnected(answerPatience)) {
            break;
        }
        QThread::msleep(attemptPause);
    }
    if (socket.state() != QLocalSocket::ConnectedState) {
        return;
    }
    socket.write(QByteArray::fromStdString(title + "\n" + ActivationToken() + "\n"));
    socket.flush();
    socket.waitForReadyRead(answerPatience);
}

}  // namespace ballhaven::platform
