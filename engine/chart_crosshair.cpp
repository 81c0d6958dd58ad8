#include "engine/chart_crosshair.h"

#include "core/rounding.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr int fullCircle = 360;
constexpr int strongestWind = 200; ///< kt, as in the fields
/// From the aircraft to where the pointer would stand that turns it, in twips.
constexpr double turningRadius = 1200;

double milesOf(ChartCrosshair::Stride stride) {
    static constexpr double miles[] = {0.1, 1, 5};
    return miles[static_cast<std::size_t>(stride)];
}

int stepsOf(ChartCrosshair::Stride stride) {
    return stride == ChartCrosshair::Stride::large ? 10 : 1;
}

int wrapped(int degrees) {
    return (degrees % fullCircle + fullCircle) % fullCircle;
}

/// `distance` twips from a point on a bearing.
Point away(Point from, double bearing, double distance) {
    const double angle = bearing * planePi / 180;
    return {from.x + distance * std::sin(angle), from.y - distance * std::cos(angle)};
}

} // namespace

bool ChartCrosshair::onPaper(Point place) const {
    const double size = given.picture.size;
    return place.x >= 0 && place.y >= 0 && place.x <= size && place.y <= size;
}

void ChartCrosshair::show(Point place) {
    at = place;
    isShown = true;
}

void ChartCrosshair::step(Way way, Stride stride) {
    const bool sideways = way == Way::left || way == Way::right;
    const int sign = way == Way::left || way == Way::down ? -1 : 1;
    if (grip() == Grip::none && given.mouse.windTool() && !beginWind())
        return;
    if (grip() == Grip::wind)
        return changeWind(way, stride);
    if (grip() == Grip::heading)
        return sideways ? turnBy(sign * stepsOf(stride)) : void();
    if (!isShown)
        toAircraft();
    const double twips = sign * milesOf(stride) * given.view.plot.mapScaleTwips;
    moveBy(sideways ? Point{twips, 0} : Point{0, -twips});
}

void ChartCrosshair::moveBy(Point way) {
    const double size = given.picture.size;
    at = {std::clamp(at.x + way.x, 0.0, size), std::clamp(at.y + way.y, 0.0, size)};
    if (grip() == Grip::station)
        given.mouse.move(at);
}

void ChartCrosshair::turnBy(int steps) {
    degrees = wrapped(degrees + steps);
    given.mouse.move(headingPoint());
}

Point ChartCrosshair::headingPoint() const {
    return away(given.aircraft.place.wide, degrees, turningRadius);
}

bool ChartCrosshair::turn() {
    leave();
    degrees = static_cast<int>(std::lround(given.aircraft.trueHeading)) % fullCircle;
    given.mouse.down(ChartButton::right, headingPoint());
    held = Grip::heading;
    return grip() == Grip::heading;
}

/// The line begins in the middle of the paper; until it is moved the wind stays what it is.
bool ChartCrosshair::beginWind() {
    const bool told = given.windSource != WindSource::byChance;
    degrees = told ? wrapped(static_cast<int>(given.wind.direction)) : 0;
    knots = told ? given.wind.speed : 0;
    isShown = false;
    given.mouse.down(ChartButton::left, {given.picture.size / 2, given.picture.size / 2});
    held = Grip::wind;
    return grip() == Grip::wind;
}

void ChartCrosshair::changeWind(Way way, Stride stride) {
    const int steps = stepsOf(stride);
    const int pairs = stride == Stride::large ? 5 : 1; // the mouse draws each second knot
    if (way == Way::left || way == Way::right)
        degrees = wrapped(degrees + (way == Way::right ? steps : -steps));
    else if (way == Way::up)
        knots = std::min(2 * (knots / 2 + pairs), strongestWind);
    else
        knots = std::max(2 * ((knots + 1) / 2 - pairs), 0);
    given.mouse.move(windPoint());
}

/// The mouse draws whole degrees and each second knot, and cuts what is beyond: half of a step more
/// is on neither edge.
Point ChartCrosshair::windPoint() const {
    constexpr double twipsPerKnot = 50;
    const Point start{given.picture.size / 2, given.picture.size / 2};
    return away(start, degrees + 180.5, (knots + 1) * twipsPerKnot);
}

bool ChartCrosshair::press() {
    if (grip() != Grip::none) {
        isShown = false;
        given.mouse.up();
        return true;
    }
    if (given.mouse.windTool())
        return beginWind();
    if (!isShown) {
        toAircraft();
        return true;
    }
    const std::optional<Slot> station = given.mouse.stationAt(at);
    given.mouse.down(ChartButton::left, at);
    held = station ? Grip::station : Grip::none;
    if (station)
        carried = *station;
    if (!given.mouse.holds())
        return false;
    if (!station) {
        given.mouse.up();
        isShown = false;
    }
    return true;
}

bool ChartCrosshair::leave() {
    const bool tool = given.mouse.windTool();
    const bool wasShown = isShown;
    isShown = false;
    if (grip() != Grip::none)
        return given.mouse.takeBack();
    if (tool)
        given.mouse.cancel();
    return tool || wasShown;
}

void ChartCrosshair::letGo() {
    if (grip() != Grip::none)
        given.mouse.up();
    hide();
}

void ChartCrosshair::hide() {
    held = Grip::none;
    isShown = false;
}

void ChartCrosshair::toAircraft() {
    const Point middle{given.picture.size / 2, given.picture.size / 2};
    const Point aircraft = given.aircraft.place.wide;
    show(given.picture.airplane.fuselage.visible && onPaper(aircraft) ? aircraft : middle);
}

void ChartCrosshair::toStation(int direction) {
    constexpr int count = static_cast<int>(slotCount);
    int next = from ? static_cast<int>(*from) : (direction > 0 ? count - 1 : 0);
    for (int tried = 0; tried < count; ++tried) {
        next = (next + direction + count) % count;
        const auto slot = static_cast<Slot>(next);
        const bool isHeld = grip() == Grip::station && slot == carried;
        if (isHeld || !inSlot(given.picture.symbols, slot).visible)
            continue;
        from = slot;
        const Point place = inSlot(given.stations, slot).place.wide;
        if (grip() == Grip::none && onPaper(place))
            show(place);
        else if (!isShown && grip() == Grip::none)
            toAircraft();
        return;
    }
}

void ChartCrosshair::switchTelling() {
    if (from)
        lastFrom = *from;
    from = from ? std::nullopt : std::optional(lastFrom);
}

Polar ChartCrosshair::seenFrom(Slot station) const {
    const Point origin = inSlot(given.stations, station).place.wide;
    return polarOf(at.x - origin.x, origin.y - at.y, given.view.plot.mapScaleTwips);
}

GeoPosition ChartCrosshair::position() const {
    return given.view.plot.MapToGeo({toInt16(at.x), toInt16(at.y)}).plain;
}

} // namespace tarnel
