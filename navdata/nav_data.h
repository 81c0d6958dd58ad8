#pragma once

#include "navdata/navaid.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// What a line of navigation data has to hold.
enum class NavField {
    fileKind,  ///< a first line as nav.dat has it, "I" or "A", or OurAirports' names of columns
    version,   ///< 810 to 1200
    rowCode,   ///< 2 to 99
    packed,    ///< whole content of a gzip file
    quoteEnd,  ///< of a field that began with a quote
    fields,    ///< as many as its kind of row has
    latitude,  ///< -90 to 90
    longitude, ///< -180 to 180
    frequency, ///< VORs and localizers 108 to 118 MHz, NDBs 100 to 1999 kHz
    course,    ///< degrees, or a runway's other end
    identifier,
    lastRow, ///< the row 99 that ends nav.dat
};

/// Where navigation data are wrong.
struct NavProblem {
    int line = 0; ///< from 1
    NavField expected = NavField::fileKind;
    bool operator==(const NavProblem&) const = default;
};

/// Navigation data as far as they could be read.
struct NavData {
    int version = 0; ///< of nav.dat; 0 for OurAirports
    std::vector<Navaid> navaids;
    std::optional<NavProblem> refused; ///< the line for which the whole file was refused
    int wrongRows = 0;                 ///< that were left out
    std::optional<NavProblem> firstWrong;
};

/// More bytes of navigation data, unpacked, are refused.
constexpr std::size_t largestNavData = std::size_t{64} << 20;

/// Reads `nav.dat` of FlightGear or X-Plane, versions 810 to 1200, or OurAirports' `navaids.csv`,
/// either of them packed by gzip or not. VORs, NDBs and localizers are taken, their DMEs noted; all
/// else is read over. A file of another kind is `refused` and gives no stations; a single row that
/// is wrong is left out and counted. Throws `Cause::fileTooLarge` beyond `largestNavData`.
[[nodiscard]] NavData readNavData(std::string bytes);

/// Reads OurAirports' `runways.csv`, likewise: each end of a runway of 4,000 ft and more becomes a
/// localizer, as OurAirports knows none. It stands at the far end and is named after airport and
/// runway; it has no frequency.
[[nodiscard]] NavData readRunways(std::string bytes);

} // namespace tarnel
