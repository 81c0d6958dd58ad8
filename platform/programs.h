#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tarnel {

/// The file by which a program is started that is `path`, with or without what the system puts
/// behind a program's name. Nothing if there is none that can be run.
[[nodiscard]] std::optional<std::string> runnable(const std::string& path);

/// What a program is called: the name of its file, without what the system puts behind it.
[[nodiscard]] std::string programName(const std::string& path);

/// The program that the system itself has for files whose names end so, such as ".pdf". Nothing if
/// there is none, and where that is for the desktop to say.
[[nodiscard]] std::optional<std::string> systemsProgramFor(const std::string& ending);

} // namespace tarnel
