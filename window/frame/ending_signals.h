#pragma once

#include <QSocketNotifier>

#include <array>
#include <functional>
#include <memory>

namespace tarnel {

/// `EndingSignals`: hears the signals by which a program is asked to end: SIGTERM, SIGHUP and
/// SIGINT. There can be one at a time.
class EndingSignals {
  public:
    /// `onSignal` is called from the message loop, not from the signal.
    explicit EndingSignals(std::function<void()> onSignal);
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;
    ~EndingSignals();

  private:
    std::array<int, 2> pipe{-1, -1}; ///< read end, write end
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace tarnel
