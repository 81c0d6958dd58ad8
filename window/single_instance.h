#pragma once

#include <QLocalServer>

#include <functional>

namespace tarnel {

/// `SingleInstance`: lets one program of a user run at a time. A second one ends, and the first one
/// is asked to come to the front.
class SingleInstance {
  public:
    /// True if another instance runs; it has then been asked to show itself.
    [[nodiscard]] bool otherRuns();
    /// Called when another instance was started.
    std::function<void()> onOther;

  private:
    void listen(const QString& name);
    QLocalServer server;
};

} // namespace tarnel
