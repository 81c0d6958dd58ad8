#pragma once

#include "exercises/settings_store.h"
#include "strings/string_table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

/// How often an exercise was answered, and how often not all of it was right.
struct Counters {
    std::int64_t total = 0;
    std::int64_t bad = 0;
};

/// The counters of all exercises in the settings. An exercise goes by its stem, "hsipos" say; its
/// questions by their index behind a blank: "hsipos_total 7". A value that is no number counts as
/// 0, one outside 0 to 2147483647 as the nearer end.
class Statistics {
  public:
    explicit Statistics(SettingsStore& store) : settings(store) {}

    [[nodiscard]] Counters of(std::string_view stem) const;

    /// Counts one answer to question `index` and sums the exercise's counters over the questions 0
    /// to `lastQuestion`. Writes the settings once; what another program has counted stays counted.
    void count(std::string_view stem, int index, int lastQuestion, bool allRight);

    /// Makes the section exist, for a start of the program: an absent one can't be deleted.
    void prepare();
    /// Forgets everything that was counted.
    void reset();

  private:
    SettingsStore& settings;
};

/// The line above a question: attempts, right answers, per cent rounded down.
[[nodiscard]] std::string statisticLine(const Counters& counters, const StringTable& texts);

} // namespace tarnel
