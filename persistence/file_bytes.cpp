#include "persistence/file_bytes.h"

#include "core/run_time_error.h"
#include "persistence/file_path.h"

#include <algorithm>
#include <fstream>

namespace tarnel {

namespace {

/// What `file` holds, but at most one byte more than `limit`. `expected` is its size so far as is
/// known.
std::string readUpTo(std::ifstream& file, std::size_t limit, std::size_t expected) {
    constexpr std::size_t leastPart = 4096;
    std::string bytes;
    std::size_t part = std::min(expected, limit) + 1;
    while (file && bytes.size() <= limit) {
        const std::size_t before = bytes.size();
        bytes.resize(before + std::min(part, limit + 1 - before));
        file.read(bytes.data() + before, static_cast<std::streamsize>(bytes.size() - before));
        bytes.resize(before + static_cast<std::size_t>(file.gcount()));
        part = std::max(part, leastPart);
    }
    return bytes;
}

} // namespace

std::string readFileBytes(const std::string& path, std::size_t limit) {
    constexpr auto source = "Tarnel";
    constexpr auto accessError = "Path/File access error";
    const std::filesystem::path portable = portablePath(path);
    std::error_code failure;
    if (!std::filesystem::exists(portable, failure))
        throw RunTimeError(RunTimeError::fileNotFound, source, "File not found");
    if (!std::filesystem::is_regular_file(portable, failure))
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    const auto size = std::filesystem::file_size(portable, failure);
    std::ifstream file(portable, std::ios::binary);
    if (!file)
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    std::string bytes = readUpTo(file, limit, failure ? 0 : size);
    if (bytes.size() > limit)
        throw RunTimeError(RunTimeError::inputPastEnd, source, "File too large");
    if (file.bad())
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    return bytes;
}

} // namespace tarnel
