#include "window/chart/chart_lines.h"

#include "window/widgets/line_clipping.h"
#include "window/widgets/look.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// Lines go that far beyond the paper, so that no end shows; labels stay that far inside.
constexpr double edgeMargin = 2;

constexpr double courseWidth = 1.6;
constexpr double reciprocalWidth = 1.1;
constexpr double reciprocalOpacity = 0.5;
constexpr double borderWidth = 1;
constexpr double borderOpacity = 0.55;

constexpr double featherOpacity = 0.7;
constexpr double fillNear = 0.32;
constexpr double fillFar = 0.08;
constexpr double paleHalf = 0.3; ///< of the filled half's opacity

constexpr double plateOpacity = 0.85;
constexpr double platePadding = 2;
constexpr double headingPadding = 6; ///< beside the heading tool's labels
constexpr double letteringGap = 2;
constexpr double shortestLettered = 90;
/// Where along the visible line the lettering may stand, the best place first.
constexpr double letteringPlaces[] = {0.66, 0.74, 0.58, 0.82, 0.5, 0.9, 0.42, 0.34};

/// The same for the texts beside the wind triangle.
constexpr double vectorPlaces[] = {0.5, 0.62, 0.4, 0.74, 0.86, 0.3};

constexpr double arrowLength = 9;
constexpr double arrowHalfWidth = 3.5;
constexpr double airWidth = 1.6;
constexpr double windWidth = 2;
constexpr double groundWidth = 2.4;
constexpr double shortestArrow = 2;

QRectF paintable(const ChartFrame& frame) {
    return frame.paper.adjusted(-edgeMargin, -edgeMargin, edgeMargin, edgeMargin);
}

QLinearGradient fading(const QLineF& along, QColor colour, double strength) {
    QLinearGradient gradient(along.p1(), along.p2());
    gradient.setColorAt(0, look::faded(colour, fillNear * strength));
    gradient.setColorAt(1, look::faded(colour, fillFar * strength));
    return gradient;
}

/// A radial goes on to the edge of the paper, however far its station is.
QLineF asRay(const ChartFrame& frame, const Line& line) {
    QLineF ray = frame.along(line);
    const QPointF centre = frame.paper.center();
    const double needed = QLineF(ray.p1(), centre).length() + frame.side;
    if (ray.length() > 0 && ray.length() < needed)
        ray.setLength(needed);
    return ray;
}

/// A line with dashes that stay where they are when the paper's edge cuts off its beginning.
void paintDashedRay(QPainter& painter, const ChartFrame& frame, const Line& line, QPen pen,
                    const QList<qreal>& pattern) {
    const QLineF whole = asRay(frame, line);
    const auto visible = clipped(whole, paintable(frame));
    if (!line.visible || !visible)
        return;
    double period = 0;
    for (const double dash : pattern)
        period += dash;
    pen.setDashPattern(pattern);
    pen.setDashOffset(std::fmod(QLineF(whole.p1(), visible->p1()).length() / pen.widthF(), period));
    painter.setPen(pen);
    painter.drawLine(*visible);
}

void paintSolid(QPainter& painter, const ChartFrame& frame, const QLineF& line, const QPen& pen) {
    if (const auto visible = clipped(line, paintable(frame))) {
        painter.setPen(pen);
        painter.drawLine(*visible);
    }
}

/// A text on its plate, laid around the painter's origin.
void paintPlate(QPainter& painter, const QRectF& place, const QString& text) {
    painter.fillRect(place, look::faded(look::paper, plateOpacity));
    painter.drawText(place, Qt::AlignCenter, text);
}

QSizeF textSize(const QPainter& painter, const QString& text) {
    const QFontMetricsF metrics(painter.font());
    return {metrics.horizontalAdvance(text) + 2 * platePadding, metrics.height()};
}

/// The first of `shares` whose area covers none of `occupied`; the first of all if there is none.
template <class AreaAt>
double freeShare(std::span<const double> shares, std::span<const QRectF> occupied, AreaAt areaAt) {
    for (const double share : shares) {
        const QRectF area = areaAt(share);
        if (std::none_of(occupied.begin(), occupied.end(),
                         [&](const QRectF& other) { return other.intersects(area); }))
            return share;
    }
    return shares.front();
}

/// An arrow, or nothing if it is too short to have a direction.
void paintArrow(QPainter& painter, const ChartFrame& frame, const QLineF& line, QColor colour,
                double width) {
    const double length = line.length();
    if (length < shortestArrow || !clipped(line, paintable(frame)))
        return;
    const double head = std::min(arrowLength * frame.symbolScale, length);
    const double spread =
        arrowHalfWidth * frame.symbolScale * head / (arrowLength * frame.symbolScale);
    const QPointF direction = (line.p2() - line.p1()) / length;
    const QPointF across(-direction.y() * spread, direction.x() * spread);
    const QPointF base = line.p2() - direction * head;
    if (const auto shaft = clipped({line.p1(), base + direction}, paintable(frame))) {
        painter.setPen(QPen(colour, width * frame.symbolScale, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(*shaft);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF{line.p2(), base + across, base - across});
}

/// A text beside a line, and what it covers: on the side that `outwards` points to, near the middle
/// or where it covers none of the `occupied` areas.
QRectF paintBeside(QPainter& painter, const ChartFrame& frame, const QLineF& line, QPointF outwards,
                   const QString& text, std::span<const QRectF> occupied) {
    if (line.length() < shortestArrow)
        return {};
    painter.setFont(frame.vectorFont);
    const QSizeF size = textSize(painter, text);
    const double along =
        std::abs(outwards.x()) * size.width() / 2 + std::abs(outwards.y()) * size.height() / 2;
    const auto placeAt = [&](double share) {
        const QPointF centre = line.pointAt(share) + outwards * (along + letteringGap);
        return QRectF(centre - QPointF(size.width(), size.height()) / 2, size);
    };
    const QRectF place = placeAt(freeShare(vectorPlaces, occupied, placeAt));
    paintPlate(painter, place, text);
    return place;
}

/// The unit vector across `line` that points away from `other`, upwards or right if they coincide.
QPointF awayFrom(const QLineF& line, QPointF other, bool otherwiseUp) {
    const double length = line.length();
    if (length == 0)
        return {0, otherwiseUp ? -1.0 : 1.0};
    const QPointF across(line.dy() / length, -line.dx() / length);
    const double side = QPointF::dotProduct(across, other - line.p1());
    if (std::abs(side) >= 1)
        return side > 0 ? -across : across;
    const bool pointsUp = across.y() < 0 || (across.y() == 0 && across.x() > 0);
    return pointsUp == otherwiseUp ? across : -across;
}

/// A line of text on a plate.
struct PlateRow {
    QString text;
    QColor colour;
};

/// Texts below each other on one plate, whose upper left corner stands at `anchor` if the paper
/// reaches that far.
void paintRows(QPainter& painter, const ChartFrame& frame, Point anchor,
               std::span<const PlateRow> rows) {
    painter.setFont(frame.nameFont);
    const double rowHeight = QFontMetricsF(frame.nameFont).height();
    double width = 0;
    for (const PlateRow& row : rows)
        width = std::max(width, textSize(painter, row.text).width());
    QRectF plate(frame.at(anchor),
                 QSizeF(width + headingPadding,
                        rowHeight * static_cast<double>(rows.size()) + 2 * platePadding));
    const auto onPaper = [&](double start, double length) {
        return std::clamp(start, edgeMargin,
                          std::max(edgeMargin, frame.side - length - edgeMargin));
    };
    plate.moveTopLeft({onPaper(plate.left(), plate.width()), onPaper(plate.top(), plate.height())});
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(look::paper, plateOpacity));
    painter.drawRoundedRect(plate, look::paperRadius, look::paperRadius);
    QRectF at(plate.left() + headingPadding, plate.top() + platePadding, width, rowHeight);
    for (const PlateRow& row : rows) {
        painter.setPen(row.colour);
        painter.drawText(at, Qt::AlignLeft | Qt::AlignVCenter, row.text);
        at.translate(0, rowHeight);
    }
}

} // namespace

void paintFeather(QPainter& painter, const ChartFrame& frame, const LocalizerLines& lines) {
    const Line* const all[] = {&lines.centre, &lines.leftEdge, &lines.rightEdge, &lines.leftClosing,
                               &lines.rightClosing};
    const auto onPaper = [&](const Line* line) {
        return line->visible && clipped(frame.along(*line), frame.paper).has_value();
    };
    if (std::none_of(std::begin(all), std::end(all), onPaper))
        return;
    const QColor colour = look::fromSurface(lines.centre.colour);
    const QLineF centre = frame.along(lines.centre);
    painter.setPen(Qt::NoPen);
    // The lines cover the steps of the unsmoothed fill, which costs a twentieth of a smooth one.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(fading(centre, colour, 1));
    painter.drawPolygon(QPolygonF{centre.p1(), frame.at(lines.leftEdge.to), centre.p2()});
    painter.setBrush(fading(centre, colour, paleHalf));
    painter.drawPolygon(QPolygonF{centre.p1(), frame.at(lines.rightEdge.to), centre.p2()});
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(look::onPaper(colour, featherOpacity), 1);
    for (const Line* line : all)
        if (line->visible)
            paintSolid(painter, frame, frame.along(*line), pen);
}

void paintRadials(QPainter& painter, const ChartFrame& frame, const RadialLines& lines) {
    static const QList<qreal> reciprocalDashes{6, 4};
    static const QList<qreal> borderDashes{3, 3};
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
                          const QString& text, std::span<const QRectF> occupied) {
    const auto visible = clipped(asRay(frame, course), frame.paper);
    if (!course.visible || !visible || visible->length() < shortestLettered)
        return;
    painter.setFont(frame.lineFont);
    const QSizeF size = textSize(painter, text);
    const double reach = size.width() / 2;
    const double share = freeShare(letteringPlaces, occupied, [&](double tried) {
        const QPointF at = visible->pointAt(tried);
        return QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach);
    });

    painter.save();
    painter.translate(visible->pointAt(share));
    const bool leftwards = visible->dx() < 0;
    painter.rotate(-(leftwards ? QLineF(visible->p2(), visible->p1()) : *visible).angle());
    painter.setPen(look::fromSurface(course.colour));
    const double above = size.height() + letteringGap;
    paintPlate(painter, {-size.width() / 2, -above, size.width(), size.height()}, text);
    painter.restore();
}

std::array<QRectF, 2> paintSpeedVectors(QPainter& painter, const ChartFrame& frame,
                                        const SpeedVectorLines& lines, const VectorTexts& texts,
                                        std::span<const QRectF> occupied) {
    std::array<QRectF, 2> covered;
    const QLineF air = frame.along(lines.air);
    const QLineF ground(frame.at(lines.ground.to), frame.at(lines.ground.from));
    const QColor groundColour = look::fromSurface(lines.ground.colour);
    const QColor airColour = look::fromSurface(lines.air.colour);
    if (lines.ground.visible) {
        painter.setPen(groundColour);
        covered[0] = paintBeside(painter, frame, ground, awayFrom(ground, air.p2(), false),
                                 texts.ground, occupied);
        paintArrow(painter, frame, ground, groundColour, groundWidth);
    }
    if (lines.air.visible) {
        painter.setPen(airColour);
        covered[1] =
            paintBeside(painter, frame, air, awayFrom(air, ground.p2(), true), texts.air, occupied);
        paintArrow(painter, frame, air, airColour, airWidth);
    }
    if (lines.wind.visible)
        paintArrow(painter, frame, frame.along(lines.wind), look::fromSurface(lines.wind.colour),
                   windWidth);
    return covered;
}

void paintHeadingLine(QPainter& painter, const ChartFrame& frame, const HeadingLine& heading,
                      const ToolTexts& texts) {
    if (heading.line.visible)
        paintArrow(painter, frame, frame.along(heading.line),
                   look::fromSurface(heading.line.colour), airWidth);
    if (!heading.name.visible && !heading.value.visible)
        return;
    const PlateRow rows[] = {{texts.name, look::secondaryInk},
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
            paintSolid(painter, frame, frame.along(*line), pen);
    if (!wind.name.visible)
        return;
    const PlateRow rows[] = {
        {texts.name, look::secondaryInk},
        {QString::fromStdString(wind.direction.caption) + texts.degrees, pen.color()},
        {QString::fromStdString(wind.speed.caption) + QLatin1Char(' ') + texts.unit, pen.color()}};
    paintRows(painter, frame, wind.name.anchor, rows);
}

} // namespace tarnel
