#include "persistence/lock_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarnel {

namespace {

/// Whether `file` still is what `path` means: whoever held the lock before removed it.
bool isStill(int file, const std::string& path) {
    struct stat held {};
    struct stat named {};
    return ::fstat(file, &held) == 0 && ::stat(path.c_str(), &named) == 0 &&
           held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

} // namespace

std::optional<LockFile> LockFile::take(const std::string& path) {
    constexpr mode_t ownersAlone = 0600;
    const int file =
        ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, ownersAlone);
    if (file < 0)
        return {};
    if (::flock(file, LOCK_EX | LOCK_NB) == 0 && isStill(file, path))
        return LockFile(path, file);
    ::close(file);
    return {};
}

LockFile::LockFile(std::string path, int file) : lockPath(std::move(path)), descriptor(file) {}

LockFile::LockFile(LockFile&& other) noexcept
    : lockPath(std::move(other.lockPath)), descriptor(std::exchange(other.descriptor, -1)) {}

LockFile& LockFile::operator=(LockFile&& other) noexcept {
    std::swap(lockPath, other.lockPath);
    std::swap(descriptor, other.descriptor);
    return *this;
}

LockFile::~LockFile() {
    if (descriptor < 0)
        return;
    ::unlink(lockPath.c_str());
    ::close(descriptor);
}

} // namespace tarnel
