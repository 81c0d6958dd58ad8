#include "engine/chart_desk.h"

#include "core/angle.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"

namespace tarnel {

namespace {

constexpr std::size_t largestChart = 1 << 20;

std::int16_t toBoolean(bool value) {
    return value ? on : off;
}

} // namespace

void ChartDesk::load() {
    const std::int16_t how = given.files.c_loadChart;
    const auto path =
        given.picker.pathFor(FileRequest::loadChart, how, given.files.c_ChartFileName, namedByUser);
    given.files.c_loadChart.publish(0);
    if (path)
        loadFrom(*path, how);
}

void ChartDesk::open(const std::string& path) {
    loadFrom(path, fileRequest::ask);
}

bool ChartDesk::saveAndOpen(const ChartFile& chart, const std::string& name) {
    const auto path = given.picker.pathFor(FileRequest::saveChart, fileRequest::ask, name, {});
    if (!path)
        return false;
    try {
        saveFileBytes(*path,
                      writeChart(chart, given.picker.keyToSave(), AircraftLongitude::asItIs));
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(FileRequest::saveChart, *path, error);
        return false;
    }
    open(*path);
    return true;
}

/// Reads and checks first: a file with a wrong line changes nothing.
void ChartDesk::loadFrom(const std::string& path, std::int16_t how) {
    try {
        const ChartFile chart = readChart(readFileBytes(path, largestChart));
        if (chart.problem) {
            given.messages.fileWrong(FileRequest::loadChart, path, *chart.problem, false);
            return;
        }
        given.gate.makeWayFor(FileRequest::loadChart, how);
        apply(chart);
        given.files.c_ChartFileName.setIfChanged(path);
        namedByUser = how == fileRequest::ask ? given.picker.overwritable(path) : std::string();
        if (how == fileRequest::ask)
            given.messages.fileUsed(path);
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(FileRequest::loadChart, path, error);
    }
}

void ChartDesk::applyStation(std::size_t slot, const ChartStation& station) {
    StationProperties& properties = given.stationSlots.slot(slot);
    Station& place = given.scene.stations[slot];
    if (station.identifier) {
        properties.name = *station.identifier;
        place.labelOffsetX = station.labelOffsetX;
        place.labelOffsetY = station.labelOffsetY;
    }
    if (station.frequency)
        properties.frequency = *station.frequency;
    if (station.state) {
        properties.enabled = toBoolean(station.state->stationOn);
        properties.dmeEnabled = toBoolean(station.state->dmeOn);
        place.buttonDown = station.state->buttonDown;
    }
    if (station.stationOn)
        properties.enabled = toBoolean(*station.stationOn);
    if (station.position)
        place.position = toSplit(*station.position);
}

void ChartDesk::applyStations(const StationBlock& block) {
    given.chart.c_MAPnorthUP = 1;
    for (std::size_t i = 0; i < slotCount; ++i)
        applyStation(i, block.stations[i]);
    if (block.mapCenterSelect)
        given.chart.c_MAPCenterSelect = *block.mapCenterSelect;
}

void ChartDesk::endSession() {
    given.hand.history.clear();
    given.comments.forget();
    given.session.namedByUser.clear();
    given.clocks.restart();
    given.recorder.forgetReference();
}

void ChartDesk::apply(const ChartFile& chart) {
    endSession();
    applyStations(chart);
    if (chart.locCourse)
        given.receivers.c_LocCrs1 = *chart.locCourse;
    given.chart.c_MAPscale = chart.mapScaleTwips.value_or(given.chart.c_MAPscale.get());
    if (!chart.aircraft)
        return;
    given.session.becomeNew();
    given.replay.c_replayInstLock = 0;
    given.hand.placeAircraft(*chart.aircraft);
    if (chart.heading)
        given.scene.turnAircraft(intoCircle(*chart.heading));
    given.recorder.markFreshStart();
}

void ChartDesk::describeStations(StationBlock& block) const {
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationProperties& properties = given.stationSlots.slot(i);
        const Station& place = given.scene.stations[i];
        ChartStation& station = block.stations[i];
        station.identifier = properties.name;
        station.labelOffsetX = place.labelOffsetX;
        station.labelOffsetY = place.labelOffsetY;
        station.frequency = properties.frequency;
        station.state = {properties.enabled != off, properties.dmeEnabled != off, place.buttonDown};
        station.position = toPlain(place.position);
    }
    block.mapCenterSelect = given.chart.c_MAPCenterSelect;
    block.mapScaleTwips = given.chart.c_MAPscale;
}

void ChartDesk::save() {
    FileProperties& files = given.files;
    const auto path = given.picker.pathFor(FileRequest::saveChart, files.c_saveChart,
                                           files.c_ChartFileName, namedByUser);
    files.c_saveChart.publish(0);
    if (!path)
        return;
    ChartFile chart;
    describeStations(chart);
    chart.aircraft = given.scene.aircraft.published();
    chart.locCourse = given.receivers.c_LocCrs1;
    try {
        saveFileBytes(*path, writeChart(chart, given.picker.keyToSave()));
        files.c_ChartFileName.setIfChanged(*path);
        namedByUser = given.picker.overwritable(*path);
        given.messages.fileUsed(*path);
    } catch (const RunTimeError& error) {
        given.messages.fileFailed(FileRequest::saveChart, *path, error);
    }
}

} // namespace tarnel
