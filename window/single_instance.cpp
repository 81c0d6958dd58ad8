#include "window/single_instance.h"

#include <QLocalSocket>

#include <unistd.h>

namespace tarnel {

namespace {

constexpr int answerMilliseconds = 500;
/// More than any path takes.
constexpr qint64 longestMessage = 1 << 16;

} // namespace

/// One name a user, whatever the language.
QString SingleInstance::userInstance() {
    return QStringLiteral("tarnel-%1").arg(static_cast<qulonglong>(getuid()));
}

bool SingleInstance::otherRuns(const QString& path) {
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (socket.waitForConnected(answerMilliseconds)) {
        socket.write(path.toUtf8());
        socket.flush();
        socket.disconnectFromServer();
        if (socket.state() != QLocalSocket::UnconnectedState)
            socket.waitForDisconnected(answerMilliseconds);
        return true;
    }
    listen();
    return false;
}

/// The path is what came until the other side hung up.
void SingleInstance::receive(QLocalSocket& socket) {
    const auto message = std::make_shared<QByteArray>();
    const auto take = [&socket, message] {
        *message += socket.read(longestMessage - message->size());
    };
    QObject::connect(&socket, &QLocalSocket::readyRead, &socket, take);
    QObject::connect(&socket, &QLocalSocket::disconnected, &server, [this, &socket, message, take] {
        take();
        socket.deleteLater();
        if (onOther)
            onOther(QString::fromUtf8(*message));
    });
}

/// A socket that a crashed instance left behind is removed. Where no socket can be made the program
/// still runs, alone or not.
void SingleInstance::listen() {
    QObject::connect(&server, &QLocalServer::newConnection, &server, [this] {
        while (QLocalSocket* socket = server.nextPendingConnection())
            receive(*socket);
    });
    QLocalServer::removeServer(serverName);
    server.setSocketOptions(QLocalServer::UserAccessOption);
    server.listen(serverName);
}

} // namespace tarnel
