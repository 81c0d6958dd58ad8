#include "debrief/racetrack.h"

#include "core/wind_triangle.h"
#include "core/wind_turn.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double degree = std::numbers::pi / 180;

PlaneOffset operator+(const PlaneOffset& a, const PlaneOffset& b) {
    return {a.east + b.east, a.north + b.north};
}

/// A holding with one outbound heading: how far it leads beside the inbound course.
class Trial {
  public:
    Trial(const HoldTask& holding, const Wind& inWind, double knots)
        : task(holding), wind(inWind), tas(knots), inbound(windTriangle(wind, task.inbound, tas)) {}

    [[nodiscard]] bool isFlyable() const {
        return !std::isnan(inbound.correction) && inbound.groundSpeed > 0;
    }
    /// Lays the legs for `correction` degrees outbound; NM that the inbound leg begins to the right
    /// of its course, nothing if there is no such leg.
    std::optional<double> fly(double correction);
    [[nodiscard]] Racetrack result() const;

  private:
    [[nodiscard]] double along(const PlaneOffset& place) const {
        return place.east * std::sin(task.inbound * degree) +
               place.north * std::cos(task.inbound * degree);
    }
    [[nodiscard]] double across(const PlaneOffset& place) const {
        return place.east * std::cos(task.inbound * degree) -
               place.north * std::sin(task.inbound * degree);
    }

    const HoldTask& task;
    const Wind wind;
    const double tas;
    const WindTriangle inbound;
    double outCorrection = 0;
    double hours = 0;        ///< of the straight leg outbound
    PlaneOffset groundSpeed; ///< of it, knots
    std::vector<PlaneOffset> first;
    std::vector<PlaneOffset> second;
};

std::optional<double> Trial::fly(double correction) {
    const double side = task.side == HoldingSide::right ? 1 : -1;
    const double headingIn = task.inbound + inbound.correction;
    const double headingOut = task.inbound + 180 + correction;
    const double change = side * 180 + correction - inbound.correction;
    outCorrection = correction;
    first = turnInWind(wind, tas, headingIn, change);
    second = turnInWind(wind, tas, headingOut, side * 360 - change);
    groundSpeed = {
        tas * std::sin(headingOut * degree) - wind.speed * std::sin(wind.direction * degree),
        tas * std::cos(headingOut * degree) - wind.speed * std::cos(wind.direction * degree)};
    const double leg = task.minutes / 60 * inbound.groundSpeed;
    const PlaneOffset turned = first.back() + second.back();
    if (along(groundSpeed) >= 0)
        return std::nullopt;
    hours = (-leg - along(turned)) / along(groundSpeed);
    if (hours < 0)
        return std::nullopt;
    return across(turned) + hours * across(groundSpeed);
}

Racetrack Trial::result() const {
    Racetrack track;
    track.correctionIn = inbound.correction;
    track.correctionOut = outCorrection;
    // The clock waits for abeam, where the turn has ended before it.
    const double before = std::max(0.0, along(first.back()) / -along(groundSpeed));
    track.outboundSeconds = (hours - before) * 3600;
    const auto add = [&](const PlaneOffset& place) {
        track.points.push_back({circle(std::atan2(place.east, place.north) / degree),
                                std::hypot(place.east, place.north)});
    };
    constexpr std::size_t betweenPoints = 9; ///< ticks
    add({});
    for (std::size_t i = 0; i < first.size(); i += betweenPoints)
        add(first[i]);
    const PlaneOffset outbound =
        first.back() + PlaneOffset{hours * groundSpeed.east, hours * groundSpeed.north};
    for (std::size_t i = 0; i < second.size(); i += betweenPoints)
        add(outbound + second[i]);
    add(outbound + second.back());
    add({});
    return track;
}

} // namespace

std::optional<Racetrack> racetrackOf(const HoldTask& task, const Wind& wind, double tas) {
    constexpr double most = 75; ///< degrees that an outbound heading is corrected by
    if (tas <= 0)
        return std::nullopt;
    Trial trial(task, wind, tas);
    if (!trial.isFlyable())
        return std::nullopt;
    // More to the right outbound leads farther to the left, seen inbound.
    double low = -most;
    double high = most;
    for (int i = 0; i < 30; ++i) {
        const double middle = (low + high) / 2;
        const std::optional<double> beside = trial.fly(middle);
        if (!beside)
            return std::nullopt;
        (*beside > 0 ? low : high) = middle;
    }
    if (std::abs(*trial.fly((low + high) / 2)) > 0.05)
        return std::nullopt;
    return trial.result();
}

} // namespace tarnel
