#include "debrief/limits.h"

#include <array>
#include <cstddef>

namespace tarnel {
namespace {

struct Row {
    std::array<double, 3> figures; ///< by strictness
    std::string_view source;
};

constexpr std::array rows = {
#define LIMIT(name, wide, standard, checkRide, unit, source)                                       \
    Row{{wide, standard, checkRide}, source},
#include "debrief/limits.def"
};

constexpr const Row& rowOf(Limit limit) {
    return rows[static_cast<std::size_t>(limit)];
}

} // namespace

double limitOf(Limit limit, Strictness strictness) {
    return rowOf(limit).figures[static_cast<std::size_t>(strictness)];
}

std::string_view sourceOf(Limit limit) {
    return rowOf(limit).source;
}

} // namespace tarnel
