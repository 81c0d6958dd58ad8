#include "window/chart/chart_symbols.h"

#include "look/look.h"
#include "window/chart/chart_dots.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

// Lengths of the symbols in pixels on a paper of 544.
constexpr double frameHalfWidth = 8.6;
constexpr double frameHalfHeight = 7.5;
constexpr double hexagonRadius = 7.6;
constexpr double dotRadius = 1.9;
constexpr double stroke = 1.4;
constexpr double pixmapMargin = 2;
constexpr double localizerRadius = 4.6;
constexpr double fillOpacity = 0.14;

constexpr double ndbDotRadius = 2.2;
constexpr double ndbRingRadius = 4.7;
constexpr double ndbSpeckRadius = 0.9;
struct SpeckRing {
    double radius;
    int specks;
};
constexpr SpeckRing speckRings[] = {{8.2, 14}, {12, 21}, {15.9, 28}};

constexpr double roseOpacity = 0.5;
constexpr double northMarkOpacity = 0.6;
constexpr double roseStroke = 0.9;
constexpr double northTick = 8.5;
constexpr double longTick = 6.2;
constexpr double shortTick = 3.3;
constexpr double northMarkHalfWidth = 3;
constexpr double roseStep = 0.5; ///< degrees between two turns of the rose

/// Which drawing stands for a slot.
enum class Kind { vor, ndb, localizer };

Kind kindOf(std::size_t slot) {
    if (static_cast<Slot>(slot) == Slot::localizer)
        return Kind::localizer;
    return hasDme(slot) ? Kind::vor : Kind::ndb;
}

/// Ticks that point inwards from a circle.
void paintTicks(QPainter& painter, double radius, int every, double length) {
    QLineF ticks[36];
    int count = 0;
    for (int angle = 0; angle < 360; angle += every) {
        const double radians = qDegreesToRadians(static_cast<double>(angle));
        const QPointF direction(std::sin(radians), -std::cos(radians));
        ticks[count++] = {direction * radius, direction * (radius - length)};
    }
    painter.drawLines(ticks, count);
}

void paintRose(QPainter& painter, QColor colour, double radius, double scale, double rotation) {
    const QColor pale = look::faded(colour, roseOpacity);
    painter.save();
    painter.rotate(rotation);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(pale, roseStroke * scale));
    painter.drawEllipse(QPointF(), radius, radius);
    paintTicks(painter, radius, 10, shortTick * scale);
    painter.setPen(QPen(pale, stroke * scale, Qt::SolidLine, Qt::FlatCap));
    paintTicks(painter, radius, 30, longTick * scale);
    paintTicks(painter, radius, 360, northTick * scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(colour, northMarkOpacity));
    painter.drawPolygon(QPolygonF{{0, -radius - PaperFrame::northMarkHeight * scale},
                                  {northMarkHalfWidth * scale, -radius},
                                  {-northMarkHalfWidth * scale, -radius}});
    painter.restore();
}

QPolygonF hexagon(double radius) {
    const double half = radius / 2;
    const double height = radius * std::sqrt(3.0) / 2;
    return {{{-radius, 0.0},
             {-half, -height},
             {half, -height},
             {radius, 0.0},
             {half, height},
             {-half, height}}};
}

void paintDot(QPainter& painter, QColor colour, double radius) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(), radius, radius);
}

/// VOR and localizer: a hexagon or a ring for the station, a square for the DME.
void paintStation(QPainter& painter, QColor colour, Kind kind, SymbolImage image, double scale) {
    painter.setPen(QPen(colour, stroke * scale, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    if (image != SymbolImage::stationOnly) {
        painter.setBrush(look::paper);
        painter.drawRect(QRectF(-frameHalfWidth * scale, -frameHalfHeight * scale,
                                2 * frameHalfWidth * scale, 2 * frameHalfHeight * scale));
    }
    if (image != SymbolImage::dmeOnly) {
        painter.setBrush(look::onPaper(colour, fillOpacity));
        if (kind == Kind::vor)
            painter.drawPolygon(hexagon(hexagonRadius * scale));
        else
            painter.drawEllipse(QPointF(), localizerRadius * scale, localizerRadius * scale);
    }
    paintDot(painter, colour, dotRadius * scale);
}

void paintNdb(QPainter& painter, QColor colour, double scale) {
    QPolygonF specks;
    for (const SpeckRing& ring : speckRings) {
        for (int i = 0; i < ring.specks; ++i) {
            const double angle = 2 * M_PI * i / ring.specks;
            specks << QPointF(std::sin(angle), -std::cos(angle)) * ring.radius * scale;
        }
    }
    strokeDots(painter, specks, 2 * ndbSpeckRadius * scale, colour);
    painter.setPen(QPen(colour, stroke * scale));
    painter.setBrush(look::paper);
    painter.drawEllipse(QPointF(), ndbRingRadius * scale, ndbRingRadius * scale);
    paintDot(painter, colour, ndbDotRadius * scale);
}

/// Paints the symbol of a slot about the painter's origin.
void paintSymbol(QPainter& painter, const ChartFrame& frame, std::size_t slot, SymbolImage image,
                 double rotation) {
    const QColor colour = look::fromSurface(slotColour(slot));
    const Kind kind = kindOf(slot);
    if (kind == Kind::ndb)
        return paintNdb(painter, colour, frame.symbolScale);
    if (kind == Kind::vor)
        paintRose(painter, colour, frame.roseRadius(), frame.symbolScale, rotation);
    paintStation(painter, colour, kind, image, frame.symbolScale);
}

QPixmap symbolPixmap(const ChartFrame& frame, std::size_t slot, SymbolImage image,
                     double rotation) {
    const double reach = frame.outerRadius(slot) + pixmapMargin;
    const int pixels = 2 * static_cast<int>(std::ceil(reach * frame.pixelRatio));
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(frame.pixelRatio);
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double centre = pixels / frame.pixelRatio / 2;
    painter.translate(centre, centre);
    paintSymbol(painter, frame, slot, image, rotation);
    return pixmap;
}

} // namespace

void ChartSymbols::paint(QPainter& painter, const ChartFrame& frame, const StationSymbol& symbol,
                         std::size_t slot, double rotation) {
    if (frame.medium == ChartMedium::sheet) {
        painter.save();
        painter.translate(frame.at(symbol.leader.from));
        paintSymbol(painter, frame, slot, symbol.image, rotation);
        painter.restore();
        return;
    }
    const double turn = kindOf(slot) == Kind::vor ? std::round(rotation / roseStep) * roseStep : 0;
    const Look wanted{symbol.image, frame.side, frame.pixelRatio, turn};
    Kept& own = kept[slot];
    if (own.look != wanted)
        own = {wanted, symbolPixmap(frame, slot, symbol.image, turn)};
    const double half = own.pixmap.deviceIndependentSize().width() / 2;
    painter.drawPixmap(toQt(frame.snapped(frame.spot(symbol.leader.from) - Spot{half, half})),
                       own.pixmap);
}

} // namespace tarnel
