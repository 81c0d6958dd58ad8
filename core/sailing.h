#pragma once

#include "core/geo_position.h"

namespace tarnel {

/// A rhumb line: degrees true and nautical miles.
struct CourseDistance {
    double course = 0;
    double distance = 0;
};

/// Course and distance of the rhumb line between two points, by Mercator sailing on the ellipsoid:
/// meridional parts and meridian arc with first eccentricity 0.0818188 (Bowditch, American
/// Practical Navigator, "The Sailings"). Good to 0.0001 NM on legs up to 80 NM within 70 degrees of
/// the equator; latitude 90 has no value.
///
/// The course is not brought into 0 to 360: between north and west it comes out as -90 to 0. On a
/// parallel the first latitude is shifted by 0.0000001 degrees, so that the course is 90 or 270
/// within that shift.
[[nodiscard]] CourseDistance CourseAndDistance(const GeoPosition& from, const GeoPosition& to);

/// The end of a leg in both forms.
struct DeadReckoned {
    SplitPosition split;
    GeoPosition plain;
};

/// The position reached on a rhumb line after `distance` NM on `course` degrees. The latitude is a
/// series of third order in the distance over the radius of curvature, the longitude follows from
/// the meridional parts.
///
/// `course` is changed in place: above 360 it loses 360, and at exactly 90 or 270 (within 1e-7) it
/// becomes 90.000001 or 270.000001, which keeps the tangent finite. Throws the overflow error when
/// the degrees leave 16 bits.
[[nodiscard]] DeadReckoned DeadReckon(const SplitPosition& from, double distance, double& course);

} // namespace tarnel
