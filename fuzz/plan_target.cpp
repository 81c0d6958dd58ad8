#include "flights/plan_error.h"
#include "flights/plan_reader.h"
#include "fuzz_target.h"
#include "persistence/text_encoding.h"

using namespace tarnel;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const FlightPlan plan = readPlan(asText(data, size), "plan.toml");
        require(plan_limits::seconds.contains(plan.seconds));
        for (const FlightEvent& event : plan.events) {
            require(event.at >= 0 && event.at <= plan.seconds);
            if (event.settings.comment)
                require(characterCount(*event.settings.comment) <= plan_limits::commentLength);
        }
    } catch (const PlanError& error) {
        require(error.line() >= 0);
    }
    return 0;
}
