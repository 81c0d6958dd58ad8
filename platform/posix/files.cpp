#include "platform/files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnel {

namespace {

constexpr mode_t permissionBits = 0777;

FileFacts factsFrom(const struct stat& found) {
    return {.isRegular = S_ISREG(found.st_mode),
            .device = static_cast<std::uint64_t>(found.st_dev),
            .number = static_cast<std::uint64_t>(found.st_ino),
            .size = static_cast<std::size_t>(found.st_size),
            .changed = found.st_mtime,
            .permissions = found.st_mode & permissionBits,
            .owner = found.st_uid,
            .group = found.st_gid};
}

} // namespace

OpenFile::~OpenFile() {
    if (isOpen())
        ::close(number);
}

OpenFile openToRead(const std::filesystem::path& path) {
    return OpenFile(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

OpenFile openToWrite(const std::filesystem::path& path) {
    return OpenFile(::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC));
}

int standardOutputFile() {
    return STDOUT_FILENO;
}

std::ptrdiff_t readFile(int file, char* bytes, std::size_t count) {
    return ::read(file, bytes, count);
}

std::ptrdiff_t writeFile(int file, const char* bytes, std::size_t count) {
    return ::write(file, bytes, count);
}

OpenFile openLocked(const std::filesystem::path& path) {
    constexpr mode_t ownersAlone = 0600;
    OpenFile file(
        ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, ownersAlone));
    return file.isOpen() && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(file)
                                                                        : OpenFile();
}

std::optional<FileFacts> factsOf(const std::filesystem::path& path) {
    struct stat found {};
    return ::stat(path.c_str(), &found) == 0 ? std::optional(factsFrom(found)) : std::nullopt;
}

std::optional<FileFacts> factsOf(int file) {
    struct stat found {};
    return ::fstat(file, &found) == 0 ? std::optional(factsFrom(found)) : std::nullopt;
}

bool areOneFile(const FileFacts& one, const FileFacts& other) {
    return one.number == other.number && one.device == other.device;
}

int refusalToWrite(const std::filesystem::path& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

void takePermissions(int file, const FileFacts& from) {
    constexpr mode_t everybody = 07;
    constexpr mode_t groupsPlace = 010;
    mode_t permissions = static_cast<mode_t>(from.permissions);
    if (::fchown(file, static_cast<uid_t>(-1), from.group) != 0) {
        const mode_t shared = (permissions & everybody) * groupsPlace;
        permissions &= ~(everybody * groupsPlace) | shared;
    }
    (void)::fchown(file, from.owner, static_cast<gid_t>(-1));
    (void)::fchmod(file, permissions);
}

void storeFolder(const std::filesystem::path& folder) {
    const OpenFile file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.isOpen())
        ::fsync(file.get());
}

bool isUsersAlone(const std::filesystem::path& folder) {
    constexpr mode_t others = 077;
    struct stat found {};
    return ::lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid() && (found.st_mode & others) == 0;
}

bool makeUsersAlone(const std::filesystem::path& folder) {
    constexpr mode_t usersAlone = 0700;
    return ::mkdir(folder.c_str(), usersAlone) == 0 || errno == EEXIST;
}

} // namespace tarnel
