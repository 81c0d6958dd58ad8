#pragma once

#include "paper/paper_frame.h"

#include <array>

/// What lies over the chart at its edges and beside the pointer.
namespace tarnel {

/// From the edge of the paper to what lies over it.
constexpr int overlayInset = 10;

/// The strip at the top where controls stand on the chart.
[[nodiscard]] Box controlStrip(const PaperFrame& frame);

/// The scale bar: as many miles as fit a length that reads well.
struct ScaleBar {
    ScaleBar(const PaperFrame& frame, double pixelsPerMile);

    double miles = 0; ///< 0 if the scale is none
    Box bar;          ///< on whole pixels of the device
    Box plate;
    std::array<Spot, 3> numbers; ///< the middle of the lower edge: of 0, the half and the whole
    Spot unit;                   ///< the middle of its left edge
};

/// Where the lamps of the reference stand: above the scale bar. Empty on a chart that is too small
/// for them.
[[nodiscard]] Box lampsPlate(const PaperFrame& frame);

/// The arrow that points north, its letter below it on the plate.
struct NorthArrow {
    explicit NorthArrow(const PaperFrame& frame);

    Box plate;
    Spot centre; ///< what it turns about
};

/// The help text, at the top centre; below the controls there if it is too long to stand between
/// them. `textWidth` is that of the text alone.
[[nodiscard]] Box helpPill(const PaperFrame& frame, double textWidth);

/// Texts below each other beside the line that a tool draws.
struct RowsPlate {
    Box plate;
    Box firstRow; ///< the others follow below it, as high
};
/// The plate's upper left corner stands at `anchor` if the paper reaches that far. `row` is the
/// room that the longest of the texts needs.
[[nodiscard]] RowsPlate rowsPlate(const PaperFrame& frame, Point anchor, RoomNeeded row,
                                  std::size_t rows);

/// The plate of a read-out beside the pointer, on its other side where the paper ends.
[[nodiscard]] Box plateBesidePointer(const PaperFrame& frame, Point anchor, RoomNeeded size);

} // namespace tarnel
