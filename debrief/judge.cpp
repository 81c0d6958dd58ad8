#include "debrief/arc_judge.h"
#include "debrief/debrief.h"
#include "debrief/hold_judge.h"
#include "debrief/line_judge.h"
#include "debrief/reference_judge.h"

#include <algorithm>

namespace tarnel {

namespace {

struct Judge {
    std::span<const Sample> flight;
    Judgement& judgement;

    void operator()(const LineTask& task) const { judgeLine(flight, task, judgement); }
    void operator()(const HoldTask& task) const { judgeHold(flight, task, judgement); }
    void operator()(const ArcTask& task) const { judgeArc(flight, task, judgement); }
    void operator()(const ReferenceTask& task) const { judgeReference(flight, task, judgement); }
    /// The aircraft is established already: how it joins says nothing.
    void operator()(const WindTask& task) const {
        judgeHold(flight, task.holding, judgement);
        std::erase_if(judgement.told.findings, [](const Finding& finding) {
            return finding.kind == FindingKind::entry || finding.kind == FindingKind::firstTurn;
        });
    }
};

/// What is wrong first, the worst of it in front; what has no verdict last.
void sortFindings(std::vector<Finding>& findings) {
    const auto rank = [](const Finding& finding) {
        return finding.verdict == Verdict::wrong ? 0 : finding.verdict == Verdict::right ? 1 : 2;
    };
    std::ranges::stable_sort(findings, [&](const Finding& a, const Finding& b) {
        if (rank(a) != rank(b))
            return rank(a) < rank(b);
        if (a.verdict == Verdict::wrong && a.weight != b.weight)
            return a.weight > b.weight;
        return a.samples.first < b.samples.first;
    });
}

} // namespace

FindingUnit unitOf(FindingKind kind) {
    static constexpr FindingUnit units[] = {
#define FINDING(name, unit, limit, text) FindingUnit::unit,
#include "debrief/findings.def"
    };
    return units[static_cast<std::size_t>(kind)];
}

Limit limitFor(FindingKind kind) {
    static constexpr Limit limits[] = {
#define FINDING(name, unit, limit, text) Limit::limit,
#include "debrief/findings.def"
    };
    return limits[static_cast<std::size_t>(kind)];
}

Debrief judge(std::span<const Sample> flight, const Task& task, Strictness strictness) {
    Judgement judgement(flight.size(), strictness);
    if (flight.empty())
        return {};
    std::visit(Judge{flight, judgement}, task);
    sortFindings(judgement.told.findings);
    return std::move(judgement.told);
}

} // namespace tarnel
