#pragma once

#include <string>

namespace tarnel {

class ScriptedFlight;

/// Some lines about a flight that has been flown: its length, where it ended, and the boxes that
/// came up.
[[nodiscard]] std::string flightSummary(ScriptedFlight& flight);

/// The boxes that came up on a flight, one a line, and a line if the flight was stopped; empty if
/// nothing happened.
[[nodiscard]] std::string flightRemarks(const ScriptedFlight& flight);

} // namespace tarnel
