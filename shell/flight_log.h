#pragma once

#include "shell/debrief_desk.h"
#include "shell/flight_keeper.h"
#include "shell/flown_task.h"
#include "shell/reference_file.h"
#include "shell/training_desk.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// `FlightLog`: puts the student's flights at a task into the training log, each once, and brings
/// those of the log back for their debrief.
class FlightLog {
  public:
    struct Given {
        UserControl2& sim;
        TrainingDesk& training;
        BoxDesk& boxes;
        FlightKeeper& keeper;
        FlownTask& flown;
        DebriefDesk& debrief;
        const CommandButton& menu; ///< of loading a session: nothing is opened while it rests
        std::function<ReferencePlaces()> places;
    };
    explicit FlightLog(Given what);

    /// The flight switch was turned on.
    void flightStarts();
    /// It was turned off: a flight of one's own at a task is judged and kept, unless it is shorter
    /// than `FlightKeeper::leastSeconds` or tells nothing. One that is flown on later takes the
    /// place of its first part.
    void flightRests();

    /// Loads the newest of these flights of the log and opens its debrief, with the others over it.
    /// A box tells whose file is gone, and nothing has changed then. Whether the debrief is open.
    bool open(const std::vector<std::int64_t>& flights);

  private:
    struct Kept;
    void keep(const PlacedTask& task, std::span<const Sample> samples,
              const std::vector<Finding>& findings);
    [[nodiscard]] LoggedFlight entryOf(const PlacedTask& task) const;
    [[nodiscard]] std::optional<std::vector<Kept>> read(const std::vector<std::int64_t>& flights);
    [[nodiscard]] std::optional<PlacedTask> taskOf(const LoggedFlight& flight) const;
    void tell(Text what, const LoggedFlight& flight);

    Given given;
    std::optional<PlacedTask> started; ///< that the flight in the air is flown at
    struct {
        std::int64_t id = 0; ///< 0 for none
        std::string taskKey;
        std::size_t samples = 0;
        std::int64_t fingerprint = 0;
    } last; ///< flight that was kept
};

} // namespace tarnel
