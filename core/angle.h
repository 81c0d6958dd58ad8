#pragma once

namespace tarnel {

// Rules for angles in degrees that lie less than a turn outside of a range. Each adds or takes off
// one turn at one end; its name says which end belongs to the range.

/// A turn is added below 0.
template <class Number>
[[nodiscard]] constexpr Number notNegative(Number angle) {
    return angle < 0 ? angle + 360 : angle;
}

/// A turn is taken off above 360; 360 stays.
template <class Number>
[[nodiscard]] constexpr Number notAbove360(Number angle) {
    return angle > 360 ? angle - 360 : angle;
}

/// A turn is taken off from 360 on, so 360 becomes 0.
template <class Number>
[[nodiscard]] constexpr Number below360(Number angle) {
    return angle >= 360 ? angle - 360 : angle;
}

/// A turn is taken off above 359, so 359.5 becomes -0.5.
template <class Number>
[[nodiscard]] constexpr Number notAbove359(Number angle) {
    return angle > 359 ? angle - 360 : angle;
}

/// `angle` brought into 0 to 360, both ends allowed, by adding or subtracting 360 as often as
/// needed. Infinite or NaN angles come back unchanged.
[[nodiscard]] double intoCircle(double angle);

} // namespace tarnel
