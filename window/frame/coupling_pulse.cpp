#include "window/frame/coupling_pulse.h"

#include <QCoreApplication>

namespace tarnel {

namespace {

constexpr int afterMilliseconds = 1;

} // namespace

CouplingPulse::CouplingPulse(std::function<void()> beat) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(afterMilliseconds);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, std::move(beat));
}

void CouplingPulse::start() {
    QCoreApplication::instance()->installEventFilter(this);
    timer.start();
}

/// Only its own beat is no reason for another.
bool CouplingPulse::eventFilter(QObject* watched, QEvent* /*event*/) {
    if (watched != &timer && !timer.isActive())
        timer.start();
    return false;
}

} // namespace tarnel
