#include "bench/ratio_table.h"

#include <cstdio>

namespace tarnel {

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs)
        if (run.aggregate_name == "median")
            medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
}

bool RatioTable::print(const std::vector<RatioGoal>& goals) const {
    bool met = true;
    std::printf("%-22s %-22s %10s %10s %8s %8s\n", "measured", "against", "ns", "ns", "ratio",
                "at most");
    for (const RatioGoal& goal : goals) {
        const auto measured = medians.find(goal.measured);
        const auto against = medians.find(goal.against);
        if (measured == medians.end() || against == medians.end())
            return false;
        const double ratio = measured->second / against->second;
        std::printf("%-22s %-22s %10.1f %10.1f %8.3f %8.3f %s\n", goal.measured.c_str(),
                    goal.against.c_str(), measured->second, against->second, ratio, goal.most,
                    ratio <= goal.most ? "" : "MISSED");
        met = met && ratio <= goal.most;
    }
    return met;
}

} // namespace tarnel
