#include "core/rounding.h"
#include "core/run_time_error.h"
#include "engine/user_control_2.h"
#include "persistence/file_bytes.h"

namespace tarnel {

namespace {

constexpr std::size_t largestChart = 1 << 20;
constexpr std::int16_t loadNamedChart = 2;

std::int16_t toBoolean(bool value) {
    return value ? on : off;
}

} // namespace

void UserControl2::loadChart() {
    if (c_loadChart != loadNamedChart)
        return;
    try {
        const ChartFile chart = readChart(readFileBytes(c_ChartFileName, largestChart));
        applyChart(chart);
        if (chart.problem)
            messages.chartWrong(c_ChartFileName, *chart.problem);
    } catch (const RunTimeError& error) {
        messages.chartFailed(c_ChartFileName, error);
    }
    c_loadChart.publish(0);
}

void UserControl2::applyStation(Slot which, const ChartStation& station) {
    StationProperties& properties_ = slot(which);
    Station& place = inSlot(stations, which);
    if (station.identifier) {
        properties_.name = *station.identifier;
        place.labelOffsetX = station.labelOffsetX;
        place.labelOffsetY = station.labelOffsetY;
    }
    if (station.frequency)
        properties_.frequency = *station.frequency;
    if (station.state) {
        properties_.enabled = toBoolean(station.state->stationOn);
        properties_.dmeEnabled = toBoolean(station.state->dmeOn);
        place.buttonDown = station.state->buttonDown;
    }
    if (station.position)
        place.position = toSplit(*station.position);
}

void UserControl2::applyChart(const ChartFile& chart) {
    c_MAPnorthUP = 1;
    for (std::size_t i = 0; i < slotCount; ++i)
        applyStation(static_cast<Slot>(i), chart.stations[i]);
    if (chart.locCourse)
        c_LocCrs1 = *chart.locCourse;
    if (chart.mapCenterSelect)
        c_MAPCenterSelect = *chart.mapCenterSelect;
    c_MAPscale = chart.mapScaleTwips.value_or(c_MAPscale.get());
    home.scale = c_MAPscale;
    if (!chart.aircraft)
        return;
    placeAircraft(*chart.aircraft);
    home.centre = view.mapCenter;
    if (chart.heading)
        turnAircraft(intoCircle(*chart.heading));
    markFreshStart();
}

} // namespace tarnel
