#include "tools/paint_pictures/digit_painter.h"

#include "tools/paint_pictures/deep_picture.h"
#include "tools/paint_pictures/palette.h"

#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QTransform>

#include <array>
#include <bitset>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

enum Segment { top, upperRight, lowerRight, bottom, lowerLeft, upperLeft, middleBar, segmentCount };

using SegmentSet = std::bitset<segmentCount>;

// The first segment is the lowest bit.
constexpr std::array<SegmentSet, segmentSigns> litSegments{
    0b0111111, 0b0000110, 0b1011011, 0b1001111, 0b1100110, 0b1101101,
    0b1111101, 0b0000111, 0b1111111, 0b1101111, 0b1000000, 0b0000000};
constexpr int one = 1;

constexpr QSize digitCell{look::digits::cellWidth, look::digits::cellHeight};
constexpr double stroke = look::digits::strokeShare * digitCell.height();
constexpr double gap = 0.012 * digitCell.height(); // from a tip to where two segments would meet
constexpr double slantDegrees = 5;
constexpr double margin = look::digits::cellMargin;

// The upright figure before it is slanted, with its origin at the top left.
constexpr double figureHeight = look::digits::figureHeight;

double slant() {
    return std::tan(slantDegrees * std::numbers::pi / 180);
}

double figureWidth() {
    return digitCell.width() - 2 * margin - figureHeight * slant();
}

// How far from the edge a segment begins: at the edge, unless it meets a lit neighbour there.
double tipInset(bool meetsNeighbour) {
    return meetsNeighbour ? stroke / 2 + gap : 0;
}

QPolygonF horizontal(double y, double left, double right) {
    constexpr double half = stroke / 2;
    return {{left, y},  {left + half, y - half},  {right - half, y - half},
            {right, y}, {right - half, y + half}, {left + half, y + half}};
}

QPolygonF vertical(double x, double top, double bottom) {
    constexpr double half = stroke / 2;
    return {{x, top},    {x + half, top + half},    {x + half, bottom - half},
            {x, bottom}, {x - half, bottom - half}, {x - half, top + half}};
}

QPolygonF segment(Segment which, const SegmentSet& lit) {
    constexpr double middle = figureHeight / 2;
    const double farX = figureWidth() - stroke / 2;
    const double nearX = stroke / 2;
    const double aboveMiddle = middle - gap;
    const double belowMiddle = middle + gap;
    const auto across = [&](double y, bool meetsLeft, bool meetsRight) {
        return horizontal(y, tipInset(meetsLeft), figureWidth() - tipInset(meetsRight));
    };
    switch (which) {
    case top:
        return across(stroke / 2, lit[upperLeft], lit[upperRight]);
    case upperRight:
        return vertical(farX, tipInset(lit[top]), aboveMiddle);
    case lowerRight:
        return vertical(farX, belowMiddle, figureHeight - tipInset(lit[bottom]));
    case bottom:
        return across(figureHeight - stroke / 2, lit[lowerLeft], lit[lowerRight]);
    case lowerLeft:
        return vertical(nearX, belowMiddle, figureHeight - tipInset(lit[bottom]));
    case upperLeft:
        return vertical(nearX, tipInset(lit[top]), aboveMiddle);
    default:
        return across(middle, lit[upperLeft] || lit[lowerLeft], lit[upperRight] || lit[lowerRight]);
    }
}

QPainterPath glyph(int sign) {
    const SegmentSet& lit = litSegments[sign];
    QPainterPath upright;
    for (int which = top; which < segmentCount; ++which)
        if (lit[which]) {
            upright.addPolygon(segment(static_cast<Segment>(which), lit));
            upright.closeSubpath();
        }
    const double toCentre = sign == one ? -(figureWidth() - stroke) / 2 : 0;
    const QTransform slanted(1, 0, -slant(), 1, margin + figureHeight * slant() + toCentre, margin);
    return slanted.map(upright);
}

} // namespace

QImage paintDigit(int sign, const QColor& colour) {
    constexpr std::array<double, 3> glowWidths{16, 10, 5};
    constexpr double glowOpacity = 0.06;
    QImage picture = deepPicture(digitCell);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath outline = glyph(sign);
    for (const double width : glowWidths)
        painter.strokePath(outline, QPen(look::faded(colour, glowOpacity), width, Qt::SolidLine,
                                         Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, colour);
    painter.end();
    return picture.convertToFormat(QImage::Format_ARGB32);
}

} // namespace tarnel
