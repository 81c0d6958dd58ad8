#include "tools/paint_pictures/knob_painter.h"

#include "tools/paint_pictures/deep_picture.h"
#include "tools/paint_pictures/palette.h"

#include <QPainterPath>
#include <QPen>
#include <QRadialGradient>

#include <cmath>
#include <numbers>

namespace tarnel {

using look::faded;
using palette::downward;

namespace {

// The rim of a cap as a fraction of half the picture.
constexpr double knobRimRadius = look::knob::rimInPicture;

// One cap, however large: the ribs are counted so that they look alike on both sizes.
struct Cap {
    double rim;
    int ribs;
    double ribDepth; // as a fraction of the rim
};

constexpr Cap singleCap{knobRimRadius, 24, 0.050};
constexpr Cap outerRing{knobRimRadius, 30, 0.042};
constexpr Cap innerCap{knobRimRadius * look::knob::innerCap, 18, 0.060};

constexpr double faceShare = 0.74; // the smooth top within the ribs

QPointF onCircle(double radius, double angle) {
    return {radius * std::sin(angle), -radius * std::cos(angle)};
}

QPainterPath ribbedOutline(const Cap& cap) {
    constexpr int pointsPerRib = 16;
    const int points = cap.ribs * pointsPerRib;
    QPainterPath outline;
    for (int point = 0; point < points; ++point) {
        const double angle = 2 * std::numbers::pi * point / points;
        const double valley = std::pow(std::abs(std::sin(angle * cap.ribs / 2)), 3);
        const QPointF at = onCircle(cap.rim * (1 - cap.ribDepth * valley), angle);
        if (point == 0)
            outline.moveTo(at);
        else
            outline.lineTo(at);
    }
    outline.closeSubpath();
    return outline;
}

void paintSoftShadow(QPainter& painter, double rim, double opacity) {
    const QPointF centre(0, rim * 0.10);
    const double reach = rim * 1.22;
    QRadialGradient shadow(centre, reach);
    shadow.setColorAt(0.0, faded(palette::black, opacity));
    shadow.setColorAt(0.72, faded(palette::black, opacity));
    shadow.setColorAt(0.86, faded(palette::black, opacity * 0.32));
    shadow.setColorAt(1.0, faded(palette::black, 0));
    painter.setBrush(shadow);
    painter.drawEllipse(centre, reach, reach);
}

// Each groove is dark, and its lower flank catches the light.
void paintGrooves(QPainter& painter, const Cap& cap) {
    constexpr double grooveShade = 0.26;
    constexpr double flankLight = 0.16;
    const double width = 2 * std::numbers::pi / cap.ribs * 0.15;
    const double inner = cap.rim * (faceShare + 0.05);
    const double outer = cap.rim * (1 - cap.ribDepth);
    for (int groove = 0; groove < cap.ribs; ++groove) {
        const double angle = 2 * std::numbers::pi * (groove + 0.5) / cap.ribs;
        painter.setPen(
            QPen(faded(palette::black, grooveShade), width * cap.rim, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(onCircle(inner, angle), onCircle(outer, angle));
        const double side = std::sin(angle) < 0 ? -1 : 1;
        const double flank = angle + side * width * 0.9;
        const double light = flankLight * std::abs(std::sin(angle)) * (1 + std::cos(angle)) / 2;
        painter.setPen(
            QPen(faded(palette::white, light), width * cap.rim / 2, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(onCircle(inner, flank), onCircle(outer, flank));
    }
    painter.setPen(Qt::NoPen);
}

void paintFaceDisc(QPainter& painter, double radius) {
    painter.setBrush(downward(-radius, radius, {{0.0, 0xFF15181B}, {1.0, 0xFF3A4046}}));
    painter.drawEllipse(QPointF(), radius * 1.035, radius * 1.035);
    painter.setBrush(
        downward(-radius, radius, {{0.0, 0xFF59626A}, {0.45, 0xFF434A51}, {1.0, 0xFF2E3338}}));
    painter.drawEllipse(QPointF(), radius, radius);
    painter.setPen(QPen(downward(-radius, radius,
                                 {{0.0, faded(palette::white, 0.42)},
                                  {0.4, faded(palette::white, 0.08)},
                                  {1.0, faded(palette::white, 0.03)}}),
                        radius * 0.022));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(), radius * 0.985, radius * 0.985);
    painter.setPen(Qt::NoPen);
}

void paintCap(QPainter& painter, const Cap& cap) {
    const QPainterPath outline = ribbedOutline(cap);
    painter.fillPath(
        outline,
        downward(-cap.rim, cap.rim,
                 {{0.0, 0xFF7A838B}, {0.22, 0xFF565E66}, {0.6, 0xFF3A4046}, {1.0, 0xFF1E2225}}));
    paintGrooves(painter, cap);
    painter.strokePath(outline, QPen(QColor(0xFF0B0D0E), cap.rim * 0.022));
    paintFaceDisc(painter, cap.rim * faceShare);
}

void paintHover(QPainter& painter, const Cap& cap) {
    constexpr double lift = 0.09;
    constexpr double ringWidth = 0.032;
    painter.fillPath(ribbedOutline(cap), faded(palette::white, lift));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look::panelAccent, ringWidth));
    const double radius = cap.rim + ringWidth;
    painter.drawEllipse(QPointF(), radius, radius);
    painter.setPen(Qt::NoPen);
}

} // namespace

QImage paintKnob(int side, KnobLook look) {
    QImage picture = deepPicture({side, side});
    QPainter painter(&picture);
    useHalfSideUnits(painter, side);
    paintSoftShadow(painter, singleCap.rim, 0.62);
    paintCap(painter, singleCap);
    if (look == KnobLook::Hovered)
        paintHover(painter, singleCap);
    painter.end();
    return dithered(picture);
}

QImage paintDoubleKnob(int side, KnobLook look) {
    QImage picture = deepPicture({side, side});
    QPainter painter(&picture);
    useHalfSideUnits(painter, side);
    paintSoftShadow(painter, outerRing.rim, 0.62);
    paintCap(painter, outerRing);
    paintSoftShadow(painter, innerCap.rim * 1.06, 0.7);
    paintCap(painter, innerCap);
    if (look == KnobLook::Hovered)
        paintHover(painter, outerRing);
    painter.end();
    return dithered(picture);
}

QImage paintPointer(int side) {
    constexpr double from = look::knob::pointerFrom * knobRimRadius;
    constexpr double to = look::knob::pointerTo * knobRimRadius;
    constexpr double width = 0.105 * knobRimRadius;
    constexpr double outline = 0.035 * knobRimRadius;
    QImage picture = deepPicture({side, side});
    QPainter painter(&picture);
    useHalfSideUnits(painter, side);
    painter.setPen(QPen(faded(palette::black, 0.35), width + outline, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -from), QPointF(0, -to));
    painter.setPen(QPen(palette::white, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, -from), QPointF(0, -to));
    painter.end();
    return dithered(picture);
}

} // namespace tarnel
