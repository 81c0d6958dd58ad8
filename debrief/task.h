#pragma once

#include "core/recording.h"
#include "core/stations.h"

#include <optional>
#include <variant>
#include <vector>

namespace tarnel {

/// The way round of a holding's turns.
enum class HoldingSide { left, right };

/// A radial, QDM or QDR: a line over a station that is flown in one direction.
struct LineTask {
    Slot station = Slot::vor1;
    double course = 0;              ///< degrees true that it is flown on
    bool inbound = true;            ///< towards the station
    bool joins = false;             ///< from beside it: how it was joined is judged, too
    std::optional<double> cut = {}; ///< degrees, where an angle of intercept is asked for
    bool operator==(const LineTask&) const = default;
};

struct HoldTask {
    Slot fix = Slot::vor1;
    double inbound = 0; ///< degrees true
    HoldingSide side = HoldingSide::right;
    double minutes = 1; ///< of the inbound leg
    bool operator==(const HoldTask&) const = default;
};

/// Round a station at a distance by DME, then onto a course over the station.
struct ArcTask {
    Slot station = Slot::vor1;
    double distance = 0; ///< NM
    bool clockwise = true;
    double final = 0; ///< degrees true
    bool inbound = true;
    bool operator==(const ArcTask&) const = default;
};

/// A flight to be flown after.
struct ReferenceTask {
    std::vector<Sample> samples; ///< element 0 is sample 1
    bool operator==(const ReferenceTask&) const = default;
};

/// The whole holding in a wind: its corrections and times are what is judged.
struct WindTask {
    HoldTask holding;
    bool operator==(const WindTask&) const = default;
};

using Task = std::variant<LineTask, HoldTask, ArcTask, ReferenceTask, WindTask>;

} // namespace tarnel
