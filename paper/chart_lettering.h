#pragma once

#include "chart/chart_picture.h"
#include "paper/line_lettering.h"
#include "paper/name_labels.h"
#include "paper/paper_frame.h"
#include "paper/wind_label.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace tarnel {

/// What is lettered, on which paper, and what stands there besides.
struct LetteringScene {
    const ChartPicture& picture;
    const PaperFrame& frame;
    Box scaleBar;       ///< empty where there is none
    bool lamps = false; ///< whether the lamps of the reference are shown
    Box airplane;       ///< what the airplane covers; empty while it is hidden
    Spot airplaneAt;    ///< where it is
};

/// The room that the texts take, their plates' padding included.
struct LetteringRoom {
    std::array<RoomNeeded, slotCount> names;
    RoomNeeded radialI2;
    RoomNeeded radialI3;
    RoomNeeded airSpeed;
    RoomNeeded groundSpeed;
    RoomNeeded wind;
};

/// Whether a part of a station's symbol is to be seen.
[[nodiscard]] bool isOnPaper(const PaperFrame& frame, const StationSymbol& symbol,
                             std::size_t slot);

/// `ChartLettering`: where each text of a chart came to stand: names, courses along their lines,
/// speeds beside theirs, the wind. A text keeps its place from one laying to the next while that
/// is about as good.
class ChartLettering {
  public:
    void layOut(const LetteringScene& scene, const LetteringRoom& room);
    /// What has come to stand there, for lettering that is laid out after it.
    [[nodiscard]] const std::vector<Box>& occupiedAreas() const { return occupied; }

    std::array<NameLabel, slotCount> names;
    std::optional<LineLettering> radialI2;
    std::optional<LineLettering> radialI3; ///< not where it would repeat the other one
    Box airSpeed;
    Box groundSpeed;
    Box wind; ///< empty while the wind is not told

  private:
    void layOutNames(const LetteringScene& scene, const LetteringRoom& room);
    void gatherOccupied(const LetteringScene& scene);
    void layOutSpeeds(const LetteringScene& scene, const LetteringRoom& room);

    WindLabel windLabel;
    std::vector<Box> occupied; ///< what lettering keeps clear of
};

} // namespace tarnel
