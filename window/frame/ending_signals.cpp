#include "window/frame/ending_signals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarnel {

namespace {

constexpr std::array endings = {SIGTERM, SIGHUP, SIGINT};

/// What the handler writes to.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void wake(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = before;
}

/// A signal that whoever started the program wants ignored, as `nohup` does, stays ignored.
void handle(int signal, void (*handler)(int)) {
    struct sigaction present {};
    if (::sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
        return;
    struct sigaction wanted {};
    wanted.sa_handler = handler;
    wanted.sa_flags = SA_RESTART;
    ::sigaction(signal, &wanted, nullptr);
}

} // namespace

EndingSignals::EndingSignals(std::function<void()> onSignal) {
    if (::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = pipe[1];
    notifier = std::make_unique<QSocketNotifier>(pipe[0], QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [file = pipe[0], onSignal = std::move(onSignal)] {
                         char byte = 0;
                         while (::read(file, &byte, 1) > 0) {
                         }
                         onSignal();
                     });
    for (const int signal : endings)
        handle(signal, wake);
}

EndingSignals::~EndingSignals() {
    if (!notifier)
        return;
    for (const int signal : endings)
        handle(signal, SIG_DFL);
    notifier.reset();
    writeEnd = -1;
    for (const int file : pipe)
        ::close(file);
}

} // namespace tarnel
