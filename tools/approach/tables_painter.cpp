#include "tools/approach/tables_painter.h"

#include "tools/approach/sheet_ink.h"

#include <QStringList>

namespace tarnel {

namespace {

constexpr double captionShare = 0.27; ///< of a table's width
constexpr double tablesGap = 40;

/// A column of a table, its head first.
using Column = QStringList;

void paintTable(QPainter& painter, const QRectF& place, const QStringList& captions,
                const std::vector<Column>& columns) {
    const double row = place.height() / static_cast<double>(captions.size());
    const double first = captionShare * place.width();
    const double each = (place.width() - first) / static_cast<double>(columns.size());
    for (int i = 0; i < captions.size(); ++i) {
        const double top = place.top() + i * row;
        ink::text(painter, {place.left(), top, first, row}, Qt::AlignLeft | Qt::AlignVCenter,
                  captions[i], ink::type(ink::small), look::day.secondaryInk);
        for (std::size_t column = 0; column < columns.size(); ++column)
            ink::text(painter,
                      {place.left() + first + static_cast<double>(column) * each, top, each, row},
                      Qt::AlignCenter, columns[column][i], ink::type(ink::body, i == 0));
    }
    painter.setPen(ink::pen(ink::hair, look::day.line));
    for (int i = 1; i < captions.size(); ++i)
        painter.drawLine(QPointF(place.left(), place.top() + i * row),
                         QPointF(place.right(), place.top() + i * row));
}

bool hasStationsBeyond(const ApproachSheet& sheet) {
    const QSizeF size = sheet_parts::plan.size() * sheet_parts::twips;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const Point at = sheet.plane.station(static_cast<Slot>(slot));
        if (!QRectF(QPointF(), size).contains(at.x, at.y))
            return true;
    }
    return false;
}

QString minutes(int seconds) {
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

void paintTables(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    const Descent& descent = sheet.plan.descent;
    const QRectF inner = place.adjusted(16, 6, -16, -6);
    const double half = (inner.width() - tablesGap) / 2;
    std::vector<Column> checks;
    for (const int mile : descent.checkedMiles())
        checks.push_back({QStringLiteral("%1.0").arg(mile),
                          QString::number(std::lround(descent.altitudeAt(mile) / 10) * 10)});
    paintTable(painter, {inner.left(), inner.top(), half, inner.height()},
               {ink::qt(sheet.chart.identifier(Slot::localizer)) + QStringLiteral(" DME"),
                QStringLiteral("Altitude ft")},
               checks);
    std::vector<Column> rates;
    for (const DescentRate& rate : descentRates(descent))
        rates.push_back({QString::number(rate.knots), QString::number(rate.feetPerMinute),
                         minutes(rate.seconds)});
    paintTable(painter, {inner.right() - half, inner.top(), half, inner.height()},
               {QStringLiteral("Ground speed kt"), QStringLiteral("Descent ft/min"),
                QStringLiteral("FAF to threshold")},
               rates);
    painter.setPen(ink::pen(ink::hair));
    painter.drawLine(QPointF(place.center().x(), place.top()),
                     QPointF(place.center().x(), place.bottom()));
}

void paintNotes(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    QString notes =
        QStringLiteral("All directions are true. Altitudes, and the localizer's identifier and "
                       "frequency, are made for training with the session \"%1\"; obstacles and "
                       "minima are not considered. The trainer's DME measures from the altitude "
                       "on ALT, 6000 ft at first: near a station it reads more than this chart.")
            .arg(ink::qt(sheet.source.session));
    if (hasStationsBeyond(sheet))
        notes +=
            QStringLiteral(" Stations beyond the plan: direction and distance from the threshold.");
    ink::text(painter, place.adjusted(16, 4, -16, -4),
              Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, notes, ink::type(ink::small));
}

} // namespace tarnel
