#pragma once

#include "persistence/lock_file.h"

#include <QLocalServer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>
#include <string>

class QLocalSocket;

namespace tarnel {

/// `SingleInstance`: lets one program of a user run at a time on a display. A second one ends, and
/// the first one gets its message.
///
/// The first one holds a lock and listens on a socket, both in a folder that is the user's alone.
/// Neither listens to a program of another user.
class SingleInstance {
  public:
    enum class Start {
        first,      ///< this is the one that runs
        handedOver, ///< another one runs and has taken the message
        otherHangs, ///< another one runs and does not answer
    };

    /// `folder` holds lock and socket; without one the program runs, alone or not.
    explicit SingleInstance(const std::string& folder = usersFolder());
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Starts as the first one, or hands a message without a byte 0 over to it. Waits for an answer
    /// that long.
    [[nodiscard]] Start start(const std::string& message = {},
                              std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// Called when another program was started, with its message.
    std::function<void(const std::string&)> onOther;

    /// The user's runtime folder; where there is none, one in his cache. Empty if neither is to be
    /// had, or other users may look into it.
    [[nodiscard]] static std::string usersFolder();

  private:
    [[nodiscard]] std::string lockPath() const { return base + ".lock"; }
    [[nodiscard]] std::string socketPath() const { return base + ".socket"; }
    void listen();
    void accept(QLocalSocket& socket);
    void receive(QLocalSocket& socket);

    std::string base; ///< of the names of lock and socket
    std::optional<LockFile> lock;
    QLocalServer server;
    int openConnections = 0;
};

} // namespace tarnel
