#include "debrief/judgement.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// How bad it is to be so far beside what should be, by what is allowed.
double weightOf(double beside, double allowed) {
    constexpr double worst = 100;
    return allowed > 0 ? std::min(std::abs(beside) / allowed, worst) : beside > 0 ? worst : 0;
}

void judgeByWeight(Finding& finding) {
    constexpr double rounding = 1 + 1e-9;
    finding.verdict = finding.weight > rounding ? Verdict::wrong : Verdict::right;
}

} // namespace

Finding& Judgement::add(FindingKind kind, double value, SampleSpan samples) {
    Finding finding;
    finding.kind = kind;
    finding.value = value;
    finding.samples = samples;
    return told.findings.emplace_back(finding);
}

Finding& Judgement::atMost(FindingKind kind, double value, double greatest, SampleSpan samples) {
    Finding& finding = add(kind, value, samples);
    finding.tolerance = greatest;
    finding.weight = weightOf(value, greatest);
    judgeByWeight(finding);
    return finding;
}

Finding& Judgement::about(FindingKind kind, double value, double expected, double tolerance,
                          SampleSpan samples) {
    return between(kind, value, {expected, expected}, tolerance, samples);
}

Finding& Judgement::between(FindingKind kind, double value, std::pair<double, double> ends,
                            double tolerance, SampleSpan samples) {
    Finding& finding = add(kind, value, samples);
    finding.expected = (ends.first + ends.second) / 2;
    finding.tolerance = tolerance + std::abs(ends.second - ends.first) / 2;
    finding.weight = weightOf(value - *finding.expected, *finding.tolerance);
    judgeByWeight(finding);
    return finding;
}

Finding& Judgement::same(FindingKind kind, double value, double expected, SampleSpan samples) {
    constexpr double quiteWrong = 3;
    Finding& finding = add(kind, value, samples);
    finding.expected = expected;
    finding.weight = value == expected ? 0 : quiteWrong;
    judgeByWeight(finding);
    return finding;
}

Finding& Judgement::fault(FindingKind kind, SampleSpan samples) {
    constexpr double worse = 10; ///< than any figure a little beside its limit
    Finding& finding = add(kind, 1, samples);
    finding.weight = worse;
    finding.verdict = Verdict::wrong;
    return finding;
}

Finding& Judgement::open(FindingKind kind, double value, SampleSpan samples) {
    return add(kind, value, samples);
}

Phase* Judgement::phase(PhaseKind kind, int last) {
    const int first = told.phases.empty() ? 0 : told.phases.back().samples.last + 1;
    last = std::min(last, static_cast<int>(told.outside.size()) - 1);
    if (last < first)
        return nullptr;
    return &told.phases.emplace_back(Phase{kind, {first, last}, {}, Verdict::open});
}

Series& Judgement::series(SeriesKind kind, FindingUnit unit,
                          const std::function<std::optional<double>(int)>& of) {
    Series plotted{kind, unit, {}, {}};
    plotted.values.reserve(told.outside.size());
    for (int i = 0; i < static_cast<int>(told.outside.size()); ++i) {
        const std::optional<double> value = of(i);
        plotted.values.push_back(value ? std::optional(static_cast<float>(*value)) : std::nullopt);
    }
    return told.series.emplace_back(std::move(plotted));
}

void plotHeading(Judgement& judgement, const FlownPath& path) {
    judgement.series(SeriesKind::heading, FindingUnit::degrees,
                     [&](int i) { return path.heading(i); });
}

} // namespace tarnel
