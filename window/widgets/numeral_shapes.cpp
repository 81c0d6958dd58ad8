#include "window/widgets/numeral_shapes.h"

#include "look/panel_look.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double pointTwips = 20;
constexpr double outlineEm = 100; ///< large, since outlines are hinted to whole pixels
/// Smaller, as two outlines are united to half a unit or so: an edge needs no more points.
constexpr double edgeEm = 30;
constexpr double edgeShare = numeralTextEdge / 2 / outlineEm; ///< of an em, around a numeral
constexpr double cardinalWeight =
    look::card_share::cardinalHeight / look::card_share::numeralHeight;

bool isCardinal(const std::string& caption) {
    return !caption.empty() && caption.front() > '9';
}

/// Degrees clockwise from the top, seen from the middle.
double bearingOf(Point place, double middle) {
    const double turn = std::atan2(place.x - middle, middle - place.y);
    return turn * 180 / std::numbers::pi;
}

QFont outlinedFont() {
    return look::font(outlineEm, QFont::Bold);
}

QPainterPath outlineOf(const std::string& caption) {
    QPainterPath path;
    path.addText(0, 0, outlinedFont(), QString::fromStdString(caption));
    return path;
}

/// Brings a numeral of an em, upright about its middle, to its place.
QTransform placeOf(const Label& numeral, double size, double scale) {
    const double weight = isCardinal(numeral.caption) ? cardinalWeight : 1;
    const double em = numeral.fontPoints * pointTwips * weight;
    QTransform toPlace = QTransform::fromScale(scale, scale);
    toPlace.translate(numeral.anchor.x, numeral.anchor.y);
    toPlace.rotate(bearingOf(numeral.anchor, size / 2));
    toPlace.scale(em, em);
    return toPlace;
}

} // namespace

const TurnedNumeral& NumeralShapes::outline(const std::string& caption) {
    const auto found = outlines.find(caption);
    if (found != outlines.end())
        return found->second;
    const QPainterPath path = outlineOf(caption);
    const QPointF middle = path.boundingRect().center();
    QTransform toOneEm = QTransform::fromScale(1 / outlineEm, 1 / outlineEm);
    toOneEm.translate(-middle.x(), -middle.y());
    const QPainterPath body = toOneEm.map(path);
    const QTransform toEdgeEm = QTransform::fromScale(edgeEm, edgeEm);
    const QPainterPath inside = toEdgeEm.map(body);
    QPainterPathStroker stroker;
    stroker.setWidth(2 * edgeShare * edgeEm);
    stroker.setJoinStyle(Qt::RoundJoin);
    const QPainterPath edge = stroker.createStroke(inside).united(inside);
    return outlines[caption] = {body, toEdgeEm.inverted().map(edge)};
}

TurnedNumeral NumeralShapes::turned(const Label& numeral, double size, double scale) {
    const QTransform toPlace = placeOf(numeral, size, scale);
    const TurnedNumeral& upright = outline(numeral.caption);
    return {toPlace.map(upright.body), toPlace.map(upright.edge)};
}

NumeralText NumeralShapes::text(const Label& numeral, double size, double scale) {
    QTransform place = placeOf(numeral, size, scale);
    place.scale(1 / outlineEm, 1 / outlineEm);
    const QPointF middle = outlineOf(numeral.caption).boundingRect().center();
    return {place, -middle, outlinedFont()};
}

} // namespace tarnel
