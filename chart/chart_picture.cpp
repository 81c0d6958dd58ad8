#include "chart/chart_picture.h"

namespace tarnel {

namespace {

constexpr double symbolSize = 300;

void paintRadials(RadialLines& lines) {
    for (Line* line : {&lines.course, &lines.reciprocal, &lines.borderLeft, &lines.borderRight})
        line->colour = chartColour::first;
}

} // namespace

Colour slotColour(std::size_t slot) {
    constexpr std::array<Colour, slotCount> colours = {chartColour::first, chartColour::second,
                                                       chartColour::first, chartColour::second,
                                                       chartColour::localizer};
    return colours[slot];
}

ChartPicture::ChartPicture() {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        StationSymbol& symbol = symbols[slot];
        symbol.area.width = symbol.area.height = symbolSize;
        symbol.leader.colour = symbol.name.colour = slotColour(slot);
    }
    paintRadials(radialsI2);
    paintRadials(radialsI3);
    for (Line* line : {&localizer.centre, &localizer.leftEdge, &localizer.rightEdge,
                       &localizer.leftClosing, &localizer.rightClosing})
        line->colour = chartColour::localizer;
    for (Line* line : {&airplane.fuselage, &airplane.wing, &airplane.tailplane, &heading.line})
        line->colour = chartColour::ink;
    heading.name.colour = heading.value.colour = help.colour = chartColour::ink;
    stationReadout.colour = chartColour::ink;
    for (Line* line : {&windLine.line, &windLine.headLeft, &windLine.headRight})
        line->colour = chartColour::windVector;
    for (Label* label : {&windLine.name, &windLine.direction, &windLine.speed, &windLabel})
        label->colour = chartColour::windVector;
    speedVectors.air.colour = chartColour::airVector;
    speedVectors.wind.colour = chartColour::windVector;
    speedVectors.ground.colour = chartColour::groundVector;
}

} // namespace tarnel
