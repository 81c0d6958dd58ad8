#include "engine/chart_mouse.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "engine/user_control_2.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// Where the labels of the heading line stand beside the pointer, in twips.
constexpr double labelGap = 150;
constexpr double labelHeight = 250;

ChartPoint rounded(Point at, double size) {
    return {toInt16(std::clamp(at.x, 0.0, size)), toInt16(std::clamp(at.y, 0.0, size))};
}

} // namespace

bool ChartMouse::allowed() const {
    return sim.view.northUpMode && sim.stopped();
}

void ChartMouse::decodeRightButton() {
    tool = tool == Tool::heading ? Tool::standard : Tool::heading;
    sim.picture.surface.show(sim.picture.help, tool == Tool::heading);
}

void ChartMouse::down(ChartButton button, Point at) {
    if (!allowed())
        return;
    if (button == ChartButton::right)
        decodeRightButton();
    if (tool == Tool::heading) {
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
    if (headingDragging)
        drawHeading(at);
    else if (airplaneDragging)
        place(at);
}

void ChartMouse::up() {
    if (headingDragging)
        cancel();
    airplaneDragging = false;
}

void ChartMouse::cancel() {
    tool = Tool::standard;
    airplaneDragging = headingDragging = false;
    HeadingLine& heading = sim.picture.heading;
    sim.picture.surface.show(sim.picture.help, false);
    sim.picture.surface.show(heading.line, false);
    sim.picture.surface.show(heading.name, false);
    sim.picture.surface.show(heading.value, false);
}

void ChartMouse::place(Point at) {
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

} // namespace tarnel
