#include "persistence/save_file.h"

#include "core/number_text.h"
#include "core/run_time_error.h"

#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

constexpr mode_t permissionBits = 0777;
constexpr std::string_view namePrefix = ".tarnel-";
constexpr std::string_view nameSuffix = ".tmp";

/// Why a file can't be made in a folder or written.
Cause causeOf(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Cause::diskFull;
    case ENOENT:
    case ENOTDIR:
        return Cause::folderNotFound;
    case EIO:
        return Cause::deviceError;
    case EROFS:
        return Cause::diskReadOnly;
    case EACCES:
    case EPERM:
        return Cause::folderReadOnly;
    case ENAMETOOLONG:
        return Cause::nameTooLong;
    default:
        return Cause::accessFailed;
    }
}

[[noreturn]] void failAs(int error) {
    throw RunTimeError(causeOf(error));
}

/// The file that `path` means, behind any links; it need not be there.
fs::path targetOf(const fs::path& path) {
    constexpr int mostLinks = 40;
    fs::path target = path;
    std::error_code failure;
    for (int i = 0; i < mostLinks && fs::is_symlink(target, failure); ++i)
        target = target.parent_path() / fs::read_symlink(target, failure);
    return target;
}

/// What there is at `target`, nothing if there is nothing. Refuses what may not be overwritten.
std::optional<struct stat> fileAt(const fs::path& target) {
    struct stat found {};
    if (::stat(target.c_str(), &found) != 0)
        return std::nullopt;
    if (!S_ISREG(found.st_mode))
        throw RunTimeError(Cause::notAFile);
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        throw RunTimeError(errno == EROFS ? Cause::diskReadOnly : Cause::fileReadOnly);
    return found;
}

/// A new file beside the one to be saved. Unless it got that one's name, it goes when it ends.
class NewFile {
  public:
    NewFile(const fs::path& target, DiskCalls& calls) : disk(calls) {
        constexpr int mostNames = 1000;
        const auto start = target.parent_path() / namePrefix;
        for (int i = 0; i < mostNames && file < 0; ++i) {
            path = start.string() + numberText(std::int64_t{getpid()}) + "-" +
                   numberText(std::int64_t{i}) + std::string(nameSuffix);
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
    void takePermissionsOf(const struct stat& present) {
        constexpr mode_t everybody = 07;
        constexpr mode_t groupsPlace = 010;
        mode_t permissions = present.st_mode & permissionBits;
        if (::fchown(file, static_cast<uid_t>(-1), present.st_gid) != 0) {
            const mode_t shared = (permissions & everybody) * groupsPlace;
            permissions &= ~(everybody * groupsPlace) | shared;
        }
        (void)::fchown(file, present.st_uid, static_cast<gid_t>(-1));
        (void)::fchmod(file, permissions);
    }

    void store() {
        if (disk.fsync(file) != 0)
            failAs(errno);
        const int closing = std::exchange(file, -1);
        if (disk.close(closing) != 0)
            failAs(errno);
    }

    void becomes(const fs::path& target) {
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

/// The process that made a new file of this name; nothing for other names.
std::optional<pid_t> makerOf(std::string_view name) {
    if (!name.starts_with(namePrefix) || !name.ends_with(nameSuffix))
        return std::nullopt;
    name.remove_prefix(namePrefix.size());
    pid_t maker = 0;
    const auto read = std::from_chars(name.data(), name.data() + name.size(), maker);
    return read.ec == std::errc() && maker > 0 ? std::optional(maker) : std::nullopt;
}

/// Removes what programs left that were killed while they saved into `folder`. A process of another
/// computer may save there now, so what is new stays.
void removeLeftFiles(const fs::path& folder) {
    constexpr auto newFor = std::chrono::minutes(1);
    const auto now = fs::file_time_type::clock::now();
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const auto maker = makerOf(entry->path().filename().native());
        if (!maker || ::kill(*maker, 0) == 0 || errno != ESRCH)
            continue;
        std::error_code gone;
        if (entry->symlink_status(gone).type() == fs::file_type::regular &&
            entry->last_write_time(gone) < now - newFor && !gone)
            fs::remove(entry->path(), gone);
    }
}

/// Has the new name stored, too. The file is whole either way, so a failure is no matter.
void storeFolder(const fs::path& folder) {
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
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
    const fs::path target = targetOf(path);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
    const auto present = fileAt(target);
    NewFile file(target, disk);
    if (present)
        file.takePermissionsOf(*present);
    file.write(bytes);
    file.store();
    file.becomes(target);
    storeFolder(folder);
    removeLeftFiles(folder);
}

/// A handler that does nothing, unlike a signal that is ignored, is not handed on to the programs
/// that this one starts.
void makeFileSizeLimitAnError() {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    ::sigaction(SIGXFSZ, &action, nullptr);
}

} // namespace tarnel
