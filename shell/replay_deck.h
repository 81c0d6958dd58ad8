#pragma once

#include "engine/user_control_2.h"
#include "shell/strip_controls.h"

#include <array>
#include <cstdint>
#include <functional>

namespace tarnel {

/// `ReplayDeck`: plays the flight in memory, and shows the sample that its bar is drawn to.
class ReplayDeck {
  public:
    ReplayDeck(UserControl2& simulation, ReplayPage& controls);

    [[nodiscard]] bool runs() const { return running; }
    void play();
    void stop();
    /// A quarter of the way to the next sample.
    void pump();

    /// Shows a sample, as the hand on the bar does. One beyond the ends is brought to them.
    void goTo(int sample);

    // Steps of the tick.
    void echoLock();
    /// The bar's range, and a sample that a loaded session asks for.
    void followBar();
    void showClock();

    /// The bar stands at a sample that is not gone to.
    void standAt(std::int16_t sample);
    void standAtNewest();
    /// No sample was gone to by hand.
    void leaveSample() { index = 0; }
    /// What is in memory has changed: the clock tells its times anew.
    void renewClock() { clockShown = {-1, -1}; }

    std::function<void()> changed; ///< whether it runs

  private:
    void halt();
    void moveBar();
    void lock();
    void scroll();
    void step();

    UserControl2& sim;
    ReplayPage& page;
    bool running = false;
    std::int16_t index = 1;        ///< the sample shown; 0 if it was not gone to by hand
    std::int16_t quartersGone = 0; ///< of the way to the next one
    std::array<std::int16_t, 2> clockShown{-1, -1};
};

} // namespace tarnel
