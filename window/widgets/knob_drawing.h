#pragma once

#include <QPointF>

class QPainter;

namespace tarnel {

class PictureStore;

enum class KnobCap { single, concentric };

/// How a knob looks at a moment.
struct KnobLook {
    KnobCap cap = KnobCap::single;
    double pointer = 0; ///< degrees clockwise from the top
    bool hovered = false;
    bool pressed = false;
    bool focused = false;
    bool dimmed = false; ///< locked or switched off
    bool operator==(const KnobLook&) const = default;
};

/// Paints a knob whose rim has `radius`. Shadow and rings reach a third beyond it.
void paintKnob(QPainter& painter, PictureStore& pictures, QPointF centre, double radius,
               const KnobLook& knob);

/// The ring around what has the keyboard.
void paintFocusRing(QPainter& painter, QPointF centre, double radius);

} // namespace tarnel
