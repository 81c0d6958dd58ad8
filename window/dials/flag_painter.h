#pragma once

#include "core/drawing_surface.h"

#include <QColor>

class QPainter;

namespace tarnel {

/// Flags and names on an instrument, placed by labels in twips; `scale` is pixels a twip.

/// The name of what a needle points to, in the needle's colour.
void paintNeedleName(QPainter& painter, const Label& label, const QColor& colour, double scale);

/// A flag with slanting red and white stripes: no signal to read.
void paintBarberFlag(QPainter& painter, const Label& label, double scale);

/// A red flag with the letters of its word in rows.
void paintWordFlag(QPainter& painter, const Label& label, double scale);

} // namespace tarnel
