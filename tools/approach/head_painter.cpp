#include "tools/approach/head_painter.h"

#include "core/station_geometry.h"
#include "tools/approach/sheet_ink.h"

#include <iterator>

namespace tarnel {

namespace {

constexpr double titleHeight = 96;
constexpr double cellsHeight = 84;

QString degrees(double course) {
    return ink::qt(threeDigits(course)) + QChar(0xB0);
}

QString stationText(const ApproachSheet& sheet, Slot slot) {
    const ChartStation& station = inSlot(sheet.chart.file.stations, slot);
    return ink::qt(*station.identifier + " " + station.frequency.value_or(""));
}

/// What leads to the final course, in a few words.
QString procedureText(const ApproachSheet& sheet) {
    for (const ApproachLeg& leg : sheet.source.legs) {
        if (const auto* arc = std::get_if<LegOnArc>(&leg.way))
            return ink::qt("DME arc " + oneDecimal(arc->distance) + " NM " +
                           sheet.chart.identifier(arc->station));
        if (const auto* hold = std::get_if<LegInHolding>(&leg.way))
            return QStringLiteral("Holding %1 %2, %3 turns, %4 min")
                .arg(ink::qt(sheet.chart.identifier(hold->fix)), degrees(hold->inbound),
                     hold->right ? QStringLiteral("right") : QStringLiteral("left"),
                     ink::qt(oneDecimal(hold->minutes)));
    }
    return ink::qt("VOR " + sheet.chart.identifier(sheet.source.initialStation) + " transition");
}

void paintTitle(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    const QRectF inner = place.adjusted(16, 6, -16, -8);
    const ApproachSource& source = sheet.source;
    ink::text(painter, inner, Qt::AlignLeft | Qt::AlignTop, ink::qt(source.place).toUpper(),
              ink::type(ink::title, true));
    ink::text(painter, inner, Qt::AlignRight | Qt::AlignTop,
              ink::qt("LOC DME RWY " + source.runway), ink::type(ink::title, true));
    ink::text(painter, inner, Qt::AlignLeft | Qt::AlignBottom,
              ink::qt(source.icao) + QStringLiteral("   Tarnel training chart"),
              ink::type(ink::small), look::day.secondaryInk);
    const QString earlier =
        source.once ? QStringLiteral("   (earlier RWY %1)").arg(ink::qt(*source.once)) : QString();
    ink::text(painter, inner, Qt::AlignRight | Qt::AlignBottom, procedureText(sheet) + earlier,
              ink::type(ink::small), look::day.secondaryInk);
}

void paintCells(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    const Descent& descent = sheet.plan.descent;
    const struct {
        double share;
        const char* caption;
        QString words;
    } cells[] = {
        {0.24, "LOC/DME", stationText(sheet, Slot::localizer)},
        {0.15, "Final course", degrees(sheet.plane.finalCourse())},
        {0.23, "Initial VOR/DME", stationText(sheet, sheet.source.initialStation)},
        {0.22, "FAF",
         ink::qt("D" + oneDecimal(descent.fixDme())) + QStringLiteral("  ") +
             ink::feet(descent.altitude) + QStringLiteral(" ft")},
        {0.16, "Threshold elevation", ink::feet(descent.elevation) + QStringLiteral(" ft")},
    };
    painter.setPen(ink::pen(ink::thin));
    painter.drawLine(place.topLeft(), place.topRight());
    QRectF at(place.topLeft(), QSizeF(0, place.height()));
    for (const auto& each : cells) {
        at = QRectF(at.topRight(), QSizeF(each.share * place.width(), place.height()));
        ink::cell(painter, at, QString::fromLatin1(each.caption), each.words);
        painter.setPen(ink::pen(ink::hair));
        if (&each != std::end(cells) - 1)
            painter.drawLine(at.topRight(), at.bottomRight());
    }
}

QString missedText(const ApproachSheet& sheet) {
    const MissedApproach& missed = sheet.source.missed;
    const QString station = ink::qt(sheet.chart.identifier(missed.station));
    const QString climb = QStringLiteral("At D%1 (threshold) climb on %2 ")
                              .arg(ink::qt(oneDecimal(sheet.plan.descent.thresholdDme)),
                                   degrees(sheet.plane.finalCourse()));
    const QString altitude = ink::feet(missed.altitude) + QStringLiteral(" ft");
    if (!missed.right)
        return climb + QStringLiteral("to %1, %2.").arg(station, altitude);
    return climb + QStringLiteral("to %1. At D%2 beyond %3 turn %4 direct %5.")
                       .arg(altitude, ink::qt(oneDecimal(missed.after)),
                            ink::qt(sheet.chart.identifier(Slot::localizer)),
                            *missed.right ? QStringLiteral("right") : QStringLiteral("left"),
                            station);
}

void paintMissed(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    painter.setPen(ink::pen(ink::thin));
    painter.drawLine(place.topLeft(), place.topRight());
    const QRectF inner = place.adjusted(16, 0, -16, 0);
    ink::text(painter, inner, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("MISSED APPROACH"),
              ink::type(ink::small, true));
    ink::text(painter, inner.adjusted(236, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
              missedText(sheet), ink::type(ink::body));
}

} // namespace

void paintHead(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    paintTitle(painter, {place.left(), place.top(), place.width(), titleHeight}, sheet);
    paintCells(painter, {place.left(), place.top() + titleHeight, place.width(), cellsHeight},
               sheet);
    paintMissed(painter, place.adjusted(0, titleHeight + cellsHeight, 0, 0), sheet);
}

} // namespace tarnel
