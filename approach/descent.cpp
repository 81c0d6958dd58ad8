#include "approach/descent.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double thresholdHeight = 50;
const double feetPerMile = std::tan(3 * std::numbers::pi / 180) * feetInMile;

} // namespace

double Descent::fixDme() const {
    const double toLose = altitude - elevation - thresholdHeight;
    return std::round((thresholdDme + toLose / feetPerMile) * 10) / 10;
}

double Descent::altitudeAt(double dme) const {
    return elevation + thresholdHeight + (dme - thresholdDme) * feetPerMile;
}

std::vector<int> Descent::checkedMiles() const {
    constexpr double apart = 0.3; // from the fix and the threshold, which have their own altitudes
    std::vector<int> miles;
    for (int mile = static_cast<int>(fixDme() - apart); mile > thresholdDme + apart; --mile)
        miles.push_back(mile);
    return miles;
}

std::vector<DescentRate> descentRates(const Descent& descent) {
    std::vector<DescentRate> rates;
    const double miles = descent.fixDme() - descent.thresholdDme;
    for (const int knots : {80, 100, 120, 140, 160})
        rates.push_back({knots, static_cast<int>(std::lround(knots / 60.0 * feetPerMile / 10)) * 10,
                         static_cast<int>(std::lround(miles / knots * 3600))});
    return rates;
}

} // namespace tarnel
