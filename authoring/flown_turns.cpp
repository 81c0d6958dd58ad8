#include "authoring/flown_turns.h"

#include "core/station_geometry.h"

namespace tarnel {

namespace {

int direction(const FlightRow& row) {
    return row.turnRate > 0 ? 1 : row.turnRate < 0 ? -1 : 0;
}

} // namespace

std::vector<FlownTurn> turnsIn(const std::vector<FlightRow>& rows) {
    std::vector<FlownTurn> turns;
    for (std::size_t tick = 1; tick < rows.size(); ++tick) {
        const int way = direction(rows[tick]);
        if (way == 0)
            continue;
        if (way != direction(rows[tick - 1]) || turns.empty())
            turns.push_back({tick - 1, tick, 0});
        turns.back().end = tick;
        turns.back().degrees += turnBetween(rows[tick - 1].heading, rows[tick].heading);
    }
    return turns;
}

} // namespace tarnel
