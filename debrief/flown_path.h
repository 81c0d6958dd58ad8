#pragma once

#include "core/aircraft.h"
#include "core/recording.h"
#include "core/station_geometry.h"
#include "core/wind_triangle.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarnel {

/// A change of heading without a pause: from the last sample before it to the first behind it.
struct TurnSpan {
    int first = 0;
    int last = 0;
    double degrees = 0; ///< positive to the right; more than 180 for a long way round
};

/// The turns of a flight in their order; one that goes over into the other direction counts twice.
[[nodiscard]] std::vector<TurnSpan> turnsOf(std::span<const Sample> flight);

/// `FlownPath`: a flight as it is seen from one of its stations. Samples are counted from 0.
class FlownPath {
  public:
    FlownPath(std::span<const Sample> flight, Slot station);

    [[nodiscard]] int size() const { return static_cast<int>(samples.size()); }
    [[nodiscard]] int last() const { return size() - 1; }
    [[nodiscard]] const Sample& sample(int i) const { return samples[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const FromStation& from(int i) const { return seen[static_cast<std::size_t>(i)]; }
    [[nodiscard]] double heading(int i) const { return sample(i).traceHeading; }
    [[nodiscard]] double tas(int i) const { return sample(i).traceTAS; }
    [[nodiscard]] Wind wind(int i) const {
        return {static_cast<double>(sample(i).traceWindDirection), sample(i).traceWindSpeed};
    }
    /// NM as the DME reads it.
    [[nodiscard]] double dme(int i) const { return slantRange(from(i).distance, fixedAltitude); }
    /// Over the station, where no bearing means anything.
    [[nodiscard]] bool inCone(int i) const;
    [[nodiscard]] bool isBeacon() const { return !hasDme(slot); }
    [[nodiscard]] Slot station() const { return slot; }
    [[nodiscard]] const GeoPosition& place() const { return stationPlace; }

    [[nodiscard]] const std::vector<TurnSpan>& turns() const { return flownTurns; }
    /// Whether a turn of at least so many degrees is flown there.
    [[nodiscard]] bool inTurn(int i, double atLeast) const;
    /// The first turn of at least so many degrees that begins at `from` or later; null without one.
    [[nodiscard]] const TurnSpan* turnAfter(int from, double atLeast) const;
    /// The last that begins at `until` or earlier.
    [[nodiscard]] const TurnSpan* turnBefore(int until, double atLeast) const;

  private:
    std::span<const Sample> samples;
    Slot slot;
    GeoPosition stationPlace;
    std::vector<FromStation> seen;
    std::vector<TurnSpan> flownTurns;
};

/// How the wind of a sample acts on a course.
[[nodiscard]] WindTriangle triangleAt(const FlownPath& path, int sample, double course);

} // namespace tarnel
