#include "platform/disk_calls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tarnel {

int DiskCalls::create(const char* path) {
    constexpr mode_t usualPermissions = 0666; // less those of the umask
    return ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, usualPermissions);
}

std::ptrdiff_t DiskCalls::write(int file, const char* bytes, std::size_t count) {
    return ::write(file, bytes, count);
}

int DiskCalls::fsync(int file) {
    return ::fsync(file);
}

int DiskCalls::close(int file) {
    return ::close(file);
}

int DiskCalls::rename(const char* from, const char* to) {
    return ::rename(from, to);
}

bool meansDiskFull(int error) {
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

} // namespace tarnel
