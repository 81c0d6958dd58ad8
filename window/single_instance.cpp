#include "window/single_instance.h"

#include <QLocalSocket>

#include <unistd.h>

namespace tarnel {

namespace {

constexpr int answerMilliseconds = 500;

/// One name a user, whatever the language.
QString serverName() {
    return QStringLiteral("tarnel-%1").arg(static_cast<qulonglong>(getuid()));
}

} // namespace

bool SingleInstance::otherRuns() {
    const QString name = serverName();
    QLocalSocket socket;
    socket.connectToServer(name);
    if (socket.waitForConnected(answerMilliseconds)) {
        socket.disconnectFromServer();
        return true;
    }
    listen(name);
    return false;
}

/// A socket that a crashed instance left behind is removed. Where no socket can be made the program
/// still runs, alone or not.
void SingleInstance::listen(const QString& name) {
    QObject::connect(&server, &QLocalServer::newConnection, &server, [this] {
        while (QLocalSocket* socket = server.nextPendingConnection())
            socket->deleteLater();
        if (onOther)
            onOther();
    });
    QLocalServer::removeServer(name);
    server.setSocketOptions(QLocalServer::UserAccessOption);
    server.listen(name);
}

} // namespace tarnel
