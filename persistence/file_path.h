#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

/// The file that `path` names: with "\" between the folders, too, unless something has that very
/// name, in which a "\" is a letter like any other.
[[nodiscard]] std::filesystem::path portablePath(std::string path);

/// `path`, which may be relative to the working folder, from the root on.
[[nodiscard]] std::string absolutePath(const std::string& path);

} // namespace tarnel
