#include "window/frame/single_instance.h"

#include "platform/files.h"
#include "platform/local_peer.h"
#include "platform/path_text.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QSysInfo>

#include <thread>
#include <utility>

namespace tarnel {

namespace {

using namespace std::chrono_literals;

constexpr qsizetype longestMessage = 1 << 14; ///< bytes, more than any path and token take
constexpr int mostConnections = 32;           ///< at a time
constexpr int messageMilliseconds = 1000;     ///< in which a message has to be there
constexpr char answer = '\1';

/// Different for each display, and for each computer that shares the folder.
std::string nameOnDisplay() {
    QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty())
        display = qgetenv("DISPLAY");
    const QByteArray where = QSysInfo::machineHostName().toUtf8() + '\n' + display;
    constexpr qsizetype enough = 16;
    return "tarnel-" + QCryptographicHash::hash(where, QCryptographicHash::Sha256)
                           .toHex()
                           .left(enough)
                           .toStdString();
}

} // namespace

std::string SingleInstance::usersFolder() {
    std::string runtime = qgetenv("XDG_RUNTIME_DIR").toStdString();
    // In a Flatpak each start has a runtime folder of its own, but for this one.
    if (const QByteArray sandbox = qgetenv("FLATPAK_ID"); !sandbox.isEmpty())
        runtime += "/app/" + sandbox.toStdString();
    if (runtime.starts_with('/') && isUsersAlone(pathOf(runtime)))
        return runtime;
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    const std::string folder = cache.toStdString() + "/tarnel-run";
    const bool made = QDir().mkpath(cache) && makeUsersAlone(pathOf(folder));
    return made && isUsersAlone(pathOf(folder)) ? folder : std::string();
}

SingleInstance::SingleInstance(const std::string& folder)
    : base(folder.empty() ? std::string() : folder + "/" + nameOnDisplay()) {}

SingleInstance::~SingleInstance() {
    std::error_code ignored;
    if (lock)
        std::filesystem::remove(pathOf(socketPath()), ignored);
}

/// The first one may hold the lock before it listens; and it may end while this one waits.
SingleInstance::Start SingleInstance::start(const std::string& message,
                                            std::chrono::milliseconds patience) {
    constexpr auto pause = 20ms;
    constexpr int triesForALock = 5;
    const auto end = std::chrono::steady_clock::now() + patience;
    int triesWithoutFile = 0;
    while (!base.empty() && triesWithoutFile < triesForALock) {
        if (auto taken = LockFile::take(lockPath())) {
            lock = std::move(taken);
            listen();
            break;
        }
        if (handOver(socketPath(), message.size() < longestMessage ? message : std::string(), end))
            return Start::handedOver;
        if (std::chrono::steady_clock::now() >= end)
            return Start::otherHangs;
        std::error_code none;
        const auto held = std::filesystem::symlink_status(pathOf(lockPath()), none);
        triesWithoutFile = std::filesystem::exists(held) ? 0 : triesWithoutFile + 1;
        std::this_thread::sleep_for(pause);
    }
    return Start::first;
}

/// Where no socket can be made the program still runs.
void SingleInstance::listen() {
    QObject::connect(&server, &QLocalServer::newConnection, &server, [this] {
        while (QLocalSocket* socket = server.nextPendingConnection())
            accept(*socket);
    });
    if (const std::string name = listeningName(socketPath()); !name.empty()) {
        server.setSocketOptions(QLocalServer::UserAccessOption);
        server.listen(QString::fromStdString(name));
    } else if (const std::intptr_t socket = listeningSocket(socketPath()); socket >= 0) {
        server.listen(socket);
    }
}

/// Who is another user, one too many, or slow, is hung up on.
void SingleInstance::accept(QLocalSocket& socket) {
    ++openConnections;
    QObject::connect(&socket, &QLocalSocket::disconnected, &server, [this, &socket] {
        --openConnections;
        socket.deleteLater();
    });
    if (openConnections > mostConnections || !isOfSameUser(socket.socketDescriptor())) {
        socket.abort();
        return;
    }
    socket.setReadBufferSize(longestMessage);
    QTimer::singleShot(messageMilliseconds, &socket, [&socket] { socket.abort(); });
    QObject::connect(&socket, &QLocalSocket::readyRead, &socket,
                     [this, &socket] { receive(socket); });
    receive(socket);
}

/// The message ends with the byte 0. It is answered before anything is opened: that may show a box.
void SingleInstance::receive(QLocalSocket& socket) {
    const QByteArray message = socket.peek(longestMessage);
    const qsizetype size = message.indexOf('\0');
    if (size < 0) {
        if (message.size() == longestMessage)
            socket.abort();
        return;
    }
    socket.readAll();
    QObject::disconnect(&socket, &QLocalSocket::readyRead, nullptr, nullptr);
    socket.write(&answer, 1);
    socket.flush();
    socket.disconnectFromServer();
    if (onOther)
        onOther(message.left(size).toStdString());
}

} // namespace tarnel
