#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnel {

/// The path that a text names. Texts of paths are UTF-8 on all systems; where the system's names
/// are bytes, any bytes are kept.
[[nodiscard]] std::filesystem::path pathOf(std::string_view text);

/// The text of a path, with "/" between the folders.
[[nodiscard]] std::string textOf(const std::filesystem::path& path);

} // namespace tarnel
