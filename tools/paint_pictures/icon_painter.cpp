#include "tools/paint_pictures/icon_painter.h"

#include "tools/paint_pictures/deep_picture.h"
#include "tools/paint_pictures/palette.h"

#include <QPen>
#include <QPolygonF>

namespace tarnel {

using look::faded;
using palette::downward;

namespace {

constexpr double dialRadius = 0.80;
constexpr double courseDegrees = 38;
constexpr int finestDetailFrom = 128;
constexpr int middleDetailFrom = 48;

void paintGround(QPainter& painter) {
    constexpr double edge = 0.97;
    constexpr double rounding = 0.40;
    const QRectF plate(-edge, -edge, 2 * edge, 2 * edge);
    painter.setBrush(downward(-edge, edge, {{0.0, 0xFF4A515A}, {1.0, look::bezelBottom}}));
    painter.drawRoundedRect(plate, rounding, rounding);
    painter.setBrush(downward(-dialRadius, dialRadius, {{0.0, 0xFF0B0C0E}, {1.0, 0xFF5B666F}}));
    painter.drawEllipse(QPointF(), dialRadius + 0.045, dialRadius + 0.045);
    painter.setBrush(downward(-dialRadius, dialRadius, {{0.0, 0xFF22262A}, {1.0, 0xFF101214}}));
    painter.drawEllipse(QPointF(), dialRadius, dialRadius);
}

void paintRose(QPainter& painter, int side) {
    const bool fine = side >= finestDetailFrom;
    const bool middle = side >= middleDetailFrom;
    const int marks = fine ? 36 : middle ? 12 : 8;
    const double width = fine ? 0.026 : middle ? 0.062 : 0.11;
    constexpr double outer = 0.71;
    painter.save();
    for (int mark = 0; mark < marks; ++mark) {
        const bool strong = fine ? mark % 3 == 0 : mark % (marks / 4) == 0;
        const double inner = strong ? 0.53 : 0.60;
        painter.setPen(
            QPen(QColor(strong ? look::ticks : look::unit), strong ? width * 1.5 : width));
        painter.drawLine(QPointF(0, -outer), QPointF(0, -inner));
        painter.rotate(360.0 / marks);
    }
    painter.restore();
}

// The course arrow; where there is room its middle stands aside, as off the course.
void paintCourse(QPainter& painter, int side) {
    const bool divided = side >= middleDetailFrom;
    const double width = divided ? 0.105 : 0.15;
    const double headWidth = divided ? 0.17 : 0.25;
    constexpr double tip = 0.64;
    constexpr double head = 0.34;
    constexpr double barEnd = 0.25;
    constexpr double tailStart = 0.31;
    constexpr double barShift = 0.19;
    painter.save();
    painter.rotate(courseDegrees);
    painter.setBrush(look::course);
    painter.drawPolygon(
        QPolygonF{QPointF(0, -tip), QPointF(headWidth, -head), QPointF(-headWidth, -head)});
    if (divided) {
        painter.drawRect(QRectF(-width / 2, tailStart, width, tip - tailStart));
        painter.drawRect(QRectF(barShift - width / 2, -barEnd, width, 2 * barEnd));
    } else {
        painter.drawRect(QRectF(-width / 2, -head, width, head + tip));
    }
    painter.restore();
}

// The dots by which the deviation is read, across the course.
void paintDots(QPainter& painter, int side) {
    if (side < finestDetailFrom)
        return;
    constexpr double spacing = 0.125;
    constexpr double radius = 0.026;
    constexpr int dotsASide = 3;
    painter.save();
    painter.rotate(courseDegrees);
    painter.setBrush(look::ticks);
    for (int dot = -dotsASide; dot <= dotsASide; ++dot)
        painter.drawEllipse(QPointF(dot * spacing, 0), radius, radius);
    painter.restore();
}

} // namespace

void paintIcon(QPainter& painter, int side) {
    useHalfSideUnits(painter, side);
    paintGround(painter);
    paintRose(painter, side);
    paintDots(painter, side);
    paintCourse(painter, side);
}

QImage paintIcon(int side) {
    QImage picture = deepPicture({side, side});
    QPainter painter(&picture);
    paintIcon(painter, side);
    painter.end();
    return dithered(picture);
}

} // namespace tarnel
