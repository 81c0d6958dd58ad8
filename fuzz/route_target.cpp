#include "authoring/route.h"
#include "flights/plan_error.h"
#include "source_checks.h"

using namespace tarnel;

/// Reads a written flight, flies and checks it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        requireThatItCanBeTaught(buildFlight(
            readRoute(asText(data, size), "flight.toml", ChartShelf({TARNEL_DATA_FOLDER})),
            TARNEL_DATA_FOLDER));
    } catch (const PlanError& error) {
        require(error.line() >= 0);
    }
    return 0;
}
