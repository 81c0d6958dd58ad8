#include "window/chart/chart_overlays.h"

#include "look/look.h"
#include "window/widgets/rounded_fill.h"

#include <QPainter>
#include <QVarLengthArray>

#include <utility>
#include <vector>

namespace tarnel {

namespace {

constexpr int barFields = 4;
constexpr double textReach = 40; ///< more than a number or the unit takes

constexpr double arrowHalfLength = 13;
constexpr double arrowHalfWidth = 6;
constexpr double arrowNotch = 5;

constexpr double pillOpacity = 0.95;
constexpr int gridBuffer = 256;

void paintPlate(QPainter& painter, const Box& plate) {
    fillRounded(painter, toQt(plate), look::paperRadius, look::faded(look::paper, plateOpacity));
}

void paintGridLines(QPainter& painter, const std::vector<Stroke>& lines) {
    QVarLengthArray<QLineF, gridBuffer> ready;
    for (const Stroke& line : lines)
        ready.append(toQt(line));
    painter.drawLines(ready.data(), static_cast<int>(ready.size()));
}

} // namespace

void paintGrid(QPainter& painter, const ChartFrame& frame, const GridPlace& grid) {
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing, grid.rotation != 0);
    constexpr std::pair<GridLine, QColor> kinds[] = {{GridLine::mile, look::gridMile},
                                                     {GridLine::fiveMiles, look::gridFiveMiles},
                                                     {GridLine::tenMiles, look::gridTenMiles}};
    for (const auto& [kind, colour] : kinds) {
        // Slanting lines cost too much to paint the faintest of them at each tick.
        if (grid.rotation != 0 && kind == GridLine::mile)
            continue;
        painter.setPen(QPen(colour, 1));
        paintGridLines(painter, gridLines(frame, grid, kind));
    }
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}

void paintScaleBar(QPainter& painter, const ChartFrame& frame, const ScaleBar& scale,
                   const QString& unit) {
    if (scale.miles == 0)
        return;
    paintPlate(painter, scale.plate);
    const QRectF bar = toQt(scale.bar);
    const double field = bar.width() / barFields;
    for (int i = 0; i < barFields; ++i)
        painter.fillRect(QRectF(bar.left() + i * field, bar.top(), field, bar.height()),
                         i % 2 == 0 ? look::day.ink : look::paper);
    painter.setPen(QPen(look::day.ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));

    painter.setFont(frame.smallFont);
    for (std::size_t i = 0; i < scale.numbers.size(); ++i) {
        const QPointF foot = toQt(scale.numbers[i]);
        painter.drawText(
            QRectF(foot.x() - textReach / 2, foot.y() - textReach, textReach, textReach),
            Qt::AlignHCenter | Qt::AlignBottom,
            QString::number(scale.miles * static_cast<double>(i) / 2, 'g', 3));
    }
    const QPointF at = toQt(scale.unit);
    painter.drawText(QRectF(at.x(), at.y() - textReach / 2, textReach, textReach),
                     Qt::AlignLeft | Qt::AlignVCenter, unit);
}

void paintNorthArrow(QPainter& painter, const ChartFrame& frame, double rotation,
                     const QString& letter) {
    const NorthArrow arrow(frame);
    paintPlate(painter, arrow.plate);
    painter.save();
    painter.translate(toQt(arrow.centre));
    painter.rotate(rotation);
    painter.scale(frame.textScale, frame.textScale);
    const QPointF tip(0, -arrowHalfLength);
    const QPointF notch(0, arrowHalfLength - arrowNotch);
    painter.setPen(QPen(look::day.ink, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(look::paper);
    painter.drawPolygon(QPolygonF{tip, {arrowHalfWidth, arrowHalfLength}, notch});
    painter.setBrush(look::day.ink);
    painter.drawPolygon(QPolygonF{tip, {-arrowHalfWidth, arrowHalfLength}, notch});
    painter.restore();

    painter.setPen(look::day.ink);
    painter.setFont(frame.lineFont);
    painter.drawText(toQt(arrow.plate).adjusted(0, 0, 0, -1), Qt::AlignHCenter | Qt::AlignBottom,
                     letter);
}

void paintHelp(QPainter& painter, const ChartFrame& frame, const QString& text) {
    painter.setFont(look::font(look::denseType * frame.textScale));
    const QRectF pill = toQt(helpPill(frame, painter.fontMetrics().horizontalAdvance(text)));
    painter.setPen(QPen(look::day.line, 1));
    painter.setBrush(look::faded(look::day.card, pillOpacity));
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(look::day.ink);
    painter.drawText(pill, Qt::AlignCenter, text);
}

void paintPaperEdge(QPainter& painter, const ChartFrame& frame) {
    painter.setPen(QPen(look::day.line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.paper.adjusted(0.5, 0.5, -0.5, -0.5), look::paperRadius,
                            look::paperRadius);
}

} // namespace tarnel
