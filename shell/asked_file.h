#pragma once

#include "shell/box_desk.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnel {

/// Writes bytes into a file that the user picks; a box tells if that failed. `bytes` is asked when
/// he has picked one; without any nothing is written.
void writeAskedFile(BoxDesk& boxes, const FileQuestion& question,
                    const std::function<std::optional<std::string>()>& bytes);

} // namespace tarnel
