#include "shell/track_session.h"

#include "core/rounding.h"
#include "core/station_geometry.h"
#include "instruments/ap_control_face.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnel {

namespace {

constexpr double feetPerHundred = 100;

/// The flight time of a recording's sample, counted from 0.
void setFlightTime(Sample& sample, std::size_t index) {
    const auto seconds = static_cast<int>(secondsPerSample * static_cast<double>(index));
    sample.traceFlightHours = static_cast<std::int16_t>(seconds / 3600);
    sample.traceFlightMinutes = static_cast<std::int16_t>(seconds / 60 % 60);
    sample.traceFlightSeconds = static_cast<std::int16_t>(seconds % 60);
}

/// `panel` where the track is at `moment`. The autopilot can be set to no more than it shows.
Sample sampleAt(const TrackMoment& moment, Sample panel) {
    panel.traceLat = moment.position.latitude;
    panel.traceLon = moment.position.longitude;
    panel.traceHeading = moment.course;
    panel.traceTAS = toInt16(std::min(moment.speed, APControlFace::maximumTAS));
    panel.traceTurnRate = 0;
    panel.traceStopMinutes = panel.traceStopSeconds = 0;
    panel.traceWindDirection = panel.traceWindSpeed = 0;
    panel.traceAPhdg = panel.traceHDGbug = toInt16(wholeDegrees(moment.course));
    panel.traceAPtas = panel.traceTAS;
    const double hundreds = std::round(moment.altitude / feetPerHundred);
    // 16 bits hold no more than 32,700 ft, less than the autopilot shows.
    panel.traceAPalt = toInt16(feetPerHundred * std::clamp(hundreds, 0.0, 327.0));
    panel.traceComment = noComment;
    return panel;
}

} // namespace

SessionFile sessionAlong(const TrackToFly& track, SessionFile present, std::string task) {
    SessionFile session = std::move(present);
    const Sample panel = session.samples.back();
    session.samples.clear();
    for (const TrackMoment& moment : track.moments) {
        session.samples.push_back(sampleAt(moment, panel));
        setFlightTime(session.samples.back(), session.samples.size() - 1);
    }
    session.samples.front().traceComment = 0;
    session.comments = {std::move(task)};
    return session;
}

} // namespace tarnel
