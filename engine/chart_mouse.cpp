#include "engine/chart_mouse.h"

#include "core/number_text.h"
#include "core/rounding.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnel {

namespace {

/// Where the labels of a drawn line stand beside the pointer, in twips.
constexpr double labelGap = 150;
constexpr double labelHeight = 250;
/// The arrow head of the wind line, twips and degrees.
constexpr double barbLength = 180;
constexpr double barbAngle = 25;

ChartPoint rounded(Point at, double size) {
    return {toInt16(std::clamp(at.x, 0.0, size)), toInt16(std::clamp(at.y, 0.0, size))};
}

} // namespace

bool ChartMouse::allowed() const {
    return !locked && given.scene.view.northUpMode && (given.panel.stopped() || tool == Tool::wind);
}

void ChartMouse::decodeRightButton() {
    tool = tool == Tool::heading ? Tool::standard : Tool::heading;
    given.scene.picture.surface.show(given.scene.picture.help, tool == Tool::heading);
}

void ChartMouse::down(ChartButton button, Point at) {
    finish();
    stationMoved = false;
    if (!allowed())
        return;
    if (button == ChartButton::right && given.panel.stopped())
        decodeRightButton();
    if (tool == Tool::wind) {
        begin(Deed::setWind);
        windDragging = true;
        windStart = at;
    } else if (tool == Tool::heading) {
        begin(Deed::turnAircraft);
        headingDragging = true;
        showHeadingLine(at);
    } else if (button == ChartButton::left && stationAt(at)) {
        draggedStation = stationAt(at);
        begin(Deed::moveStation, *draggedStation);
        dragStation(at);
    } else if (button == ChartButton::left) {
        begin(Deed::placeAircraft);
        airplaneDragging = true;
        place(at);
    }
}

void ChartMouse::begin(Deed deed, Slot slot) {
    held = given.hand.beginStep(deed, slot);
}

void ChartMouse::finish() {
    if (!held)
        return;
    const bool station = held->deed == Deed::moveStation;
    const bool changed = given.hand.finishStep(*std::exchange(held, std::nullopt));
    stationMoved = station && changed;
}

void ChartMouse::move(Point at) {
    if (!allowed())
        return;
    if (windDragging)
        drawWind(at);
    else if (headingDragging)
        drawHeading(at);
    else if (draggedStation)
        dragStation(at);
    else if (airplaneDragging)
        place(at);
}

void ChartMouse::up() {
    if (headingDragging || windDragging || draggedStation)
        cancel();
    finish();
    airplaneDragging = false;
    given.scene.windLabelOn = true;
}

void ChartMouse::setLocked(bool lock) {
    if (lock && !locked)
        cancel();
    locked = lock;
}

void ChartMouse::pickWindTool() {
    cancel();
    tool = Tool::wind;
    given.scene.picture.surface.show(given.scene.picture.help, true);
}

void ChartMouse::cancel() {
    finish();
    letGo();
}

void ChartMouse::letGo() {
    tool = Tool::standard;
    airplaneDragging = headingDragging = windDragging = false;
    draggedStation.reset();
    given.scene.picture.surface.show(given.scene.picture.stationReadout, false);
    given.scene.picture.surface.show(given.scene.picture.help, false);
    hideHeadingLine();
    hideWindLine();
}

void ChartMouse::hideHeadingLine() {
    HeadingLine& heading = given.scene.picture.heading;
    given.scene.picture.surface.show(heading.line, false);
    given.scene.picture.surface.show(heading.name, false);
    given.scene.picture.surface.show(heading.value, false);
}

void ChartMouse::hideWindLine() {
    WindLine& wind = given.scene.picture.windLine;
    for (Line* line : {&wind.line, &wind.headLeft, &wind.headRight})
        given.scene.picture.surface.show(*line, false);
    for (Label* label : {&wind.name, &wind.direction, &wind.speed})
        given.scene.picture.surface.show(*label, false);
}

std::optional<Slot> ChartMouse::stationAt(Point at) const {
    if (given.editing.c_mapedit != 1)
        return {};
    for (std::size_t i = 0; i < slotCount; ++i)
        if (given.scene.picture.symbols[i].visible &&
            given.scene.picture.symbols[i].area.contains(at))
            return static_cast<Slot>(i);
    return {};
}

bool ChartMouse::takeBack() {
    if (!held)
        return false;
    const HandStep step = *std::exchange(held, std::nullopt);
    letGo();
    given.scene.windLabelOn = true;
    given.hand.putBack(step);
    return true;
}

void ChartMouse::takeBackDrag() {
    if (takeBack() || !std::exchange(stationMoved, false))
        return;
    cancel();
    given.hand.undo();
    given.hand.history.forgetUndone();
}

/// The symbol's centre follows the pointer. The bearings are those of the dragged station from each
/// other one.
void ChartMouse::dragStation(Point at) {
    const auto dragged = static_cast<std::size_t>(*draggedStation);
    given.hand.placeStation(*draggedStation, rounded(at, given.scene.picture.size));
    const Point from = given.scene.stations[dragged].place.wide;
    std::vector<StationBearing> bearings;
    for (std::size_t i = 0; i < slotCount; ++i) {
        if (i == dragged)
            continue;
        const Point to = given.scene.stations[i].place.wide;
        const Polar polar =
            polarOf(to.x - from.x, from.y - to.y, given.scene.view.plot.mapScaleTwips);
        const double bearing = polar.course < 180 ? polar.course + 180 : polar.course - 180;
        bearings.push_back({static_cast<Slot>(i), roundTo(polar.distance, 1), std::floor(bearing)});
    }
    DrawingSurface& surface = given.scene.picture.surface;
    surface.set(given.scene.picture.stationBearings, bearings);
    surface.place(given.scene.picture.stationReadout, {at.x + labelGap, at.y + labelGap});
    surface.show(given.scene.picture.stationReadout, true);
}

void ChartMouse::place(Point at) {
    given.scene.windLabelOn = false;
    given.hand.placeAircraft(rounded(at, given.scene.picture.size));
}

void ChartMouse::showHeadingLine(Point at) {
    DrawingSurface& surface = given.scene.picture.surface;
    HeadingLine& heading = given.scene.picture.heading;
    surface.place(heading.line, given.scene.aircraft.place.wide, at);
    surface.place(heading.name, {at.x + labelGap, at.y - 2 * labelHeight});
    surface.place(heading.value, {at.x + labelGap, at.y - labelHeight});
    const auto degrees = static_cast<std::int16_t>(roundToEven(given.panel.c_HDG));
    surface.set(heading.value.caption, zeroPadded(degrees, 3));
    surface.show(heading.line, true);
    surface.show(heading.name, true);
    surface.show(heading.value, true);
}

void ChartMouse::drawHeading(Point at) {
    const Point airplane = given.scene.aircraft.place.wide;
    const Polar polar =
        polarOf(at.x - airplane.x, airplane.y - at.y, given.scene.view.plot.mapScaleTwips);
    if (polar.distance == 0)
        return;
    const auto degrees = static_cast<std::int16_t>(toInt16(polar.course) % 360);
    given.hand.drawHeading(degrees);
    showHeadingLine(at);
}

void ChartMouse::drawWind(Point at) {
    constexpr double twipsPerStep = 100;
    constexpr int knotsPerStep = 2;
    const Polar from = polarOf(windStart.x - at.x, at.y - windStart.y, twipsPerStep);
    given.hand.drawWind(
        {std::floor(from.course), toInt16(knotsPerStep * std::floor(from.distance))});
    showWindLine(at);
}

void ChartMouse::showWindLine(Point at) {
    DrawingSurface& surface = given.scene.picture.surface;
    WindLine& wind = given.scene.picture.windLine;
    const double down = polarOf(windStart.x - at.x, at.y - windStart.y, 1).course;
    const auto barb = [&](double angle) {
        return RotatePoint(angle, at, {at.x, at.y - barbLength});
    };
    surface.place(wind.line, windStart, at);
    surface.place(wind.headLeft, at, barb(down - barbAngle));
    surface.place(wind.headRight, at, barb(down + barbAngle));
    surface.place(wind.name, {at.x + labelGap, at.y - 3 * labelHeight});
    surface.place(wind.direction, {at.x + labelGap, at.y - 2 * labelHeight});
    surface.place(wind.speed, {at.x + labelGap, at.y - labelHeight});
    surface.set(wind.direction.caption, numberText(given.wind.wind.direction));
    surface.set(wind.speed.caption, numberText(std::int64_t{given.wind.wind.speed}));
    for (Line* line : {&wind.line, &wind.headLeft, &wind.headRight})
        surface.show(*line, true);
    for (Label* label : {&wind.name, &wind.direction, &wind.speed})
        surface.show(*label, true);
}

} // namespace tarnel
