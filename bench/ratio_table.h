#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tarnel {

/// Two benchmarks of one run, and how much the first may take of the second.
struct RatioGoal {
    std::string measured;
    std::string against;
    double most;
};

/// `RatioTable`: collects the medians of a run and prints the ratios of pairs of them.
class RatioTable : public benchmark::ConsoleReporter {
  public:
    RatioTable() : ConsoleReporter(OO_Tabular) {}
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints a line for each goal. False if one is missed or was not measured.
    bool print(const std::vector<RatioGoal>& goals) const;

  private:
    std::map<std::string, double> medians; ///< nanoseconds
};

} // namespace tarnel
