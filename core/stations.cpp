#include "core/stations.h"

namespace tarnel {

Stations defaultStations() {
    constexpr std::array<SplitPosition, slotCount> positions = {{
        {{49, 2}, {10, 58}},
        {{49, 4}, {11, 0}},
        {{49, 6}, {11, 2}},
        {{49, 8}, {11, 4}},
        {{49, 4}, {11, 6}},
    }};
    Stations stations;
    for (std::size_t i = 0; i < slotCount; ++i)
        stations[i].position = positions[i];
    return stations;
}

} // namespace tarnel
