#pragma once

#include "engine/user_control_2.h"
#include "panel/panel_controls.h"

#include <cstdint>

namespace tarnel {

/// Couples the faces and dials of the panel with the simulation: what the hand sets goes into the
/// properties that are recorded, what a locked replay restores comes back onto the panel.
class PanelCoupling {
  public:
    PanelCoupling(UserControl2& simulation, PanelControls& controls)
        : sim(simulation), panel(controls) {}

    // Steps of the tick.
    void followFrequencies();
    void copyReceiverSelections();
    void coupleAutopilot();
    void coupleHeadingBug();
    void showDme();
    void pinAltitude();
    /// Takes what the hand has set on the panel, or puts there what a locked replay has restored.
    void coupleSettings();
    void turnFloatingGyro();

    /// Puts the simulation's settings onto the panel.
    void push();
    /// Sets the heading bug everywhere, and the autopilot's heading with it.
    void setHeadingBug(std::int16_t heading);
    /// Locked knobs and dials do nothing. The autopilot stays free.
    void setLocked(bool locked);
    /// Switches all faces but the stopwatch's, which has no switch of its own: its buttons rest.
    void switchFaces(bool active);

  private:
    void pull();
    void writeHeadingBug(std::int16_t heading);

    UserControl2& sim;
    PanelControls& panel;
};

} // namespace tarnel
