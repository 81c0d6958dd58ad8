#include "platform/process.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace tarnel {

int ownProcess() {
    return ::getpid();
}

bool isRunning(int process) {
    return ::kill(process, 0) == 0 || errno != ESRCH;
}

/// A handler that does nothing, unlike a signal that is ignored, is not handed on to the programs
/// that this one starts.
void makeFileSizeLimitAnError() {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    ::sigaction(SIGXFSZ, &action, nullptr);
}

} // namespace tarnel
