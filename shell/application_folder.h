#pragma once

#include <string>

namespace tarnel {

/// The folder that holds the charts and pictures: "../share/tarnel" as seen from the folder of the
/// running program, in a build as in an installation. UTF-8, without a slash at its end.
[[nodiscard]] std::string applicationFolder();

} // namespace tarnel
