#pragma once

#include "core/stations.h"
#include "persistence/chart_file.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// A chart that situations are written on.
struct AuthoredChart {
    std::string path;
    ChartFile file;

    /// The only slot that `fits` of a station with a name: its identifier or, where two share that,
    /// with the kind before it, "NDB GRZ".
    [[nodiscard]] std::optional<Slot> slotOf(
        const std::string& name, bool (*fits)(Slot) = [](Slot) { return true; }) const;
    /// The names by which `slotOf` finds those that fit.
    [[nodiscard]] std::vector<std::string> namesOf(bool (*fits)(Slot)) const;
    [[nodiscard]] const std::string& identifier(Slot slot) const;
    [[nodiscard]] GeoPosition position(Slot slot) const;
};

/// Reads the chart at `path`. Throws a run-time error if it can't be read, and its problem as a
/// text if it is wrong or lacks the place of a station.
[[nodiscard]] AuthoredChart readAuthoredChart(const std::string& path);

/// `ChartShelf`: where the charts that courses name are looked for.
class ChartShelf {
  public:
    /// Folders of ".map" files, the first one first.
    explicit ChartShelf(std::vector<std::string> mapFolders) : folders(std::move(mapFolders)) {}

    /// The path of the chart of a name such as "munich", looked for beside `source` first; nothing
    /// if there is none.
    [[nodiscard]] std::optional<std::string> find(const std::string& name,
                                                  const std::string& source) const;

  private:
    std::vector<std::string> folders;
};

} // namespace tarnel
