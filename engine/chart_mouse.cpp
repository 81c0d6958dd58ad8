#include "engine/chart_mouse.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "engine/user_control_2.h"

#include <algorithm>
#include <cmath>

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
    return sim.view.northUpMode && (sim.stopped() || tool == Tool::wind);
}

void ChartMouse::decodeRightButton() {
    tool = tool == Tool::heading ? Tool::standard : Tool::heading;
    sim.picture.surface.show(sim.picture.help, tool == Tool::heading);
}

void ChartMouse::down(ChartButton button, Point at) {
    if (!allowed())
        return;
    if (button == ChartButton::right && sim.stopped())
        decodeRightButton();
    if (tool == Tool::wind) {
        windDragging = true;
        windStart = at;
    } else if (tool == Tool::heading) {
        headingDragging = true;
        showHeadingLine(at);
    } else if (button == ChartButton::left) {
        airplaneDragging = true;
        place(at);
    }
}

void ChartMouse::move(Point at) {
    if (!allowed())
        return;
    if (windDragging)
        drawWind(at);
    else if (headingDragging)
        drawHeading(at);
    else if (airplaneDragging)
        place(at);
}

void ChartMouse::up() {
    if (headingDragging || windDragging)
        cancel();
    airplaneDragging = false;
    sim.windLabelOn = true;
}

void ChartMouse::pickWindTool() {
    cancel();
    tool = Tool::wind;
    sim.picture.surface.show(sim.picture.help, true);
}

void ChartMouse::cancel() {
    tool = Tool::standard;
    airplaneDragging = headingDragging = windDragging = false;
    sim.picture.surface.show(sim.picture.help, false);
    hideHeadingLine();
    hideWindLine();
}

void ChartMouse::hideHeadingLine() {
    HeadingLine& heading = sim.picture.heading;
    sim.picture.surface.show(heading.line, false);
    sim.picture.surface.show(heading.name, false);
    sim.picture.surface.show(heading.value, false);
}

void ChartMouse::hideWindLine() {
    WindLine& wind = sim.picture.windLine;
    for (Line* line : {&wind.line, &wind.headLeft, &wind.headRight})
        sim.picture.surface.show(*line, false);
    for (Label* label : {&wind.name, &wind.direction, &wind.speed})
        sim.picture.surface.show(*label, false);
}

void ChartMouse::place(Point at) {
    sim.windLabelOn = false;
    sim.placeAircraft(rounded(at, sim.picture.size));
}

void ChartMouse::showHeadingLine(Point at) {
    DrawingSurface& surface = sim.picture.surface;
    HeadingLine& heading = sim.picture.heading;
    surface.place(heading.line, sim.aircraft.place.wide, at);
    surface.place(heading.name, {at.x + labelGap, at.y - 2 * labelHeight});
    surface.place(heading.value, {at.x + labelGap, at.y - labelHeight});
    const auto degrees = static_cast<std::int16_t>(roundToEven(sim.c_HDG));
    surface.set(heading.value.caption, zeroPadded(degrees, 3) + "°");
    surface.show(heading.line, true);
    surface.show(heading.name, true);
    surface.show(heading.value, true);
}

void ChartMouse::drawHeading(Point at) {
    const Point airplane = sim.aircraft.place.wide;
    const Polar polar = polarOf(at.x - airplane.x, airplane.y - at.y, sim.view.plot.mapScaleTwips);
    if (polar.distance == 0)
        return;
    const auto degrees = static_cast<std::int16_t>(toInt16(polar.course) % 360);
    sim.turnAircraft(degrees);
    if (headingDrawn)
        headingDrawn(degrees);
    showHeadingLine(at);
}

void ChartMouse::drawWind(Point at) {
    constexpr double twipsPerStep = 100;
    constexpr int knotsPerStep = 2;
    const Polar from = polarOf(windStart.x - at.x, at.y - windStart.y, twipsPerStep);
    sim.drawWind({std::floor(from.course), toInt16(knotsPerStep * std::floor(from.distance))});
    showWindLine(at);
}

void ChartMouse::showWindLine(Point at) {
    DrawingSurface& surface = sim.picture.surface;
    WindLine& wind = sim.picture.windLine;
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
    surface.set(wind.direction.caption, numberText(sim.wind.direction) + "°");
    surface.set(wind.speed.caption, numberText(std::int64_t{sim.wind.speed}));
    for (Line* line : {&wind.line, &wind.headLeft, &wind.headRight})
        surface.show(*line, true);
    for (Label* label : {&wind.name, &wind.direction, &wind.speed})
        surface.show(*label, true);
}

} // namespace tarnel
