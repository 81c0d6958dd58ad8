#include "window/chart/chart_overlays.h"

#include "window/widgets/line_clipping.h"
#include "window/widgets/look.h"

#include <QPainter>
#include <QTransform>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double closestGridLines = 7;
constexpr int gridBuffer = 256;

constexpr double offeredBars[] = {0.5, 1, 2, 4, 6, 10, 20, 40};
constexpr double longestBar = 170;
constexpr double shortestBar = 20;
constexpr int barFields = 4;
constexpr double barHeight = 5;
constexpr double barPadding = 6; ///< from the bar to the edge of its plate
constexpr double numbersGap = 3;
constexpr double numbersHeight = 18;
constexpr double unitWidth = 22;
constexpr double textRoom = 40; ///< more than a number or the unit takes
constexpr double plateOpacity = 0.85;

constexpr double lampsWidth = 152;
constexpr double lampsHeight = 34;
constexpr double lampsGap = 6; ///< above the scale bar
constexpr double smallestSideWithLamps = 250;

constexpr double arrowHalfLength = 13;
constexpr double arrowHalfWidth = 6;
constexpr double arrowNotch = 5;
constexpr double arrowPlateWidth = 32;
constexpr double arrowPlateHeight = 44;
constexpr double arrowPlateDrop = 4; ///< its letter stands level with the scale bar
constexpr double arrowTop = 2;

constexpr double controlStripHeight = 44;
constexpr double controlsWidth = 172; ///< at either side
constexpr double pillHeight = 24;
constexpr double pillInset = 12;
constexpr double pillOpacity = 0.95;

enum class Thickness { mile, fiveMiles, tenMiles };

Thickness thicknessOf(int line) {
    if (line % 10 == 0)
        return Thickness::tenMiles;
    return line % 5 == 0 ? Thickness::fiveMiles : Thickness::mile;
}

using GridLines = QVarLengthArray<QLineF, gridBuffer>;

/// Both directions of the grid, in the grid's own turned coordinates, laid on the paper.
class GridBuilder {
  public:
    GridBuilder(const ChartFrame& paperFrame, const GridPlace& gridPlace)
        : frame(paperFrame), grid(gridPlace) {
        toPaper.translate(grid.origin.x(), grid.origin.y());
        toPaper.rotate(grid.rotation);
        centre = toPaper.inverted().map(frame.paper.center());
        reach = std::hypot(frame.side, frame.side) / 2;
    }

    [[nodiscard]] GridLines lines(Thickness thickness) const {
        GridLines result;
        const int every = thickness == Thickness::mile        ? 1
                          : thickness == Thickness::fiveMiles ? 5
                                                              : 10;
        if (every * grid.pixelsPerMile < closestGridLines)
            return result;
        collect(result, thickness, every, centre.x(), [this](double at) {
            return QLineF(at, centre.y() - reach, at, centre.y() + reach);
        });
        collect(result, thickness, every, centre.y(), [this](double at) {
            return QLineF(centre.x() - reach, at, centre.x() + reach, at);
        });
        return result;
    }

  private:
    template <class LineAt>
    void collect(GridLines& result, Thickness thickness, int every, double middle,
                 LineAt lineAt) const {
        const double step = every * grid.pixelsPerMile;
        const double first = std::ceil((middle - reach) / step);
        const double last = std::floor((middle + reach) / step);
        for (double i = first; i <= last; ++i) {
            const int mile = static_cast<int>(std::fmod(i, 10)) * every;
            if (thicknessOf(mile) != thickness)
                continue;
            if (const auto line = clipped(toPaper.map(lineAt(i * step)), frame.paper))
                result.append(grid.rotation == 0 ? onPixels(*line) : *line);
        }
    }

    /// Through the middle of device pixels: one sharp pixel wide.
    [[nodiscard]] QLineF onPixels(const QLineF& line) const {
        const double half = 0.5 / frame.pixelRatio;
        const auto middle = [&](QPointF point) {
            return QPointF(std::floor(point.x() * frame.pixelRatio) / frame.pixelRatio + half,
                           std::floor(point.y() * frame.pixelRatio) / frame.pixelRatio + half);
        };
        return {middle(line.p1()), middle(line.p2())};
    }

    const ChartFrame& frame;
    const GridPlace& grid;
    QTransform toPaper;
    QPointF centre;
    double reach = 0;
};

double milesOfBar(double pixelsPerMile, double longest) {
    double fitting = 0;
    for (const double miles : offeredBars)
        if (miles * pixelsPerMile <= longest && miles * pixelsPerMile >= shortestBar)
            fitting = miles;
    return fitting;
}

QString milesText(double miles) {
    return QString::number(miles, 'g', 3);
}

void paintBarNumber(QPainter& painter, QPointF middle, double miles) {
    painter.drawText(QRectF(middle.x() - textRoom / 2, middle.y() - textRoom, textRoom, textRoom),
                     Qt::AlignHCenter | Qt::AlignBottom, milesText(miles));
}

} // namespace

void paintGrid(QPainter& painter, const ChartFrame& frame, const GridPlace& grid) {
    if (!(grid.pixelsPerMile > 0) || !std::isfinite(grid.origin.x() + grid.origin.y()))
        return;
    const GridBuilder builder(frame, grid);
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing, grid.rotation != 0);
    constexpr std::pair<Thickness, QColor> kinds[] = {{Thickness::mile, look::gridMile},
                                                      {Thickness::fiveMiles, look::gridFiveMiles},
                                                      {Thickness::tenMiles, look::gridTenMiles}};
    for (const auto& [thickness, colour] : kinds) {
        // Slanting lines cost too much to paint the faintest of them at each tick.
        if (grid.rotation != 0 && thickness == Thickness::mile)
            continue;
        const GridLines lines = builder.lines(thickness);
        painter.setPen(QPen(colour, 1));
        painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    }
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}

ScaleBar::ScaleBar(const ChartFrame& frame, double pixelsPerMile)
    : miles(milesOfBar(pixelsPerMile, longestBar * frame.textScale)) {
    if (miles == 0)
        return;
    const double scale = frame.textScale;
    const double left = look::overlayInset + barPadding * scale;
    const double bottom = frame.side - look::overlayInset - barPadding * scale;
    bar = {left, bottom - barHeight * scale, miles * pixelsPerMile, barHeight * scale};
    plate = bar.adjusted(-barPadding * scale, -numbersHeight * scale,
                         (barPadding + unitWidth) * scale, barPadding * scale);
}

void paintScaleBar(QPainter& painter, const ChartFrame& frame, const ScaleBar& scale,
                   const QString& unit) {
    if (scale.miles == 0)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(look::paper, plateOpacity));
    painter.drawRoundedRect(scale.plate, look::paperRadius, look::paperRadius);

    const QRectF bar(frame.snapped(scale.bar.topLeft()), frame.snapped(scale.bar.bottomRight()));
    const double field = bar.width() / barFields;
    for (int i = 0; i < barFields; ++i)
        painter.fillRect(QRectF(bar.left() + i * field, bar.top(), field, bar.height()),
                         i % 2 == 0 ? look::ink : look::paper);
    painter.setPen(QPen(look::ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));

    painter.setFont(frame.smallFont);
    const double above = bar.top() - numbersGap * frame.textScale;
    for (int i = 0; i <= 2; ++i)
        paintBarNumber(painter, {bar.left() + i * bar.width() / 2, above}, scale.miles * i / 2);
    painter.drawText(QRectF(bar.right() + barPadding * frame.textScale,
                            bar.center().y() - textRoom / 2, textRoom, textRoom),
                     Qt::AlignLeft | Qt::AlignVCenter, unit);
}

QRectF lampsPlate(const ChartFrame& frame) {
    const double scale = frame.textScale;
    if (frame.side < smallestSideWithLamps * scale)
        return {};
    const double scaleBar = barPadding + barHeight + numbersHeight;
    const QSizeF size(lampsWidth * scale, lampsHeight * scale);
    return {QPointF(look::overlayInset, frame.side - look::overlayInset -
                                            (scaleBar + lampsGap) * scale - size.height()),
            size};
}

QRectF northArrowPlate(const ChartFrame& frame) {
    const QSizeF size(arrowPlateWidth * frame.textScale, arrowPlateHeight * frame.textScale);
    return {QPointF(frame.side - look::overlayInset - size.width(),
                    frame.side - look::overlayInset + arrowPlateDrop - size.height()),
            size};
}

void paintNorthArrow(QPainter& painter, const ChartFrame& frame, double rotation,
                     const QString& letter) {
    const QRectF plate = northArrowPlate(frame);
    const double scale = frame.textScale;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(look::paper, plateOpacity));
    painter.drawRoundedRect(plate, look::paperRadius, look::paperRadius);

    painter.save();
    painter.translate(plate.center().x(), plate.top() + (arrowHalfLength + arrowTop) * scale);
    painter.rotate(rotation);
    painter.scale(scale, scale);
    const QPointF tip(0, -arrowHalfLength);
    const QPointF notch(0, arrowHalfLength - arrowNotch);
    painter.setPen(QPen(look::ink, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(look::paper);
    painter.drawPolygon(QPolygonF{tip, {arrowHalfWidth, arrowHalfLength}, notch});
    painter.setBrush(look::ink);
    painter.drawPolygon(QPolygonF{tip, {-arrowHalfWidth, arrowHalfLength}, notch});
    painter.restore();

    painter.setPen(look::ink);
    painter.setFont(frame.lineFont);
    painter.drawText(plate.adjusted(0, 0, 0, -1), Qt::AlignHCenter | Qt::AlignBottom, letter);
}

QRectF controlStrip(const ChartFrame& frame) {
    return {0, 0, frame.side, controlStripHeight * std::max(1.0, frame.textScale)};
}

void paintHelp(QPainter& painter, const ChartFrame& frame, const QString& text) {
    painter.setFont(look::font(look::denseType * frame.textScale));
    const double textWidth = painter.fontMetrics().horizontalAdvance(text);
    const QSizeF size(textWidth + 2 * pillInset * frame.textScale, pillHeight * frame.textScale);
    const double betweenControls =
        frame.side - 2 * (controlsWidth * frame.textScale + look::overlayInset);
    const QRectF pill(QPointF((frame.side - size.width()) / 2, size.width() < betweenControls
                                                                   ? look::overlayInset
                                                                   : controlStrip(frame).bottom()),
                      size);
    painter.setPen(QPen(look::line, 1));
    painter.setBrush(look::faded(look::card, pillOpacity));
    painter.drawRoundedRect(pill, size.height() / 2, size.height() / 2);
    painter.setPen(look::ink);
    painter.drawText(pill, Qt::AlignCenter, text);
}

void paintPaperEdge(QPainter& painter, const ChartFrame& frame) {
    painter.setPen(QPen(look::line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.paper.adjusted(0.5, 0.5, -0.5, -0.5), look::paperRadius,
                            look::paperRadius);
}

} // namespace tarnel
