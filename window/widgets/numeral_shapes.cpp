#include "window/widgets/numeral_shapes.h"

#include "look/panel_look.h"
#include "window/widgets/picture_store.h"

#include <QPainter>
#include <QPainterPath>

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

QPainterPath letteringOf(const std::string& caption) {
    QPainterPath path;
    path.addText(0, 0, outlinedFont(), QString::fromStdString(caption));
    return path;
}

/// A numeral, and a shape that is a little larger all around: one em high, about their middles.
struct NumeralOutline {
    QPainterPath body;
    QPainterPath edge;
};

NumeralOutline outlineOf(const std::string& caption) {
    const QPainterPath path = letteringOf(caption);
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
    return {body, toEdgeEm.inverted().map(edge)};
}

/// Twips.
double emOf(const Label& numeral) {
    return numeral.fontPoints * pointTwips * (isCardinal(numeral.caption) ? cardinalWeight : 1);
}

/// Brings a numeral of an em, upright about its middle, to its place.
QTransform placeOf(const Label& numeral, double size, double scale) {
    QTransform toPlace = QTransform::fromScale(scale, scale);
    toPlace.translate(numeral.anchor.x, numeral.anchor.y);
    toPlace.rotate(bearingOf(numeral.anchor, size / 2));
    toPlace.scale(emOf(numeral), emOf(numeral));
    return toPlace;
}

} // namespace

const NumeralShapes::Cell& NumeralShapes::cellOf(const std::string& caption, double pixelsAnEm) {
    Cell& cell = cells[caption];
    if (cell.pixelsAnEm == pixelsAnEm)
        return cell;
    const NumeralOutline outline = outlineOf(caption);
    const QTransform toPixels = QTransform::fromScale(pixelsAnEm, pixelsAnEm);
    const QRectF edge = toPixels.mapRect(outline.edge.boundingRect());
    const QSize half(qCeil(edge.width() / 2) + 1, qCeil(edge.height() / 2) + 1);
    cell = {QPixmap(half * 2), pixelsAnEm};
    cell.pixels.fill(Qt::transparent);
    QPainter painter(&cell.pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(half.width(), half.height());
    painter.setTransform(toPixels, true);
    painter.fillPath(outline.edge, look::shapeEdge);
    painter.fillPath(outline.body, look::ticks);
    return cell;
}

void NumeralShapes::paint(QPainter& painter, const Label& numeral, double size, double scale) {
    const double pixelsAnEm = 2 * emOf(numeral) * scale * devicePixelsPerUnit(painter);
    const Cell& cell = cellOf(numeral.caption, pixelsAnEm);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setTransform(placeOf(numeral, size, scale), true);
    painter.scale(1 / pixelsAnEm, 1 / pixelsAnEm);
    painter.drawPixmap(QPointF(-cell.pixels.width() / 2.0, -cell.pixels.height() / 2.0),
                       cell.pixels);
    painter.restore();
}

NumeralText NumeralShapes::text(const Label& numeral, double size, double scale) {
    QTransform place = placeOf(numeral, size, scale);
    place.scale(1 / outlineEm, 1 / outlineEm);
    const QPointF middle = letteringOf(numeral.caption).boundingRect().center();
    return {place, -middle, outlinedFont()};
}

} // namespace tarnel
