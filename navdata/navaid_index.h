#pragma once

#include "core/stations.h"
#include "navdata/navaid.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// NM along the great circle, by which a minute of arc is a mile.
[[nodiscard]] double greatCircleDistance(const GeoPosition& from, const GeoPosition& to);

/// A station and how far it is from where one asked.
struct NearNavaid {
    std::size_t index = 0; ///< into the `NavaidIndex`
    double distance = 0;   ///< NM
};

/// The stations of five slots, as indices into a `NavaidIndex`; a slot may stay empty.
using StationChoice = std::array<std::optional<std::size_t>, slotCount>;

/// Finds stations by name and by place.
class NavaidIndex {
  public:
    NavaidIndex() = default;
    explicit NavaidIndex(std::vector<Navaid> navaids);

    [[nodiscard]] std::size_t size() const { return all.size(); }
    [[nodiscard]] const Navaid& operator[](std::size_t index) const { return all[index]; }

    /// The stations that have each of `words` at the beginning of their identifier, airport, runway
    /// or a word of their name, as `searchText` compares. First come those whose identifier is the
    /// first word, then those whose identifier, airport or name begins with it; among equals VORs,
    /// NDBs and localizers, each by identifier. At most `most`; none for no words.
    [[nodiscard]] std::vector<std::size_t> search(std::string_view words, std::size_t most) const;

    /// The stations of a kind within 500 NM that a chart can hold, the nearest first: of those as
    /// far in whole NM the ones with a DME, then the nearer. Of a station that stands there twice
    /// the first.
    [[nodiscard]] std::vector<NearNavaid> nearest(const GeoPosition& place, NavaidKind kind,
                                                  std::size_t most) const;

  private:
    /// What is compared of a station: blanks before each word.
    struct Key {
        std::string identifier;
        std::string airport;
        std::string words;
    };
    [[nodiscard]] int rank(std::size_t index, const std::vector<std::string>& words) const;
    [[nodiscard]] bool sameStation(std::size_t one, std::size_t other) const;

    std::vector<Navaid> all;
    std::vector<Key> keys;
};

/// What may stand in a slot.
[[nodiscard]] NavaidKind kindOf(Slot slot);

/// The two nearest VORs, the two nearest NDBs and the nearest localizer, by `nearest`.
[[nodiscard]] StationChoice proposeStations(const NavaidIndex& navaids, const GeoPosition& place);

} // namespace tarnel
