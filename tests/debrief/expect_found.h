#pragma once

#include "debrief/debrief.h"
#include "debrief/flown_flight.h"
#include "shell/finding_text.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

inline std::string wrongIn(const Debrief& debrief) {
    std::string wrong;
    for (const Finding& finding : debrief.findings)
        if (finding.verdict == Verdict::wrong)
            wrong += findingText(finding, englishTable()) + "\n";
    return wrong;
}

struct Fault {
    const char* what;
    std::optional<FindingKind> found; ///< nothing in a good flight
    std::function<FlownFlight()> fly;
};

/// Each flight fails what it was written for and nothing else; phases and samples are whole.
inline void expectFound(const Task& task, const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
        const FlownFlight flown = fault.fly();
        const Debrief debrief = judge(flown.samples, task, Strictness::standard);
        std::vector<FindingKind> wrong;
        for (const Finding& finding : debrief.findings) {
            if (finding.verdict == Verdict::wrong)
                wrong.push_back(finding.kind);
            EXPECT_LE(finding.samples.first, finding.samples.last) << fault.what;
            EXPECT_LT(finding.samples.last, static_cast<int>(flown.samples.size())) << fault.what;
        }
        EXPECT_EQ(wrong, fault.found ? std::vector{*fault.found} : std::vector<FindingKind>())
            << fault.what << ":\n"
            << wrongIn(debrief);
        int next = 0;
        for (const Phase& phase : debrief.phases) {
            EXPECT_EQ(phase.samples.first, next) << fault.what;
            next = phase.samples.last + 1;
        }
        EXPECT_EQ(next, static_cast<int>(flown.samples.size())) << fault.what;
        for (const Series& series : debrief.series)
            EXPECT_EQ(series.values.size(), flown.samples.size()) << fault.what;
        EXPECT_EQ(debrief.outside.size(), flown.samples.size()) << fault.what;
    }
}

} // namespace tarnel
