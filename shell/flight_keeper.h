#pragma once

#include "core/run_time_error.h"
#include "engine/flight_in_memory.h"
#include "persistence/flight_shelf.h"
#include "shell/outside_world.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

class UserControl2;

/// `FlightKeeper`: sees to it that no flight is lost. Before recorded samples go, whatever the
/// reason, the recording comes by here, and a flight that is in no file is put aside on the shelf.
/// While a flight goes on, a copy of it is kept there too.
class FlightKeeper {
  public:
    /// Flights that were recorded for less than this are not kept. Simulated seconds.
    static constexpr int leastSeconds = 30;

    FlightKeeper(UserControl2& simulation, OutsideWorld& world);
    FlightKeeper(const FlightKeeper&) = delete;
    FlightKeeper& operator=(const FlightKeeper&) = delete;
    /// Waits for a copy that is being written.
    ~FlightKeeper();

    /// Flights are put aside below `folder` from now on; without a shelf none is. Flights that a
    /// program which was killed left there are put aside.
    void useShelf(const std::string& folder);

    /// Puts the flight in memory aside unless it is short, in a file or aside already. One that
    /// can't be written is held in memory and tried again the next time.
    void putAside();
    /// Whether all that was put aside could be written.
    [[nodiscard]] bool allWritten() const { return unwritten.empty(); }

    /// Brings the copy of the flight that goes on up to date: takes a picture of the flight, which
    /// another thread writes. To be called every few seconds.
    void keepCopy();
    /// The flight in memory has been kept as it is now: it is one that was called back.
    void takeAsKept();

    /// The flights that were put aside, the newest first.
    [[nodiscard]] std::vector<ShelvedFlight> flights() const;
    /// Puts the flight in memory aside and takes `flight` in its place. Throws what
    /// `FlightShelf::read` throws, and then nothing has changed.
    void bringBack(const ShelvedFlight& flight);

    /// The last flight that was put aside before this program started, until an answer is given.
    [[nodiscard]] const std::optional<ShelvedFlight>& offer() const { return offered; }
    /// The user has answered: the flight is not offered again.
    void closeOffer();
    /// There is no more time for an answer; the next start may offer the flight again.
    void withdrawOffer() { offered.reset(); }

    std::function<void(const ShelvedFlight&)> onPutAside;
    /// Called once with the reason if flights or copies can't be written, until one can be again.
    std::function<void(const RunTimeError&)> onFailure;

  private:
    [[nodiscard]] bool worthKeeping() const;
    void writeWaiting();
    void finishCopy();
    void tell(const RunTimeError& error);

    UserControl2& sim;
    OutsideWorld& outside;
    std::unique_ptr<FlightShelf> shelf;
    std::vector<ShelvedFlight> unwritten; ///< the oldest first
    std::optional<ShelvedFlight> offered;
    std::optional<FlightVersion> keptVersion;   ///< the `flightVersion` that was put aside last
    std::optional<FlightVersion> copiedVersion; ///< the one of the copy; {} if that is unknown
    struct Writing;
    std::unique_ptr<Writing> copying; ///< null while no copy is being written
    bool failureTold = false;
};

} // namespace tarnel
