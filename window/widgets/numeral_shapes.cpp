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
    const QPainterPath lettering = letteringOf(caption);
    const QRectF area = lettering.boundingRect();
    const double pixels = pixelsAnEm / outlineEm;
    const QSize half(qCeil((area.width() + numeralTextEdge) * pixels / 2) + 1,
                     qCeil((area.height() + numeralTextEdge) * pixels / 2) + 1);
    cell = {QPixmap(half * 2), pixelsAnEm};
    cell.pixels.fill(Qt::transparent);
    QPainter painter(&cell.pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(half.width(), half.height());
    painter.scale(pixels, pixels);
    painter.translate(-area.center());
    painter.strokePath(lettering, QPen(look::shapeEdge, numeralTextEdge, Qt::SolidLine, Qt::FlatCap,
                                       Qt::RoundJoin));
    painter.fillPath(lettering, look::ticks);
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
