#include "debrief/reference_judge.h"

#include "core/sailing.h"

#include <algorithm>

namespace tarnel {
namespace {

GeoPosition placeOf(const Sample& sample) {
    return {sample.traceLat, sample.traceLon};
}

Series distances(std::span<const Sample> flight, std::span<const Sample> reference) {
    Series apart{SeriesKind::offReference, FindingUnit::nauticalMiles, {}, {}};
    for (std::size_t i = 0; i < flight.size(); ++i)
        if (i < reference.size())
            apart.values.emplace_back(static_cast<float>(
                CourseAndDistance(placeOf(flight[i]), placeOf(reference[i])).distance));
        else
            apart.values.emplace_back();
    return apart;
}

} // namespace

Debrief judgeReference(std::span<const Sample> flight, const ReferenceTask& task,
                       Strictness strictness) {
    Debrief told;
    const double limit = limitOf(Limit::referenceDistance, strictness);
    Series apart = distances(flight, task.samples);
    double sum = 0;
    int count = 0;
    for (const std::optional<float>& value : apart.values) {
        told.outside.push_back(value && *value > limit);
        if (value) {
            sum += *value;
            ++count;
        }
    }
    TaskLine line{TaskLineKind::reference, {}};
    for (const Sample& sample : task.samples)
        line.points.push_back(placeOf(sample));
    told.lines.push_back(std::move(line));
    if (count > 0) {
        const SampleSpan all{0, count - 1};
        const double mean = sum / count;
        told.findings.push_back({FindingKind::meanOffReference,
                                 mean,
                                 {},
                                 limit,
                                 mean > limit ? Verdict::wrong : Verdict::right,
                                 mean / limit,
                                 all,
                                 0});
        apart.bands.push_back({all, 0, limit});
    }
    told.series.push_back(std::move(apart));
    return told;
}

} // namespace tarnel
