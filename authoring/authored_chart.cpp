#include "authoring/authored_chart.h"

#include "persistence/file_bytes.h"

#include <filesystem>
#include <stdexcept>

namespace tarnel {

namespace {

constexpr std::size_t largestChart = std::size_t{1} << 16;

} // namespace

std::optional<Slot> AuthoredChart::slotOf(const std::string& name, bool (*fits)(Slot)) const {
    for (std::size_t i = 0; i < slotCount; ++i)
        if (file.stations[i].identifier == name && fits(static_cast<Slot>(i)))
            return static_cast<Slot>(i);
    return std::nullopt;
}

const std::string& AuthoredChart::identifier(Slot slot) const {
    return inSlot(file.stations, slot).identifier.value();
}

GeoPosition AuthoredChart::position(Slot slot) const {
    return inSlot(file.stations, slot).position.value();
}

std::vector<std::string> AuthoredChart::identifiers() const {
    std::vector<std::string> names;
    for (const ChartStation& station : file.stations)
        names.push_back(station.identifier.value());
    return names;
}

AuthoredChart readAuthoredChart(const std::string& path) {
    AuthoredChart chart{path, readChart(readFileBytes(path, largestChart))};
    for (const ChartStation& station : chart.file.stations)
        if (chart.file.problem || !station.identifier || !station.position)
            throw std::runtime_error("a whole chart in " + path);
    return chart;
}

std::optional<std::string> ChartShelf::find(const std::string& name,
                                            const std::string& source) const {
    std::vector<std::string> places = {std::filesystem::path(source).parent_path().string()};
    places.insert(places.end(), folders.begin(), folders.end());
    for (const std::string& folder : places) {
        const auto path = std::filesystem::path(folder) / (name + ".map");
        if (std::filesystem::is_regular_file(path))
            return path.string();
    }
    return std::nullopt;
}

} // namespace tarnel
