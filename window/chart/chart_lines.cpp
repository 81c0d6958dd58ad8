#include "window/chart/chart_lines.h"

#include "look/look.h"
#include "paper/line_clipping.h"
#include "paper/line_layout.h"
#include "paper/plates.h"

#include <QPainter>

#include <algorithm>
#include <span>

namespace tarnel {

namespace {

constexpr double courseWidth = 1.6;
constexpr double reciprocalWidth = 1.1;
constexpr double reciprocalOpacity = 0.5;
constexpr double borderWidth = 1;
constexpr double borderOpacity = 0.55;
constexpr double reciprocalDashes[] = {6, 4};
constexpr double borderDashes[] = {3, 3};

constexpr double featherOpacity = 0.7;
constexpr double fillNear = 0.32;
constexpr double fillFar = 0.08;
constexpr double paleHalf = 0.3; ///< of the filled half's opacity

constexpr double platePadding = 2;

constexpr double airWidth = 1.6;
constexpr double windWidth = 2;
constexpr double groundWidth = 2.4;

QLinearGradient fading(const QLineF& along, QColor colour, double strength, ChartMedium medium) {
    const auto mixed = [medium](const QColor& ink, double share) {
        return medium == ChartMedium::sheet ? look::onPaper(ink, share) : look::faded(ink, share);
    };
    QLinearGradient gradient(along.p1(), along.p2());
    gradient.setColorAt(0, mixed(colour, fillNear * strength));
    gradient.setColorAt(1, mixed(colour, fillFar * strength));
    return gradient;
}

void paintDashedRay(QPainter& painter, const ChartFrame& frame, const Line& line, QPen pen,
                    std::span<const double> pattern) {
    const auto dashed = dashedRay(frame, line, pattern, pen.widthF());
    if (!dashed)
        return;
    pen.setDashPattern({pattern.begin(), pattern.end()});
    pen.setDashOffset(dashed->offset);
    painter.setPen(pen);
    painter.drawLine(toQt(dashed->visible));
}

void paintSolid(QPainter& painter, const ChartFrame& frame, const Stroke& line, const QPen& pen) {
    if (const auto visible = clipped(line, frame.beyondEdges())) {
        painter.setPen(pen);
        painter.drawLine(toQt(*visible));
    }
}

void paintPlate(QPainter& painter, const QRectF& place, const QString& text) {
    painter.fillRect(place, look::faded(look::paper, plateOpacity));
    painter.drawText(place, Qt::AlignCenter, text);
}

void paintArrow(QPainter& painter, const ChartFrame& frame, const Stroke& line, QColor colour,
                double width) {
    const auto arrow = arrowAlong(frame, line);
    if (!arrow)
        return;
    if (arrow->shaft) {
        painter.setPen(QPen(colour, width * frame.symbolScale, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(toQt(*arrow->shaft));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(
        QPolygonF{toQt(arrow->head[0]), toQt(arrow->head[1]), toQt(arrow->head[2])});
}

/// A side of the wind triangle, with its text below it.
void paintSpeed(QPainter& painter, const ChartFrame& frame, const Stroke& line, QColor colour,
                double width, const QString& text, const Box& plate) {
    if (!plate.empty()) {
        painter.setFont(frame.vectorFont);
        painter.setPen(colour);
        paintPlate(painter, toQt(plate), text);
    }
    paintArrow(painter, frame, line, colour, width);
}

/// A line of text on a plate.
struct PlateRow {
    QString text;
    QColor colour;
};

/// Texts below each other on one plate at `anchor`.
void paintRows(QPainter& painter, const ChartFrame& frame, Point anchor,
               std::span<const PlateRow> rows) {
    painter.setFont(frame.nameFont);
    RoomNeeded row;
    for (const PlateRow& each : rows) {
        const RoomNeeded room = textRoom(frame.nameFont, each.text);
        row = {std::max(row.width, room.width), room.height};
    }
    const RowsPlate place = rowsPlate(frame, anchor, row, rows.size());
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(look::paper, plateOpacity));
    painter.drawRoundedRect(toQt(place.plate), look::paperRadius, look::paperRadius);
    QRectF at = toQt(place.firstRow);
    for (const PlateRow& each : rows) {
        painter.setPen(each.colour);
        painter.drawText(at, Qt::AlignLeft | Qt::AlignVCenter, each.text);
        at.translate(0, at.height());
    }
}

} // namespace

RoomNeeded textRoom(const QFont& font, const QString& text) {
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance(text) + 2 * platePadding, metrics.height()};
}

void paintFeather(QPainter& painter, const ChartFrame& frame, const LocalizerLines& lines) {
    const Line* const all[] = {&lines.centre, &lines.leftEdge, &lines.rightEdge, &lines.leftClosing,
                               &lines.rightClosing};
    const auto onPaper = [&](const Line* line) {
        return line->visible && clipped(frame.stroke(*line), frame.sheet()).has_value();
    };
    if (std::none_of(std::begin(all), std::end(all), onPaper))
        return;
    const QColor colour = look::fromSurface(lines.centre.colour);
    const QLineF centre = frame.along(lines.centre);
    painter.setPen(Qt::NoPen);
    // The lines cover the steps of the unsmoothed fill, which costs a twentieth of a smooth one.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(fading(centre, colour, 1, frame.medium));
    painter.drawPolygon(QPolygonF{centre.p1(), frame.at(lines.leftEdge.to), centre.p2()});
    painter.setBrush(fading(centre, colour, paleHalf, frame.medium));
    painter.drawPolygon(QPolygonF{centre.p1(), frame.at(lines.rightEdge.to), centre.p2()});
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(look::onPaper(colour, featherOpacity), 1);
    for (const Line* line : all)
        if (line->visible)
            paintSolid(painter, frame, frame.stroke(*line), pen);
}

void paintRadials(QPainter& painter, const ChartFrame& frame, const RadialLines& lines) {
    const QColor colour = look::fromSurface(lines.course.colour);
    const QPen border(look::onPaper(colour, borderOpacity), borderWidth, Qt::SolidLine,
                      Qt::FlatCap);
    paintDashedRay(painter, frame, lines.borderLeft, border, borderDashes);
    paintDashedRay(painter, frame, lines.borderRight, border, borderDashes);
    paintDashedRay(
        painter, frame, lines.reciprocal,
        QPen(look::onPaper(colour, reciprocalOpacity), reciprocalWidth, Qt::SolidLine, Qt::FlatCap),
        reciprocalDashes);
    if (lines.course.visible)
        paintSolid(painter, frame, asRay(frame, lines.course),
                   QPen(colour, courseWidth * frame.symbolScale));
}

void paintRadialLettering(QPainter& painter, const ChartFrame& frame, const Line& course,
                          const QString& text, const LineLettering& place) {
    painter.save();
    painter.translate(toQt(place.on));
    painter.rotate(place.turn);
    painter.setFont(frame.lineFont);
    painter.setPen(look::fromSurface(course.colour));
    paintPlate(painter, toQt(place.plate), text);
    painter.restore();
}

void paintSpeedVectors(QPainter& painter, const ChartFrame& frame, const SpeedVectorLines& lines,
                       const VectorTexts& texts, const ChartLettering& places) {
    if (lines.ground.visible)
        paintSpeed(painter, frame, {frame.spot(lines.ground.to), frame.spot(lines.ground.from)},
                   look::fromSurface(lines.ground.colour), groundWidth, texts.ground,
                   places.groundSpeed);
    if (lines.air.visible)
        paintSpeed(painter, frame, frame.stroke(lines.air), look::fromSurface(lines.air.colour),
                   airWidth, texts.air, places.airSpeed);
    if (lines.wind.visible)
        paintArrow(painter, frame, frame.stroke(lines.wind), look::fromSurface(lines.wind.colour),
                   windWidth);
}

void paintHeadingLine(QPainter& painter, const ChartFrame& frame, const HeadingLine& heading,
                      const ToolTexts& texts) {
    if (heading.line.visible)
        paintArrow(painter, frame, frame.stroke(heading.line),
                   look::fromSurface(heading.line.colour), airWidth);
    if (!heading.name.visible && !heading.value.visible)
        return;
    const PlateRow rows[] = {{texts.name, look::day.secondaryInk},
                             {QString::fromStdString(heading.value.caption) + texts.degrees,
                              look::fromSurface(heading.value.colour)}};
    paintRows(painter, frame, heading.name.anchor, rows);
}

void paintWindLine(QPainter& painter, const ChartFrame& frame, const WindLine& wind,
                   const ToolTexts& texts) {
    const QPen pen(look::fromSurface(wind.line.colour), windWidth * frame.symbolScale,
                   Qt::SolidLine, Qt::RoundCap);
    for (const Line* line : {&wind.line, &wind.headLeft, &wind.headRight})
        if (line->visible)
            paintSolid(painter, frame, frame.stroke(*line), pen);
    if (!wind.name.visible)
        return;
    const PlateRow rows[] = {
        {texts.name, look::day.secondaryInk},
        {QString::fromStdString(wind.direction.caption) + texts.degrees, pen.color()},
        {QString::fromStdString(wind.speed.caption) + QLatin1Char(' ') + texts.unit, pen.color()}};
    paintRows(painter, frame, wind.name.anchor, rows);
}

} // namespace tarnel
