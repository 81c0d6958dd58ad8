#pragma once

#include "authoring/authored_chart.h"
#include "authoring/local_text.h"
#include "core/aircraft.h"
#include "flights/plan_table.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace tarnel {

// Values that the tables of several kinds of sources hold.

/// One of the words; nothing if the table lacks the key.
[[nodiscard]] std::optional<std::string> readWord(PlanTable& table, std::string_view key,
                                                  std::initializer_list<const char*> words);

/// Under two keys, both or none, each on one line.
[[nodiscard]] LocalText readBothLanguages(PlanTable& table, std::string_view german = "de",
                                          std::string_view english = "en");

/// "wind", as "270/15".
[[nodiscard]] std::optional<Wind> readWind(PlanTable& table);

/// The needed "sense" of an arc; true for "clockwise".
[[nodiscard]] bool readSense(PlanTable& table);

/// Whether a text can be the name of a file without its end.
[[nodiscard]] bool isFileStem(const std::string& text);

/// The chart under the needed key "chart".
[[nodiscard]] AuthoredChart readChartOf(PlanTable& root, const std::string& file,
                                        const ChartShelf& charts);

} // namespace tarnel
