#include "core/reference_track.h"

#include <algorithm>
#include <iterator>

namespace tarnel {

Lamps referenceLamps(double distance) {
    static constexpr double limits[] = {0.33, 0.66, 1.0, 1.33, 1.66, 2.0, 2.33, 2.66};
    const auto step = static_cast<std::size_t>(
        std::upper_bound(std::begin(limits), std::end(limits), distance) - std::begin(limits));
    constexpr std::size_t firstRed = 6;
    Lamps lamps{};
    if (step < firstRed)
        lamps[step] = step < 3 ? Lamp::green : Lamp::orange;
    for (std::size_t lamp = firstRed; lamp <= step; ++lamp)
        lamps[lamp] = Lamp::red;
    return lamps;
}

GeoPosition ReferenceTrack::at(int sample) const {
    if (sample < 1 || static_cast<std::size_t>(sample) > points.size())
        return {0, 0};
    return points[static_cast<std::size_t>(sample) - 1];
}

} // namespace tarnel
