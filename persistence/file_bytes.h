#pragma once

#include <string>

namespace tarnel {

/// All bytes of the file at `path`: any bytes, "/" between the folders. Where there is no such
/// file,
/// "\\" separates folders, too. What is no file (a folder, a device, a pipe) is not opened, and
/// nothing here waits. Throws a run-time error that tells the cause; `Cause::fileTooLarge` if there
/// are more than `limit` bytes.
[[nodiscard]] std::string readFileBytes(const std::string& path, std::size_t limit);

} // namespace tarnel
