#include "window/chart/chart_painter.h"

#include "core/number_text.h"
#include "window/chart/chart_airplane.h"
#include "window/chart/chart_lines.h"
#include "window/chart/readout_plate.h"
#include "window/widgets/line_clipping.h"
#include "window/widgets/look.h"
#include "window/widgets/text_of.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tarnel {

namespace {

/// The size that a name label is taken to have where its anchor is set, in twips.
constexpr double nominalWidth = 560;
constexpr double nominalHeight = 400;
constexpr double levelTwips = 50;  ///< what stands no lower than that counts as beside or above
constexpr double leastLean = 0.45; ///< of the longer side

constexpr double labelOpacity = 0.9;
constexpr double barWidth = 1.6;
constexpr double leaderWidth = 1;
constexpr double barToText = 5;
constexpr double textToEdge = 3;
constexpr double symbolToLabel = 3;
constexpr double traceDiameter = 4.4;
constexpr double aheadDiameter = 3.2;

constexpr double windPadding = 3;
constexpr double windGap = 6;       ///< between the airplane and its wind label
constexpr double cornerReach = 0.7; ///< of that gap, where the label stands off a corner
constexpr double coveredCost = 10;
constexpr double lineCost = 2;
constexpr double dotCost = 0.5;
constexpr double paperCost = 40;
constexpr double placeCost = 0.1; ///< of each place further down the list
constexpr double moveCost = 1;    ///< of leaving the last place

/// Where the wind label stands beside the airplane, in steps to the right and down; the best place
/// first.
constexpr QPointF windPlaces[] = {{1, -1}, {-1, -1}, {1, 1}, {-1, 1},
                                  {0, 1},  {0, -1},  {1, 0}, {-1, 0}};

/// The side of the station where its label was put, degrees clockwise from the top. It leans off
/// upright and level, so that the leader shows beside the ticks and lines that run there.
double sideOf(const StationSymbol& symbol) {
    const double dx = symbol.name.anchor.x + nominalWidth / 2 - symbol.leader.from.x;
    const double dy = symbol.name.anchor.y + nominalHeight / 2 - symbol.leader.from.y;
    const double across = std::max(std::abs(dx), leastLean * std::abs(dy));
    const double along = std::max(std::abs(dy), leastLean * std::abs(dx));
    return qRadiansToDegrees(
        std::atan2(std::copysign(across, dx), std::copysign(along, dy > levelTwips ? -1 : 1)));
}

QString courseText(double degrees) {
    const auto whole = static_cast<int>(std::lround(degrees)) % 360;
    const int course = whole <= 0 ? whole + 360 : whole;
    return QString::fromStdString(zeroPadded(course, 3));
}

template <class Areas>
std::span<const QRectF> spanOf(const Areas& areas) {
    return {areas.data(), static_cast<std::size_t>(areas.size())};
}

bool sameCourse(const RadialLines& a, const RadialLines& b) {
    return b.course.visible && a.course.from == b.course.from && a.course.to == b.course.to;
}

} // namespace

ChartPainter::ChartPainter(const UserControl2& simulation, const StringTable& table)
    : sim(simulation), texts(table) {}

void ChartPainter::paint(QPainter& painter, double side, double devicePixelRatio) {
    fitFrame(side, devicePixelRatio);
    const ChartPicture& picture = sim.picture;
    const GridPlace grid = gridPlace();
    const ScaleBar scale(frame, grid.pixelsPerMile);
    layOutLabels(scale);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::paper);
    painter.drawRoundedRect(frame.paper, look::paperRadius, look::paperRadius);
    painter.setClipRect(frame.paper);
    paintGrid(painter, frame, grid);
    paintFeather(painter, frame, picture.localizer);
    paintRadials(painter, frame, picture.radialsI2);
    paintRadials(painter, frame, picture.radialsI3);
    trace.paint(painter, frame, picture.trace, traceDiameter * frame.symbolScale);
    ahead.paint(painter, frame, picture.ahead, aheadDiameter * frame.symbolScale);
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        if (isOnPaper(slot))
            symbols.paint(painter, frame, picture.symbols[slot], slot, rotation());
    Areas occupied = occupiedAreas(scale);
    paintRadialNames(painter, spanOf(occupied));
    paintNames(painter);
    paintVectors(painter, occupied);
    paintAirplane(painter, frame, picture.airplane);
    paintWindLabel(painter, occupied);
    paintOverlays(painter, scale);
}

void ChartPainter::fitFrame(double side, double devicePixelRatio) {
    if (frame.fits(side, sim.picture.size, devicePixelRatio))
        return;
    frame = ChartFrame(side, sim.picture.size, devicePixelRatio);
    nameTexts = {};
}

double ChartPainter::rotation() const {
    return std::fmod(sim.view.rotation(sim.aircraft.trueHeading), 360);
}

/// The grid stands on the ground, so that in the heading-up view it moves below the aircraft.
GridPlace ChartPainter::gridPlace() const {
    MapView view = sim.view; // a copy, as placing leaves traces in the view
    ChartPlace origin;
    view.placeOnChart(toPlain(view.mapCenter), rotation(), origin);
    return {frame.at(origin.wide), view.plot.mapScaleTwips * frame.pixelsPerTwip, rotation()};
}

bool ChartPainter::isOnPaper(std::size_t slot) const {
    const StationSymbol& symbol = sim.picture.symbols[slot];
    if (!symbol.visible || symbol.image == SymbolImage::none)
        return false;
    const double reach = ChartSymbols::outerRadius(frame, slot);
    return frame.paper.adjusted(-reach, -reach, reach, reach)
        .contains(frame.at(symbol.leader.from));
}

const ChartPainter::NameText& ChartPainter::nameText(std::size_t slot) {
    NameText& name = nameTexts[slot];
    const std::string& caption = sim.picture.symbols[slot].name.caption;
    if (name.caption == caption && !name.size.isEmpty())
        return name;
    const QString whole = QString::fromStdString(caption);
    name = {caption, whole.section('\n', 0, 0), whole.section('\n', 1), {}};
    const QFontMetricsF bold(frame.nameFont);
    const QFontMetricsF plain(frame.frequencyFont);
    const double width =
        std::max(bold.horizontalAdvance(name.identifier), plain.horizontalAdvance(name.frequency));
    name.size = {std::ceil(width + (barToText + textToEdge) * frame.textScale),
                 std::ceil(bold.height() + plain.height() + 2)};
    return name;
}

void ChartPainter::layOutLabels(const ScaleBar& scale) {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const StationSymbol& symbol = sim.picture.symbols[slot];
        ChartLabel& label = labels[slot];
        if (!symbol.name.visible || !isOnPaper(slot)) {
            label = {};
            label.shown = false;
            continue;
        }
        label.shown = true;
        label.station = frame.at(symbol.leader.from);
        label.symbolRadius = ChartSymbols::innerRadius(frame, slot);
        label.clearance = ChartSymbols::outerRadius(frame, slot) + symbolToLabel;
        label.side = sideOf(symbol);
        label.size = nameText(slot).size;
    }
    const QRectF lamps = sim.referenceReading.known ? lampsPlate(frame) : QRectF();
    const QRectF areas[] = {controlStrip(frame), scale.plate, northArrowPlate(frame), lamps,
                            airplaneArea(frame, sim.picture.airplane)};
    const SpeedVectorLines& vectors = sim.picture.speedVectors;
    const QLineF lines[] = {frame.along(vectors.air), frame.along(vectors.wind),
                            frame.along(vectors.ground)};
    const std::size_t lineCount = vectors.ground.visible ? std::size(lines) : 0;
    placeLabels(labels, frame.paper, {areas, {lines, lineCount}});
}

void ChartPainter::paintNames(QPainter& painter) const {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        if (!labels[slot].shown)
            continue;
        painter.setPen(
            QPen(look::fromSurface(sim.picture.symbols[slot].leader.colour), leaderWidth));
        painter.drawLine(labels[slot].leader());
    }
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        if (labels[slot].shown)
            paintName(painter, labels[slot], slot);
}

void ChartPainter::paintName(QPainter& painter, const ChartLabel& label, std::size_t slot) const {
    const QColor colour = look::fromSurface(sim.picture.symbols[slot].name.colour);
    const NameText& name = nameTexts[slot];
    painter.fillRect(label.box, look::faded(look::paper, labelOpacity));
    painter.setPen(QPen(colour, barWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(label.bar());

    const double nearBar = barToText * frame.textScale;
    const QRectF inner = label.leftOfStation ? label.box.adjusted(0, 1, -nearBar, -1)
                                             : label.box.adjusted(nearBar, 1, 0, -1);
    const Qt::Alignment towardsBar = label.leftOfStation ? Qt::AlignRight : Qt::AlignLeft;
    painter.setFont(frame.nameFont);
    painter.setPen(colour);
    painter.drawText(inner, static_cast<int>(towardsBar | Qt::AlignTop), name.identifier);
    painter.setFont(frame.frequencyFont);
    painter.setPen(look::secondaryInk);
    painter.drawText(inner, static_cast<int>(towardsBar | Qt::AlignBottom), name.frequency);
}

/// What lettering keeps clear of: labels, symbols, and what stands at the edges.
ChartPainter::Areas ChartPainter::occupiedAreas(const ScaleBar& scale) const {
    Areas areas{controlStrip(frame), scale.plate, northArrowPlate(frame)};
    if (sim.referenceReading.known)
        areas.append(lampsPlate(frame));
    for (const ChartLabel& label : labels) {
        if (!label.shown)
            continue;
        const double radius = label.symbolRadius;
        areas.append(label.box);
        areas.append(
            {label.station.x() - radius, label.station.y() - radius, 2 * radius, 2 * radius});
    }
    return areas;
}

void ChartPainter::paintRadialNames(QPainter& painter, std::span<const QRectF> occupied) const {
    const auto letter = [&](const RadialLines& lines) {
        const double heading = sim.view.northUpMode ? 0 : sim.aircraft.trueHeading;
        const bool isLocalizer = lines.course.colour == chartColour::localizer;
        const QString course = courseText(lines.angle + heading);
        paintRadialLettering(painter, frame, lines.course,
                             isLocalizer ? course + textOf(texts, Text::unitDegreeSign)
                                         : textOf(texts, Text::chartRadialPrefix) + course,
                             occupied);
    };
    letter(sim.picture.radialsI2);
    if (!sameCourse(sim.picture.radialsI3, sim.picture.radialsI2))
        letter(sim.picture.radialsI3);
}

/// Paints the wind triangle and adds its texts to the areas that are taken.
void ChartPainter::paintVectors(QPainter& painter, Areas& occupied) const {
    const SpeedVectorLines& lines = sim.picture.speedVectors;
    if (!lines.air.visible && !lines.wind.visible && !lines.ground.visible)
        return;
    const auto knots = [this](Text name, int value) -> QString {
        return textOf(texts, name) + QLatin1Char(' ') + QString::number(value);
    };
    for (const QRectF& text :
         paintSpeedVectors(painter, frame, lines,
                           {knots(Text::autopilotSpeed, sim.aircraft.tasUsed),
                            knots(Text::chartGroundSpeed, sim.speedVectors.groundSpeed)},
                           spanOf(occupied)))
        occupied.append(text);
}

double ChartPainter::costOfWindLabel(const QRectF& place, const Areas& occupied) const {
    double cost = frame.paper.contains(place) ? 0 : paperCost;
    for (const QRectF& area : occupied)
        if (area.intersects(place))
            cost += coveredCost;
    const SpeedVectorLines& lines = sim.picture.speedVectors;
    for (const Line* line : {&lines.air, &lines.wind, &lines.ground, &sim.picture.windLine.line})
        if (line->visible && clipped(frame.along(*line), place))
            cost += lineCost;
    for (const DotLayer* layer : {&sim.picture.ahead, &sim.picture.trace})
        for (const Dot& dot : layer->all())
            if (place.contains(frame.at({static_cast<double>(dot.x), static_cast<double>(dot.y)})))
                cost += dotCost;
    return cost;
}

QRectF ChartPainter::windLabelAt(std::size_t index, QSizeF size) const {
    const QPointF way = windPlaces[index];
    const QRectF airplane = airplaneArea(frame, sim.picture.airplane);
    const double reach = std::max(airplane.width(), airplane.height()) / 2 + windGap;
    const double aside = (way.y() == 0 ? reach : reach * cornerReach) + size.width() / 2;
    const double along = (way.x() == 0 ? reach : reach * cornerReach) + size.height() / 2;
    const QPointF centre =
        frame.at(sim.aircraft.place.wide) + QPointF(way.x() * aside, way.y() * along);
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

/// The wind stands beside the airplane, where it covers least; it stays there while that is about
/// as good.
void ChartPainter::paintWindLabel(QPainter& painter, const Areas& occupied) {
    const Label& label = sim.picture.windLabel;
    if (!label.visible)
        return;
    const QString text =
        textOf(texts, Text::chartWindPrefix) + QString::number(sim.picture.windTold.direction) +
        textOf(texts, Text::unitDegreeSign) + QString::number(sim.picture.windTold.speed) +
        textOf(texts, Text::unitKnots);
    const QFontMetricsF metrics(frame.lineFont);
    const QSizeF size(metrics.horizontalAdvance(text) + 2 * windPadding, metrics.height() + 2);
    double best = std::numeric_limits<double>::infinity();
    QRectF place;
    const std::size_t last = windPlace;
    for (std::size_t i = 0; i < std::size(windPlaces); ++i) {
        const QRectF tried = windLabelAt(i, size);
        const double cost = costOfWindLabel(tried, occupied) + placeCost * static_cast<double>(i) +
                            (i == last ? 0 : moveCost);
        if (cost >= best)
            continue;
        best = cost;
        place = tried;
        windPlace = i;
    }
    painter.fillRect(place, look::faded(look::paper, labelOpacity));
    painter.setFont(frame.lineFont);
    painter.setPen(look::fromSurface(chartColour::windVector));
    painter.drawText(place, Qt::AlignCenter, text);
}

void ChartPainter::paintOverlays(QPainter& painter, const ScaleBar& scale) const {
    const QString degrees = textOf(texts, Text::unitDegreeSign);
    paintHeadingLine(painter, frame, sim.picture.heading,
                     {textOf(texts, Text::chartHeading), degrees, {}});
    paintWindLine(painter, frame, sim.picture.windLine,
                  {textOf(texts, Text::chartWind), degrees, textOf(texts, Text::unitKnots)});
    paintScaleBar(painter, frame, scale, textOf(texts, Text::unitNauticalMiles));
    paintNorthArrow(painter, frame, rotation(), textOf(texts, Text::chartNorth));
    const Label& help = sim.picture.help;
    if (help.visible)
        paintHelp(
            painter, frame,
            textOf(texts, sim.mouse.windTool() ? Text::helpDrawWind : Text::helpSelectHeading));
    paintStationReadout(painter, frame, sim.picture, texts);
    paintPaperEdge(painter, frame);
}

} // namespace tarnel
