#include "core/holding_answer.h"

#include "core/angle.h"

namespace tarnel {

namespace {

/// `angle` with one turn added if it is negative, taken off if it reaches 360.
std::int16_t once(int angle) {
    return static_cast<std::int16_t>(notNegative(below360(angle)));
}

/// A sector's ends, both within, in degrees from the inbound course.
struct Sectors {
    int directFrom;
    int directTo;
    const char* low;  ///< the entry from behind `directTo` to 180
    const char* high; ///< the entry from 181 to before `directFrom`
    const char* directTurn;
    const char* parallelTurn;
};

constexpr Sectors rightTurns{290, 110, "offset", "parallel", "right", "left"};
constexpr Sectors leftTurns{250, 70, "parallel", "offset", "left", "right"};

const char* turnTo(std::int16_t heading, std::int16_t next) {
    if (heading == next)
        return "maintain";
    return heading > next ? "left" : "right";
}

} // namespace

void findHoldingAnswer(std::int16_t HDG, std::int16_t inbound, std::string& HLDtype,
                       std::string& entry, std::int16_t& outbound, std::int16_t& offsetHDG,
                       std::int16_t& abeam, std::int16_t& firstHDG, std::string& firstTurn) {
    const bool standard = HLDtype == "Standard";
    HLDtype = standard ? "1" : "0";
    const Sectors& sectors = standard ? rightTurns : leftTurns;
    const int side = standard ? 1 : -1;
    outbound = static_cast<std::int16_t>(inbound < 180 ? inbound + 180 : inbound - 180);
    abeam = once(inbound + side * 90);
    offsetHDG = once(inbound + side * 150);

    const int d = notNegative(HDG - inbound);
    if (d < 0 || d >= 360)
        return;
    if (d >= sectors.directFrom || d <= sectors.directTo)
        entry = "direct";
    else
        entry = d <= 180 ? sectors.low : sectors.high;
    firstHDG = entry == "offset" ? offsetHDG : outbound;
    if (entry == "offset")
        firstTurn = turnTo(HDG, offsetHDG);
    else
        firstTurn = entry == "direct" ? sectors.directTurn : sectors.parallelTurn;
}

} // namespace tarnel
