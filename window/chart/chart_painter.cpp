#include "window/chart/chart_painter.h"

#include "core/number_text.h"
#include "look/look.h"
#include "window/chart/readout_plate.h"
#include "window/widgets/text_of.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double labelOpacity = 0.9;
constexpr double barWidth = 1.6;
constexpr double leaderWidth = 1;
constexpr double barToText = 5;
constexpr double textToEdge = 3;
constexpr double aheadDiameter = 3.2;
constexpr double windPadding = 3;

QString courseText(double degrees) {
    const auto whole = static_cast<int>(std::lround(degrees)) % 360;
    const int course = whole <= 0 ? whole + 360 : whole;
    return QString::fromStdString(zeroPadded(course, 3));
}

RoomNeeded windRoom(const QFont& font, const QString& text) {
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance(text) + 2 * windPadding, metrics.height() + 2};
}

} // namespace

ChartPainter::ChartPainter(const UserControl2& simulation, const StringTable& table,
                           ChartMedium medium)
    : sim(simulation), texts(table), frame(1, 1, 1, medium) {}

void ChartPainter::paint(QPainter& painter, double side, double devicePixelRatio) {
    fitFrame(side, devicePixelRatio);
    const GridPlace grid = gridPlace();
    const ScaleBar scale(frame, grid.pixelsPerMile);
    const Words said = words();
    layOut(said, scale);

    painter.setRenderHint(QPainter::Antialiasing);
    ground.paint(painter, frame, grid, sim.picture, !layered());
    painter.setClipRect(frame.paper);
    paintLines(painter);
    paintLettering(painter, said);
    if (layered()) {
        layer->paintLettering(painter, layerPlace(), lettering.occupiedAreas());
        layer->paintFoot(painter, layerPlace());
    }
    paintOverlays(painter, scale);
}

void ChartPainter::fitFrame(double side, double devicePixelRatio) {
    if (frame.fits(side, sim.picture.size, devicePixelRatio))
        return;
    frame = ChartFrame(side, sim.picture.size, devicePixelRatio, frame.medium);
    nameTexts = {};
    ground.forget();
}

double ChartPainter::rotation() const {
    return std::fmod(sim.view.rotation(sim.aircraft.trueHeading), 360);
}

/// The grid stands on the ground, so that in the heading-up view it moves below the aircraft.
GridPlace ChartPainter::gridPlace() const {
    MapView view = sim.view; // a copy, as placing leaves traces in the view
    ChartPlace origin;
    view.placeOnChart(toPlain(view.mapCenter), rotation(), origin);
    return {frame.spot(origin.wide), view.plot.mapScaleTwips * frame.pixelsPerTwip, rotation()};
}

LayerPlace ChartPainter::layerPlace() const {
    return {frame, sim.view, rotation(), sim.view.plot.mapScaleTwips * frame.pixelsPerTwip};
}

const ChartPainter::NameText& ChartPainter::nameText(std::size_t slot) {
    NameText& name = nameTexts[slot];
    const std::string& caption = sim.picture.symbols[slot].name.caption;
    if (name.caption == caption && name.room.width > 0)
        return name;
    const QString whole = QString::fromStdString(caption);
    name = {caption, whole.section('\n', 0, 0), whole.section('\n', 1), {}};
    const QFontMetricsF bold(frame.nameFont);
    const QFontMetricsF plain(frame.frequencyFont);
    const double width =
        std::max(bold.horizontalAdvance(name.identifier), plain.horizontalAdvance(name.frequency));
    name.room = {std::ceil(width + (barToText + textToEdge) * frame.textScale),
                 std::ceil(bold.height() + plain.height() + 2)};
    return name;
}

/// The course over the ground of a radial, or the bare one of a localizer.
QString ChartPainter::courseOf(const RadialLines& lines) const {
    const double heading = sim.view.northUpMode ? 0 : sim.aircraft.trueHeading;
    const QString course = courseText(lines.angle + heading);
    return lines.station == Slot::localizer ? course + textOf(texts, Text::unitDegreeSign)
                                            : textOf(texts, Text::chartRadialPrefix) + course;
}

ChartPainter::Words ChartPainter::words() const {
    const auto knots = [this](Text name, int value) -> QString {
        return textOf(texts, name) + QLatin1Char(' ') + QString::number(value);
    };
    return {courseOf(sim.picture.radialsI2),
            courseOf(sim.picture.radialsI3),
            {knots(Text::autopilotSpeed, sim.aircraft.tasUsed),
             knots(Text::chartGroundSpeed, sim.speedVectors.groundSpeed)},
            textOf(texts, Text::chartWindPrefix) + QString::number(sim.picture.windTold.direction) +
                textOf(texts, Text::unitDegreeSign) + QString::number(sim.picture.windTold.speed) +
                textOf(texts, Text::unitKnots)};
}

void ChartPainter::layOut(const Words& said, const ScaleBar& scale) {
    LetteringRoom room{{},
                       textRoom(frame.lineFont, said.radialI2),
                       textRoom(frame.lineFont, said.radialI3),
                       textRoom(frame.vectorFont, said.speeds.air),
                       textRoom(frame.vectorFont, said.speeds.ground),
                       windRoom(frame.lineFont, said.wind)};
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        room.names[slot] = nameText(slot).room;
    const Box foot = layered() ? layer->foot(layerPlace()) : scale.plate;
    lettering.layOut({sim.picture, frame, foot, sim.referenceReading.known && !layered(),
                      toPaper(ChartAirplane::area(frame, sim.picture.airplane)),
                      frame.spot(sim.aircraft.place.wide)},
                     room);
}

void ChartPainter::paintLines(QPainter& painter) {
    const ChartPicture& picture = sim.picture;
    if (layered())
        layer->paintLines(painter, layerPlace());
    ahead.paint(painter, frame, picture.ahead.all(), aheadDiameter * frame.symbolScale);
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        if (isOnPaper(frame, picture.symbols[slot], slot))
            symbols.paint(painter, frame, picture.symbols[slot], slot, rotation());
}

void ChartPainter::paintLettering(QPainter& painter, const Words& said) {
    const ChartPicture& picture = sim.picture;
    if (lettering.radialI2)
        paintRadialLettering(painter, frame, picture.radialsI2.course, said.radialI2,
                             *lettering.radialI2);
    if (lettering.radialI3)
        paintRadialLettering(painter, frame, picture.radialsI3.course, said.radialI3,
                             *lettering.radialI3);
    paintNames(painter);
    paintSpeedVectors(painter, frame, picture.speedVectors, said.speeds, lettering);
    airplane.paint(painter, frame, picture.airplane);
    if (!lettering.wind.empty())
        paintWindLabel(painter, said.wind);
}

void ChartPainter::paintNames(QPainter& painter) const {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        if (!lettering.names[slot].shown)
            continue;
        painter.setPen(
            QPen(look::fromSurface(sim.picture.symbols[slot].leader.colour), leaderWidth));
        painter.drawLine(toQt(lettering.names[slot].leader()));
    }
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        if (lettering.names[slot].shown)
            paintName(painter, lettering.names[slot], slot);
}

void ChartPainter::paintName(QPainter& painter, const NameLabel& label, std::size_t slot) const {
    const QColor colour = look::fromSurface(sim.picture.symbols[slot].name.colour);
    const NameText& name = nameTexts[slot];
    const QRectF box = toQt(label.box);
    painter.fillRect(box, look::faded(look::paper, labelOpacity));
    painter.setPen(QPen(colour, barWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(toQt(label.bar()));

    const double nearBar = barToText * frame.textScale;
    const QRectF inner =
        label.leftOfStation ? box.adjusted(0, 1, -nearBar, -1) : box.adjusted(nearBar, 1, 0, -1);
    const Qt::Alignment towardsBar = label.leftOfStation ? Qt::AlignRight : Qt::AlignLeft;
    painter.setFont(frame.nameFont);
    painter.setPen(colour);
    painter.drawText(inner, static_cast<int>(towardsBar | Qt::AlignTop), name.identifier);
    painter.setFont(frame.frequencyFont);
    painter.setPen(look::day.secondaryInk);
    painter.drawText(inner, static_cast<int>(towardsBar | Qt::AlignBottom), name.frequency);
}

void ChartPainter::paintWindLabel(QPainter& painter, const QString& text) const {
    const QRectF place = toQt(lettering.wind);
    painter.fillRect(place, look::faded(look::paper, labelOpacity));
    painter.setFont(frame.lineFont);
    painter.setPen(look::fromSurface(sim.picture.windLabel.colour));
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
