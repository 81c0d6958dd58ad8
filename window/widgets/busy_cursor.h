#pragma once

#include <QGuiApplication>

#include <functional>

namespace tarnel {

/// Runs `job` while the mouse shows that the program works. It shows no box.
inline void withBusyCursor(const std::function<void()>& job) {
    struct Busy {
        Busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
        ~Busy() { QGuiApplication::restoreOverrideCursor(); }
    } const busy;
    job();
}

} // namespace tarnel
