#include "debrief/flown_path.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

std::vector<TurnSpan> turnsOf(std::span<const Sample> flight) {
    constexpr double least = 0.4; ///< degrees from one sample to the next
    std::vector<TurnSpan> turns;
    for (int i = 1; i < static_cast<int>(flight.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const double change = turnBetween(flight[at - 1].traceHeading, flight[at].traceHeading);
        if (std::abs(change) < least)
            continue;
        const bool goesOn = !turns.empty() && turns.back().last >= i - 1 &&
                            std::signbit(turns.back().degrees) == std::signbit(change);
        if (!goesOn)
            turns.push_back({i - 1, i, 0});
        turns.back().last = i;
        turns.back().degrees += change;
    }
    return turns;
}

FlownPath::FlownPath(std::span<const Sample> flight, Slot station)
    : samples(flight), slot(station), flownTurns(turnsOf(flight)) {
    if (flight.empty())
        return;
    stationPlace = inSlot(flight.front().traceStations, station);
    seen.reserve(flight.size());
    for (const Sample& sample : flight)
        seen.push_back(fromStation(stationPlace, {sample.traceLat, sample.traceLon}));
}

bool FlownPath::inCone(int i) const {
    // Within 45 degrees of overhead, a mile at the altitude that is flown.
    return from(i).distance < std::max(1.0, slantRange(0, fixedAltitude));
}

bool FlownPath::inTurn(int i, double atLeast) const {
    const TurnSpan* turn = turnBefore(i, atLeast);
    return turn && i < turn->last;
}

const TurnSpan* FlownPath::turnAfter(int from, double atLeast) const {
    const auto found = std::ranges::find_if(flownTurns, [&](const TurnSpan& turn) {
        return turn.first >= from && std::abs(turn.degrees) >= atLeast;
    });
    return found == flownTurns.end() ? nullptr : &*found;
}

const TurnSpan* FlownPath::turnBefore(int until, double atLeast) const {
    const auto end = std::ranges::upper_bound(flownTurns, until, {}, &TurnSpan::first);
    for (auto turn = end; turn != flownTurns.begin();)
        if (std::abs((--turn)->degrees) >= atLeast)
            return &*turn;
    return nullptr;
}

WindTriangle triangleAt(const FlownPath& path, int sample, double course) {
    return windTriangle(path.wind(sample), course, path.tas(sample));
}

} // namespace tarnel
