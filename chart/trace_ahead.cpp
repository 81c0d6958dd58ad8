#include "chart/trace_ahead.h"

#include "core/angle.h"
#include "core/plane_geometry.h"
#include "core/rounding.h"

#include <limits>

namespace tarnel {

namespace {

constexpr int dotsEachWay = 30;
constexpr double degreesPerDot = 6;

/// `length` twips along `angle`: x eastwards, y northwards.
Point along(double angle, double length) {
    const Point offset = RotateVector(angle, {0, 0}, {0, length});
    return {static_cast<double>(toInt16(offset.x)), static_cast<double>(toInt16(offset.y))};
}

void plotIfFits(DotLayer& dots, Point at) {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto fits = [](double value) { return value >= Limits::min() && value <= Limits::max(); };
    if (fits(at.x) && fits(at.y))
        dots.plot(toInt16(at.x), toInt16(at.y), chartColour::ahead);
}

void drawTurn(ChartPicture& picture, const TurnsAhead& turns, double turnPerDot) {
    constexpr double dotsPerHour = 3600 / 2.0;
    const double perKnot = turns.mapScaleTwips / dotsPerHour;
    const Point wind = along(turns.wind.direction, perKnot * turns.wind.speed);
    double heading = turns.heading;
    Point at = turns.airplane;
    for (int i = 0; i < dotsEachWay; ++i) {
        const Point air = along(heading, perKnot * turns.tas);
        at.x += air.x - wind.x;
        at.y -= wind.y + air.y;
        plotIfFits(picture.ahead, RotatePoint(turns.rotation, turns.airplane, at));
        heading += turnPerDot;
        heading = heading < 0 ? notNegative(heading) : notAbove359(heading);
    }
}

} // namespace

void drawTurnsAhead(ChartPicture& picture, const TurnsAhead& turns) {
    picture.ahead.clear();
    drawTurn(picture, turns, degreesPerDot);
    drawTurn(picture, turns, -degreesPerDot);
}

} // namespace tarnel
