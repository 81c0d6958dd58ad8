#pragma once

#include "persistence/session_file.h"

#include <string>

namespace tarnel {

/// Reads the bytes of a session of an earlier version, which is always plain: comments, six lines
/// of states, then samples of 40 lines and one of separation. Of positions only the first sample's
/// counts; the others are flown from it by heading, airspeed and wind, 4/3 seconds a sample.
///
/// A station's state tells whether the station is on (`ChartStation::stationOn`): 0 or 1, anything
/// else leaves it open. A map centre up to 1 is left open too. There are no identifiers and no map
/// scale. Otherwise as `readSession`.
[[nodiscard]] SessionFile readOlderSession(std::string bytes);

} // namespace tarnel
