#include "tools/approach/plan_labels.h"

#include "approach/morse.h"
#include "core/station_geometry.h"
#include "paper/line_clipping.h"
#include "tools/approach/sheet_ink.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double paddingAcross = 9;
constexpr double paddingDown = 4;
constexpr double lineHeight = 28;
constexpr double morseHeight = 17;
constexpr double morseUnit = 4.2; ///< the length of a dot
constexpr double boxesApart = 4;  ///< half of what two boxes keep between them
constexpr double fixRadius = 12;
constexpr double edgeInset = 26;

double morseWidth(const QString& morse) {
    double units = 0;
    for (const QChar sign : morse)
        units += sign == u'-' ? 4 : 2;
    return units * morseUnit;
}

QFont fontOf(qsizetype line) {
    const bool first = line == 0;
    return ink::type(first ? ink::body : ink::small, first);
}

RoomNeeded roomOf(const PlanLabel& label) {
    double width = morseWidth(label.morse);
    for (qsizetype i = 0; i < label.lines.size(); ++i)
        width = std::max(width, QFontMetricsF(fontOf(i)).horizontalAdvance(label.lines[i]));
    const double height = lineHeight * static_cast<double>(label.lines.size()) +
                          (label.morse.isEmpty() ? 0 : morseHeight);
    return {width + 2 * paddingAcross, height + 2 * paddingDown};
}

/// The side that leads away from the middle of the window.
double sideAwayFrom(Spot middle, Spot spot) {
    return circle(std::atan2(spot.x - middle.x, middle.y - spot.y) * 180 / std::acos(-1));
}

PlanLabel stationLabel(const ApproachSheet& sheet, const ChartFrame& symbols, const Box& window,
                       Slot slot) {
    const auto index = static_cast<std::size_t>(slot);
    const ChartStation& station = sheet.chart.file.stations[index];
    const StationSymbol& symbol = sheet.plane.picture.symbols[index];
    PlanLabel label;
    label.isStation = true;
    label.colour = look::fromSurface(slotColour(index));
    label.lines = {ink::qt(*station.identifier + "  " + station.frequency.value_or(""))};
    label.morse = ink::qt(morseCode(*station.identifier));
    label.place.station = symbols.spot(symbol.leader.from);
    label.place.symbolRadius = symbols.symbolRadius(index);
    label.place.clearance = symbols.symbolRadius(index) + 8;
    label.place.side = sideOf(symbol);
    if (const auto edge = edgeTowards(sheet, symbols, window, slot)) {
        const Point way = sheet.plane.station(slot) - sheet.plan.threshold;
        label.lines << ink::qt(threeDigits(courseOf(way))) + QChar(0xB0) +
                           QStringLiteral("  %1 NM").arg(sheet.plane.miles(lengthOf(way)), 0, 'f',
                                                         0);
        label.place.station = *edge;
        label.place.symbolRadius = fixRadius;
        label.place.clearance = fixRadius + 6;
    }
    return label;
}

PlanLabel fixLabel(const PlanFix& fix, const ChartFrame& symbols, Spot middle) {
    PlanLabel label;
    label.colour = look::day.ink;
    for (const std::string& line : fix.lines)
        label.lines << ink::qt(line);
    label.place.station = symbols.spot(fix.at);
    label.place.symbolRadius = fixRadius;
    label.place.clearance = fixRadius + 10;
    label.place.side = sideAwayFrom(middle, label.place.station);
    return label;
}

void paintMorse(QPainter& painter, QPointF at, const QString& morse, QColor colour) {
    painter.setPen(QPen(colour, 3.6, Qt::SolidLine, Qt::FlatCap));
    for (const QChar sign : morse) {
        const double length = sign == u'-' ? 3 : sign == u'.' ? 1 : 0;
        if (length > 0)
            painter.drawLine(at, at + QPointF(length * morseUnit, 0));
        at.rx() += (length > 0 ? length + 1 : 2) * morseUnit;
    }
}

} // namespace

std::optional<Spot> edgeTowards(const ApproachSheet& sheet, const ChartFrame& frame,
                                const Box& window, Slot slot) {
    const Stroke way{frame.spot(sheet.plan.threshold), frame.spot(sheet.plane.station(slot))};
    const Box inner = window.grownBy(-edgeInset);
    if (inner.contains(way.to))
        return std::nullopt;
    const auto seen = clipped(way, inner);
    return seen ? std::optional(seen->to) : std::nullopt;
}

std::vector<PlanLabel> planLabels(const ApproachSheet& sheet, const ChartFrame& symbols,
                                  const Box& window, const PlanObstacles& obstacles) {
    std::vector<PlanLabel> labels;
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        labels.push_back(stationLabel(sheet, symbols, window, static_cast<Slot>(slot)));
    for (const PlanFix& fix : sheet.plan.fixes)
        labels.push_back(fixLabel(fix, symbols, window.middle()));
    std::vector<NameLabel> places;
    for (PlanLabel& label : labels) {
        const RoomNeeded room = roomOf(label);
        label.place.size = {room.width + 2 * boxesApart, room.height + 2 * boxesApart};
        places.push_back(label.place);
    }
    placeLabels(places, window, {obstacles.areas, obstacles.lines});
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i].place = places[i];
    return labels;
}

void paintLabel(QPainter& painter, const PlanLabel& label) {
    const QRectF box = toQt(label.place.box.grownBy(-boxesApart));
    painter.setPen(ink::pen(ink::hair, label.colour));
    painter.drawLine(toQt(label.place.leader()));
    painter.setPen(label.isStation ? ink::pen(ink::thin, label.colour) : QPen(Qt::NoPen));
    painter.setBrush(label.isStation ? look::paper : look::faded(look::paper, 0.85));
    painter.drawRoundedRect(box, 5, 5);
    QRectF row = box.adjusted(paddingAcross, paddingDown, -paddingAcross, 0);
    row.setHeight(lineHeight);
    for (qsizetype i = 0; i < label.lines.size(); ++i) {
        ink::text(painter, row, Qt::AlignLeft | Qt::AlignVCenter, label.lines[i], fontOf(i),
                  look::day.ink);
        row.translate(0, lineHeight);
        if (i == 0 && !label.morse.isEmpty()) {
            paintMorse(painter, row.topLeft() + QPointF(0, morseHeight / 2 - 3), label.morse,
                       label.colour);
            row.translate(0, morseHeight);
        }
    }
}

} // namespace tarnel
