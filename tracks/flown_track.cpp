#include "tracks/flown_track.h"

#include <utility>

namespace tarnel {

Track flownTrack(std::span<const Sample> samples, std::string name, std::int64_t start) {
    Track track{std::move(name), start, {}};
    track.points.reserve(samples.size());
    for (const Sample& sample : samples) {
        TrackPoint point;
        point.seconds = secondsPerSample * static_cast<double>(track.points.size());
        point.position = {sample.traceLat, sample.traceLon};
        point.altitude = sample.traceAPalt;
        point.heading = sample.traceHeading;
        point.airspeed = sample.traceTAS;
        track.points.push_back(point);
    }
    return track;
}

} // namespace tarnel
