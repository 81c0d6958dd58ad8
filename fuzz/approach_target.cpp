#include "approach/approach_plan.h"
#include "authoring/authored_chart.h"
#include "core/rounding.h"
#include "flights/plan_error.h"
#include "fuzz_target.h"

#include <cmath>

using namespace tarnel;

namespace {

/// A session at the middle of the chart that the trainer starts with.
SessionFile sessionOnTheChart() {
    const ChartFile chart = readAuthoredChart(TARNEL_DATA_FOLDER "/default.map").file;
    SessionFile session;
    static_cast<StationBlock&>(session) = chart;
    Sample& sample = session.samples.emplace_back();
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        sample.traceStations[slot] = chart.stations[slot].position.value();
    sample.traceLocCourse = toInt16(chart.locCourse.value());
    return session;
}

void requireThatItCanBeDrawn(const ApproachPlan& plan) {
    require(plan.track.size() > 1);
    for (const auto* line : {&plan.track, &plan.missed, &plan.hold})
        for (const Point& at : *line)
            require(std::isfinite(at.x) && std::isfinite(at.y));
}

} // namespace

/// Reads the source of an approach chart and draws its way.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::int16_t twipsPerMile = 700;
    static const SessionFile session = sessionOnTheChart();
    static const AuthoredChart chart = chartOf(session);
    static const ChartPlane plane(session, twipsPerMile, {});
    const std::string text = asText(data, size);
    try {
        require(!sessionOf(text, "chart.toml").empty());
        requireThatItCanBeDrawn(planOf(readApproach(text, "chart.toml", chart), chart, plane));
    } catch (const PlanError& error) {
        require(error.line() >= 0);
    }
    return 0;
}
