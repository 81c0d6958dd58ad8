#pragma once

#include "shell/box_desk.h"
#include "shell/debrief_desk.h"
#include "shell/trainer_controls.h"

namespace tarnel {

/// What the debrief shows and acts on.
struct DebriefModel {
    DebriefDesk& desk;
    DebriefControls& controls;
    TrainerControls& trainer;
    const UserControl2& sim;
    const ReplayDeck& replay;
    BoxDesk& boxes;
};

} // namespace tarnel
