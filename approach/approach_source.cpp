#include "approach/approach_source.h"

#include "authoring/question_kind.h"
#include "authoring/table_values.h"
#include "flights/plan_table.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr Range<std::int64_t> altitudes{500, 12000};
constexpr Range<double> miles{0.5, 40};

bool isLine(const std::string& text) {
    return !text.empty() && text.size() <= 200 &&
           std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < ' '; });
}

std::string readLine(PlanTable& table, std::string_view key) {
    table.need(key);
    return *table.text(key, isLine, "one line of text");
}

double readNumber(PlanTable& table, std::string_view key, const Range<double>& range) {
    table.need(key);
    return *table.number(key, range);
}

int readAltitude(PlanTable& table, std::string_view key = "altitude") {
    table.need(key);
    return *table.whole(key, altitudes);
}

/// Reads the legs and the fixes of a source, over the stations of its session.
class ApproachReader {
  public:
    explicit ApproachReader(const AuthoredChart& over) : chart(over) {}

    void readInitial(PlanTable table, ApproachSource& source) const;
    [[nodiscard]] ApproachLeg readLeg(PlanTable table) const;
    [[nodiscard]] MissedApproach readMissed(PlanTable table) const;
    [[nodiscard]] Slot station(PlanTable& table, std::string_view key,
                               bool (*fits)(Slot) = isVor) const {
        return readStation(table, key, chart, fits);
    }

  private:
    const AuthoredChart& chart;
};

void ApproachReader::readInitial(PlanTable table, ApproachSource& source) const {
    source.initialStation = station(table, "station");
    source.initialRadial = readDirection(table, "radial");
    source.initialDistance = readNumber(table, "distance", miles);
    source.initialAltitude = readAltitude(table);
    table.refuseOtherKeys();
}

ApproachLeg ApproachReader::readLeg(PlanTable table) const {
    ApproachLeg leg;
    leg.line = table.line();
    leg.altitude = readAltitude(table);
    table.need("way");
    const auto way = readWord(table, "way", {"to", "radial", "arc", "hold"});
    if (way == "to")
        leg.way = LegToStation{station(table, "station", isVorOrNdb)};
    else if (way == "radial")
        leg.way = LegOnRadial{station(table, "station"), readDirection(table, "radial"),
                              readNumber(table, "distance", miles)};
    else if (way == "arc")
        leg.way = LegOnArc{station(table, "station"), readNumber(table, "distance", miles),
                           readSense(table)};
    else
        leg.way =
            LegInHolding{station(table, "station", isVorOrNdb), readDirection(table, "inbound"),
                         readTurns(table) == Turn::right, readNumber(table, "minutes", {0.5, 3})};
    table.refuseOtherKeys();
    return leg;
}

MissedApproach ApproachReader::readMissed(PlanTable table) const {
    MissedApproach missed;
    missed.altitude = readAltitude(table);
    missed.station = station(table, "station", isVorOrNdb);
    table.needBothOrNone("turns", "after");
    if (table.lineOf("turns") > 0) {
        missed.right = readTurns(table) == Turn::right;
        missed.after = readNumber(table, "after", {0.5, 10});
    }
    table.refuseOtherKeys();
    return missed;
}

/// What heads the chart.
ApproachSource readHead(PlanTable& root, const std::string& file) {
    ApproachSource source;
    source.file = file;
    source.session = readLine(root, "session");
    source.place = readLine(root, "place");
    source.icao = readLine(root, "icao");
    source.runway = readLine(root, "runway");
    source.once = root.text("once", isLine, "one line of text");
    root.need("elevation");
    source.elevation = *root.whole("elevation", {0, 8000});
    source.length = readNumber(root, "length", {1000, 16000});
    return source;
}

} // namespace

AuthoredChart chartOf(const SessionFile& session) {
    AuthoredChart chart;
    static_cast<StationBlock&>(chart.file) = session;
    const Sample& last = session.samples.back();
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        chart.file.stations[slot].position = last.traceStations[slot];
    chart.file.locCourse = last.traceLocCourse;
    return chart;
}

std::string sessionOf(std::string_view text, const std::string& file) {
    PlanTable root = PlanTable::parse(text, file);
    return readLine(root, "session");
}

ApproachSource readApproach(std::string_view text, const std::string& file,
                            const AuthoredChart& chart) {
    const ApproachReader reader(chart);
    PlanTable root = PlanTable::parse(text, file);
    ApproachSource source = readHead(root, file);
    root.need("initial");
    reader.readInitial(root.part("initial"), source);
    for (PlanTable& leg : root.parts("leg"))
        source.legs.push_back(reader.readLeg(std::move(leg)));
    if (source.legs.empty())
        root.refuse("a 'leg' that leads to the final course");
    root.need("final");
    PlanTable final = root.part("final");
    source.finalAltitude = readAltitude(final);
    source.cut = final.number("cut", {10, 90});
    if (final.lineOf("cross") > 0)
        source.cross = reader.station(final, "cross");
    final.know("cross");
    final.refuseOtherKeys();
    root.need("missed");
    source.missed = reader.readMissed(root.part("missed"));
    root.refuseOtherKeys();
    return source;
}

} // namespace tarnel
