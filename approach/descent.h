#pragma once

#include <vector>

namespace tarnel {

/// An international NM in international feet.
inline constexpr double feetInMile = 1852 / 0.3048;

/// `Descent`: the final approach in the vertical: level to the final approach fix, and from there
/// on a path of three degrees to 50 feet above the threshold. Distances are NM over the ground to
/// the DME of the localizer, altitudes feet.
struct Descent {
    double thresholdDme = 0;
    int elevation = 0;
    int altitude = 0; ///< before the fix

    /// Where the path begins, to a tenth.
    [[nodiscard]] double fixDme() const;
    /// The path's; beyond the fix as if it began earlier.
    [[nodiscard]] double altitudeAt(double dme) const;
    /// The whole miles between the fix and the threshold, the farthest first.
    [[nodiscard]] std::vector<int> checkedMiles() const;
};

/// What a ground speed asks for on the path.
struct DescentRate {
    int knots = 0;
    int feetPerMinute = 0; ///< to tens
    int seconds = 0;       ///< from the fix to the threshold
};
[[nodiscard]] std::vector<DescentRate> descentRates(const Descent& descent);

} // namespace tarnel
