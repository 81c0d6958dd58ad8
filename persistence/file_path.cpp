#include "persistence/file_path.h"

#include <algorithm>

namespace tarnel {

std::filesystem::path portablePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

} // namespace tarnel
