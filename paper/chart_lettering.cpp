#include "paper/chart_lettering.h"

#include "paper/plates.h"

#include <iterator>

namespace tarnel {

namespace {

constexpr double symbolToLabel = 3;

bool sameCourse(const RadialLines& a, const RadialLines& b) {
    return b.course.visible && a.course.from == b.course.from && a.course.to == b.course.to;
}

} // namespace

bool isOnPaper(const PaperFrame& frame, const StationSymbol& symbol, std::size_t slot) {
    return symbol.visible && symbol.image != SymbolImage::none &&
           frame.sheet().grownBy(frame.outerRadius(slot)).contains(frame.spot(symbol.leader.from));
}

void ChartLettering::layOut(const LetteringScene& scene, const LetteringRoom& room) {
    layOutNames(scene, room);
    gatherOccupied(scene);
    const RadialLines& first = scene.picture.radialsI2;
    const RadialLines& second = scene.picture.radialsI3;
    radialI2 = letteringAlong(scene.frame, first.course, room.radialI2, occupied);
    radialI3.reset();
    if (!sameCourse(second, first))
        radialI3 = letteringAlong(scene.frame, second.course, room.radialI3, occupied);
    layOutSpeeds(scene, room);
    wind = {};
    if (scene.picture.windLabel.visible)
        wind = windLabel.place(scene.frame, scene.picture, scene.airplane, scene.airplaneAt,
                               room.wind, occupied);
}

void ChartLettering::layOutNames(const LetteringScene& scene, const LetteringRoom& room) {
    const PaperFrame& frame = scene.frame;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const StationSymbol& symbol = scene.picture.symbols[slot];
        NameLabel& label = names[slot];
        if (!symbol.name.visible || !isOnPaper(frame, symbol, slot)) {
            label = {};
            label.shown = false;
            continue;
        }
        label.shown = true;
        label.station = frame.spot(symbol.leader.from);
        label.symbolRadius = frame.symbolRadius(slot);
        label.clearance = frame.outerRadius(slot) + symbolToLabel;
        label.side = sideOf(symbol);
        label.size = room.names[slot];
    }
    const Box areas[] = {controlStrip(frame), scene.scaleBar, NorthArrow(frame).plate,
                         scene.lamps ? lampsPlate(frame) : Box{}, scene.airplane};
    const SpeedVectorLines& vectors = scene.picture.speedVectors;
    const Stroke lines[] = {frame.stroke(vectors.air), frame.stroke(vectors.wind),
                            frame.stroke(vectors.ground)};
    const std::size_t lineCount = vectors.ground.visible ? std::size(lines) : 0;
    placeLabels(names, frame.sheet(), {areas, {lines, lineCount}});
}

/// Labels, symbols, and what stands at the edges.
void ChartLettering::gatherOccupied(const LetteringScene& scene) {
    occupied = {controlStrip(scene.frame), scene.scaleBar, NorthArrow(scene.frame).plate};
    if (scene.lamps)
        occupied.push_back(lampsPlate(scene.frame));
    for (const NameLabel& label : names) {
        if (!label.shown)
            continue;
        occupied.push_back(label.box);
        occupied.push_back(
            Box::about(label.station, {2 * label.symbolRadius, 2 * label.symbolRadius}));
    }
}

/// The texts keep clear of each other's side of the triangle; the wind keeps clear of both.
void ChartLettering::layOutSpeeds(const LetteringScene& scene, const LetteringRoom& room) {
    const SpeedVectorLines& lines = scene.picture.speedVectors;
    const Stroke air = scene.frame.stroke(lines.air);
    const Stroke ground = scene.frame.stroke(lines.ground);
    airSpeed = groundSpeed = {};
    if (lines.ground.visible) {
        const Stroke outbound{ground.to, ground.from};
        groundSpeed =
            plateBeside(outbound, awayFrom(outbound, air.to, false), room.groundSpeed, occupied);
    }
    if (lines.air.visible)
        airSpeed = plateBeside(air, awayFrom(air, ground.from, true), room.airSpeed, occupied);
    occupied.push_back(groundSpeed);
    occupied.push_back(airSpeed);
}

} // namespace tarnel
