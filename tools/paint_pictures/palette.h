// The colours that every painted picture shares, and the one way to thin them out.
#pragma once

#include <QColor>
#include <QLinearGradient>

#include <initializer_list>
#include <utility>

namespace tarnel::palette {

inline constexpr QRgb panel = 0xFF1F2327;
inline constexpr QRgb bezelTop = 0xFF41474E;
inline constexpr QRgb bezelMiddle = 0xFF31363C;
inline constexpr QRgb bezelBottom = 0xFF24282D;
inline constexpr QRgb bezelLip = 0xFF5B666F;
inline constexpr QRgb dialTop = 0xFF1C1E21;
inline constexpr QRgb dialBottom = 0xFF131516;
inline constexpr QRgb black = 0xFF000000;
inline constexpr QRgb white = 0xFFFFFFFF;

inline constexpr QRgb cardWhite = 0xFFF3F4F2;
inline constexpr QRgb markLight = 0xFFB4BBC1;
inline constexpr QRgb markDark = 0xFF868E95;
inline constexpr QRgb lettering = 0xFFA9B3BD;
inline constexpr QRgb dimLettering = 0xFF7F8992;

inline constexpr QRgb amber = 0xFFFFC14D;
inline constexpr QRgb green = 0xFF5FE08E;
inline constexpr QRgb courseYellow = 0xFFFFDF00;
inline constexpr QRgb accent = 0xFF5B9BD8;

inline QColor thinned(QRgb colour, double opacity) {
    QColor result(colour);
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

// A gradient that runs from top to bottom: there is one light, and it stands above.
inline QLinearGradient downward(double top, double bottom,
                                std::initializer_list<std::pair<double, QColor>> stops) {
    QLinearGradient gradient(0, top, 0, bottom);
    for (const auto& [position, colour] : stops)
        gradient.setColorAt(position, colour);
    return gradient;
}

} // namespace tarnel::palette
