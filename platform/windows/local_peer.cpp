#include "platform/local_peer.h"

#include "platform/windows/system.h"

#include <algorithm>
#include <thread>
#include <vector>

namespace tarnel {

namespace {

using Clock = std::chrono::steady_clock;

DWORD millisecondsTo(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    return static_cast<DWORD>(std::max<std::int64_t>(left.count(), 0));
}

/// Who runs a process, as the bytes that name a user; empty if that may not be asked.
std::vector<unsigned char> userOf(HANDLE process) {
    HANDLE taken = nullptr;
    if (!::OpenProcessToken(process, TOKEN_QUERY, &taken))
        return {};
    const OwnHandle token(taken);
    DWORD size = 0;
    ::GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<unsigned char> bytes(size);
    if (!::GetTokenInformation(token.get(), TokenUser, bytes.data(), size, &size))
        return {};
    PSID user = reinterpret_cast<const TOKEN_USER*>(bytes.data())->User.Sid;
    const auto* first = static_cast<const unsigned char*>(user);
    return {first, first + ::GetLengthSid(user)};
}

bool isOwnUser(DWORD process) {
    const OwnHandle other(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process));
    const auto own = userOf(::GetCurrentProcess());
    return other.isOpen() && !own.empty() && userOf(other.get()) == own;
}

/// Waits for what was begun on a pipe, and takes it back if it lasts too long.
bool finishes(HANDLE pipe, OVERLAPPED& begun, Clock::time_point end, DWORD& count) {
    if (::GetLastError() != ERROR_IO_PENDING)
        return false;
    if (::WaitForSingleObject(begun.hEvent, millisecondsTo(end)) != WAIT_OBJECT_0)
        ::CancelIo(pipe);
    return ::GetOverlappedResult(pipe, &begun, &count, TRUE) != 0;
}

bool sendAll(HANDLE pipe, HANDLE event, const std::string& bytes, Clock::time_point end) {
    OVERLAPPED begun{};
    begun.hEvent = event;
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    return (::WriteFile(pipe, bytes.data(), size, &count, &begun) ||
            finishes(pipe, begun, end, count)) &&
           count == size;
}

bool isAnswered(HANDLE pipe, HANDLE event, Clock::time_point end) {
    OVERLAPPED begun{};
    begun.hEvent = event;
    char answer = 0;
    DWORD count = 0;
    return (::ReadFile(pipe, &answer, 1, &count, &begun) || finishes(pipe, begun, end, count)) &&
           count == 1;
}

} // namespace

bool isOfSameUser(std::intptr_t socket) {
    ULONG process = 0;
    const auto pipe = reinterpret_cast<HANDLE>(socket);
    return ::GetNamedPipeClientProcessId(pipe, &process) && isOwnUser(process);
}

std::intptr_t listeningSocket(const std::string& /*path*/) {
    return -1;
}

std::string listeningName(const std::string& path) {
    std::string name = path;
    std::ranges::replace_if(
        name, [](char sign) { return sign == '/' || sign == '\\' || sign == ':'; }, '-');
    return "\\\\.\\pipe\\" + name;
}

bool handOver(const std::string& path, const std::string& message, Clock::time_point end) {
    const std::wstring name = wide(listeningName(path));
    ::WaitNamedPipeW(name.c_str(), std::max<DWORD>(millisecondsTo(end), 1));
    const OwnHandle pipe(::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr));
    const OwnHandle event(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    ULONG server = 0;
    return pipe.isOpen() && event.isOpen() && ::GetNamedPipeServerProcessId(pipe.get(), &server) &&
           isOwnUser(server) && sendAll(pipe.get(), event.get(), message + '\0', end) &&
           isAnswered(pipe.get(), event.get(), end);
}

} // namespace tarnel
