#pragma once

#include "engine/user_control_2.h"
#include "shell/replay_deck.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <functional>

namespace tarnel {

/// NM from a DME beyond which no flight is possible.
constexpr double practiseAreaLimit = 80.0;

/// `FlightSwitch`: starts and stops the flight, and says how fast it goes.
class FlightSwitch {
  public:
    FlightSwitch(UserControl2& simulation, TrainerControls& controls, ReplayDeck& deck);

    [[nodiscard]] bool flies() const { return flying; }
    void start();
    /// A pause keeps the flight: the bar shows the newest sample, and the next start goes on from
    /// where the aircraft is. Nothing happens at rest.
    void stop();
    /// Whether the aircraft flies so far from any of the three DMEs that the flight has to end.
    [[nodiscard]] bool leftPractiseArea() const;

    std::function<void()> onStart; ///< the flight is about to start
    std::function<void()> onStop;  ///< the flight has stopped
    std::function<void()> changed; ///< whether it flies

  private:
    void setRate(std::int16_t milliseconds) { sim.c_TimerSIMrate = milliseconds; }
    void show(Text caption, Text tip);
    void restOrFly();

    UserControl2& sim;
    TrainerControls& strip;
    ReplayDeck& replay;
    bool flying = false;
};

} // namespace tarnel
