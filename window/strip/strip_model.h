#pragma once

#include "engine/user_control_2.h"
#include "shell/box_desk.h"
#include "shell/chart_display.h"
#include "shell/flight_switch.h"
#include "shell/trainer_controls.h"
#include "shell/wind_desk.h"

namespace tarnel {

/// What the control strip shows and acts on.
struct StripModel {
    TrainerControls& controls;
    CheckBox& floatingGyroBox;
    const UserControl2& sim;
    const FlightSwitch& flight;
    ChartDisplay& display;
    WindDesk& wind;
    BoxDesk& boxes;
};

} // namespace tarnel
