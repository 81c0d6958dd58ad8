#include "tools/paint_pictures/bezel_painter.h"

#include "tools/paint_pictures/lettering.h"
#include "tools/paint_pictures/palette.h"

#include <QPainterPath>
#include <QPen>

namespace tarnel {

using look::faded;
using palette::downward;

namespace {

constexpr double plateMargin = 0.008;
constexpr double plateRounding = 2 * look::bezelRadiusShare;
constexpr double hairline = 0.005;
constexpr double recessWidth = 0.05;
constexpr double sealWidth = 0.018;

constexpr double knobCentre = 1 - 2 * look::bezel::knobInset;
constexpr double knobRadius = 2 * look::bezel::knobRadius;
constexpr double screwCentre = 0.868;

constexpr double wordSize = 0.074;
constexpr double wordBaseline = 0.935;
constexpr double wordStart = 0.636;
constexpr double typeWordSize = 0.058;

QPointF cornerPoint(Corner corner, double distance) {
    return {corner == Corner::BottomLeft ? -distance : distance,
            corner == Corner::TopRight ? -distance : distance};
}

void fillCircle(QPainter& painter, QPointF centre, double radius, const QBrush& brush) {
    painter.setBrush(brush);
    painter.drawEllipse(centre, radius, radius);
}

void strokeCircle(QPainter& painter, QPointF centre, double radius, const QBrush& brush) {
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(brush, hairline));
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

// The light that an edge facing upward catches, and the shade below it.
QLinearGradient rimLight(double top, double bottom, double light, double shade) {
    return downward(top, bottom,
                    {{0.0, faded(palette::white, light)},
                     {0.25, faded(palette::white, light / 4)},
                     {0.5, faded(palette::white, 0)},
                     {0.51, faded(palette::black, 0)},
                     {1.0, faded(palette::black, shade)}});
}

// The lower edge of something let into the plate: dark above, light below.
QLinearGradient lipLight(double top, double bottom, double light, double shade) {
    return downward(top, bottom,
                    {{0.0, faded(palette::black, shade)},
                     {0.49, faded(palette::black, 0)},
                     {0.5, faded(palette::white, 0)},
                     {1.0, faded(palette::white, light)}});
}

void paintScale(QPainter& painter, QPointF centre) {
    constexpr int marks = 11;
    constexpr double firstDegrees = -135;
    constexpr double stepDegrees = 27;
    constexpr double inner = 0.144;
    constexpr double outer = 0.154;
    painter.save();
    painter.setPen(QPen(faded(look::unit, 0.6), 0.007));
    painter.translate(centre);
    painter.rotate(firstDegrees);
    for (int mark = 0; mark < marks; ++mark) {
        painter.drawLine(QPointF(0, -inner), QPointF(0, -outer));
        painter.rotate(stepDegrees);
    }
    painter.restore();
}

void paintKey(QPainter& painter, const QRectF& key, const QString& word, bool lit) {
    constexpr double rounding = 0.016;
    constexpr double glowStep = 0.012;
    constexpr int glowSteps = 4;
    painter.setBrush(lit ? downward(key.top(), key.bottom(), {{0, 0xFF101512}, {1, 0xFF1B211E}})
                         : downward(key.top(), key.bottom(), {{0, 0xFF474D55}, {1, 0xFF2D3238}}));
    painter.drawRoundedRect(key, rounding, rounding);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(lit ? lipLight(key.top(), key.bottom(), 0.10, 0.5)
                            : rimLight(key.top(), key.bottom(), 0.28, 0.3),
                        hairline));
    painter.drawRoundedRect(key, rounding, rounding);
    painter.restore();

    const QPointF base(key.center().x(), key.center().y() + wordSize * capitalHeight / 2);
    const QPainterPath outline = letters(word, wordSize, base, Anchor::Centre);
    for (int step = 1; lit && step <= glowSteps; ++step)
        painter.strokePath(outline, QPen(faded(look::measured, 0.035), step * glowStep,
                                         Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, QColor(lit ? look::measured : palette::dimLettering));
}

} // namespace

void paintPlate(QPainter& painter) {
    const QRectF whole(-1, -1, 2, 2);
    const QRectF plate =
        whole.adjusted(plateMargin, plateMargin / 2, -plateMargin, -plateMargin * 1.5);
    painter.fillRect(whole, palette::panel);
    painter.setBrush(faded(palette::black, 0.5));
    painter.drawRoundedRect(plate.translated(0, plateMargin), plateRounding, plateRounding);
    painter.setBrush(downward(
        -1, 1, {{0.0, look::bezelTop}, {0.55, palette::bezelMiddle}, {1.0, look::bezelBottom}}));
    painter.drawRoundedRect(plate, plateRounding, plateRounding);

    const double inset = hairline / 2;
    const double rounding = plateRounding - inset;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(downward(-1, 1,
                                 {{0.0, faded(palette::white, 0.30)},
                                  {0.06, faded(palette::white, 0.10)},
                                  {0.9, faded(palette::white, 0.03)},
                                  {1.0, faded(palette::black, 0.30)}}),
                        hairline));
    painter.drawRoundedRect(plate.adjusted(inset, inset, -inset, -inset), rounding, rounding);
    painter.restore();
}

void paintRecess(QPainter& painter, double glassRadius) {
    const double outer = glassRadius + recessWidth;
    const double seal = glassRadius + sealWidth;
    fillCircle(
        painter, {}, outer,
        downward(
            -outer, outer,
            {{0.0, 0xFF0D0F11}, {0.35, 0xFF16191C}, {0.7, 0xFF363D44}, {1.0, palette::bezelLip}}));
    strokeCircle(painter, {}, outer, lipLight(-outer, outer, 0.16, 0.55));
    fillCircle(painter, {}, seal,
               downward(-seal, seal, {{0.0, 0xFF000000}, {0.6, 0xFF07080A}, {1.0, 0xFF15181B}}));
    strokeCircle(painter, {}, seal, lipLight(-seal, seal, 0.10, 0.8));
}

void paintKnobSeat(QPainter& painter, Corner corner, const QString& word) {
    constexpr double seatRadius = knobRadius + 0.010;
    const QPointF centre = cornerPoint(corner, knobCentre);
    const double top = centre.y() - seatRadius;
    const double bottom = centre.y() + seatRadius;
    fillCircle(painter, centre, seatRadius,
               downward(top, bottom, {{0.0, 0xFF15181A}, {0.6, 0xFF1D2124}, {1.0, 0xFF2C3237}}));
    strokeCircle(painter, centre, seatRadius, lipLight(top, bottom, 0.22, 0.45));
    paintScale(painter, centre);

    const bool left = corner == Corner::BottomLeft;
    const QPointF base(left ? -wordStart : wordStart, wordBaseline);
    painter.fillPath(letters(word, wordSize, base, left ? Anchor::Left : Anchor::Right),
                     look::unit);
}

void paintScrew(QPainter& painter, Corner corner) {
    constexpr double radius = 0.044;
    constexpr double slotWidth = 0.011;
    const QPointF centre = cornerPoint(corner, screwCentre);
    const double slotDegrees = corner == Corner::BottomRight ? 28 : -17;
    const double top = centre.y() - radius;
    const double bottom = centre.y() + radius;
    fillCircle(painter, centre, radius * 1.2,
               downward(top, bottom, {{0.0, 0xFF15181B}, {1.0, 0xFF23272B}}));
    strokeCircle(painter, centre, radius * 1.2, lipLight(top, bottom, 0.14, 0.3));
    fillCircle(painter, centre, radius,
               downward(top, bottom, {{0.0, 0xFF4A5158}, {1.0, 0xFF2A2E33}}));
    strokeCircle(painter, centre, radius - hairline / 2, rimLight(top, bottom, 0.22, 0.3));
    painter.save();
    painter.translate(centre);
    painter.rotate(slotDegrees);
    painter.fillRect(QRectF(-radius * 0.86, -slotWidth / 2, radius * 1.72, slotWidth),
                     QColor(0xFF131618));
    painter.fillRect(QRectF(-radius * 0.86, slotWidth / 2, radius * 1.72, slotWidth / 3),
                     faded(palette::white, 0.14));
    painter.restore();
}

void paintSelector(QPainter& painter, const Selector& selector) {
    constexpr double width = 2 * look::bezel::selectorWidth;
    constexpr double height = 2 * look::bezel::keyHeight;
    constexpr double cornerDistance = 1 - 2 * look::bezel::keyInset;
    constexpr double frame = 0.012;
    constexpr double rounding = 0.024;
    constexpr double captionGap = 0.026;
    const QRectF slot(cornerDistance - width, -cornerDistance, width, height);
    painter.setBrush(QColor(0xFF0E1113));
    painter.drawRoundedRect(slot, rounding, rounding);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(lipLight(slot.top(), slot.bottom(), 0.20, 0.4), hairline));
    painter.drawRoundedRect(slot, rounding, rounding);
    painter.restore();

    QRectF key = slot.adjusted(frame, frame, -frame, -frame);
    key.setWidth((key.width() - frame / 2) / 2);
    paintKey(painter, key, selector.firstWord, selector.firstLit);
    key.translate(key.width() + frame / 2, 0);
    paintKey(painter, key, selector.secondWord, !selector.firstLit);

    const QPointF base(slot.center().x(), slot.bottom() + captionGap + wordSize * capitalHeight);
    painter.fillPath(letters(selector.caption, wordSize, base, Anchor::Centre), look::unit);
}

void paintTypeWord(QPainter& painter, const QString& word) {
    painter.fillPath(letters(word, typeWordSize, {0, wordBaseline + 0.008}, Anchor::Centre),
                     palette::dimLettering);
}

} // namespace tarnel
