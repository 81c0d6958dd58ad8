#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace tarnel {

/// `EndingSignals`: hears what asks the program to end: SIGTERM, SIGHUP and SIGINT, or what the
/// system has in their place. There can be one at a time.
class EndingSignals {
  public:
    /// `onSignal` is called from the message loop, not from the signal.
    explicit EndingSignals(std::function<void()> onSignal);
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;
    ~EndingSignals();

  private:
    std::unique_ptr<QObject>
        receiver;  ///< in the message loop, of what a thread of the system tells
    int file = -1; ///< that can be read after a signal
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace tarnel
