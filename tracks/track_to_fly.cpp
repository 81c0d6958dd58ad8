#include "tracks/track_to_fly.h"

#include "core/recording.h"
#include "core/sailing.h"
#include "core/station_geometry.h"
#include "persistence/file_problem.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double longestGap = 60; ///< seconds
constexpr double fastest = 500;   ///< knots
constexpr double slowest = 30;    ///< knots
constexpr double farthestNorth = 70;

[[noreturn]] void fail(const TrackPoint& point, FileField expected) {
    throw FileProblem{point.line, expected, false};
}

void checkPoints(const Track& track) {
    double before = track.points.empty() ? 0 : track.points.front().seconds;
    for (const TrackPoint& point : track.points) {
        if (std::abs(point.position.latitude) > farthestNorth)
            fail(point, FileField::practiseArea);
        if (point.seconds - before > longestGap)
            fail(point, FileField::nearTime);
        before = point.seconds;
    }
}

TrackMoment between(const TrackPoint& from, const TrackPoint& to, double seconds) {
    const double part = (seconds - from.seconds) / (to.seconds - from.seconds);
    const auto mixed = [part](double start, double end) { return start + part * (end - start); };
    TrackMoment moment;
    moment.position = {mixed(from.position.latitude, to.position.latitude),
                       mixed(from.position.longitude, to.position.longitude)};
    if (from.altitude && to.altitude)
        moment.altitude = mixed(*from.altitude, *to.altitude);
    return moment;
}

/// Course and speed of `moment` on its way to `next`. A place that stays keeps its course.
void moveOn(TrackMoment& moment, const GeoPosition& next) {
    constexpr double secondsPerHour = 3600;
    CourseDistance leg;
    if (moment.position != next)
        leg = CourseAndDistance(moment.position, next);
    moment.speed = leg.distance / secondsPerSample * secondsPerHour;
    if (leg.distance > 0)
        moment.course = circle(leg.course);
}

/// The track from sample to sample; the last one moves on as it came. Throws the problem of a point
/// that is reached too fast.
std::vector<TrackMoment> sampled(const std::vector<TrackPoint>& points) {
    std::vector<TrackMoment> moments;
    std::size_t next = 1;
    const double first = points.front().seconds;
    for (int i = 0; next < points.size(); ++i) {
        const double seconds = first + secondsPerSample * i;
        while (next < points.size() && points[next].seconds < seconds)
            ++next;
        if (next == points.size())
            break;
        moments.push_back(between(points[next - 1], points[next], seconds));
        if (i == 0)
            continue;
        TrackMoment& before = moments[moments.size() - 2];
        moveOn(before, moments.back().position);
        if (before.speed > fastest)
            fail(points[next], FileField::groundSpeed);
        moments.back().course = before.course;
        moments.back().speed = before.speed;
    }
    return moments;
}

/// Leaves out what is no flight, at both ends.
void keepFlight(std::vector<TrackMoment>& moments) {
    const auto flies = [](const TrackMoment& moment) { return moment.speed >= slowest; };
    moments.erase(moments.begin(), std::ranges::find_if(moments, flies));
    while (!moments.empty() && !flies(moments.back()))
        moments.pop_back();
}

} // namespace

TrackToFly trackToFly(const Track& track) {
    constexpr std::size_t most = Recording::fullAt - 1;
    checkPoints(track);
    TrackToFly found;
    if (!track.points.empty())
        found.moments = sampled(track.points);
    keepFlight(found.moments);
    if (found.moments.size() < 2)
        throw FileProblem{track.points.empty() ? 1 : track.points.back().line, FileField::flight,
                          false};
    found.cut = found.moments.size() > most;
    found.moments.resize(std::min(found.moments.size(), most));
    return found;
}

} // namespace tarnel
