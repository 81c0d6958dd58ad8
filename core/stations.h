#pragma once

#include "core/chart_plot.h"
#include "core/geo_position.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tarnel {

/// The five station slots, in this order everywhere.
enum class Slot : std::size_t { vor1, vor2, ndb1, ndb2, localizer };
constexpr std::size_t slotCount = 5;

/// As many characters may a station's identifier or frequency have.
constexpr int longestStationText = 40;

/// 16-bit booleans of the system.
constexpr std::int16_t off = 0;
constexpr std::int16_t on = -1;

/// Where a station stands. Its name, frequency and enables are properties of `UserControl2`.
struct Station {
    SplitPosition position;
    ChartPlace place;                 ///< rebuilt with each drawing of the chart
    std::int16_t labelOffsetX = -200; ///< twips from the station to its name label
    std::int16_t labelOffsetY = -555;
    bool buttonDown = true; ///< the station's on/off button
};

using Stations = std::array<Station, slotCount>;

/// The element of a per-slot array that belongs to `slot`.
template <class Array>
[[nodiscard]] constexpr auto& inSlot(Array& array, Slot slot) {
    return array[static_cast<std::size_t>(slot)];
}

/// The VORs and the localizer have a DME, the NDBs have none.
[[nodiscard]] constexpr bool hasDme(Slot slot) {
    return slot != Slot::ndb1 && slot != Slot::ndb2;
}
[[nodiscard]] constexpr bool hasDme(std::size_t slot) {
    return hasDme(static_cast<Slot>(slot));
}

/// The stations of a chart that was never loaded.
[[nodiscard]] Stations defaultStations();

} // namespace tarnel
