#pragma once

#include "core/geo_position.h"
#include "debrief/limits.h"
#include "debrief/task.h"

#include <optional>
#include <span>
#include <vector>

namespace tarnel {

/// Samples of a flight, counted from 0; both belong to it.
struct SampleSpan {
    int first = 0;
    int last = 0;
    bool operator==(const SampleSpan&) const = default;
};

/// What a finding tells; one row each in `findings.def`.
enum class FindingKind {
#define FINDING(name, unit, limit, text) name,
#include "debrief/findings.def"
};

enum class FindingUnit {
    degrees, ///< an angle; a correction is positive to the right
    nauticalMiles,
    seconds,
    percent,
    knots,
    count,
    side,  ///< 1 right, -1 left
    entry, ///< a `HoldingEntry`
    words  ///< the finding says it all: it stands there or not
};

/// How a holding is entered, as the value of a finding whose unit is `entry`.
enum class HoldingEntry { direct, parallel, offset };

enum class Verdict {
    right,
    wrong,
    open, ///< told, but nothing that is right or wrong
};

/// One thing that can be said of a flight.
struct Finding {
    bool operator==(const Finding&) const = default;

    FindingKind kind{};
    double value = 0;                ///< in the unit of its kind
    std::optional<double> expected;  ///< that the value should have
    std::optional<double> tolerance; ///< about `expected`, or alone the greatest value allowed
    Verdict verdict = Verdict::open;
    double weight = 0; ///< how bad it is: 1 at the limit, more beyond; worst first
    SampleSpan samples;
    int turn = 0; ///< which of several: the circuit of a holding, the fix's crossing; from 1
};

/// A part of the flight as the task divides it.
enum class PhaseKind { approach, join, track, entry, turn, outbound, inbound, arc, final };
struct Phase {
    PhaseKind kind{};
    SampleSpan samples;
    std::optional<double> seconds; ///< where the time of the leg counts, from where it is timed
    Verdict verdict = Verdict::open;
};

/// What is plotted over time. A value is missing where it means nothing. `needle`: degrees that the
/// line lies to the right of the aircraft, as the needle shows it; `offLine`: the same in NM;
/// `offArc`: NM outside; `distance`: NM by DME.
enum class SeriesKind { needle, offLine, offArc, offReference, heading, distance, speed };
struct Series {
    SeriesKind kind{};
    FindingUnit unit{};
    std::vector<std::optional<float>> values; ///< one a sample
    /// Where it is judged, between which limits.
    struct Band {
        SampleSpan samples;
        double low = 0;
        double high = 0;
    };
    std::vector<Band> bands;
};

/// A line of the task on the chart; a corridor is the outline of what a needle's limits allow.
enum class TaskLineKind { line, racetrack, arc, reference, corridor };
struct TaskLine {
    TaskLineKind kind{};
    std::vector<GeoPosition> points;
};

/// What a flight was like, beside what it should have been.
struct Debrief {
    std::vector<Finding> findings; ///< worst first, then by time
    std::vector<Phase> phases;     ///< in the order of flight, without gaps
    std::vector<Series> series;    ///< at most three, what matters most first
    std::vector<TaskLine> lines;
    std::vector<bool> outside; ///< one a sample: some limit is not kept there
};

[[nodiscard]] FindingUnit unitOf(FindingKind kind);
/// What it is held to where the station is a VOR, whose source can be told beside it.
[[nodiscard]] Limit limitFor(FindingKind kind);

/// Judges `flight` (element 0 is sample 1) against `task`. Every flight has a debrief: one without
/// samples has no findings.
[[nodiscard]] Debrief judge(std::span<const Sample> flight, const Task& task,
                            Strictness strictness);

} // namespace tarnel
