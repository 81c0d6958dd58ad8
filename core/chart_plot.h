#pragma once

#include "core/geo_position.h"
#include "core/plane_geometry.h"
#include "core/sailing.h"

#include <cstdint>

namespace tarnel {

/// A place on the chart twice: narrowed to 16 bits as the system publishes it, and in twips that
/// are rounded but not narrowed. The two agree wherever the first fits 16 bits; radios measure on
/// the second, so that a station far off the picture still gives its true radial.
struct ChartPlace {
    ChartPoint point;
    Point wide;
};

/// `Chartsubmodul1`: the polar plot that is a chart: every position stands at its rhumb-line course
/// and distance from one reference point.
class Chartsubmodul1 {
  public:
    SplitPosition mapRef{{49, 0}, {11, 0}}; ///< the point that all else is measured from
    std::int16_t mapRefX = 3405;            ///< where it lies, in twips
    std::int16_t mapRefY = 3405;
    std::int16_t mapScaleTwips = 250; ///< twips per NM

    /// Writes the chart position of `position` to `place`. Course and distance are those of
    /// `CourseAndDistance` from the reference point, the distance rounded to 0.01 NM.
    void GeoToMap(const GeoPosition& position, ChartPlace& place);

    /// The geographic position at a chart position. Throws the overflow error when the point is
    /// more than 16 bits from the reference point.
    [[nodiscard]] DeadReckoned MapToGeo(ChartPoint point) const;

    /// Writes the chart position at `distance` units on `course` from `origin`. An offset that
    /// overflows 16 bits leaves the offset of the call before in force; a sum that overflows leaves
    /// `point` as it was. Nothing is raised.
    void PolarToMap(double course, double distance, std::int16_t twipsPerUnit, ChartPoint origin,
                    ChartPoint& point);

    [[nodiscard]] Point mapRefPoint() const {
        return {static_cast<double>(mapRefX), static_cast<double>(mapRefY)};
    }

  private:
    void applyOffset(Point offset, ChartPoint origin, ChartPoint& point);

    std::int16_t dx = 0; ///< the last offset that fitted 16 bits
    std::int16_t dy = 0;
};

} // namespace tarnel
