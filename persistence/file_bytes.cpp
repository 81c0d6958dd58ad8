#include "persistence/file_bytes.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tarnel {

std::string readFileBytes(const std::string& path, std::size_t limit) {
    constexpr auto source = "Tarnel";
    constexpr auto accessError = "Path/File access error";
    std::string portable = path;
    std::replace(portable.begin(), portable.end(), '\\', '/');
    std::error_code failure;
    if (!std::filesystem::exists(portable, failure))
        throw RunTimeError(RunTimeError::fileNotFound, source, "File not found");
    if (!std::filesystem::is_regular_file(portable, failure))
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    std::ifstream file(portable, std::ios::binary);
    if (!file)
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    std::string bytes(limit + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > limit)
        throw RunTimeError(RunTimeError::inputPastEnd, source, "File too large");
    if (file.bad())
        throw RunTimeError(RunTimeError::pathFileAccess, source, accessError);
    return bytes;
}

} // namespace tarnel
