#pragma once

#include "authoring/authored_chart.h"
#include "authoring/local_text.h"
#include "authoring/manoeuvres.h"
#include "flights/flight_plan.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnel {

/// The present heading, for so long.
struct Straight {
    double seconds = 0;
};
struct TurnTo {
    double heading = 0;
    Turn turn = Turn::shorter;
};
/// Along a course line, for so long, to a distance from its station, or until over that.
struct TrackAlong {
    CourseLine line;
    std::optional<double> seconds = {};
    std::optional<double> distance = {}; ///< NM over the ground
};
/// The present heading to a station.
struct FlyOver {
    Slot station = Slot::vor1;
};
/// The nose to a station at every moment, whatever the wind does, until over it or as near as that.
struct HomeTo {
    Slot station = Slot::vor1;
    std::optional<double> distance = {}; ///< NM over the ground
};
/// On a heading until a station's radial is reached.
struct ToRadial {
    Slot station = Slot::vor1;
    double radial = 0;
};

using Manoeuvre =
    std::variant<Straight, TurnTo, TrackAlong, FlyOver, HomeTo, ToRadial, Intercept, Holding, Arc>;

/// A part of a written flight: what is said and set at its beginning, and what is flown then.
struct RouteLeg {
    int line = 0; ///< of the source
    LocalText comment;
    LocalText turnComment; ///< where an intercept turns onto its line
    FlightSettings settings;
    bool restartsStopwatch = false;
    Manoeuvre manoeuvre;
};

/// A flight as a teacher writes it, to be looked at, replayed and flown beside.
struct Route {
    std::string file;
    std::string name; ///< of its session: "adf practise 01"
    AuthoredChart chart;
    FlightPlan start;
    std::vector<RouteLeg> legs;
};

/// Reads the TOML text of a flight; otherwise as `readCourse`.
[[nodiscard]] Route readRoute(std::string_view text, const std::string& file,
                              const ChartShelf& charts);

/// Flies a leg: says, sets, flies. In the comment "{heading}", "{clock}", "{radial:MUN}",
/// "{qdm:MUN}", "{relative:MUN}", "{dme:MUN}" and "{distance:MUN}", which is over the ground,
/// become what is read at that moment, and "{lead}" the degrees to an intercepted line.
void flyLeg(Pilot& pilot, const RouteLeg& leg);

} // namespace tarnel
