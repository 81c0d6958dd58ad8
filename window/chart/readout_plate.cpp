#include "window/chart/readout_plate.h"

#include "window/widgets/look.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tarnel {

namespace {

constexpr double padding = 8;
constexpr double columnGap = 10;
constexpr double pointerGap = 12;
constexpr double edgeMargin = 3;
constexpr double plateOpacity = 0.94;
constexpr int columnCount = 3;

/// Distance, bearing and station of a line such as "12.3NM 045°(VOR1)".
using Columns = std::array<QString, columnCount>;

Columns columnsOf(const QString& line) {
    const QString distance = line.section(QLatin1Char(' '), 0, 0);
    const QString rest = line.section(QLatin1Char(' '), 1);
    const QString bearing = rest.section(QLatin1Char('('), 0, 0).trimmed();
    return {distance, bearing, rest.section(QLatin1Char('('), 1).remove(QLatin1Char(')'))};
}

/// Beside the anchor; on its other side where the paper ends.
double besidePointer(double anchor, double length, double side) {
    const double last = side - length - edgeMargin;
    const double start = anchor <= last ? anchor : anchor - length - 2 * pointerGap;
    return std::clamp(start, edgeMargin, std::max(edgeMargin, last));
}

} // namespace

void paintStationReadout(QPainter& painter, const ChartFrame& frame, const Label& readout) {
    if (!readout.visible)
        return;
    painter.setFont(frame.frequencyFont);
    const QFontMetricsF metrics(painter.font(), painter.device());
    std::array<double, columnCount> widths{};
    std::vector<Columns> rows;
    for (const QString& line : QString::fromStdString(readout.caption).split(QLatin1Char('\n'))) {
        rows.push_back(columnsOf(line));
        for (std::size_t i = 0; i < columnCount; ++i)
            widths[i] = std::max(widths[i], metrics.horizontalAdvance(rows.back()[i]));
    }
    const double inset = padding * frame.textScale;
    const double gap = columnGap * frame.textScale;
    const QSizeF size(widths[0] + widths[1] + widths[2] + 2 * gap + 2 * inset,
                      metrics.height() * static_cast<double>(rows.size()) + 2 * inset);
    const QPointF anchor = frame.at(readout.anchor);
    const QRectF plate({std::round(besidePointer(anchor.x(), size.width(), frame.side)),
                        std::round(besidePointer(anchor.y(), size.height(), frame.side))},
                       size);
    painter.setPen(QPen(look::line, 1));
    painter.setBrush(look::faded(look::card, plateOpacity));
    painter.drawRoundedRect(plate, look::controlRadius, look::controlRadius);
    painter.setPen(look::ink);
    double top = plate.top() + inset;
    for (const Columns& row : rows) {
        double left = plate.left() + inset;
        for (std::size_t i = 0; i < columnCount; ++i) {
            const auto side = i + 1 < columnCount ? Qt::AlignRight : Qt::AlignLeft;
            painter.drawText(QRectF(left, top, widths[i], metrics.height()),
                             static_cast<int>(side | Qt::AlignVCenter), row[i]);
            left += widths[i] + gap;
        }
        top += metrics.height();
    }
}

} // namespace tarnel
