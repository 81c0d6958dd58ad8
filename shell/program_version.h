#pragma once

#include <string_view>

namespace tarnel {

/// The version of the program, such as "1.2.0".
[[nodiscard]] std::string_view programVersion();

} // namespace tarnel
