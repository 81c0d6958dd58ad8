#include "debrief/reference_judge.h"

#include "core/sailing.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

GeoPosition placeOf(const Sample& sample) {
    return {sample.traceLat, sample.traceLon};
}

/// How far one value is off over the flight.
struct Differences {
    double sum = 0;
    double largest = 0;
    int at = 0; ///< the sample of the largest
    int count = 0;

    void add(int sample, double value) {
        if (value > largest) {
            largest = value;
            at = sample;
        }
        sum += value;
        ++count;
    }
    [[nodiscard]] double mean() const { return count > 0 ? sum / count : 0; }
};

/// Which samples lie in a turn of either flight: who turns a little later is not off a heading.
std::vector<bool> turningSamples(std::span<const Sample> flight, std::span<const Sample> reference,
                                 std::size_t count) {
    constexpr double least = 15;
    std::vector<bool> turning(count);
    for (const auto& each : {flight, reference})
        for (const TurnSpan& turn : turnsOf(each))
            if (std::abs(turn.degrees) >= least)
                for (std::size_t i = static_cast<std::size_t>(turn.first);
                     i <= static_cast<std::size_t>(turn.last) && i < count; ++i)
                    turning[i] = true;
    return turning;
}

} // namespace

void judgeReference(std::span<const Sample> flight, const ReferenceTask& task,
                    Judgement& judgement) {
    TaskLine line{TaskLineKind::reference, {}};
    for (const Sample& sample : task.samples)
        line.points.push_back(placeOf(sample));
    judgement.told.lines.push_back(std::move(line));
    const std::size_t count = std::min(flight.size(), task.samples.size());
    const std::vector<bool> turning = turningSamples(flight, task.samples, count);
    const double farthest = judgement.limit(Limit::referenceLargest);
    Differences miles;
    Differences degrees;
    Differences knots;
    Series& distances = judgement.series(
        SeriesKind::offReference, FindingUnit::nauticalMiles, [&](int i) -> std::optional<double> {
            const auto at = static_cast<std::size_t>(i);
            if (at >= count)
                return std::nullopt;
            const Sample& own = flight[at];
            const Sample& there = task.samples[at];
            const double apart = CourseAndDistance(placeOf(own), placeOf(there)).distance;
            miles.add(i, apart);
            if (!turning[at])
                degrees.add(i, std::abs(turnBetween(there.traceHeading, own.traceHeading)));
            knots.add(i, std::abs(own.traceTAS - there.traceTAS));
            if (apart > farthest)
                judgement.outside(i);
            return apart;
        });
    judgement.phase(PhaseKind::track, static_cast<int>(flight.size()) - 1);
    if (count == 0)
        return;
    const SampleSpan all{0, static_cast<int>(count) - 1};
    distances.bands.push_back({all, 0, farthest});
    judgement.series(SeriesKind::heading, FindingUnit::degrees,
                     [&](int i) { return flight[static_cast<std::size_t>(i)].traceHeading; });
    judgement.series(SeriesKind::speed, FindingUnit::knots, [&](int i) {
        return std::optional<double>(flight[static_cast<std::size_t>(i)].traceTAS);
    });
    judgement.atMost(FindingKind::meanOffReference, miles.mean(),
                     judgement.limit(Limit::referenceMean), all);
    judgement.atMost(FindingKind::largestOffReference, miles.largest, farthest,
                     {miles.at, miles.at});
    if (degrees.count > 0)
        judgement.atMost(FindingKind::headingOffReference, degrees.mean(),
                         judgement.limit(Limit::referenceHeading), {degrees.at, degrees.at});
    judgement.atMost(FindingKind::speedOffReference, knots.mean(),
                     judgement.limit(Limit::referenceSpeed), {knots.at, knots.at});
}

} // namespace tarnel
