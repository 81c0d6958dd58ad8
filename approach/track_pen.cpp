#include "approach/track_pen.h"

#include "core/station_geometry.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double perDegree = std::numbers::pi / 180;
constexpr double arcStep = 3; ///< degrees of a turn that are drawn as one straight line

} // namespace

Point onCourse(double course, double length) {
    return {std::sin(course * perDegree) * length, -std::cos(course * perDegree) * length};
}

Point operator+(Point from, Point way) {
    return {from.x + way.x, from.y + way.y};
}

Point operator-(Point to, Point from) {
    return {to.x - from.x, to.y - from.y};
}

double lengthOf(Point way) {
    return std::hypot(way.x, way.y);
}

double courseOf(Point way) {
    return circle(std::atan2(way.x, -way.y) / perDegree);
}

void TrackPen::straight(double length) {
    drawn.push_back(at() + onCourse(course, length));
}

void TrackPen::straightTo(Point target) {
    if (lengthOf(target - at()) == 0)
        return;
    course = courseOf(target - at());
    drawn.push_back(target);
}

void TrackPen::turn(double degrees, double radius) {
    const double side = degrees < 0 ? -90 : 90;
    const Point centre = at() + onCourse(course + side, radius);
    const int steps = static_cast<int>(std::ceil(std::abs(degrees) / arcStep));
    for (int step = 1; step <= steps; ++step)
        drawn.push_back(centre + onCourse(course - side + degrees * step / steps, radius));
    course = circle(course + degrees);
}

void TrackPen::roundCorner(Point corner, double nextCourse, double radius) {
    const double ahead = lengthOf(corner - at());
    const double change = turnBetween(courseOf(corner - at()), nextCourse);
    const double before = radius * std::tan(std::abs(change) / 2 * perDegree);
    straightTo(corner);
    drawn.back() = corner + onCourse(course, -std::min(before, ahead));
    turn(change, radius);
}

void TrackPen::turnTo(Point target, bool right, double radius) {
    const double side = right ? 1 : -1;
    const Point way = target - (at() + onCourse(course + 90 * side, radius));
    const double along = std::sqrt(std::max(0.0, lengthOf(way) * lengthOf(way) - radius * radius));
    const double last = courseOf(way) + side * std::atan2(radius, along) / perDegree;
    turn(side * circle(side * (last - course)), radius);
    straightTo(target);
}

std::vector<Point> racetrack(Point fix, double inbound, bool right, double leg, double radius) {
    const double half = right ? 180 : -180;
    TrackPen pen(fix, inbound);
    pen.turn(half, radius);
    pen.straight(leg);
    pen.turn(half, radius);
    pen.straightTo(fix);
    return pen.track();
}

} // namespace tarnel
