#pragma once

#include <cstdint>
#include <string>

namespace tarnel {

/// Finds how to join a holding and what to fly then. All headings and courses are whole degrees.
///
/// `HDG`, `inbound`: the present heading and the inbound course, 0 to 359.
/// `HLDtype`: in, "Standard" for a holding with right turns, anything else for left turns; out, "1"
/// or "0". `entry`: "direct", "parallel" or "offset". `outbound`: the reciprocal of `inbound`.
/// `offsetHDG`: the heading of an offset entry, 30 degrees off the outbound course on the holding
/// side. `abeam`: square to `inbound` on the holding side. `firstHDG`, `firstTurn`: the heading
/// behind the station, and "left", "right" or "maintain" for the way to it.
///
/// The heading, counted from the inbound course, falls into a sector. Standard: direct from 290
/// over north to 110, offset from 111 to 180, parallel from 181 to 289. Left turns: direct from 250
/// to 70, parallel from 71 to 180, offset from 181 to 249. In none of them (a heading of 360 or
/// more), `entry`, `firstHDG` and `firstTurn` keep their values. The turn of an offset entry goes
/// by plain comparison of the numbers, even if it is the long way over north.
void findHoldingAnswer(std::int16_t HDG, std::int16_t inbound, std::string& HLDtype,
                       std::string& entry, std::int16_t& outbound, std::int16_t& offsetHDG,
                       std::int16_t& abeam, std::int16_t& firstHDG, std::string& firstTurn);

} // namespace tarnel
