#pragma once

#include "chart/chart_picture.h"
#include "paper/paper_frame.h"

#include <cstddef>
#include <span>

namespace tarnel {

/// The wind beside the airplane: it stands where it covers least, and stays there while that is
/// about as good.
class WindLabel {
  public:
    /// Gives the label a place. `airplane` is what the airplane covers, `middle` where it is, and
    /// `occupied` what the label keeps clear of besides lines and dots.
    [[nodiscard]] Box place(const PaperFrame& frame, const ChartPicture& picture,
                            const Box& airplane, Spot middle, RoomNeeded size,
                            std::span<const Box> occupied);

  private:
    std::size_t last = 0; ///< where beside the airplane it stood
};

} // namespace tarnel
