#pragma once

#include "readers/desktop_entry.h"

#include <optional>
#include <string>

namespace tarnel {

/// The program that the user's desktop opens documents of a MIME type with: the first usable one
/// that the lists of "Association between MIME types and applications" 1.0.1 name as default, read
/// in the order given there. Nothing if they name none.
[[nodiscard]] std::optional<DesktopEntry> defaultProgram(const std::string& mimeType,
                                                         const DesktopFolders& folders);

} // namespace tarnel
