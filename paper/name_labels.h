#pragma once

#include "chart/chart_picture.h"
#include "paper/shapes.h"

#include <span>

namespace tarnel {

/// The name label of one station: what it needs, and where it came to stand. Pixels; angles in
/// degrees clockwise from the top.
struct NameLabel {
    bool shown = true; ///< one that is not shown takes no part
    Spot station;
    double symbolRadius = 0; ///< the leader begins outside of it
    double clearance = 0;    ///< what the label itself keeps clear of: the symbol with its rose
    double side = 0;         ///< where it stands as seen from the station, if there is room
    RoomNeeded size;

    Box box;
    bool leftOfStation = false;
    int turn = 0; ///< steps away from `side`; kept from one placing to the next
    int ring = 0; ///< steps further out

    /// The edge that faces the station: it carries the bar.
    [[nodiscard]] Stroke bar() const;
    /// From the rim of the symbol to the middle of the bar.
    [[nodiscard]] Stroke leader() const;
};

/// What labels keep out of as far as there is room.
struct LabelObstacles {
    std::span<const Box> areas;
    std::span<const Stroke> lines;
};

/// The side of the station where its label was put. It leans off upright and level, so that the
/// leader shows beside the ticks and lines that run there.
[[nodiscard]] double sideOf(const StationSymbol& symbol);

/// Gives each label a box within `paper` that is clear of its own symbol and, as far as there is
/// room, of the other labels, their symbols and the obstacles. A label that has room on its own
/// side stands there; one that had to give way keeps its choice while that is about as good.
void placeLabels(std::span<NameLabel> labels, const Box& paper, const LabelObstacles& obstacles);

} // namespace tarnel
