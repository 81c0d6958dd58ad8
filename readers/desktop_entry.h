#pragma once

#include "readers/desktop_folders.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// `DesktopEntry`: how a program of the desktop is started.
struct DesktopEntry {
    std::string program; ///< path from the root on
    /// What follows, one word each. "%f" stands for the document's path, "%u" for its URL, "%%" for
    /// a percent sign; no other percent sign is left, and one of the words is "%f" or "%u" or holds
    /// it.
    std::vector<std::string> words;
};

/// Reads a desktop entry by the Desktop Entry Specification 1.5. Nothing if it is no application,
/// was taken away (`Hidden`), wants a terminal, isn't installed, or if its line can't be read.
[[nodiscard]] std::optional<DesktopEntry> readDesktopEntry(const std::string& path,
                                                           const DesktopFolders& folders);

} // namespace tarnel
