#include "navdata/nav_dat.h"

#include "core/plain_text.h"
#include "core/station_geometry.h"
#include "navdata/navaid_fields.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace tarnel {

namespace {

constexpr int leastVersion = 810;
constexpr int mostVersion = 1200;
constexpr int firstWithRegions = 1100;

enum RowCode : std::int8_t {
    firstCode = 2,
    ndbRow = 2,
    vorRow = 3,
    localizerOfIls = 4,
    localizerAlone = 5,
    dmeOfStation = 12,
    dmeAlone = 13,
    endRow = 99,
};

/// The lines of the text, without their ends.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest(text) {}

    bool next() {
        if (rest.empty())
            return false;
        ++number;
        const std::size_t end = rest.find('\n');
        line = trimmed(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        return true;
    }

    std::string_view line;
    int number = 0; ///< from 1

  private:
    std::string_view rest;
};

/// The fields of a row, separated by blanks.
class Row {
  public:
    explicit Row(std::string_view line) : left(line) {}

    [[nodiscard]] std::string_view field() {
        const std::size_t end = left.find_first_of(" \t");
        const std::string_view taken = left.substr(0, end);
        if (taken.empty())
            throw NavField::fields;
        left = end == std::string_view::npos ? std::string_view() : trimmed(left.substr(end));
        return taken;
    }
    [[nodiscard]] std::string_view rest() const { return left; }

  private:
    std::string_view left;
};

/// What the rows of stations and of their DMEs have in common.
struct Common {
    GeoPosition position;
    std::string_view frequency;
    std::string_view special; ///< a VOR's variation, a localizer's course
    std::string_view identifier;
};

Common takeCommon(Row& row) {
    Common common;
    const std::string_view latitude = row.field();
    common.position = navPosition(latitude, row.field());
    (void)row.field(); // elevation
    common.frequency = row.field();
    (void)row.field(); // range
    common.special = row.field();
    common.identifier = row.field();
    return common;
}

bool startsWithDigit(std::string_view line) {
    return !line.empty() && line.front() >= '0' && line.front() <= '9';
}

bool endsInDme(std::string_view name) {
    return name.ends_with("DME") || name.ends_with("VORTAC");
}

class NavDatReader {
  public:
    explicit NavDatReader(std::string_view text) : lines(text) {}

    NavData run() {
        try {
            readHead();
            readRows();
        } catch (NavField expected) {
            data.navaids.clear();
            data.refused = NavProblem{std::max(lines.number, 1), expected};
            return std::move(data);
        }
        for (Navaid& navaid : data.navaids)
            navaid.hasDme = navaid.hasDme || standsByDme(navaid);
        return std::move(data);
    }

  private:
    void readHead() {
        (void)lines.next(); // what kind of file it is
        if (!lines.next() || lines.line.empty())
            throw NavField::version;
        const double version = navNumber(Row(lines.line).field(), NavField::version);
        if (!(version >= leastVersion && version <= mostVersion))
            throw NavField::version;
        data.version = static_cast<int>(version);
    }

    /// A file without its last row may have been cut; what stands in it is taken.
    void readRows() {
        while (lines.next()) {
            if (lines.line.empty())
                continue;
            Row row(lines.line);
            const int code = takeCode(row);
            if (code == endRow)
                return;
            try {
                readRow(code, row);
            } catch (NavField expected) {
                leaveOut(data, lines.number, expected);
            }
        }
        leaveOut(data, lines.number + 1, NavField::lastRow);
    }

    /// X-Plane's other files begin alike, and their rows with a position, a name or another code.
    static int takeCode(Row& row) {
        const std::string_view field = row.field();
        int code = 0;
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), code);
        if (error != std::errc() || end != field.data() + field.size() || code < firstCode ||
            code > endRow)
            throw NavField::rowCode;
        return code;
    }

    void readRow(int code, Row& row) {
        switch (code) {
        case ndbRow:
            return takeEnRoute(NavaidKind::beacon, row);
        case vorRow:
            return takeEnRoute(NavaidKind::omnirange, row);
        case localizerOfIls:
        case localizerAlone:
            return takeLocalizer(row);
        case dmeOfStation:
        case dmeAlone:
            return takeDme(row);
        default:
            break; // markers, glide slopes and what satellites lead along
        }
    }

    [[nodiscard]] bool hasRegions() const { return data.version >= firstWithRegions; }

    static Navaid begun(NavaidKind kind, const Common& common) {
        constexpr double tenKilohertz = 10;
        Navaid navaid;
        navaid.kind = kind;
        navaid.identifier = navIdentifier(common.identifier);
        navaid.position = common.position;
        navaid.frequency =
            navFrequency(common.frequency, kind == NavaidKind::beacon ? 1 : tenKilohertz, kind);
        return navaid;
    }

    void takeEnRoute(NavaidKind kind, Row& row) {
        const Common common = takeCommon(row);
        Navaid navaid = begun(kind, common);
        if (kind == NavaidKind::omnirange)
            navaid.variation = navNumber(common.special, NavField::course);
        if (hasRegions()) {
            const std::string_view airport = row.field();
            if (airport != "ENRT")
                navaid.airport = navName(airport);
            (void)row.field();
        }
        navaid.name = navName(row.rest());
        navaid.hasDme = kind == NavaidKind::omnirange && endsInDme(navaid.name);
        data.navaids.push_back(std::move(navaid));
    }

    void takeLocalizer(Row& row) {
        const Common common = takeCommon(row);
        Navaid navaid = begun(NavaidKind::localizer, common);
        navaid.course = circle(navNumber(common.special, NavField::course));
        navaid.airport = navName(row.field());
        if (hasRegions())
            (void)row.field();
        navaid.runway = navName(row.field());
        navaid.name = navName(row.rest());
        data.navaids.push_back(std::move(navaid));
    }

    void takeDme(Row& row) {
        const Common common = takeCommon(row);
        dmes.emplace(std::string(common.identifier), common.position);
    }

    /// DMEs stand beside their VOR or at the other end of their runway.
    [[nodiscard]] bool standsByDme(const Navaid& navaid) const {
        constexpr double farthest = 5; // NM
        if (navaid.kind == NavaidKind::beacon)
            return false;
        const auto [first, last] = dmes.equal_range(navaid.identifier);
        return std::any_of(first, last, [&](const auto& dme) {
            return fromStation(navaid.position, dme.second).distance <= farthest;
        });
    }

    Lines lines;
    NavData data;
    std::unordered_multimap<std::string, GeoPosition> dmes;
};

} // namespace

/// FlightGear leaves the first line empty.
bool isNavDat(std::string_view text) {
    Lines lines(text);
    if (!lines.next())
        return false;
    const bool told = lines.line == "I" || lines.line == "A";
    return told || (lines.line.empty() && lines.next() && startsWithDigit(lines.line));
}

NavData readNavDat(std::string_view text) {
    return NavDatReader(text).run();
}

} // namespace tarnel
