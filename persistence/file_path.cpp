#include "persistence/file_path.h"

#include "platform/path_text.h"

#include <algorithm>

namespace tarnel {

std::filesystem::path portablePath(std::string path) {
    std::error_code failure;
    if (std::filesystem::symlink_status(pathOf(path), failure).type() ==
        std::filesystem::file_type::not_found)
        std::replace(path.begin(), path.end(), '\\', '/');
    return pathOf(path);
}

std::string absolutePath(const std::string& path) {
    std::error_code failure;
    const std::filesystem::path absolute = std::filesystem::absolute(pathOf(path), failure);
    return failure ? path : textOf(absolute);
}

} // namespace tarnel
