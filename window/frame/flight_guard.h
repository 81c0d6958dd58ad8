#pragma once

#include "window/frame/ending_signals.h"

#include <QString>
#include <QTimer>

namespace tarnel {

class FlightKeeper;

/// `FlightGuard`: gives the flights of a program a shelf, has the copy of the one that goes on
/// brought up to date, and puts it aside when the program is told to end or ends by itself.
class FlightGuard {
  public:
    /// Between two copies: a program that is killed loses no more than this and the time that a
    /// copy takes to write, less than ten seconds together.
    static constexpr int copyMilliseconds = 4000;

    /// `folder` is this user's.
    FlightGuard(FlightKeeper& flightKeeper, const QString& folder);
    ~FlightGuard();
    FlightGuard(const FlightGuard&) = delete;
    FlightGuard& operator=(const FlightGuard&) = delete;

  private:
    FlightKeeper& keeper;
    QTimer copies;
    EndingSignals endings;
};

} // namespace tarnel
