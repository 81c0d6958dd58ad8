#include "core/rounding.h"

#include "core/run_time_error.h"

#include <cmath>
#include <limits>

namespace tarnel {

namespace {

template <class Integer>
Integer checkedInteger(double value) {
    const double rounded = roundToEven(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max()))
        throw RunTimeError(Cause::overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

double roundToEven(double value) {
    return std::nearbyint(value);
}

double roundTo(double value, int digits) {
    static constexpr double powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    const double power = powers[digits];
    return roundToEven(value * power) / power;
}

std::int16_t toInt16(double value) {
    return checkedInteger<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return checkedInteger<std::int32_t>(value);
}

} // namespace tarnel
