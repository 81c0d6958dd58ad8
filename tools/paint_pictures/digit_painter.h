// The seven-segment digits of the radios: glyphs alone, on nothing.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace tarnel {

// The signs in the order of their picture files: 0 to 9, the dash, the blank.
inline constexpr int segmentSigns = 12;

inline constexpr QSize digitCell{168, 271};

QImage paintDigit(int sign, QRgb colour);

} // namespace tarnel
