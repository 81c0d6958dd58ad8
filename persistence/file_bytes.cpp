#include "persistence/file_bytes.h"

#include "core/run_time_error.h"
#include "persistence/file_path.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnel {

namespace {

/// An open file, closed at the end.
class OpenFile {
  public:
    explicit OpenFile(const char* path)
        : descriptor(::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (descriptor >= 0)
            ::close(descriptor);
    }

    const int descriptor;
};

/// Why a file could not be opened.
Cause causeOf(int error, const std::filesystem::path& path) {
    constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
    std::error_code ignored;
    switch (error) {
    case ENOENT:
        if (std::filesystem::is_symlink(path, ignored))
            return Cause::linkLeadsNowhere;
        // The system's dialogs put this character where a name is not UTF-8.
        return path.native().find(replacementCharacter) == std::string::npos ? Cause::fileNotFound
                                                                             : Cause::nameNotUtf8;
    case ENOTDIR:
        return Cause::fileNotFound;
    case EACCES:
    case EPERM:
        return Cause::fileNotReadable;
    case ENAMETOOLONG:
        return Cause::nameTooLong;
    case EIO:
        return Cause::deviceError;
    default:
        return Cause::accessFailed;
    }
}

/// Fills `bytes` from the file. Returns how many there were.
std::size_t readInto(int file, std::string& bytes) {
    std::size_t used = 0;
    while (used < bytes.size()) {
        const ssize_t count = ::read(file, bytes.data() + used, bytes.size() - used);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            throw RunTimeError(errno == EIO ? Cause::deviceError : Cause::accessFailed);
        used += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return used;
}

} // namespace

std::string readFileBytes(const std::string& path, std::size_t limit) {
    const std::filesystem::path present = portablePath(path);
    struct stat found {};
    if (::stat(present.c_str(), &found) != 0)
        throw RunTimeError(causeOf(errno, present));
    if (!S_ISREG(found.st_mode))
        throw RunTimeError(Cause::notAFile);
    const OpenFile file(present.c_str());
    if (file.descriptor < 0)
        throw RunTimeError(causeOf(errno, present));
    if (::fstat(file.descriptor, &found) != 0 || !S_ISREG(found.st_mode))
        throw RunTimeError(Cause::notAFile); // it was replaced meanwhile
    const auto size = static_cast<std::size_t>(found.st_size);
    std::string bytes(std::min(size, limit) + 1, '\0');
    bytes.resize(readInto(file.descriptor, bytes));
    if (bytes.size() > limit)
        throw RunTimeError(Cause::fileTooLarge);
    return bytes;
}

} // namespace tarnel
