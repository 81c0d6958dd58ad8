#include "platform/process.h"

#include "platform/windows/system.h"

namespace tarnel {

int ownProcess() {
    return static_cast<int>(::GetCurrentProcessId());
}

/// One that may not be asked runs.
bool isRunning(int process) {
    const OwnHandle asked(::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process)));
    if (!asked.isOpen())
        return ::GetLastError() == ERROR_ACCESS_DENIED;
    return ::WaitForSingleObject(asked.get(), 0) == WAIT_TIMEOUT;
}

std::filesystem::path programFile() {
    constexpr std::size_t longest = 1 << 15;
    std::wstring path(longest, L'\0');
    const DWORD size = ::GetModuleFileNameW(nullptr, path.data(), longest);
    path.resize(size < longest ? size : 0);
    return path;
}

/// There is none.
void makeFileSizeLimitAnError() {}

} // namespace tarnel
