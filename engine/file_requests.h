#pragma once

#include <cstdint>

namespace tarnel {

/// What `c_loadChart`, `c_saveSession` and their like ask for.
namespace fileRequest {
constexpr std::int16_t ask = 1;       ///< the user picks the file
constexpr std::int16_t byName = 2;    ///< the present name
constexpr std::int16_t temporary = 3; ///< the copy of a practice flight
} // namespace fileRequest

} // namespace tarnel
