#include "authoring/authored_chart.h"

#include "persistence/file_bytes.h"
#include "platform/path_text.h"

#include <filesystem>
#include <stdexcept>

namespace tarnel {

namespace {

constexpr std::size_t largestChart = std::size_t{1} << 16;

constexpr Slot allSlots[] = {Slot::vor1, Slot::vor2, Slot::ndb1, Slot::ndb2, Slot::localizer};

std::string kindAndName(const AuthoredChart& chart, Slot slot) {
    const bool isVor = slot == Slot::vor1 || slot == Slot::vor2;
    const char* kind = isVor ? "VOR " : slot == Slot::localizer ? "LOC " : "NDB ";
    return kind + chart.identifier(slot);
}

} // namespace

std::optional<Slot> AuthoredChart::slotOf(const std::string& name, bool (*fits)(Slot)) const {
    std::optional<Slot> found;
    for (const Slot slot : allSlots) {
        if (!fits(slot) || (identifier(slot) != name && kindAndName(*this, slot) != name))
            continue;
        if (found)
            return std::nullopt;
        found = slot;
    }
    return found;
}

std::vector<std::string> AuthoredChart::namesOf(bool (*fits)(Slot)) const {
    std::vector<std::string> names;
    for (const Slot slot : allSlots)
        if (fits(slot))
            names.push_back(slotOf(identifier(slot), fits) ? identifier(slot)
                                                           : kindAndName(*this, slot));
    return names;
}

const std::string& AuthoredChart::identifier(Slot slot) const {
    return inSlot(file.stations, slot).identifier.value();
}

GeoPosition AuthoredChart::position(Slot slot) const {
    return inSlot(file.stations, slot).position.value();
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
    std::vector<std::string> places = {textOf(pathOf(source).parent_path())};
    places.insert(places.end(), folders.begin(), folders.end());
    for (const std::string& folder : places) {
        const auto path = pathOf(folder) / pathOf(name + ".map");
        if (std::filesystem::is_regular_file(path))
            return textOf(path);
    }
    return std::nullopt;
}

} // namespace tarnel
