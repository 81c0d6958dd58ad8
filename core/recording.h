#pragma once

#include "core/change_count.h"
#include "core/comments.h"
#include "core/geo_position.h"
#include "core/stations.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tarnel {

/// The flown seconds between two samples.
constexpr double secondsPerSample = 4.0 / 3;

/// The whole state of a flight at one moment.
struct Sample {
#define FIELD(name, type, rule, value) type name{};
#define COMMENT(name, type, rule, value) type name = value;
#define STATIONS() std::array<GeoPosition, slotCount> traceStations{};
#include "core/sample_rows.def"

    bool operator==(const Sample&) const = default;
};

/// What the user has to be told when the buffer runs out.
enum class BufferWarning { none, almostFull, full };

/// The flight recorder: at most 6,000 samples, numbered from 1.
class Recording {
  public:
    static constexpr std::int16_t lastSample = 6000;
    static constexpr std::int16_t almostFullAt = 5900;
    static constexpr std::int16_t fullAt = 5980;

    Recording();

    /// Sample `index`, 0 to 6000 (0 is never recorded). Throws the subscript error outside.
    [[nodiscard]] const Sample& at(int index) const;
    /// The same sample to be changed.
    [[nodiscard]] Sample& edit(int index);
    /// Samples 1 to `last`, which is at most 6000; element 0 is sample 1.
    [[nodiscard]] std::vector<Sample> samplesTo(int last) const;
    /// Numbers what is recorded: see `ChangeCount`.
    [[nodiscard]] std::uint64_t changes() const { return changeCount.value(); }

    /// Called before samples are lost, while all of them are still there. Every way of losing them
    /// comes by here.
    std::function<void()> beforeLoss;
    /// Tells `beforeLoss` of samples that go later, with the next start.
    void giveUp() const;

    /// The newest sample, 0 before the first.
    [[nodiscard]] std::int16_t sampleIndex() const { return newest; }

    /// Counts a simulation tick; true on ticks 3, 7, 11 and so on, which are recorded.
    bool tickIsSample();

    /// Moves on to the next sample. From 5980 on it starts over at 1; old samples stay until
    /// overwritten.
    BufferWarning advance();

    /// Writes the newest sample; its comment is kept unless `comment` is one.
    void write(const Sample& sample, std::int16_t comment);

    /// Forgets all samples: the next one is number 1.
    void clear();

    /// Makes sample `index` the newest and marks those behind it as empty: 45 degrees north, 11
    /// east, without heading, times and comment.
    void cutAfter(std::int16_t index);

    /// What it held earlier is there again, in the place of what it holds.
    void goBackTo(const Recording& earlier);

    /// Makes sample `index` the newest.
    void setNewest(std::int16_t index);

    /// Takes the comment from samples `first` to `last`, or gives them one.
    void markComment(int first, int last, std::int16_t comment);

  private:
    std::vector<Sample> samples;
    std::int16_t newest = 1;
    std::int16_t sampleTick = 0;
    ChangeCount changeCount;
};

} // namespace tarnel
