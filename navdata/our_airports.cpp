#include "navdata/our_airports.h"

#include "core/plain_text.h"
#include "core/station_geometry.h"
#include "navdata/csv_records.h"
#include "navdata/navaid_fields.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tarnel {

namespace {

/// A table that names its columns in its first line.
class Table {
  public:
    explicit Table(std::string_view text) : records(text) {}

    /// Finds the columns; the first `needed` ones have to be there.
    template <std::size_t count>
    void readHead(const std::array<std::string_view, count>& columns, std::size_t needed) {
        (void)records.next();
        const auto heads = records.fields();
        width = heads.size();
        for (std::size_t i = 0; i < count; ++i) {
            const auto place = std::ranges::find(heads, columns[i]) - heads.begin();
            places.push_back(static_cast<std::size_t>(place));
            if (places.back() == width && i < needed)
                throw NavField::fileKind;
        }
    }
    bool next() {
        const bool found = records.next();
        if (records.quoteOpen())
            throw NavField::quoteEnd;
        return found;
    }
    void checkWidth() const {
        if (records.fields().size() != width)
            throw NavField::fields;
    }
    [[nodiscard]] int line() const { return std::max(records.line(), 1); }
    /// The field of this row; empty where the table has no such column.
    [[nodiscard]] std::string_view operator[](std::size_t column) const {
        return places[column] < width ? trimmed(records.fields()[places[column]])
                                      : std::string_view();
    }

  private:
    CsvRecords records;
    std::vector<std::size_t> places;
    std::size_t width = 0;
};

/// Gives each row to `take`. One for which that throws a `NavField` is left out.
template <std::size_t count, class Take>
NavData readTable(std::string_view text, const std::array<std::string_view, count>& columns,
                  std::size_t needed, Take take) {
    NavData data;
    Table table(text);
    try {
        table.readHead(columns, needed);
        while (table.next())
            try {
                table.checkWidth();
                take(table, data.navaids);
            } catch (NavField expected) {
                leaveOut(data, table.line(), expected);
            }
    } catch (NavField expected) {
        data.navaids.clear();
        data.refused = NavProblem{table.line(), expected};
    }
    return data;
}

namespace navaids {

enum Column : std::uint8_t {
    ident,
    name,
    type,
    frequency,
    latitude,
    longitude,
    variation,
    slavedVariation,
    airport
};
constexpr std::array<std::string_view, 9> columns = {"ident",
                                                     "name",
                                                     "type",
                                                     "frequency_khz",
                                                     "latitude_deg",
                                                     "longitude_deg",
                                                     "magnetic_variation_deg",
                                                     "slaved_variation_deg",
                                                     "associated_airport"};
constexpr std::size_t needed = 6;

/// What a VOR was set to when it was built, else what the compass has there.
double variationOf(const Table& row) {
    for (const Column column : {slavedVariation, variation})
        if (!row[column].empty())
            return navNumber(row[column], NavField::course);
    return 0;
}

void take(const Table& row, std::vector<Navaid>& found) {
    const std::string_view kind = row[type];
    const bool isNdb = kind.starts_with("NDB");
    if (!isNdb && !kind.starts_with("VOR"))
        return; // a TACAN or a DME alone
    Navaid navaid;
    navaid.kind = isNdb ? NavaidKind::beacon : NavaidKind::omnirange;
    navaid.identifier = navIdentifier(row[ident]);
    navaid.name = navName(row[name]);
    navaid.airport = navName(row[airport]);
    navaid.position = navPosition(row[latitude], row[longitude]);
    navaid.frequency = navFrequency(row[frequency], 1, navaid.kind);
    navaid.hasDme = !isNdb && kind != "VOR";
    navaid.variation = isNdb ? 0 : variationOf(row);
    found.push_back(std::move(navaid));
}

} // namespace navaids

namespace runways {

enum Column : std::uint8_t {
    airport,
    length,
    lowIdent,
    lowLatitude,
    lowLongitude,
    highIdent,
    highLatitude,
    highLongitude,
    closed
};
constexpr std::array<std::string_view, 9> columns = {
    "airport_ident", "length_ft",       "le_ident",         "le_latitude_deg", "le_longitude_deg",
    "he_ident",      "he_latitude_deg", "he_longitude_deg", "closed"};
constexpr std::size_t needed = 8;

constexpr double leastLength = 4000;             // feet
constexpr double behindTheRunway = 300 / 1852.0; // NM

Navaid localizer(std::string_view airport, std::string_view runway, const GeoPosition& threshold,
                 const GeoPosition& farEnd) {
    const FromStation far = fromStation(threshold, farEnd);
    constexpr double shortest = 0.3;
    constexpr double longest = 4;
    if (!(far.distance >= shortest && far.distance <= longest))
        throw NavField::course;
    Navaid navaid;
    navaid.kind = NavaidKind::localizer;
    navaid.airport = navName(airport);
    navaid.runway = navName(runway);
    navaid.identifier = navIdentifier(navaid.airport + " " + navaid.runway);
    navaid.position = placeOn(farEnd, {far.radial, behindTheRunway});
    navaid.course = far.radial;
    return navaid;
}

/// Most strips have no place for their ends, and those of whole countries no length.
bool counts(const Table& row) {
    for (const Column place : {length, lowLatitude, lowLongitude, highLatitude, highLongitude})
        if (row[place].empty())
            return false;
    return row[closed] != "1" && navNumber(row[length], NavField::fields) >= leastLength;
}

void take(const Table& row, std::vector<Navaid>& found) {
    if (!counts(row))
        return;
    const GeoPosition low = navPosition(row[lowLatitude], row[lowLongitude]);
    const GeoPosition high = navPosition(row[highLatitude], row[highLongitude]);
    Navaid there = localizer(row[airport], row[lowIdent], low, high);
    Navaid back = localizer(row[airport], row[highIdent], high, low);
    found.push_back(std::move(there));
    found.push_back(std::move(back));
}

} // namespace runways

} // namespace

NavData readOurNavaids(std::string_view text) {
    return readTable(text, navaids::columns, navaids::needed, navaids::take);
}

NavData readOurRunways(std::string_view text) {
    return readTable(text, runways::columns, runways::needed, runways::take);
}

} // namespace tarnel
