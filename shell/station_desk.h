#pragma once

#include "engine/user_control_2.h"
#include "shell/box_desk.h"
#include "shell/chart_display.h"
#include "shell/replay_deck.h"
#include "shell/station_editor.h"
#include "shell/trainer_controls.h"

#include <cstddef>
#include <functional>

namespace tarnel {

/// `StationDesk`: switches stations and lets an author edit them.
class StationDesk {
  public:
    StationDesk(UserControl2& simulation, StationPage& controls, BoxDesk& boxDesk, ReplayDeck& deck,
                ChartDisplay& chartDisplay);

    /// What the station editor starts with.
    [[nodiscard]] StationEdit toEdit(Slot slot) const;
    /// Takes the editor's values. False, with a box, if the frequency is wrong.
    bool apply(const StationEdit& edit);
    /// A step of the tick: the switches show what a chart or a session has set. A session ends the
    /// editing.
    void follow();

    std::function<void()> changed; ///< whether stations are edited

  private:
    void setEditing(bool editing);
    void switchStation(std::size_t index);

    UserControl2& sim;
    StationPage& page;
    BoxDesk& boxes;
    ReplayDeck& replay;
    ChartDisplay& display;
};

} // namespace tarnel
