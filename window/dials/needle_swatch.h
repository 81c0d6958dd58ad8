#pragma once

#include "panel/instrument_legend.h"

#include <QColor>
#include <QPointF>

class QPainter;

namespace tarnel {

/// The colour of a needle on its dial; of what belongs to none, that of the card.
[[nodiscard]] QColor needleColour(NeedleRole needle);

/// The room that a needle's sign takes beside its name, in pixels at `scale` 1.
[[nodiscard]] int swatchWidth(NeedleRole needle, double scale = 1);

/// Paints a needle in small, as it looks on its dial, its tip to the right; the bar stands upright.
void paintSwatch(QPainter& painter, NeedleRole needle, QPointF middle, double scale = 1);

} // namespace tarnel
