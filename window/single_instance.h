#pragma once

#include <QLocalServer>
#include <QString>

#include <functional>
#include <utility>

class QLocalSocket;

namespace tarnel {

/// `SingleInstance`: lets one program of a user run at a time. A second one ends, and the first one
/// is asked to come to the front and to open what the second one was to open.
class SingleInstance {
  public:
    /// Of the programs with the same `name` one runs.
    explicit SingleInstance(QString name = userInstance()) : serverName(std::move(name)) {}

    /// True if another instance runs; it has then been asked to show itself and, unless it is
    /// empty, to open the file at `path`.
    [[nodiscard]] bool otherRuns(const QString& path = {});
    /// Called when another instance was started, with the path of the file it was to open.
    std::function<void(const QString&)> onOther;

  private:
    static QString userInstance();
    void listen();
    void receive(QLocalSocket& socket);

    QString serverName;
    QLocalServer server;
};

} // namespace tarnel
