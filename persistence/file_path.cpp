#include "persistence/file_path.h"

#include <algorithm>

namespace tarnel {

std::filesystem::path portablePath(std::string path) {
    std::error_code failure;
    if (std::filesystem::symlink_status(path, failure).type() ==
        std::filesystem::file_type::not_found)
        std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string absolutePath(const std::string& path) {
    std::error_code failure;
    const std::filesystem::path absolute = std::filesystem::absolute(path, failure);
    return failure ? path : absolute.string();
}

} // namespace tarnel
