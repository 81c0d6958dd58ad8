#include "window/chart/chart_dots.h"

#include "look/look.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tarnel {

namespace {

constexpr int places = 4; ///< within a pixel, across and down

/// The whole pixel and the place within it.
struct PixelPlace {
    explicit PixelPlace(double at) {
        const auto steps = static_cast<int>(std::lround(at * places));
        pixel = static_cast<int>(std::floor(static_cast<double>(steps) / places));
        place = steps - pixel * places;
    }
    int pixel = 0;
    int place = 0;
};

/// All dots as one path.
void printDots(QPainter& painter, const ChartFrame& frame, std::span<const Dot> dots,
               double diameter) {
    QPolygonF middles;
    for (const Dot& dot : dots)
        middles << frame.at({static_cast<double>(dot.x), static_cast<double>(dot.y)});
    strokeDots(painter, middles, diameter, look::fromSurface(dots.front().colour));
}

} // namespace

void ChartDots::makeCells(const Look& wanted) {
    look = wanted;
    const double diameter = wanted.diameter * wanted.pixelRatio;
    side = static_cast<int>(std::ceil(diameter)) + 3; // room for the place, and a smooth edge
    cells = QPixmap(side * places, side * places);
    cells.fill(Qt::transparent);
    QPainter painter(&cells);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::fromSurface(wanted.colour));
    const int middle = side / 2;
    for (int across = 0; across < places; ++across)
        for (int down = 0; down < places; ++down)
            painter.drawEllipse(
                QPointF(across * side + middle + static_cast<double>(across) / places,
                        down * side + middle + static_cast<double>(down) / places),
                diameter / 2, diameter / 2);
    painter.end();
    cells.setDevicePixelRatio(wanted.pixelRatio);
}

void ChartDots::paint(QPainter& painter, const ChartFrame& frame, std::span<const Dot> dots,
                      double diameter) {
    if (dots.empty())
        return;
    if (frame.medium == ChartMedium::sheet)
        return printDots(painter, frame, dots, diameter);
    const Look wanted{diameter, frame.pixelRatio, dots.front().colour};
    if (wanted != look)
        makeCells(wanted);
    const QRectF area = frame.paper.adjusted(-diameter, -diameter, diameter, diameter);
    const double pixel = 1 / frame.pixelRatio;
    const int middle = side / 2;
    for (const Dot& dot : dots) {
        const QPointF at = frame.at({static_cast<double>(dot.x), static_cast<double>(dot.y)});
        if (!area.contains(at))
            continue;
        const PixelPlace x(at.x() * frame.pixelRatio);
        const PixelPlace y(at.y() * frame.pixelRatio);
        painter.drawPixmap(QPointF((x.pixel - middle) * pixel, (y.pixel - middle) * pixel), cells,
                           QRectF(x.place * side, y.place * side, side, side));
    }
}

void strokeDots(QPainter& painter, const QPolygonF& middles, double diameter,
                const QColor& colour) {
    const QPointF hardlyAnything(0.01, 0);
    QPainterPath path;
    for (const QPointF& middle : middles) {
        path.moveTo(middle);
        path.lineTo(middle + hardlyAnything);
    }
    painter.strokePath(path, QPen(colour, diameter, Qt::SolidLine, Qt::RoundCap));
}

} // namespace tarnel
