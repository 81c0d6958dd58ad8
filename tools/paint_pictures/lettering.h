// Words as outlines, so that they are equally sharp at every size and never hinted.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QString>

namespace tarnel {

enum class Anchor { Left, Centre, Right };

// Bold letters of the given size (the em, not the capitals) standing on the baseline at `at`.
QPainterPath letters(const QString& text, double size, QPointF at, Anchor anchor);

// How high the capitals stand above the baseline, as a fraction of the size.
inline constexpr double capitalHeight = 0.72;

} // namespace tarnel
