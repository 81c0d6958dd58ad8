#pragma once

#include <string_view>

namespace tarnel {

/// How closely a flight has to be flown.
enum class Strictness { wide, standard, checkRide };

/// What is limited; one row each in `limits.def`.
enum class Limit {
#define LIMIT(name, wide, standard, checkRide, unit, source) name,
#include "debrief/limits.def"
};

/// In the unit of its row.
[[nodiscard]] double limitOf(Limit limit, Strictness strictness);
/// The regulation or book that the standard figure comes from, as it is cited.
[[nodiscard]] std::string_view sourceOf(Limit limit);

} // namespace tarnel
