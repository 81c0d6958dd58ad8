#include "window/frame/ending_signals.h"

#include "platform/endings.h"

#include <QMetaObject>

#include <utility>

namespace tarnel {

namespace {

QObject* present = nullptr;
std::function<void()> work;

/// Called by a thread of the system's.
void passOn() {
    QMetaObject::invokeMethod(
        present, [] { work(); }, Qt::QueuedConnection);
}

} // namespace

EndingSignals::EndingSignals(std::function<void()> onSignal)
    : receiver(std::make_unique<QObject>()) {
    present = receiver.get();
    work = std::move(onSignal);
    file = hearEndings(passOn);
    if (file < 0)
        return;
    notifier = std::make_unique<QSocketNotifier>(file, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [open = file] {
        clearEndings(open);
        work();
    });
}

EndingSignals::~EndingSignals() {
    notifier.reset();
    ignoreEndings(file);
    work = {};
}

} // namespace tarnel
