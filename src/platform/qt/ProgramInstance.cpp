#include "platform/qt/ProgramInstance.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <cstdlib>

#include "platform/Application.h"
#include "platform/Guard.h"
#include "platform/qt/Conversions.h"

#ifdef _WIN32
#include <windows.h>

#include <QCryptographicHash>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace ballhaven::platform {

namespace {

constexpr int longestMessage = 4096;
constexpr int connectAttempts = 20;
constexpr int attemptPause = 100;     // milliseconds
constexpr int answerPatience = 3000;  // milliseconds

struct FolderLock {
    std::string key;  ///< tells the folder from every other one
    bool taken = true;
};

#ifdef _WIN32

FolderLock LockFolder(const std::string& directory) {
    const QByteArray path = QByteArray::fromStdString(directory).toLower().replace('/', '\\');
    const std::string key = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().toStdString();
    CreateMutexA(nullptr, FALSE, ("ballhaven-" + key).c_str());  // kept open for the life of the process
    return {key, GetLastError() != ERROR_ALREADY_EXISTS};
}

#else

// The descriptor stays open for the life of the process; the system lets go of the lock when it ends.
FolderLock LockFolder(const std::string& directory) {
    const int folder = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat status {};
    if (folder < 0 || fstat(folder, &status) != 0) {
        return {};
    }
    const std::string key = std::to_string(status.st_dev) + "-" + std::to_string(status.st_ino);
    if (flock(folder, LOCK_EX | LOCK_NB) == 0) {
        return {key, true};
    }
    const bool heldByAnother = errno == EWOULDBLOCK;
    close(folder);
    return {key, !heldByAnother};
}

#endif

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
    if (isFirst) {
        return true;
    }
    const FolderLock lock = LockFolder(directory);
    folderKey = lock.key;
    isFirst = lock.taken;
    if (isFirst && !folderKey.empty()) {
        Listen();
    }
    return isFirst;
}

QString ProgramInstance::ServerName() const {
    return QStringLiteral("ballhaven-") + QString::fromStdString(folderKey);
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
