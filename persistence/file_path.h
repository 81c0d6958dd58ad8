#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

/// `path` in UTF-8 with "/" or "\" between the folders, as this system has it.
[[nodiscard]] std::filesystem::path portablePath(std::string path);

} // namespace tarnel
