#include "platform/endings.h"

#include "platform/posix/own_calls.h"

#include <atomic>
#include <cerrno>
#include <csignal>
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

int hearEndings(void (* /*told*/)()) {
    std::array<int, 2> pipe{-1, -1};
    if (!makeQuietPipe(pipe))
        return -1;
    writeEnd = pipe[1];
    for (const int signal : endings)
        handle(signal, wake);
    return pipe[0];
}

void clearEndings(int file) {
    char byte = 0;
    while (::read(file, &byte, 1) > 0) {
    }
}

void ignoreEndings(int file) {
    if (file < 0)
        return;
    for (const int signal : endings)
        handle(signal, SIG_DFL);
    ::close(file);
    ::close(writeEnd.exchange(-1));
}

} // namespace tarnel
