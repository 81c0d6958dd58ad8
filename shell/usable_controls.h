#pragma once

#include "engine/user_control_2.h"
#include "panel/instrument_positions.h"
#include "shell/debrief_desk.h"
#include "shell/exercise_conduct.h"
#include "shell/flight_switch.h"
#include "shell/replay_deck.h"
#include "shell/trainer_controls.h"

namespace tarnel {

/// Says what may be used at rest or in flight, during an exercise, and while a question stands
/// open.
class UsableControls {
  public:
    UsableControls(UserControl2& simulation, TrainerControls& controls,
                   const InstrumentPositions& instruments, CommandButton& bringBackItem,
                   const FlightSwitch& flightSwitch, const ReplayDeck& deck,
                   const ExerciseConduct& conduct, const DebriefDesk& debriefDesk)
        : sim(simulation),
          strip(controls),
          positions(instruments),
          bringBack(bringBackItem),
          flight(flightSwitch),
          replay(deck),
          exercise(conduct),
          debrief(debriefDesk) {}

    /// To be called after each change of what it depends on.
    void update();
    /// A step of the tick: at rest and outside of exercises and debriefs, what was done can be
    /// taken back; a flight can be exported once there is one.
    void followHistory();

  private:
    [[nodiscard]] bool free() const { return !flight.flies() && !exercise.runs(); }
    void updateReplay();
    void updateChart();
    void updateInstruments();
    void updateMenus();

    UserControl2& sim;
    TrainerControls& strip;
    const InstrumentPositions& positions;
    CommandButton& bringBack;
    const FlightSwitch& flight;
    const ReplayDeck& replay;
    const ExerciseConduct& exercise;
    const DebriefDesk& debrief;
};

} // namespace tarnel
