#pragma once

#include <string>

namespace tarnel {

/// The folder of what the program keeps for its user: "tarnel" in the system's folder for that,
/// which is `$XDG_DATA_HOME`, or where that is no path from the root on, ".local/share" of the home
/// folder.
[[nodiscard]] std::string userDataFolder();

/// The folder within it in which the user's own courses lie, each below its name.
[[nodiscard]] std::string userCourses();

} // namespace tarnel
