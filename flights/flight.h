#pragma once

#include "flights/flight_plan.h"
#include "shell/form_1.h"
#include "shell/outside_world.h"
#include "strings/string_table.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarnel {

/// A box that the trainer would have shown.
struct WrittenBox {
    int tick = 0; ///< the simulation tick at which it came up
    std::string title;
    std::string text;
};

/// `RecordingWorld`: an outside world that writes boxes down and closes them at once.
class RecordingWorld : public OutsideWorld {
  public:
    void messageBox(BoxKind, const std::string& title, const std::string& text) override {
        boxes.push_back({tick, title, text});
    }

    int tick = 0;
    std::vector<WrittenBox> boxes;
};

/// `ScriptedFlight`: the trainer without a window, flown by a plan. It sets everything as a person
/// would and calls the timer procedures itself, so the same plan gives the same bits each time.
class ScriptedFlight {
  public:
    /// Prepares the trainer as the plan says. Throws PlanError if the chart can't be read.
    ScriptedFlight(FlightPlan flown, const StringTable& texts,
                   const std::string& applicationFolder);

    /// Starts the clock and flies to the end of the plan, or to `until` seconds if that comes
    /// earlier; to be called once. `afterTick` is called for tick 0, before the clock has moved,
    /// and after every simulation tick with the three couplings that follow it.
    ///
    /// A box that stops the flight does not stop the ticks: they go on with the clock at rest.
    void fly(double until, const std::function<void()>& afterTick);

    // The same by single steps, for one who flies by what he sees.
    void start(); ///< to be called once
    void step();  ///< one simulation tick, a third of a second, and the couplings behind it
    /// Does what a pilot does at this moment.
    void apply(const FlightSettings& settings);

    [[nodiscard]] int tick() const { return world.tick; }
    [[nodiscard]] const FlightPlan& plan() const { return flightPlan; }
    [[nodiscard]] const std::vector<WrittenBox>& boxes() const { return world.boxes; }
    [[nodiscard]] bool stopped() const { return !trainer.flight.flies(); }
    [[nodiscard]] Form1& form() { return trainer; }

  private:
    void checkChart() const;
    void prepare();
    void prepareInstrument(const InstrumentPlan& instrument, UserControl_1& control);
    void press(StopwatchPress button);
    void writeComment(const std::string& text);
    void endComment();
    void takeEvents();
    void couple();

    FlightPlan flightPlan;
    RecordingWorld world;
    Form1 trainer;
    std::size_t nextEvent = 0;
};

} // namespace tarnel
