#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// Tells a variable of the environment; empty if it is not set.
using Environment = std::function<std::string(const char* name)>;

/// Where a desktop keeps what it knows of its programs, what counts most first: by the XDG Base
/// Directory Specification 0.8. All are paths from the root on.
struct DesktopFolders {
    explicit DesktopFolders(const Environment& environment);

    std::vector<std::string> config;
    std::vector<std::string> data;
    std::vector<std::string> programs;
    std::vector<std::string> desktops; ///< names of the desktop that runs, in lower case

    /// The path of a program that can be run; nothing if there is none of that name.
    [[nodiscard]] std::optional<std::string> program(const std::string& name) const;
};

} // namespace tarnel
