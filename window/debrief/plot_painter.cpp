#include "window/debrief/plot_painter.h"

#include "look/panel_look.h"
#include "shell/finding_text.h"
#include "window/widgets/icons.h"
#include "window/widgets/text_of.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double ownWidth = 2;
constexpr double outsideWidth = 4.5;
constexpr double earlierWidth = 1.2;
constexpr double cursorWidth = 1.5;
constexpr double rounding = 3;
constexpr double chosenOpacity = 0.34;
constexpr double dotsApart = 8;
constexpr double labelGap = 6; ///< from a number to the curves

void paintCurve(QPainter& painter, const QPolygonF& curve, const QPen& pen) {
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    curve.size() == 1 ? painter.drawPoint(curve.front()) : painter.drawPolyline(curve);
}

QPen roundPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// Bold, and so small that the longest word has room.
QFont fittingFont(const QString& words, double width, double scale) {
    constexpr double smallest = 8;
    double size = look::unitType;
    const auto fits = [&] {
        const QFontMetricsF metrics(look::font(size * scale, QFont::Bold));
        const QStringList all = words.split(QLatin1Char(' '));
        return std::ranges::all_of(
            all, [&](const QString& word) { return metrics.horizontalAdvance(word) <= width; });
    };
    while (size > smallest && !fits())
        size -= 1;
    return look::font(size * scale, QFont::Bold);
}

QString numberOf(double value) {
    const double rounded = std::round(std::abs(value) * 100) / 100;
    return QString::number(rounded, 'g', 4);
}

/// Whether a value is said as a size and a side.
bool hasSide(const Series& series) {
    return series.kind == SeriesKind::needle || series.kind == SeriesKind::offLine;
}

/// A label at a side of the middle says which.
QString labelOf(const Series& series, double value, const StringTable& texts) {
    if (!hasSide(series) || value == 0)
        return (value < 0 ? QStringLiteral("−") : QString()) + numberOf(value);
    const QString side = textOf(texts, value > 0 ? Text::sideRight : Text::sideLeft);
    return numberOf(value) + QLatin1Char(' ') + side.left(1).toUpper();
}

} // namespace

const PlotColours& panelColours() {
    static const PlotColours colours{
        .well = look::digitWell,
        .edge = look::rgb(0x1B2023),
        .grid = look::rgb(0x1B2124),
        .caption = look::caption,
        .unit = look::unit,
        .own = look::rgb(0x2FB4D0),
        .earlier = look::rgb(0x7B858E),
        .outside = look::headingBug,
        .dots = look::digitWell,
        .band = look::faded(Qt::white, 0.12),
        .bandEdge = look::unit,
        .chosen = look::faded(look::day.accent, chosenOpacity),
        .right = look::measured,
        .cursor = Qt::white,
        .tag = Qt::white,
        .tagText = look::day.ink,
    };
    return colours;
}

const PlotColours& paperColours() {
    static const PlotColours colours{
        .well = look::paper,
        .edge = look::day.line,
        .grid = look::day.hairline,
        .caption = look::day.ink,
        .unit = look::day.secondaryInk,
        .own = look::rgb(0x0093B2),
        .earlier = look::rgb(0x7B858E),
        .outside = look::rgb(0xB05A00),
        .dots = Qt::white,
        .band = look::faded(look::day.ink, 0.08),
        .bandEdge = look::day.secondaryInk,
        .chosen = look::faded(look::day.accent, 0.15),
        .right = look::day.right,
        .cursor = look::day.ink,
        .tag = look::day.ink,
        .tagText = Qt::white,
    };
    return colours;
}

PlotReading readingOf(const Series& series, std::optional<double> value, const StringTable& texts) {
    QString unit = QString::fromStdString(unitText(series.unit, texts));
    if (!value)
        return {QStringLiteral("---"), unit};
    const double size = std::abs(*value);
    if (hasSide(series) && size > 0)
        unit += QLatin1Char(' ') + textOf(texts, *value > 0 ? Text::sideRight : Text::sideLeft);
    if (series.kind == SeriesKind::heading) {
        const int heading = static_cast<int>(std::lround(size)) % 360;
        return {QString::number(heading == 0 ? 360 : heading).rightJustified(3, '0'), unit};
    }
    if (series.unit == FindingUnit::nauticalMiles)
        return {(*value <= -0.005 && !hasSide(series) ? QStringLiteral("-") : QString()) +
                    QString::number(size, 'f', size < 9.995 ? 2 : 1),
                unit};
    return {QString::number(std::lround(size)).rightJustified(2, '0'), unit};
}

QPen earlierPen(const PlotColours& colours, std::size_t index, double scale) {
    QPen pen = roundPen(colours.earlier, earlierWidth * scale);
    if (index > 0)
        pen.setDashPattern({4, 3});
    return pen;
}

void paintOutside(QPainter& painter, const QPolygonF& curve, const QColor& colour,
                  const QColor& dots, double width) {
    if (curve.isEmpty())
        return;
    paintCurve(painter, curve, roundPen(colour, width));
    painter.setPen(Qt::NoPen);
    painter.setBrush(dots);
    double next = dotsApart / 2;
    for (qsizetype i = 1; i < curve.size(); ++i) {
        const QLineF part(curve[i - 1], curve[i]);
        for (; next <= part.length(); next += dotsApart)
            painter.drawEllipse(part.pointAt(next / part.length()), width / 4.2, width / 4.2);
        next -= part.length();
    }
}

void PlotPainter::paint(QPainter& painter) const {
    if (!scene.own)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    paintPhases(painter);
    for (const PlotRow& row : layout.rows)
        paintRow(painter, row);
    paintAxis(painter);
}

void PlotPainter::paintPhases(QPainter& painter) const {
    painter.setPen(QPen(colours.edge, 1));
    painter.setBrush(colours.well);
    painter.drawRect(layout.phases);
    for (std::size_t i = 0; i < layout.cells.size(); ++i)
        paintPhase(painter, scene.own->phases[i], layout.cells[i]);
}

/// The name, and where it was timed the seconds with their verdict below it; less in a small cell.
void PlotPainter::paintPhase(QPainter& painter, const Phase& phase, const QRectF& cell) const {
    constexpr double inset = 2;
    const bool chosen = scene.chosen && phase.samples.first >= scene.chosen->first &&
                        phase.samples.last <= scene.chosen->last;
    painter.setPen(QPen(colours.grid, 1));
    painter.setBrush(chosen ? QBrush(look::day.accent) : Qt::NoBrush);
    painter.drawRect(cell);
    const QRectF room = cell.adjusted(inset, 0, -inset, 0);
    const bool timed = phase.seconds && cell.height() > 28 * scale;
    const QRectF upper =
        timed ? QRectF(room.topLeft(), QSizeF(room.width(), room.height() * 0.54)) : room;
    const QFont font = look::font(look::unitType * scale, chosen ? QFont::Bold : QFont::Normal);
    painter.setFont(font);
    painter.setPen(chosen ? QColor(Qt::white) : colours.unit);
    const QFontMetricsF metrics(font);
    const QString name = textOf(texts, nameOf(phase.kind));
    const QString shown = metrics.elidedText(name, Qt::ElideRight, room.width());
    if (shown.size() > 2)
        painter.drawText(upper, Qt::AlignCenter, shown);
    if (!timed)
        return;
    const QString seconds = QString::number(std::lround(*phase.seconds)) + QStringLiteral(" s");
    const QRectF lower(upper.bottomLeft(), room.bottomRight());
    const double sign = phase.verdict == Verdict::open ? 0 : 12 * scale;
    const double wide = metrics.horizontalAdvance(seconds) + sign;
    if (wide > room.width())
        return;
    const QColor ink = chosen                            ? QColor(Qt::white)
                       : phase.verdict == Verdict::right ? colours.right
                       : phase.verdict == Verdict::wrong ? colours.outside
                                                         : colours.unit;
    const double left = lower.center().x() - wide / 2;
    if (sign > 0)
        paintSign(painter, phase.verdict == Verdict::right ? Sign::tick : Sign::cross,
                  QRectF(left, lower.center().y() - 6 * scale, 10 * scale, 10 * scale), ink);
    painter.setPen(ink);
    painter.drawText(QRectF(left + sign, lower.top() - 2 * scale, wide, lower.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, seconds);
}

void PlotPainter::paintRow(QPainter& painter, const PlotRow& row) const {
    painter.setPen(QPen(colours.edge, 1));
    painter.setBrush(colours.well);
    painter.drawRoundedRect(row.frame, rounding, rounding);
    painter.save();
    painter.setClipRect(row.frame.adjusted(1, 1, -1, -1));
    paintGrid(painter, row);
    if (layout.chosen)
        painter.fillRect(QRectF(layout.chosen->left(), row.frame.top(), layout.chosen->width(),
                                row.frame.height()),
                         colours.chosen);
    paintBands(painter, row);
    paintCurves(painter, row);
    painter.restore();
    paintCaption(painter, row);
}

void PlotPainter::paintGrid(QPainter& painter, const PlotRow& row) const {
    painter.setPen(QPen(colours.grid, 1));
    for (const PlotLayout::Minute& minute : layout.minutes)
        painter.drawLine(QPointF(minute.x, row.frame.top()), QPointF(minute.x, row.frame.bottom()));
    if (row.low < 0 && row.high > 0)
        painter.drawLine(QPointF(row.frame.left(), row.yAt(0)),
                         QPointF(row.frame.right(), row.yAt(0)));
}

void PlotPainter::paintBands(QPainter& painter, const PlotRow& row) const {
    QPen edge(colours.bandEdge, 1);
    edge.setDashPattern({4, 3});
    for (const QRectF& band : row.bands) {
        painter.fillRect(band, colours.band);
        painter.setPen(edge);
        painter.drawLine(band.topLeft(), band.topRight());
        painter.drawLine(band.bottomLeft(), band.bottomRight());
    }
}

void PlotPainter::paintCurves(QPainter& painter, const PlotRow& row) const {
    for (std::size_t i = 0; i < row.earlier.size(); ++i)
        for (const QPolygonF& curve : row.earlier[i])
            paintCurve(painter, curve, earlierPen(colours, i, scale));
    for (const QPolygonF& curve : row.own)
        paintCurve(painter, curve, roundPen(colours.own, ownWidth * scale));
    for (const QPolygonF& curve : row.outside)
        paintOutside(painter, curve, colours.outside, colours.dots, outsideWidth * scale);
}

void PlotPainter::paintCaption(QPainter& painter, const PlotRow& row) const {
    const QFont numbers = look::font(look::scaleType * scale);
    const QFontMetricsF metrics(numbers);
    double widest = 0;
    painter.setFont(numbers);
    painter.setPen(colours.unit);
    for (const double value : row.labels) {
        const QString label = labelOf(*row.series, value, texts);
        widest = std::max(widest, metrics.horizontalAdvance(label));
        const double middle = std::clamp(row.yAt(value), row.frame.top() + metrics.height() / 2 - 2,
                                         row.frame.bottom() - metrics.height() / 2 + 2);
        painter.drawText(QRectF(row.caption.left(), middle - metrics.height() / 2,
                                row.frame.left() - labelGap * scale - row.caption.left(),
                                metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, label);
    }
    const QRectF room = layout.narrow ? row.frame.adjusted(labelGap * scale, 2 * scale, 0, 0)
                                      : row.caption.adjusted(0, 0, -widest - labelGap * scale, 0);
    const QString name = textOf(texts, nameOf(row.series->kind));
    painter.setFont(fittingFont(name, room.width(), scale));
    painter.setPen(colours.caption);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, name);
}

void PlotPainter::paintAxis(QPainter& painter) const {
    const QFont font = look::font(look::unitType * scale);
    painter.setFont(font);
    painter.setPen(colours.unit);
    const double width = 40 * scale;
    for (const PlotLayout::Minute& minute : layout.minutes) {
        painter.drawLine(QPointF(minute.x, layout.axis.top() - 1),
                         QPointF(minute.x, layout.axis.top() + 3 * scale));
        painter.drawText(
            QRectF(minute.x - width / 2, layout.axis.top(), width, layout.axis.height()),
            Qt::AlignCenter, QString::number(minute.minutes));
    }
    painter.drawText(
        QRectF(0, layout.axis.top(), layout.axis.left() - labelGap * scale, layout.axis.height()),
        Qt::AlignRight | Qt::AlignVCenter, textOf(texts, Text::debriefMinutes));
}

void PlotPainter::paintCursor(QPainter& painter, int sample, const QString& time) const {
    if (layout.samples == 0)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const double x = layout.xAt(sample);
    const double top = layout.phases.bottom();
    painter.setPen(QPen(colours.cursor, cursorWidth * scale));
    painter.drawLine(QPointF(x, top), QPointF(x, layout.axis.top() + 4 * scale));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.cursor);
    const double half = 5 * scale;
    painter.drawPolygon(
        QPolygonF{QPointF(x - half, top), QPointF(x + half, top), QPointF(x, top + 6 * scale)});
    for (const PlotRow& row : layout.rows) {
        const std::optional<double> value = row.valueAt(sample);
        if (!value || *value < row.low || *value > row.high)
            continue;
        painter.setPen(QPen(colours.well, 1));
        painter.drawEllipse(QPointF(x, row.yAt(*value)), 4 * scale, 4 * scale);
    }
    const QFont font = look::font(look::unitType * scale, QFont::Bold);
    const double wide = QFontMetricsF(font).horizontalAdvance(time) + 12 * scale;
    QRectF tag(x - wide / 2, layout.axis.top() + 4 * scale, wide, 19 * scale);
    tag.moveLeft(
        std::clamp(tag.left(), layout.axis.left() - 4, layout.axis.right() + 4 - tag.width()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.tag);
    painter.drawRoundedRect(tag, 3, 3);
    painter.setFont(font);
    painter.setPen(colours.tagText);
    painter.drawText(tag, Qt::AlignCenter, time);
}

} // namespace tarnel
