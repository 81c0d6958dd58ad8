#include "platform/programs.h"

#include <unistd.h>

namespace tarnel {

std::optional<std::string> runnable(const std::string& path) {
    std::error_code failure;
    const bool runs =
        std::filesystem::is_regular_file(path, failure) && ::access(path.c_str(), X_OK) == 0;
    return runs ? std::optional(path) : std::nullopt;
}

std::string programName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

/// The desktop's lists say it.
std::optional<std::string> systemsProgramFor(const std::string& /*ending*/) {
    return {};
}

} // namespace tarnel
