#include "window/widgets/knob_drawing.h"

#include "look/panel_look.h"
#include "window/widgets/picture_store.h"

#include <QPainter>

namespace tarnel {

namespace {

using look::knob::pointerFrom;
using look::knob::pointerTo;
using look::knob::rimInPicture;

QString pictureOf(const KnobLook& knob) {
    const bool lit = knob.hovered && !knob.dimmed;
    if (knob.cap == KnobCap::concentric)
        return lit ? QStringLiteral("knob_concentric_hover.png")
                   : QStringLiteral("knob_concentric.png");
    return lit ? QStringLiteral("knob_hover.png") : QStringLiteral("knob.png");
}

QRectF around(QPointF centre, double half) {
    return {centre.x() - half, centre.y() - half, 2 * half, 2 * half};
}

void paintPlainCap(QPainter& painter, QPointF centre, double radius) {
    painter.setPen(QPen(look::shapeEdge, radius * 0.05));
    painter.setBrush(
        look::downward(centre.y() - radius, centre.y() + radius, look::keyTop, look::keyBottom));
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
}

/// The pointer is scaled to twice its pixels, so that it stays crisp when turned; of its picture
/// only the strip that holds it is painted.
void paintPointer(QPainter& painter, PictureStore& pictures, QPointF centre, double radius,
                  double degrees) {
    constexpr int oversampling = 2;
    constexpr double stripHalfWidth = 0.12; ///< of the rim
    constexpr double stripMargin = 0.1;
    const double ratio = devicePixelsPerUnit(painter) * oversampling;
    const double half = radius / rimInPicture;
    const int pixels = qRound(2 * half * ratio);
    const QPixmap pointer = pictures.scaled(QStringLiteral("knob_pointer.png"), {pixels, pixels});
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    if (pointer.isNull()) {
        painter.setPen(QPen(look::caption, radius * 0.1, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -radius * pointerFrom), QPointF(0, -radius * pointerTo));
    } else {
        const QRectF strip(-radius * stripHalfWidth, -radius * (pointerTo + stripMargin),
                           2 * radius * stripHalfWidth,
                           radius * (pointerTo - pointerFrom + 2 * stripMargin));
        const QRectF source((strip.left() + half) * ratio, (strip.top() + half) * ratio,
                            strip.width() * ratio, strip.height() * ratio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(strip, pointer, source);
    }
    painter.restore();
}

} // namespace

void paintKnob(QPainter& painter, PictureStore& pictures, QPointF centre, double radius,
               const KnobLook& knob) {
    constexpr double pressedShade = 0.22;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (knob.dimmed)
        painter.setOpacity(look::dimmedOpacity);
    if (!drawPicture(painter, pictures, pictureOf(knob), around(centre, radius / rimInPicture)))
        paintPlainCap(painter, centre, radius);
    if (knob.pressed && !knob.dimmed) {
        painter.setBrush(look::faded(Qt::black, pressedShade));
        painter.drawEllipse(centre, radius, radius);
    }
    const double pointed = knob.cap == KnobCap::concentric ? radius * look::knob::innerCap : radius;
    paintPointer(painter, pictures, centre, pointed, knob.pointer);
    painter.restore();
    if (knob.focused)
        paintFocusRing(painter, centre, radius);
}

void paintFocusRing(QPainter& painter, QPointF centre, double radius) {
    constexpr double distance = 1.16;
    constexpr double ringShare = 0.09;
    const double ring = std::max(2.0, radius * ringShare);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look::panelRing, ring * 2));
    painter.drawEllipse(centre, radius * distance, radius * distance);
    painter.setPen(QPen(look::panelFocus, ring));
    painter.drawEllipse(centre, radius * distance, radius * distance);
    painter.restore();
}

} // namespace tarnel
