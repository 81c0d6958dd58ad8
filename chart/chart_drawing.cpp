#include "chart/chart_drawing.h"

#include "core/rounding.h"

#include <cmath>

namespace tarnel {

namespace {

/// Long enough to leave the chart.
constexpr double lineLength = 10000;
constexpr double fullDeflection = 10;
constexpr double featherHalfWidth = 3;
constexpr double symbolTolerance = 15;
constexpr double symbolShift = 7;

Point pointAlong(Point from, double angle) {
    return RotatePoint(angle, from, {from.x, from.y - lineLength});
}

void drawRay(DrawingSurface& surface, Line& line, Point from, double angle, bool visible) {
    if (visible)
        surface.place(line, from, pointAlong(from, angle));
    surface.show(line, visible);
}

void drawRadials(ChartPicture& picture, RadialLines& lines, Slot tuned, double angle, Point station,
                 const RadialInputs& inputs) {
    DrawingSurface& surface = picture.surface;
    surface.set(lines.station, tuned);
    for (Line* line : {&lines.course, &lines.reciprocal, &lines.borderLeft, &lines.borderRight})
        surface.set(line->colour, slotColour(static_cast<std::size_t>(tuned)));
    surface.set(lines.angle, angle);
    drawRay(surface, lines.course, station, angle, inputs.center);
    drawRay(surface, lines.reciprocal, station, angle + 180, inputs.center);
    drawRay(surface, lines.borderLeft, station, angle - fullDeflection, inputs.border);
    drawRay(surface, lines.borderRight, station, angle + fullDeflection, inputs.border);
}

void DrawLocalizer(ChartPicture& picture, Point origin, double course) {
    LocalizerLines& lines = picture.localizer;
    const Point centreEnd = pointAlong(origin, course);
    const Point leftEnd = pointAlong(origin, course - featherHalfWidth);
    const Point rightEnd = pointAlong(origin, course + featherHalfWidth);
    picture.surface.place(lines.centre, origin, centreEnd);
    picture.surface.place(lines.leftEdge, origin, leftEnd);
    picture.surface.place(lines.rightEdge, origin, rightEnd);
    picture.surface.place(lines.leftClosing, leftEnd, centreEnd);
    picture.surface.place(lines.rightClosing, rightEnd, centreEnd);
}

/// The slot that a receiver is tuned to by its frequency selection, or none.
const Slot* tunedSlot(std::int16_t navFreq) {
    static constexpr Slot tuned[] = {Slot::vor1, Slot::vor2, Slot::localizer};
    return navFreq >= 0 && navFreq <= 2 ? &tuned[navFreq] : nullptr;
}

void drawReceiverRadials(ChartPicture& picture, const Stations& stations, std::int16_t receiver,
                         double localizerAngle, const RadialInputs& inputs) {
    const Slot* tuned = tunedSlot(inputs.navFreq[static_cast<std::size_t>(receiver - 1)]);
    if (!tuned)
        return;
    const auto draw = [&](const RadialSettings& settings, RadialLines& lines) {
        if (settings.navSelect != receiver || !settings.shown)
            return;
        const double angle = *tuned == Slot::localizer ? localizerAngle : settings.obs;
        drawRadials(picture, lines, *tuned, angle, inSlot(stations, *tuned).place.wide, inputs);
    };
    draw(inputs.inst3, picture.radialsI3);
    draw(inputs.inst2, picture.radialsI2);
}

void moveSymbol(DrawingSurface& surface, StationSymbol& symbol, const Station& station) {
    const Point at = station.place.wide;
    const double left = at.x - symbol.area.width / 2;
    const double top = at.y - symbol.area.height / 2;
    const Point labelAt = {at.x + station.labelOffsetX, at.y + station.labelOffsetY};
    const bool moved = std::abs(symbol.area.left - left) > symbolTolerance ||
                       std::abs(symbol.area.top - top) > symbolTolerance;
    const bool labelMoved = std::abs(symbol.name.anchor.x - labelAt.x) > symbolTolerance ||
                            std::abs(symbol.name.anchor.y - labelAt.y) > symbolTolerance;
    if (!moved && !labelMoved)
        return;
    surface.set(symbol.area.left, left + symbolShift);
    surface.set(symbol.area.top, top);
    surface.place(symbol.leader, at, labelAt);
    surface.place(symbol.name, labelAt);
}

} // namespace

void DrawNAVSymbols(ChartPicture& picture, MapView& view, Stations& stations, double rotation,
                    const RadialInputs& inputs) {
    for (Station& station : stations)
        view.placeOnChart(toPlain(station.position), rotation, station.place);
    const double localizerAngle = rotation + inputs.locCourse;
    DrawLocalizer(picture, inSlot(stations, Slot::localizer).place.wide, localizerAngle);
    drawReceiverRadials(picture, stations, 1, localizerAngle, inputs);
    drawReceiverRadials(picture, stations, 2, localizerAngle, inputs);
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        moveSymbol(picture.surface, picture.symbols[slot], stations[slot]);
}

void hideRadials(ChartPicture& picture, RadialLines& lines) {
    for (Line* line : {&lines.course, &lines.reciprocal, &lines.borderLeft, &lines.borderRight})
        picture.surface.show(*line, false);
}

void showStation(ChartPicture& picture, std::size_t slot, bool stationOn, bool dmeOn) {
    StationSymbol& symbol = picture.symbols[slot];
    const bool visible = stationOn || dmeOn;
    const SymbolImage image = !visible    ? SymbolImage::none
                              : !dmeOn    ? SymbolImage::stationOnly
                              : stationOn ? SymbolImage::stationAndDme
                                          : SymbolImage::dmeOnly;
    picture.surface.set(symbol.image, image);
    picture.surface.show(symbol, visible);
    picture.surface.show(symbol.leader, visible);
    picture.surface.show(symbol.name, visible);
}

void showLocalizer(ChartPicture& picture, bool visible) {
    LocalizerLines& lines = picture.localizer;
    for (Line* line : {&lines.centre, &lines.leftEdge, &lines.rightEdge, &lines.leftClosing,
                       &lines.rightClosing})
        picture.surface.show(*line, visible);
    StationSymbol& symbol = inSlot(picture.symbols, Slot::localizer);
    picture.surface.show(symbol.leader, visible);
    picture.surface.show(symbol.name, visible);
}

void MinatureAirplane(ChartPicture& picture, Point place, const AirplaneOutline& outline,
                      bool visible) {
    const auto at = [&](Point offset) -> Point { return {place.x + offset.x, place.y + offset.y}; };
    AirplaneLines& lines = picture.airplane;
    picture.surface.place(lines.fuselage, at(outline.nose), at(outline.tail));
    picture.surface.place(lines.wing, at(outline.leftWing), at(outline.rightWing));
    picture.surface.place(lines.tailplane, at(outline.leftTailplane), at(outline.rightTailplane));
    for (Line* line : {&lines.fuselage, &lines.wing, &lines.tailplane})
        picture.surface.show(*line, visible);
}

void drawSpeedVectors(ChartPicture& picture, const SpeedVectors& vectors, bool visible) {
    SpeedVectorLines& lines = picture.speedVectors;
    picture.surface.place(lines.air, vectors.airplane, vectors.airTip);
    picture.surface.place(lines.wind, vectors.airTip, vectors.windTip);
    picture.surface.place(lines.ground, vectors.windTip, vectors.airplane);
    for (Line* line : {&lines.air, &lines.wind, &lines.ground})
        picture.surface.show(*line, visible);
}

} // namespace tarnel
