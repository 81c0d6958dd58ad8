#include "paper/plates.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double offeredBars[] = {0.5, 1, 2, 4, 6, 10, 20, 40};
constexpr double longestBar = 170;
constexpr double shortestBar = 20;
constexpr double barHeight = 5;
constexpr double barPadding = 6; ///< from the bar to the edge of its plate
constexpr double numbersGap = 3;
constexpr double numbersHeight = 18;
constexpr double unitWidth = 22;

constexpr RoomNeeded lamps{152, 34};
constexpr double lampsGap = 6; ///< above the scale bar
constexpr double smallestSideWithLamps = 250;

constexpr RoomNeeded arrowPlate{32, 44};
constexpr double arrowPlateDrop = 4; ///< its letter stands level with the scale bar
constexpr double arrowCentre = 15;   ///< below the plate's upper edge

constexpr double controlStripHeight = 44;
constexpr double controlsWidth = 172; ///< at either side
constexpr double pillHeight = 24;
constexpr double pillInset = 12;

constexpr double rowsEdge = 2; ///< plates of rows stay that far inside the paper
constexpr double rowsPaddingAcross = 6;
constexpr double rowsPaddingDown = 2;

constexpr double pointerGap = 12;
constexpr double readoutEdge = 3;

double milesOfBar(double pixelsPerMile, double longest) {
    double fitting = 0;
    for (const double miles : offeredBars)
        if (miles * pixelsPerMile <= longest && miles * pixelsPerMile >= shortestBar)
            fitting = miles;
    return fitting;
}

double onPaper(double start, double length, double side, double edge) {
    return std::clamp(start, edge, std::max(edge, side - length - edge));
}

double besidePointer(double anchor, double length, double side) {
    const double last = side - length - readoutEdge;
    const double start = anchor <= last ? anchor : anchor - length - 2 * pointerGap;
    return std::round(onPaper(start, length, side, readoutEdge));
}

} // namespace

Box controlStrip(const PaperFrame& frame) {
    return {0, 0, frame.side, controlStripHeight * std::max(1.0, frame.textScale)};
}

ScaleBar::ScaleBar(const PaperFrame& frame, double pixelsPerMile)
    : miles(milesOfBar(pixelsPerMile, longestBar * frame.textScale)) {
    if (miles == 0)
        return;
    const double scale = frame.textScale;
    const double foot = frame.side - overlayInset - barPadding * scale;
    bar = {overlayInset + barPadding * scale, foot - barHeight * scale, miles * pixelsPerMile,
           barHeight * scale};
    plate = {bar.left - barPadding * scale, bar.top - numbersHeight * scale,
             bar.width + (2 * barPadding + unitWidth) * scale,
             bar.height + (numbersHeight + barPadding) * scale};
    const Spot corner = frame.snapped({bar.left, bar.top});
    const Spot opposite = frame.snapped({bar.right(), bar.bottom()});
    bar = {corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = {bar.left + static_cast<double>(i) * bar.width / 2,
                      bar.top - numbersGap * scale};
    unit = {bar.right() + barPadding * scale, bar.middle().y};
}

Box lampsPlate(const PaperFrame& frame) {
    const double scale = frame.textScale;
    if (frame.side < smallestSideWithLamps * scale)
        return {};
    const double scaleBar = barPadding + barHeight + numbersHeight;
    const double foot = frame.side - overlayInset - (scaleBar + lampsGap) * scale;
    return {overlayInset, foot - lamps.height * scale, lamps.width * scale, lamps.height * scale};
}

NorthArrow::NorthArrow(const PaperFrame& frame) {
    const double scale = frame.textScale;
    const double edge = frame.side - overlayInset;
    plate = {edge - arrowPlate.width * scale, edge + arrowPlateDrop - arrowPlate.height * scale,
             arrowPlate.width * scale, arrowPlate.height * scale};
    centre = {plate.middle().x, plate.top + arrowCentre * scale};
}

Box helpPill(const PaperFrame& frame, double textWidth) {
    const double scale = frame.textScale;
    const double width = textWidth + 2 * pillInset * scale;
    const double betweenControls = frame.side - 2 * (controlsWidth * scale + overlayInset);
    return {(frame.side - width) / 2,
            width < betweenControls ? overlayInset : controlStrip(frame).bottom(), width,
            pillHeight * scale};
}

RowsPlate rowsPlate(const PaperFrame& frame, Point anchor, RoomNeeded row, std::size_t rows) {
    const Spot at = frame.spot(anchor);
    const double width = row.width + rowsPaddingAcross;
    const double height = row.height * static_cast<double>(rows) + 2 * rowsPaddingDown;
    const Box plate{onPaper(at.x, width, frame.side, rowsEdge),
                    onPaper(at.y, height, frame.side, rowsEdge), width, height};
    return {plate,
            {plate.left + rowsPaddingAcross, plate.top + rowsPaddingDown, row.width, row.height}};
}

Box plateBesidePointer(const PaperFrame& frame, Point anchor, RoomNeeded size) {
    const Spot at = frame.spot(anchor);
    return {besidePointer(at.x, size.width, frame.side),
            besidePointer(at.y, size.height, frame.side), size.width, size.height};
}

} // namespace tarnel
