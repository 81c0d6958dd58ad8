#include "platform/local_peer.h"

#include "platform/posix/own_calls.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace tarnel {

namespace {

using Clock = std::chrono::steady_clock;

/// A local socket, closed at its end unless it was released.
class Socket {
  public:
    Socket() : descriptor(quietSocket()) {}
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    ~Socket() {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    [[nodiscard]] int get() const { return descriptor; }
    int release() { return std::exchange(descriptor, -1); }

  private:
    int descriptor;
};

/// Calls `use` with the address of `path`. False if it is too long for one.
template <class Use>
bool withAddress(const std::string& path, Use use) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::ranges::copy(path, address.sun_path);
    return use(reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// Waits until `socket` is ready for `events`. False if it is not by `end`.
bool waitFor(int socket, short events, Clock::time_point end) {
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        pollfd waiting{socket, events, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(std::max<long>(left.count(), 0)));
        if (ready > 0)
            return true;
        if (ready == 0 || errno != EINTR)
            return false;
    }
}

bool sendAll(int socket, const char* bytes, std::size_t count, Clock::time_point end) {
    while (count > 0) {
        const ssize_t sent = ::send(socket, bytes, count, quietSendFlags());
        if (sent < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        if (sent > 0) {
            bytes += sent;
            count -= static_cast<std::size_t>(sent);
        } else if (!waitFor(socket, POLLOUT, end)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::intptr_t listeningSocket(const std::string& path) {
    constexpr int mostWaiting = 32;
    Socket socket;
    ::unlink(path.c_str());
    const bool bound = withAddress(path, [&](const sockaddr* address, socklen_t size) {
        return ::bind(socket.get(), address, size);
    });
    return bound && ::listen(socket.get(), mostWaiting) == 0 ? socket.release() : -1;
}

std::string listeningName(const std::string& /*path*/) {
    return {};
}

bool handOver(const std::string& path, const std::string& message, Clock::time_point end) {
    const Socket socket;
    const bool connected = withAddress(path, [&](const sockaddr* address, socklen_t size) {
        return ::connect(socket.get(), address, size);
    });
    if (!connected || !isOfSameUser(socket.get()) ||
        !sendAll(socket.get(), message.c_str(), message.size() + 1, end))
        return false;
    char answer = 0;
    return waitFor(socket.get(), POLLIN, end) && ::recv(socket.get(), &answer, 1, 0) == 1;
}

} // namespace tarnel
