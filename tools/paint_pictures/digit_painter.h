// The seven-segment digits of the radios: glyphs alone, on nothing.
#pragma once

#include <QColor>
#include <QImage>

namespace tarnel {

// The signs in the order of their picture files: 0 to 9, the dash, the blank.
inline constexpr int segmentSigns = 12;

QImage paintDigit(int sign, const QColor& colour);

} // namespace tarnel
