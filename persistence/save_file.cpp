#include "persistence/save_file.h"

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "persistence/file_path.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarnel {

namespace {

constexpr mode_t permissionBits = 0777;

[[noreturn]] void fail(int number, const char* description) {
    throw RunTimeError(number, "Tarnel", description);
}

[[noreturn]] void failAs(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        fail(RunTimeError::diskFull, "Disk full");
    case ENOENT:
    case ENOTDIR:
        fail(RunTimeError::pathNotFound, "Path not found");
    case EIO:
        fail(RunTimeError::deviceInputOutput, "Device I/O error");
    default:
        fail(RunTimeError::pathFileAccess, "Path/File access error");
    }
}

/// The file that `path` means, behind any links.
std::filesystem::path targetOf(const std::string& path) {
    const std::filesystem::path target = portablePath(path);
    std::error_code failure;
    const std::filesystem::path behindLinks = std::filesystem::canonical(target, failure);
    return failure ? target : behindLinks;
}

/// The permissions of the file at `target`, nothing if there is none. Refuses what may not be
/// overwritten.
std::optional<mode_t> permissionsOf(const std::filesystem::path& target) {
    struct stat found {};
    if (::stat(target.c_str(), &found) != 0)
        return std::nullopt;
    if (!S_ISREG(found.st_mode) || ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        failAs(EACCES);
    return found.st_mode & permissionBits;
}

/// A new file beside the one to be saved. Unless it got that one's name, it goes when it ends.
class NewFile {
  public:
    NewFile(const std::filesystem::path& target, DiskCalls& calls) : disk(calls) {
        constexpr int mostNames = 1000;
        const auto start = target.parent_path() / (".tarnel-" + numberText(std::int64_t{getpid()}));
        for (int i = 0; i < mostNames && file < 0; ++i) {
            path = start.string() + "-" + numberText(std::int64_t{i}) + ".tmp";
            file = disk.create(path.c_str());
            if (file < 0 && errno != EEXIST)
                failAs(errno);
        }
        if (file < 0)
            failAs(EEXIST);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (file >= 0)
            ::close(file);
        if (!renamed)
            ::unlink(path.c_str());
    }

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t count = disk.write(file, bytes.data(), bytes.size());
            if (count == 0 || (count < 0 && errno != EINTR))
                failAs(count == 0 ? EIO : errno);
            if (count > 0)
                bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    /// Not every disk knows permissions: where they can't be had, the file goes before them.
    void store(std::optional<mode_t> permissions) {
        if (permissions)
            (void)::fchmod(file, *permissions);
        if (disk.fsync(file) != 0)
            failAs(errno);
        const int closing = std::exchange(file, -1);
        if (disk.close(closing) != 0)
            failAs(errno);
    }

    void becomes(const std::filesystem::path& target) {
        if (disk.rename(path.c_str(), target.c_str()) != 0)
            failAs(errno);
        renamed = true;
    }

  private:
    DiskCalls& disk;
    std::string path;
    int file = -1;
    bool renamed = false;
};

/// Has the new name stored, too. The file is whole either way, so a failure is no matter.
void storeFolder(const std::filesystem::path& target) {
    const std::filesystem::path folder = target.parent_path();
    const int file =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
}

} // namespace

int DiskCalls::create(const char* path) {
    constexpr mode_t usualPermissions = 0666; // less those of the umask
    return ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, usualPermissions);
}

ssize_t DiskCalls::write(int file, const char* bytes, std::size_t count) {
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

void saveFileBytes(const std::string& path, std::string_view bytes) {
    DiskCalls disk;
    saveFileBytes(path, bytes, disk);
}

void saveFileBytes(const std::string& path, std::string_view bytes, DiskCalls& disk) {
    const std::filesystem::path target = targetOf(path);
    const auto permissions = permissionsOf(target);
    NewFile file(target, disk);
    file.write(bytes);
    file.store(permissions);
    file.becomes(target);
    storeFolder(target);
}

} // namespace tarnel
