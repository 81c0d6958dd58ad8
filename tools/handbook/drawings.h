#pragma once

#include <QByteArray>

#include <functional>

class QPainter;

namespace tarnel {

/// What `paint` paints into a square of so many units, as an SVG.
[[nodiscard]] QByteArray drawing(double side, const std::function<void(QPainter&)>& paint);

} // namespace tarnel
