#include "window/frame/coupling_pulse.h"

#include <QCoreApplication>

namespace tarnel {

namespace {

constexpr int beatMilliseconds = 1;

} // namespace

CouplingPulse::CouplingPulse(std::function<void()> what) : tick(std::move(what)) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(beatMilliseconds);
    connect(&timer, &QTimer::timeout, this, &CouplingPulse::beat);
}

void CouplingPulse::start() {
    QCoreApplication::instance()->installEventFilter(this);
    timer.start();
}

/// Only its own beat is no reason to go on.
bool CouplingPulse::eventFilter(QObject* watched, QEvent* /*event*/) {
    if (watched != &timer) {
        quietTicks = 0;
        if (!timer.isActive())
            timer.start();
    }
    return false;
}

void CouplingPulse::beat() {
    tick();
    if (++quietTicks >= ticksToRest)
        timer.stop();
}

} // namespace tarnel
