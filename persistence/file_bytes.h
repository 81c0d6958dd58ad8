#pragma once

#include <string>

namespace tarnel {

/// All bytes of the file at `path` (UTF-8; "/" or "\" between the folders). Throws the run-time
/// error 53 if there is no such file, 62 if it is larger than `limit` bytes, 75 if it can't be
/// read.
[[nodiscard]] std::string readFileBytes(const std::string& path, std::size_t limit);

} // namespace tarnel
