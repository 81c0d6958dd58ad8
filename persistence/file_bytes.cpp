#include "persistence/file_bytes.h"

#include "core/run_time_error.h"
#include "persistence/file_path.h"
#include "platform/files.h"
#include "platform/path_text.h"

#include <algorithm>
#include <cerrno>

namespace tarnel {

namespace {

/// Why a file could not be opened.
Cause causeOf(int error, const std::filesystem::path& path) {
    constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
    std::error_code ignored;
    switch (error) {
    case ENOENT:
        if (std::filesystem::is_symlink(path, ignored))
            return Cause::linkLeadsNowhere;
        // The system's dialogs put this character where a name is not UTF-8.
        return textOf(path).find(replacementCharacter) == std::string::npos ? Cause::fileNotFound
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
        const std::ptrdiff_t count = readFile(file, bytes.data() + used, bytes.size() - used);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            throw RunTimeError(errno == EIO ? Cause::deviceError : Cause::accessFailed);
        used += static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0));
    }
    return used;
}

} // namespace

std::string readFileBytes(const std::string& path, std::size_t limit) {
    const std::filesystem::path present = portablePath(path);
    auto found = factsOf(present);
    if (!found)
        throw RunTimeError(causeOf(errno, present));
    if (!found->isRegular)
        throw RunTimeError(Cause::notAFile);
    const OpenFile file = openToRead(present);
    if (!file.isOpen())
        throw RunTimeError(causeOf(errno, present));
    found = factsOf(file.get());
    if (!found || !found->isRegular)
        throw RunTimeError(Cause::notAFile); // it was replaced meanwhile
    std::string bytes(std::min(found->size, limit) + 1, '\0');
    bytes.resize(readInto(file.get(), bytes));
    if (bytes.size() > limit)
        throw RunTimeError(Cause::fileTooLarge);
    return bytes;
}

} // namespace tarnel
