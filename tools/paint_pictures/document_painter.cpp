#include "tools/paint_pictures/document_painter.h"

#include "tools/paint_pictures/deep_picture.h"
#include "tools/paint_pictures/icon_painter.h"
#include "tools/paint_pictures/palette.h"

#include <QPainterPath>
#include <QPen>

#include <algorithm>

namespace tarnel {

using palette::downward;

namespace {

// In half sides of the icon.
constexpr double sheetWidth = 0.72;
constexpr double sheetHeight = 0.95;
constexpr double fold = 0.42;
constexpr double thinnestPixels = 1;

// A pen of that width that is never thinner than a pixel.
QPen penOf(const QColor& colour, double width, int side) {
    return {colour, std::max(width, 2 * thinnestPixels / side), Qt::SolidLine, Qt::RoundCap,
            Qt::RoundJoin};
}

void paintSheet(QPainter& painter, int side) {
    QPainterPath sheet(QPointF(-sheetWidth, -sheetHeight));
    sheet.lineTo(sheetWidth - fold, -sheetHeight);
    sheet.lineTo(sheetWidth, -sheetHeight + fold);
    sheet.lineTo(sheetWidth, sheetHeight);
    sheet.lineTo(-sheetWidth, sheetHeight);
    sheet.closeSubpath();
    painter.setPen(penOf(palette::markDark, 0.02, side));
    painter.setBrush(
        downward(-sheetHeight, sheetHeight, {{0.0, palette::white}, {1.0, look::rgb(0xE3E7EA)}}));
    painter.drawPath(sheet);
    painter.setBrush(palette::markLight);
    painter.drawPolygon(QPolygonF{QPointF(sheetWidth - fold, -sheetHeight),
                                  QPointF(sheetWidth - fold, -sheetHeight + fold),
                                  QPointF(sheetWidth, -sheetHeight + fold)});
}

// The way that was flown: out, round, and to the middle.
void paintTrack(QPainter& painter, int side) {
    QPainterPath track(QPointF(-0.55, 0.75));
    track.lineTo(-0.55, -0.35);
    track.cubicTo({-0.55, -0.95}, {0.25, -0.85}, {0.25, -0.30});
    painter.setBrush(Qt::NoBrush);
    painter.setPen(penOf(look::rgb(0x2F6FB5), 0.09, side));
    painter.drawPath(track);
}

// Meridians, parallels and a radial.
void paintGrid(QPainter& painter, int side) {
    painter.setPen(penOf(palette::markLight, 0.03, side));
    for (const double x : {-0.36, 0.0})
        painter.drawLine(QPointF(x, -sheetHeight + 0.04), QPointF(x, sheetHeight - 0.04));
    for (const double y : {-0.45, 0.0, 0.45})
        painter.drawLine(QPointF(-sheetWidth + 0.04, y), QPointF(sheetWidth - 0.04, y));
    painter.setPen(penOf(look::rgb(0x2E8B57), 0.07, side));
    painter.drawLine(QPointF(0.15, 0.25), QPointF(-0.6, -0.8));
}

void paintProgram(QPainter& painter, int side) {
    constexpr double share = 0.5;
    painter.resetTransform();
    painter.translate(side * 0.33, side * 0.38);
    painter.scale(share, share);
    painter.setPen(Qt::NoPen);
    paintIcon(painter, side);
}

} // namespace

QImage paintDocument(DocumentKind kind, int side) {
    QImage picture = deepPicture({side, side});
    QPainter painter(&picture);
    useHalfSideUnits(painter, side);
    paintSheet(painter, side);
    kind == DocumentKind::session ? paintTrack(painter, side) : paintGrid(painter, side);
    paintProgram(painter, side);
    painter.end();
    return dithered(picture);
}

} // namespace tarnel
