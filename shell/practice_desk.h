#pragma once

#include "engine/user_control_2.h"
#include "shell/flight_keeper.h"
#include "shell/practice_task.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tarnel {

/// `PracticeDesk`: loads practice flights, and keeps the student's own beside the one that he
/// practises.
class PracticeDesk {
  public:
    PracticeDesk(UserControl2& simulation, TrainerControls& controls, FlightKeeper& flightKeeper,
                 const StringTable& table);

    /// Whether a practice flight is in memory, or one that was flown after it.
    [[nodiscard]] bool practises() const { return practising; }
    /// Whether it is the student's own flight after it.
    [[nodiscard]] bool hasOwnFlight() const { return practising && own; }
    /// Loads a session of the program's own, to be practised or only to be looked at.
    void open(const std::string& name, bool practised);
    /// The same with the session at `path`. False, with a box, if it can't be read.
    bool openFile(const std::string& path, bool practised);
    /// Loads the session that is practised from now on. False, with a box, if it can't be read.
    bool load(const std::string& path);
    /// The session at `path` is practised from now on, whether or not it can be read.
    void expect(const std::string& path) { practisedPath = path; }
    void leave();
    /// The flight that was loaded last, element 0 its sample 1: what the student's own is held to.
    [[nodiscard]] const std::vector<Sample>& practisedFlight() const { return example; }
    /// Its file.
    [[nodiscard]] const std::string& practisedFile() const { return practisedPath; }
    /// What is to be read where the flight has `comment`; `untouched` before it is flown or played.
    [[nodiscard]] std::string beside(const std::string& comment, bool untouched);
    /// The states of the panel: hidden, nothing kept yet, kept, called back.
    void showPanel(std::int16_t state);

    std::function<void(bool read)> onLoad;
    std::function<void()> onLeave; ///< something else is flown from here on

  private:
    void keep();
    void recall();
    [[nodiscard]] bool busy() const { return !sim.stopped() || sim.c_TrackDelta != 0; }

    UserControl2& sim;
    TrainerControls& strip;
    FlightKeeper& keeper;
    const StringTable& texts;
    bool practising = false;
    bool own = false;            ///< what is in memory was flown by the student
    std::string practisedPath;   ///< the session that the student's flight is compared with
    std::vector<Sample> example; ///< the flight of that session
    PracticeTask task;
};

} // namespace tarnel
