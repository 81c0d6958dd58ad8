#include "tracks/track_builder.h"

#include <cmath>
#include <utility>

namespace tarnel {

namespace {

// Seconds since 1970 UTC.
constexpr double beginOfYear1 = -62'135'596'800.0;
constexpr double beginOfYear10000 = 253'402'300'800.0;
constexpr double highest = 1e6; ///< feet

} // namespace

std::optional<FileField> TrackBuilder::add(TrackPoint point, double time) {
    if (!(std::abs(point.position.latitude) <= 90))
        return FileField::latitude;
    if (!(std::abs(point.position.longitude) <= 360))
        return FileField::longitude;
    if (!(time >= beginOfYear1 && time < beginOfYear10000))
        return FileField::time;
    if (point.altitude && !(std::abs(*point.altitude) < highest))
        point.altitude.reset();
    if (track.points.empty())
        track.start = static_cast<std::int64_t>(std::floor(time));
    point.seconds = time - static_cast<double>(track.start);
    const double before = empty() ? point.seconds : track.points.back().seconds;
    if (point.seconds < before)
        return FileField::laterTime;
    if (!empty() && point.seconds == before)
        return {};
    if (track.points.size() == mostTrackPoints)
        return FileField::noFurtherTrackPoint;
    track.points.push_back(point);
    return {};
}

Track TrackBuilder::finish(int lines) && {
    if (track.points.size() < 2)
        throw FileProblem{lines + 1, FileField::trackPoint, true};
    return std::move(track);
}

} // namespace tarnel
