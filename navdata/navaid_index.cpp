#include "navdata/navaid_index.h"

#include "navdata/anywhere_chart.h"
#include "navdata/search_text.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <tuple>
#include <utility>

namespace tarnel {

namespace {

constexpr int noMatch = 4;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

std::vector<std::string> wordsOf(std::string_view text) {
    const std::string folded = searchText(text);
    std::vector<std::string> words;
    for (std::size_t at = 0; (at = folded.find_first_not_of(" \t", at)) != std::string::npos;) {
        const std::size_t end = std::min(folded.find_first_of(" \t", at), folded.size());
        words.push_back(folded.substr(at, end - at));
        at = end;
    }
    return words;
}

bool hasWord(const std::string& spaced, const std::string& word) {
    return spaced.find(' ' + word) != std::string::npos;
}

} // namespace

double greatCircleDistance(const GeoPosition& from, const GeoPosition& to) {
    const double north = std::sin(radians(to.latitude - from.latitude) / 2);
    const double east = std::sin(radians(to.longitude - from.longitude) / 2);
    const double chord = north * north + std::cos(radians(from.latitude)) *
                                             std::cos(radians(to.latitude)) * east * east;
    constexpr double minutes = 2 * 60 * 180 / std::numbers::pi;
    return minutes * std::asin(std::sqrt(std::min(chord, 1.0)));
}

NavaidIndex::NavaidIndex(std::vector<Navaid> navaids) : all(std::move(navaids)) {
    keys.reserve(all.size());
    for (const Navaid& navaid : all) {
        Key key{searchText(navaid.identifier), searchText(navaid.airport), {}};
        key.words = ' ' + key.identifier + ' ' + key.airport + ' ' + searchText(navaid.runway) +
                    ' ' + searchText(navaid.name);
        keys.push_back(std::move(key));
    }
}

/// 0 is the best.
int NavaidIndex::rank(std::size_t index, const std::vector<std::string>& words) const {
    const Key& key = keys[index];
    for (const std::string& word : words)
        if (!hasWord(key.words, word))
            return noMatch;
    const std::string& first = words.front();
    if (key.identifier == first)
        return 0;
    if (key.airport == first)
        return 1;
    return key.identifier.starts_with(first) ? 2 : 3;
}

std::vector<std::size_t> NavaidIndex::search(std::string_view text, std::size_t most) const {
    const std::vector<std::string> words = wordsOf(text);
    if (words.empty())
        return {};
    std::vector<std::pair<int, std::size_t>> found;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (const int place = rank(i, words); place != noMatch)
            found.emplace_back(place, i);
    const auto order = [this](const auto& hit) {
        const Navaid& navaid = all[hit.second];
        return std::tie(hit.first, navaid.kind, navaid.identifier, hit.second);
    };
    const std::size_t count = std::min(most, found.size());
    std::partial_sort(
        found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count), found.end(),
        [&](const auto& one, const auto& other) { return order(one) < order(other); });
    std::vector<std::size_t> best(count);
    std::transform(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count), best.begin(),
                   [](const auto& hit) { return hit.second; });
    return best;
}

bool NavaidIndex::sameStation(std::size_t one, std::size_t other) const {
    constexpr double samePlace = 1; // NM
    return all[one].identifier == all[other].identifier &&
           all[one].frequency == all[other].frequency &&
           greatCircleDistance(all[one].position, all[other].position) < samePlace;
}

std::vector<NearNavaid> NavaidIndex::nearest(const GeoPosition& place, NavaidKind kind,
                                             std::size_t most) const {
    constexpr double farthest = 500; // NM
    std::vector<NearNavaid> found;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].kind == kind && fitsChart(all[i].position))
            if (const double far = greatCircleDistance(place, all[i].position); far <= farthest)
                found.push_back({i, far});
    const auto order = [this](const NearNavaid& near) {
        return std::make_tuple(std::round(near.distance), !all[near.index].hasDme, near.distance,
                               near.index);
    };
    std::ranges::sort(found, {}, order);
    std::vector<NearNavaid> result;
    for (const NearNavaid& near : found) {
        if (result.size() == most)
            break;
        const bool twice = std::ranges::any_of(
            result, [&](const NearNavaid& other) { return sameStation(near.index, other.index); });
        if (!twice)
            result.push_back(near);
    }
    return result;
}

NavaidKind kindOf(Slot slot) {
    if (slot == Slot::localizer)
        return NavaidKind::localizer;
    return hasDme(slot) ? NavaidKind::omnirange : NavaidKind::beacon;
}

StationChoice proposeStations(const NavaidIndex& navaids, const GeoPosition& place) {
    StationChoice choice;
    const auto fill = [&](NavaidKind kind, std::initializer_list<Slot> slots) {
        const std::vector<NearNavaid> near = navaids.nearest(place, kind, slots.size());
        const Slot* slot = slots.begin();
        for (const NearNavaid& navaid : near)
            inSlot(choice, *slot++) = navaid.index;
    };
    fill(NavaidKind::omnirange, {Slot::vor1, Slot::vor2});
    fill(NavaidKind::beacon, {Slot::ndb1, Slot::ndb2});
    fill(NavaidKind::localizer, {Slot::localizer});
    return choice;
}

} // namespace tarnel
