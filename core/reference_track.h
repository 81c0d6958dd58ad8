#pragma once

#include "core/geo_position.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarnel {

/// The colours of the lamps that tell how far a flight is off its reference.
enum class Lamp { dark, green, orange, red };
using Lamps = std::array<Lamp, 9>;

/// Which of the nine lamps are lit at `distance` NM. A distance on a limit belongs to the worse
/// side.
[[nodiscard]] Lamps referenceLamps(double distance);

/// The track of a loaded session, by sample number: what a student's flight is compared with.
class ReferenceTrack {
  public:
    void clear() { points.clear(); }
    /// Takes the position of the next sample, from 1.
    void append(const GeoPosition& position) { points.push_back(position); }

    [[nodiscard]] bool empty() const { return points.empty(); }
    /// The number of samples that it has positions for.
    [[nodiscard]] int size() const { return static_cast<int>(points.size()); }
    bool operator==(const ReferenceTrack&) const = default;
    /// The position at a sample, plain degrees; 0, 0 where the track has none.
    [[nodiscard]] GeoPosition at(int sample) const;

  private:
    std::vector<GeoPosition> points;
};

/// How far the aircraft is off the reference, as last compared.
struct ReferenceReading {
    bool known = false;       ///< false where there is no reference
    double distance = 0;      ///< NM
    std::int16_t rounded = 0; ///< NM
    Lamps lamps{};
};

/// NM from the reference at which a practice flight counts as lost.
constexpr double referenceLimit = 3.0;

} // namespace tarnel
