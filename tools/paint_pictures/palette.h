// The shades that only painted pictures have; all others are those of the window.
#pragma once

#include "look/panel_look.h"

#include <QLinearGradient>

#include <initializer_list>
#include <utility>

namespace tarnel::palette {

inline constexpr QColor panel = look::rgb(0x1F2327);
inline constexpr QColor bezelMiddle = look::rgb(0x31363C);
inline constexpr QColor bezelLip = look::rgb(0x5B666F);
inline constexpr QColor black = look::rgb(0x000000);
inline constexpr QColor white = look::rgb(0xFFFFFF);

inline constexpr QColor markLight = look::rgb(0xB4BBC1);
inline constexpr QColor markDark = look::rgb(0x868E95);
inline constexpr QColor dimLettering = look::rgb(0x7F8992);

// A gradient of several steps that runs from top to bottom, as the light falls.
inline QLinearGradient downward(double top, double bottom,
                                std::initializer_list<std::pair<double, QColor>> stops) {
    QLinearGradient gradient(0, top, 0, bottom);
    for (const auto& [position, colour] : stops)
        gradient.setColorAt(position, colour);
    return gradient;
}

} // namespace tarnel::palette
