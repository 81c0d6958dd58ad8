#pragma once

#include "engine/user_control_2.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarnel {

/// `StatusReadouts`: the session's name, the time of the flight, its speed and its rate of turn.
/// Each is written only when it has changed.
class StatusReadouts {
  public:
    StatusReadouts(const UserControl2& simulation, TrainerControls& controls,
                   const StringTable& table)
        : sim(simulation), strip(controls), texts(table) {}

    /// A step of the tick.
    void show();

  private:
    void showSessionName();
    void showFlightTime();
    void showMotion();

    const UserControl2& sim;
    TrainerControls& strip;
    const StringTable& texts;
    std::string sessionShown; ///< the path whose name stands there
    std::array<std::int16_t, 3> timeShown{-1, -1, -1};
    std::array<std::int16_t, 2> motionShown{-1, -1};
};

} // namespace tarnel
