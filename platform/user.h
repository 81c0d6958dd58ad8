#pragma once

#include <string>

namespace tarnel {

/// A variable of the environment; empty if it is not set.
[[nodiscard]] std::string environment(const char* name);
/// What stands between the paths of a list in the environment.
extern const char pathSeparator;

/// The folder of all that is the user's; empty if the system names none.
[[nodiscard]] std::string homeFolder();
/// The folder in which programs keep what is the user's, each below its name.
[[nodiscard]] std::string dataFolder();
/// The folder of the user's downloads; empty where a list of the desktop has to be asked.
[[nodiscard]] std::string downloadsFolder();

/// The language and the country that the user has chosen, such as "de_DE.UTF-8"; the first letters
/// tell the language.
[[nodiscard]] std::string localeName();

} // namespace tarnel
