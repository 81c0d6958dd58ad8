#pragma once

#include "authoring/manoeuvres.h"
#include "persistence/session_file.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnel {

/// Straight to a station.
struct LegToStation {
    Slot station = Slot::vor1;
};
/// Outbound on a radial of the station that the leg before ended over or flew from.
struct LegOnRadial {
    Slot station = Slot::vor1;
    double radial = 0;
    double distance = 0; ///< NM
};
/// Around a station, until a turn leads from it onto the final course.
struct LegOnArc {
    Slot station = Slot::vor1;
    double distance = 0; ///< NM
    bool clockwise = true;
};
/// A holding over the station that the leg before ended over.
struct LegInHolding {
    Slot fix = Slot::ndb1;
    double inbound = 0;
    bool right = true;
    double minutes = 1; ///< of the inbound leg
};

struct ApproachLeg {
    int line = 0; ///< of the source
    int altitude = 0;
    std::variant<LegToStation, LegOnRadial, LegOnArc, LegInHolding> way;
};

/// Climb along the final course, then on to a station: straight there or, if a turn is given, once
/// the localizer's DME reads so many NM behind it.
struct MissedApproach {
    int altitude = 0;
    Slot station = Slot::vor1;
    std::optional<bool> right = {};
    double after = 0;
};

/// What a chart says that its session does not know. Altitudes and heights are feet.
struct ApproachSource {
    std::string file;
    std::string session; ///< of the trainer's menu: "orient eddk 32r"
    std::string place;
    std::string icao;
    std::string runway;
    std::optional<std::string> once = {}; ///< the runway's earlier name
    int elevation = 0;                    ///< of the threshold
    double length = 0;                    ///< of the runway, feet

    Slot initialStation = Slot::vor1;
    double initialRadial = 0;
    double initialDistance = 0; ///< NM
    int initialAltitude = 0;
    std::vector<ApproachLeg> legs;
    std::optional<double> cut = {}; ///< degrees at which the localizer is intercepted
    int finalAltitude = 0;          ///< at which the final approach begins
    std::optional<Slot> cross = {}; ///< a VOR whose radial tells the final approach fix, too
    MissedApproach missed;
};

/// The stations of a session under the names by which sources call them, at the places of its last
/// sample. The session must have a sample.
[[nodiscard]] AuthoredChart chartOf(const SessionFile& session);

/// The name of the session that a source belongs to. Throws PlanError.
[[nodiscard]] std::string sessionOf(std::string_view text, const std::string& file);

/// Reads the TOML text of a chart. Throws PlanError for the first mistake, unknown keys among them.
[[nodiscard]] ApproachSource readApproach(std::string_view text, const std::string& file,
                                          const AuthoredChart& chart);

} // namespace tarnel
