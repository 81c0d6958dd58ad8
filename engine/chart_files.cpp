#include "core/angle.h"
#include "engine/file_requests.h"
#include "engine/user_control_2.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"

namespace tarnel {

namespace {

constexpr std::size_t largestChart = 1 << 20;

std::int16_t toBoolean(bool value) {
    return value ? on : off;
}

} // namespace

void UserControl2::loadChart() {
    const std::int16_t how = c_loadChart;
    const auto path = nameFor(FileRequest::loadChart, how, c_ChartFileName);
    c_loadChart.publish(0);
    if (path)
        loadChartFrom(*path, how);
}

void UserControl2::openChart(const std::string& path) {
    loadChartFrom(path, fileRequest::ask);
}

/// Reads and checks first: a file with a wrong line changes nothing.
void UserControl2::loadChartFrom(const std::string& path, std::int16_t how) {
    try {
        const ChartFile chart = readChart(readFileBytes(path, largestChart));
        if (chart.problem) {
            messages.fileWrong(FileRequest::loadChart, path, *chart.problem, false);
            return;
        }
        makeWayFor(FileRequest::loadChart, how);
        applyChart(chart);
        c_ChartFileName.setIfChanged(path);
        chartNamedByUser = how == fileRequest::ask ? namedByUser(path) : std::string();
    } catch (const RunTimeError& error) {
        messages.fileFailed(FileRequest::loadChart, path, error);
    }
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
    if (station.stationOn)
        properties_.enabled = toBoolean(*station.stationOn);
    if (station.position)
        place.position = toSplit(*station.position);
}

/// Stations, map centre and scale; the view turns north up.
void UserControl2::applyStations(const StationBlock& block) {
    c_MAPnorthUP = 1;
    for (std::size_t i = 0; i < slotCount; ++i)
        applyStation(static_cast<Slot>(i), block.stations[i]);
    if (block.mapCenterSelect)
        c_MAPCenterSelect = *block.mapCenterSelect;
}

void UserControl2::applyChart(const ChartFile& chart) {
    history.clear();
    forgetComments();
    sessionNamedByUser.clear();
    clock = FlightClock{};
    publishStopwatch();
    publishFlightTime();
    reference.clear();
    referenceReading = {};
    applyStations(chart);
    if (chart.locCourse)
        c_LocCrs1 = *chart.locCourse;
    c_MAPscale = chart.mapScaleTwips.value_or(c_MAPscale.get());
    if (!chart.aircraft)
        return;
    becomeNewSession();
    c_replayInstLock = 0;
    placeAircraft(*chart.aircraft);
    if (chart.heading)
        turnAircraft(intoCircle(*chart.heading));
    markFreshStart();
}

/// What a chart and a session tell of the stations and the map.
void UserControl2::describeStations(StationBlock& block) const {
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationProperties& properties_ = slot(i);
        ChartStation& station = block.stations[i];
        station.identifier = properties_.name;
        station.labelOffsetX = stations[i].labelOffsetX;
        station.labelOffsetY = stations[i].labelOffsetY;
        station.frequency = properties_.frequency;
        station.state = {properties_.enabled != off, properties_.dmeEnabled != off,
                         stations[i].buttonDown};
        station.position = toPlain(stations[i].position);
    }
    block.mapCenterSelect = c_MAPCenterSelect;
    block.mapScaleTwips = c_MAPscale;
}

void UserControl2::saveChart() {
    const auto path = nameFor(FileRequest::saveChart, c_saveChart, c_ChartFileName);
    c_saveChart.publish(0);
    if (!path)
        return;
    ChartFile chart;
    describeStations(chart);
    chart.aircraft = aircraft.published();
    chart.locCourse = c_LocCrs1;
    try {
        saveFileBytes(*path, writeChart(chart, keyToSave()));
        c_ChartFileName.setIfChanged(*path);
        chartNamedByUser = namedByUser(*path);
    } catch (const RunTimeError& error) {
        messages.fileFailed(FileRequest::saveChart, *path, error);
    }
}

} // namespace tarnel
