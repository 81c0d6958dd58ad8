#pragma once

#include <QPointF>

class QPainter;

namespace tarnel {

class PictureStore;

enum class KnobCap { single, concentric };

/// The rim of a concentric knob's inner cap as a share of the outer rim.
constexpr double innerCapShare = 0.56;

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
