#pragma once

#include "platform/path_text.h"

#include <filesystem>
#include <random>
#include <string>

namespace tarnel {

/// A folder of its own, gone at the end.
struct TemporaryFolder {
    TemporaryFolder() = default;
    ~TemporaryFolder() { std::filesystem::remove_all(at); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    static std::filesystem::path make() {
        std::random_device dice;
        for (;;) {
            const auto path =
                std::filesystem::temp_directory_path() / ("tarnel-" + std::to_string(dice()));
            if (!std::filesystem::create_directory(path))
                continue;
            std::filesystem::permissions(path, std::filesystem::perms::owner_all);
            return path;
        }
    }

    const std::filesystem::path at = make();
    const std::string path = textOf(at);
};

} // namespace tarnel
