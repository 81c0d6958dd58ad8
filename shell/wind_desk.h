#pragma once

#include "engine/user_control_2.h"
#include "shell/chart_display.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <cstdint>

namespace tarnel {

/// `WindDesk`: chooses the wind, and tells it to who may know it.
class WindDesk {
  public:
    WindDesk(UserControl2& simulation, TrainerControls& controls, ChartDisplay& chartDisplay,
             const StringTable& table);

    [[nodiscard]] const Wind& present() const { return sim.wind; }
    /// Degrees that the wind comes from, and knots.
    void setManual(double direction, std::int16_t speed) { sim.setWind({direction, speed}); }
    /// None, by hand, by chance.
    void step();
    /// Whether the figures of the wind may be shown: one by chance or of a recording is told only
    /// to who asks for it.
    [[nodiscard]] bool isTold() const;
    /// A step of the tick: the wind's read-out, and the option and the panel that tell where it
    /// comes from.
    void show();

  private:
    [[nodiscard]] bool asked() const { return strip.windPage.show.value() == 1; }

    UserControl2& sim;
    TrainerControls& strip;
    const StringTable& texts;
};

} // namespace tarnel
