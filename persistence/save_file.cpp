#include "persistence/save_file.h"

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/process.h"

#include <cerrno>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view namePrefix = ".tarnel-";
constexpr std::string_view nameSuffix = ".tmp";

/// Why a file can't be made in a folder or written.
Cause causeOf(int error) {
    if (meansDiskFull(error))
        return Cause::diskFull;
    switch (error) {
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
std::optional<FileFacts> fileAt(const fs::path& target) {
    const auto found = factsOf(target);
    if (!found)
        return std::nullopt;
    if (!found->isRegular)
        throw RunTimeError(Cause::notAFile);
    if (const int refusal = refusalToWrite(target); refusal != 0)
        throw RunTimeError(refusal == EROFS ? Cause::diskReadOnly : Cause::fileReadOnly);
    return found;
}

/// A new file beside the one to be saved. Unless it got that one's name, it goes when it ends.
class NewFile {
  public:
    NewFile(const fs::path& target, DiskCalls& calls) : disk(calls) {
        constexpr int mostNames = 1000;
        const auto start = target.parent_path() / namePrefix;
        for (int i = 0; i < mostNames && !file.isOpen(); ++i) {
            path = textOf(start) + numberText(std::int64_t{ownProcess()}) + "-" +
                   numberText(std::int64_t{i}) + std::string(nameSuffix);
            file = OpenFile(disk.create(path.c_str()));
            if (!file.isOpen() && errno != EEXIST)
                failAs(errno);
        }
        if (!file.isOpen())
            failAs(EEXIST);
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        std::error_code ignored;
        file = OpenFile();
        if (!renamed)
            fs::remove(pathOf(path), ignored);
    }

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const std::ptrdiff_t count = disk.write(file.get(), bytes.data(), bytes.size());
            if (count == 0 || (count < 0 && errno != EINTR))
                failAs(count == 0 ? EIO : errno);
            if (count > 0)
                bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void takePermissionsOf(const FileFacts& present) { takePermissions(file.get(), present); }

    void store() {
        if (disk.fsync(file.get()) != 0)
            failAs(errno);
        if (disk.close(file.release()) != 0)
            failAs(errno);
    }

    void becomes(const fs::path& target) {
        if (disk.rename(path.c_str(), textOf(target).c_str()) != 0)
            failAs(errno);
        renamed = true;
    }

  private:
    DiskCalls& disk;
    std::string path;
    OpenFile file;
    bool renamed = false;
};

/// The process that made a new file of this name; nothing for other names.
std::optional<int> makerOf(std::string_view name) {
    if (!name.starts_with(namePrefix) || !name.ends_with(nameSuffix))
        return std::nullopt;
    name.remove_prefix(namePrefix.size());
    int maker = 0;
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
        const auto maker = makerOf(textOf(entry->path().filename()));
        if (!maker || isRunning(*maker))
            continue;
        std::error_code gone;
        if (entry->symlink_status(gone).type() == fs::file_type::regular &&
            entry->last_write_time(gone) < now - newFor && !gone)
            fs::remove(entry->path(), gone);
    }
}

} // namespace

void saveFileBytes(const std::string& path, std::string_view bytes) {
    DiskCalls disk;
    saveFileBytes(path, bytes, disk);
}

void saveFileBytes(const std::string& path, std::string_view bytes, DiskCalls& disk) {
    const fs::path target = targetOf(pathOf(path));
    const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
    const auto present = fileAt(target);
    NewFile file(target, disk);
    if (present)
        file.takePermissionsOf(*present);
    file.write(bytes);
    file.store();
    file.becomes(target);
    storeFolder(folder); // the file is whole either way, so a failure is no matter
    removeLeftFiles(folder);
}

} // namespace tarnel
