#include "platform/endings.h"

#include "platform/windows/system.h"

#include <atomic>

namespace tarnel {

namespace {

std::atomic<void (*)()> onEnding{nullptr};

/// Called by a thread of the system's. The program goes when this comes back from the closing of
/// its console, so that takes a while.
BOOL WINAPI hear(DWORD event) {
    constexpr DWORD longEnough = 10'000; // milliseconds; the system waits for less
    void (*told)() = onEnding;
    if (!told)
        return FALSE;
    told();
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::Sleep(longEnough);
    return TRUE;
}

} // namespace

int hearEndings(void (*told)()) {
    onEnding = told;
    ::SetConsoleCtrlHandler(hear, TRUE);
    return -1;
}

void clearEndings(int /*file*/) {}

void ignoreEndings(int /*file*/) {
    ::SetConsoleCtrlHandler(hear, FALSE);
    onEnding = nullptr;
}

} // namespace tarnel
