#include "platform/posix/own_calls.h"

#include "platform/local_peer.h"
#include "platform/process.h"
#include "platform/user.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarnel {

bool makeQuietPipe(std::array<int, 2>& pipe) {
    return ::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) == 0;
}

int quietSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

int quietSendFlags() {
    return MSG_NOSIGNAL;
}

bool isOfSameUser(std::intptr_t socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

std::filesystem::path programFile() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure);
}

std::string dataFolder() {
    std::string given = environment("XDG_DATA_HOME");
    return given.starts_with('/') ? given : homeFolder() + "/.local/share";
}

} // namespace tarnel
