#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarnel {

/// A folder of its own, gone at the end.
struct TemporaryFolder {
    TemporaryFolder() = default;
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path = (std::filesystem::temp_directory_path() / "tarnel-XXXXXX").string();
    const std::filesystem::path at = mkdtemp(path.data());
};

} // namespace tarnel
