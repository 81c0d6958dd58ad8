#include "window/chart/readout_plate.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "look/look.h"
#include "panel/signal_name.h"
#include "paper/plates.h"
#include "window/widgets/text_of.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <vector>

namespace tarnel {

namespace {

constexpr double padding = 8;
constexpr double columnGap = 10;
constexpr double readoutOpacity = 0.94;
constexpr int columnCount = 3;

/// Distance, bearing and station, such as "12.3 NM", "045°" and "VOR 1".
using Columns = std::array<QString, columnCount>;

Columns columnsOf(const StationBearing& line, const StringTable& texts) {
    constexpr int bearingDigits = 3;
    return {QString::number(line.distance, 'f', 1) + QLatin1Char(' ') +
                textOf(texts, Text::unitNauticalMiles),
            QString::fromStdString(zeroPadded(toInt16(line.bearing), bearingDigits)) +
                textOf(texts, Text::unitDegreeSign),
            textOf(texts, signalName(line.other))};
}

} // namespace

void paintStationReadout(QPainter& painter, const ChartFrame& frame, const ChartPicture& picture,
                         const StringTable& texts) {
    const Label& readout = picture.stationReadout;
    if (!readout.visible)
        return;
    painter.setFont(frame.frequencyFont);
    const QFontMetricsF metrics(painter.font(), painter.device());
    std::array<double, columnCount> widths{};
    std::vector<Columns> rows;
    for (const StationBearing& line : picture.stationBearings) {
        rows.push_back(columnsOf(line, texts));
        for (std::size_t i = 0; i < columnCount; ++i)
            widths[i] = std::max(widths[i], metrics.horizontalAdvance(rows.back()[i]));
    }
    const double inset = padding * frame.textScale;
    const double gap = columnGap * frame.textScale;
    const RoomNeeded room{widths[0] + widths[1] + widths[2] + 2 * gap + 2 * inset,
                          metrics.height() * static_cast<double>(rows.size()) + 2 * inset};
    const QRectF plate = toQt(plateBesidePointer(frame, readout.anchor, room));
    painter.setPen(QPen(look::day.line, 1));
    painter.setBrush(look::faded(look::day.card, readoutOpacity));
    painter.drawRoundedRect(plate, look::controlRadius, look::controlRadius);
    painter.setPen(look::day.ink);
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
