#pragma once

#include "core/aircraft.h"
#include "core/geo_position.h"
#include "flights/plan_task.h"
#include "flights/range.h"
#include "instruments/ap_control_face.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// The values that a plan may hold.
namespace plan_limits {
constexpr Range<double> seconds{0, 24000};
constexpr Range<double> latitude{-70, 70};
constexpr Range<double> longitude{-180, 180};
constexpr Range<std::int64_t> direction{0, 360}; ///< headings, courses and the wind, degrees
/// Knots; 0 is allowed too.
constexpr Range<std::int64_t> airSpeed{static_cast<std::int64_t>(APControlFace::minimumTAS),
                                       static_cast<std::int64_t>(APControlFace::maximumTAS)};
constexpr Range<std::int64_t> windSpeed{0, 100}; ///< knots
constexpr Range<std::int64_t> vorSlot{0, 2};     ///< of a NAV receiver or DME
constexpr Range<std::int64_t> ndbSlot{0, 1};     ///< of the ADF
constexpr Range<std::int64_t> receiver{1, 2};
constexpr Range<std::int64_t> adfCard{1, 2};
constexpr std::size_t commentLength = 500; ///< characters
} // namespace plan_limits

/// What a hand does to the stopwatch.
enum class StopwatchPress { startOrStop, reset };

/// What the pilot sets at one moment. What is empty stays as it is.
struct FlightSettings {
    std::optional<std::int16_t> heading = {}; ///< of the heading bug, degrees
    std::optional<std::int16_t> tas = {};     ///< knots
    std::optional<std::int16_t> nav1 = {};    ///< slot 0 VOR 1, 1 VOR 2, 2 localizer
    std::optional<std::int16_t> nav2 = {};
    std::optional<std::int16_t> adf = {}; ///< slot 0 NDB 1, 1 NDB 2
    std::optional<std::int16_t> dme = {};
    std::optional<std::int16_t> obs2 = {}; ///< course of the left instrument, degrees
    std::optional<std::int16_t> obs3 = {}; ///< course of the right one
    std::optional<Wind> wind = {};
    std::optional<std::string> comment = {}; ///< begins here
    bool commentEnds = false;
    std::optional<StopwatchPress> stopwatch = {};
};

struct FlightEvent {
    double at = 0; ///< seconds
    FlightSettings settings;
};

/// How one of the two instruments is set up. What is empty stays as the trainer starts.
struct InstrumentPlan {
    std::optional<std::int16_t> type = {}; ///< a value of `Display`
    std::optional<std::int16_t> receiver = {};
    std::optional<std::int16_t> adfCard = {};
};

/// A flight that is written down: where and how it starts, and what the pilot does when.
struct FlightPlan {
    std::string file;                 ///< as it was named, for messages
    std::optional<std::string> chart; ///< path of its own chart
    int chartLine = 0;                ///< where the plan names it
    double seconds = 0;
    bool northUp = true;
    std::optional<GeoPosition> position;
    FlightSettings start; ///< its heading is also that of the aircraft
    InstrumentPlan inst2;
    InstrumentPlan inst3;
    std::optional<PlannedTask> task; ///< what it is debriefed by
    std::vector<FlightEvent> events; ///< in the order of their time, then as written
};

/// The simulation ticks until `seconds` of simulated time are reached or passed.
[[nodiscard]] int ticksUntil(double seconds);

/// "ADF", "RMI", "VOR", "HSI" or "DG" for a value of `Display`; nothing for any other.
[[nodiscard]] std::string_view instrumentWord(std::int16_t display);

/// The value of `Display` for such a word.
[[nodiscard]] std::optional<std::int16_t> displayOf(std::string_view word);

} // namespace tarnel
