#pragma once

#include <cstdint>

namespace tarnel {

/// A latitude or longitude as whole degrees and minutes. The sign stands on the degrees alone, so a
/// value between -1 and 0 degrees loses it: -0.5 reads back as +0.5.
struct SplitAngle {
    std::int16_t degrees = 0;
    double minutes = 0; ///< 0 up to 60
    bool operator==(const SplitAngle&) const = default;
};

struct SplitPosition {
    SplitAngle latitude;
    SplitAngle longitude;
    bool operator==(const SplitPosition&) const = default;
};

/// A position in plain degrees, north and east positive.
struct GeoPosition {
    double latitude = 0;
    double longitude = 0;
    bool operator==(const GeoPosition&) const = default;
};

/// Degrees of a split value: minutes are added to degrees of 0 or more and taken from negative
/// ones.
[[nodiscard]] double toPlain(const SplitAngle& angle);
[[nodiscard]] GeoPosition toPlain(const SplitPosition& position);

/// Degrees cut toward zero, the rest as minutes. Minutes that come out as exactly 60 become 0 with
/// the degrees unchanged. Throws the overflow error beyond 16-bit degrees.
[[nodiscard]] SplitAngle toSplit(double degrees);
[[nodiscard]] SplitPosition toSplit(const GeoPosition& position);

} // namespace tarnel
