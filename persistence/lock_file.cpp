#include "persistence/lock_file.h"

#include "platform/path_text.h"

#include <utility>

namespace tarnel {

std::optional<LockFile> LockFile::take(const std::string& path) {
    std::filesystem::path place = pathOf(path);
    OpenFile file = openLocked(place);
    if (!file.isOpen())
        return {};
    // Whoever held the lock before may have removed the file.
    const auto held = factsOf(file.get());
    const auto named = factsOf(place);
    if (held && named && areOneFile(*held, *named))
        return LockFile(std::move(place), std::move(file));
    return {};
}

LockFile::LockFile(std::filesystem::path path, OpenFile open)
    : lockPath(std::move(path)), file(std::move(open)) {}

LockFile& LockFile::operator=(LockFile&& other) noexcept {
    std::swap(lockPath, other.lockPath);
    std::swap(file, other.file);
    return *this;
}

LockFile::~LockFile() {
    std::error_code ignored;
    if (file.isOpen())
        std::filesystem::remove(lockPath, ignored);
}

} // namespace tarnel
