#include "persistence/older_session_file.h"

#include "core/aircraft.h"
#include "core/run_time_error.h"
#include "core/sailing.h"
#include "persistence/sample_fields.h"
#include "persistence/session_lines.h"

#include <cmath>

namespace tarnel {

namespace {

/// The NM that `speed` knots make in a sample.
double legLength(double speed) {
    constexpr double secondsOfSample = 4.0 / 3;
    return (1 / (3600 / secondsOfSample)) * speed * simTimeFactor;
}

/// Where a sample's heading, speed and wind lead from `start`.
GeoPosition flown(const GeoPosition& start, const Sample& sample) {
    // Earlier versions read their tracks with this shift to the south at each sample.
    constexpr double latitudeShift = 0.0007;
    double course = sample.traceHeading;
    const DeadReckoned air = DeadReckon(toSplit(start), legLength(sample.traceTAS), course);
    double windCourse = sample.traceWindDirection + 180;
    GeoPosition end = DeadReckon(air.split, legLength(sample.traceWindSpeed), windCourse).plain;
    end.latitude -= latitudeShift;
    return end;
}

/// Ends the reading where a track runs over a pole.
GeoPosition flownWithinMap(const LineSource& lines, const GeoPosition& start,
                           const Sample& sample) {
    try {
        const GeoPosition end = flown(start, sample);
        if (std::abs(end.latitude) <= SampleRules::latitude.limit &&
            std::abs(end.longitude) <= SampleRules::longitude.limit)
            return end;
    } catch (const RunTimeError&) {
        // The track left what degrees of 16 bits can hold: told below as any other line.
    }
    lines.fail(FileField::latitude);
}

void readStationOn(LineSource& lines, std::size_t slot, ChartStation& station) {
    const FileField expected = hasDme(slot) ? FileField::stationState : FileField::ndbState;
    const double state = lines.number(lines.afterTag(stateTagLength, expected), expected);
    if (state == 0 || state == 1)
        station.stationOn = state == 1;
}

void readFields(LineSource& lines, const SessionFile& session, Sample& sample) {
    const auto readField = [&lines](auto& field, auto rule) { field = lines.nextNumber(rule); };
    if (session.samples.empty()) {
        visitFields(sample, readField);
        return;
    }
    lines.next(FileField::latitude);
    lines.next(FileField::longitude);
    visitFieldsBehindPosition(sample, readField);
    const Sample& previous = session.samples.back();
    const GeoPosition place = flownWithinMap(lines, {previous.traceLat, previous.traceLon}, sample);
    sample.traceLat = place.latitude;
    sample.traceLon = place.longitude;
}

void readAllOlder(LineSource& lines, SessionFile& session) {
    lines.openPlain();
    readComments(lines, session);
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        readStationOn(lines, slot, session.stations[slot]);
    if (const std::int16_t centre = readMapCentre(lines); centre > 1)
        session.mapCenterSelect = centre;
    readSamples(lines, session, [&](Sample& sample) { readFields(lines, session, sample); });
}

} // namespace

SessionFile readOlderSession(std::string bytes) {
    return readUntilProblem(std::move(bytes), readAllOlder);
}

} // namespace tarnel
