#include "core/chart_plot.h"

#include "core/rounding.h"

#include <limits>

namespace tarnel {

namespace {

/// Assigns a whole number if it fits 16 bits, else leaves the target alone.
void assignIfFits(double value, std::int16_t& target) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value >= Limits::min() && value <= Limits::max())
        target = static_cast<std::int16_t>(value);
}

} // namespace

void Chartsubmodul1::applyOffset(Point offset, ChartPoint origin, ChartPoint& point) {
    assignIfFits(offset.x, dx);
    assignIfFits(offset.y, dy);
    assignIfFits(origin.x + dx, point.x);
    assignIfFits(origin.y + dy, point.y);
}

void Chartsubmodul1::PolarToMap(double course, double distance, std::int16_t twipsPerUnit,
                                ChartPoint origin, ChartPoint& point) {
    applyOffset(chartOffset(course, distance, twipsPerUnit), origin, point);
}

void Chartsubmodul1::GeoToMap(const GeoPosition& position, ChartPlace& place) {
    const CourseDistance leg = CourseAndDistance(toPlain(mapRef), position);
    const Point offset = chartOffset(leg.course, roundTo(leg.distance, 2), mapScaleTwips);
    applyOffset(offset, {mapRefX, mapRefY}, place.point);
    place.wide = {mapRefX + offset.x, mapRefY + offset.y};
}

DeadReckoned Chartsubmodul1::MapToGeo(ChartPoint point) const {
    const Polar polar =
        MapToPolar(mapScaleTwips, {mapRefX, toInt16(-mapRefY)}, {point.x, toInt16(-point.y)});
    double course = polar.course;
    return DeadReckon(mapRef, polar.distance, course);
}

} // namespace tarnel
