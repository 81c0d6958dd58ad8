#pragma once

#include "engine/user_control_2.h"
#include "panel/panel_controls.h"

#include <array>
#include <cstdint>

namespace tarnel {

/// `StopwatchDesk`: starts, stops and resets the panel's stopwatch, and shows its time.
class StopwatchDesk {
  public:
    StopwatchDesk(UserControl2& simulation, PanelControls& controls);

    /// A step of the tick.
    void show();

  private:
    void startOrStop();

    UserControl2& sim;
    PanelControls& panel;
    std::array<std::int16_t, 2> shown{-1, -1};
};

} // namespace tarnel
