#include "platform/posix/own_calls.h"

#include "platform/local_peer.h"
#include "platform/process.h"
#include "platform/user.h"

#include <cstdint>
#include <fcntl.h>
#include <mach-o/dyld.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace tarnel {

namespace {

bool makeQuiet(int file) {
    return ::fcntl(file, F_SETFD, FD_CLOEXEC) == 0 && ::fcntl(file, F_SETFL, O_NONBLOCK) == 0;
}

} // namespace

bool makeQuietPipe(std::array<int, 2>& pipe) {
    return ::pipe(pipe.data()) == 0 && makeQuiet(pipe[0]) && makeQuiet(pipe[1]);
}

int quietSocket() {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int yes = 1;
    if (socket >= 0) {
        makeQuiet(socket);
        ::setsockopt(socket, SOL_SOCKET, SO_NOSIGPIPE, &yes, sizeof yes);
    }
    return socket;
}

int quietSendFlags() {
    return 0;
}

bool isOfSameUser(std::intptr_t socket) {
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(static_cast<int>(socket), &user, &group) == 0 && user == ::geteuid();
}

std::filesystem::path programFile() {
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::string path(size, '\0');
    std::error_code failure;
    return _NSGetExecutablePath(path.data(), &size) == 0
               ? std::filesystem::canonical(path.c_str(), failure)
               : std::filesystem::path();
}

std::string dataFolder() {
    return homeFolder() + "/Library/Application Support";
}

} // namespace tarnel
