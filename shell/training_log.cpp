#include "shell/training_log.h"

namespace tarnel {

std::vector<std::int64_t> flightsToLetGo(const std::vector<LoggedFlight>& flights,
                                         const FlightLimits& limits) {
    int count = 0;
    std::int64_t bytes = 0;
    std::vector<std::int64_t> gone;
    for (const LoggedFlight& flight : flights) {
        if (flight.pinned)
            continue;
        ++count;
        bytes += flight.bytes;
        if (count > 1 && (count > limits.most || bytes > limits.mostBytes))
            gone.push_back(flight.id);
    }
    return gone;
}

} // namespace tarnel
