#pragma once

#include "core/geo_position.h"

#include <optional>
#include <string>

namespace tarnel {

/// VORs, NDBs and localizers.
enum class NavaidKind { omnirange, beacon, localizer };

/// A radio station as navigation data tell of it, as far as a chart can show it.
struct Navaid {
    NavaidKind kind = NavaidKind::omnirange;
    std::string identifier;
    std::string name;
    std::string airport; ///< its identifier, "EDDM"; empty en route or where the data don't say
    std::string runway;  ///< of a localizer, "26R"
    GeoPosition position;
    std::optional<double> frequency; ///< kHz; none for a localizer that was made of a runway
    bool hasDme = false;
    double variation = 0; ///< a VOR's: its 0 radial points so many degrees east of true north
    double course = 0;    ///< a localizer's: inbound, degrees true, 0 up to 360
};

} // namespace tarnel
