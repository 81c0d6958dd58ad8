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
constexpr double slowest = 50;    ///< knots, as the autopilot flies
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

/// Knots over the ground along `leg`, which takes so many samples.
double speedAlong(const CourseDistance& leg, std::size_t samples) {
    constexpr double secondsPerHour = 3600;
    return leg.distance / (secondsPerSample * static_cast<double>(samples)) * secondsPerHour;
}

CourseDistance legBetween(const TrackMoment& from, const TrackMoment& to) {
    if (from.position == to.position)
        return {};
    return CourseAndDistance(from.position, to.position);
}

/// The places of the track from sample to sample. Throws the problem of a point that is reached too
/// fast.
std::vector<TrackMoment> sampled(const std::vector<TrackPoint>& points) {
    std::vector<TrackMoment> moments;
    std::size_t next = 1;
    while (next < points.size()) {
        const double seconds =
            points.front().seconds + secondsPerSample * static_cast<double>(moments.size());
        while (next < points.size() && points[next].seconds < seconds)
            ++next;
        if (next == points.size())
            break;
        moments.push_back(between(points[next - 1], points[next], seconds));
        if (moments.size() > 1 &&
            speedAlong(legBetween(*(moments.end() - 2), moments.back()), 1) > fastest)
            fail(points[next], FileField::groundSpeed);
    }
    return moments;
}

/// Course and speed of each moment, from two samples before it to two behind it, as the positions
/// of a receiver waver. Who stands keeps his course.
void findMotion(std::vector<TrackMoment>& moments) {
    constexpr std::size_t around = 2;
    double course = 0;
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const std::size_t from = i < around ? 0 : i - around;
        const std::size_t to = std::min(i + around, moments.size() - 1);
        const CourseDistance leg = legBetween(moments[from], moments[to]);
        if (leg.distance > 0)
            course = circle(leg.course);
        moments[i].course = course;
        moments[i].speed = to > from ? speedAlong(leg, to - from) : 0;
    }
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
    findMotion(found.moments);
    keepFlight(found.moments);
    if (found.moments.size() < 2)
        throw FileProblem{track.points.empty() ? 1 : track.points.back().line, FileField::flight,
                          false};
    found.cut = found.moments.size() > most;
    found.moments.resize(std::min(found.moments.size(), most));
    return found;
}

} // namespace tarnel
