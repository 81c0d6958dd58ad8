#pragma once

#include "core/geo_position.h"
#include "core/stations.h"
#include "engine/wind_setting.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tarnel {

struct FlightInMemory;

/// All that the hand sets on a chart at rest.
struct HandState {
    SplitPosition aircraft;
    double heading = 0; ///< degrees, 0 up to 360
    std::int16_t headingBug = 0;
    std::array<SplitPosition, slotCount> stations{};
    WindState wind;
};

/// What was done by hand; each kind is taken back by itself.
enum class Deed { placeAircraft, turnAircraft, moveStation, setWind };

/// One thing done by hand, with the states around it.
struct HandStep {
    Deed deed = Deed::placeAircraft;
    Slot slot = Slot::vor1; ///< of a moved station
    HandState before;
    HandState after;
    /// The flight that a placed aircraft has ended; null if there was none.
    std::shared_ptr<const FlightInMemory> flight;
    /// Where the samples had a moved station: from each sample on the place beside it.
    std::vector<std::pair<std::int16_t, GeoPosition>> recorded;
    /// Joins a step of the same kind right before it, as the turns of a wheel do.
    bool joins = false;

    /// Whether the deed has changed what it is about.
    [[nodiscard]] bool changed() const;
};

/// What was done by hand and can be taken back, and what was taken back and can be done again. It
/// remembers the last hundred steps.
class HandHistory {
  public:
    static constexpr std::size_t longest = 100;

    /// Takes a step that was just done; what had been taken back is forgotten.
    void add(HandStep step);

    /// The step that `undo` takes back, or `redo` does again; null if there is none.
    [[nodiscard]] const HandStep* undoable() const;
    [[nodiscard]] const HandStep* redoable() const;
    /// Moves over a step, which the caller brings about; null if there is none.
    const HandStep* undo();
    HandStep* redo();

    /// Forgets the steps that were taken back.
    void forgetUndone();
    /// Forgets all but the moves of stations.
    void keepStations();
    void clear();

  private:
    std::vector<HandStep> steps;
    std::size_t done = 0; ///< steps in front of it are done, the others taken back
};

} // namespace tarnel
