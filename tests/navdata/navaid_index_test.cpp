#include "navdata/anywhere_chart.h"
#include "navdata/navaid_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnel {
namespace {

using testing::ElementsAre;

Navaid station(NavaidKind kind, const std::string& identifier, GeoPosition position,
               const std::string& name = "", double frequency = 110000) {
    Navaid navaid;
    navaid.kind = kind;
    navaid.identifier = identifier;
    navaid.name = name;
    navaid.position = position;
    navaid.frequency = frequency;
    navaid.hasDme = name.ends_with("DME");
    return navaid;
}

std::vector<std::string> found(const NavaidIndex& index, std::string_view words,
                               std::size_t most = 10) {
    std::vector<std::string> names;
    for (const std::size_t i : index.search(words, most))
        names.push_back(index[i].identifier);
    return names;
}

TEST(NavaidIndex, FindsByTheBeginningsOfIdentifiersAirportsAndNames) {
    Navaid localizer = station(NavaidKind::localizer, "INUE", {49.5, 11.1}, "ILS-cat-III");
    localizer.airport = "EDDN";
    localizer.runway = "28";
    const NavaidIndex index({station(NavaidKind::beacon, "NURX", {49, 11}, "Roth"),
                             station(NavaidKind::omnirange, "NUB", {49.5, 11}, "NUERNBERG VOR-DME"),
                             station(NavaidKind::beacon, "NUR", {49, 11}, "Bad N\xC3\xBCrnberg"),
                             localizer,
                             station(NavaidKind::omnirange, "LDZ", {51, 19},
                                     "\xC5\x81\xC3\xB3"
                                     "d\xC5\xBA")});
    EXPECT_THAT(found(index, "nur"), ElementsAre("NUR", "NURX", "NUB"));
    EXPECT_THAT(found(index, "N\xC3\x9CRNB"), ElementsAre("NUB", "NUR"));
    EXPECT_THAT(found(index, "Nurnberg  bad"), ElementsAre("NUR"));
    EXPECT_THAT(found(index, "EDDN 28"), ElementsAre("INUE"));
    EXPECT_THAT(found(index, "lodz"), ElementsAre("LDZ"));
    EXPECT_THAT(found(index, "nur", 1), ElementsAre("NUR"));
    EXPECT_THAT(found(index, "ernberg"), ElementsAre());
    EXPECT_THAT(found(index, " "), ElementsAre());
}

TEST(NavaidIndex, ProposesTheNearestByGreatCircleOverTheDateLineToo) {
    const NavaidIndex index({
        station(NavaidKind::omnirange, "FAR", {-17, 177}, "VOR-DME"),
        station(NavaidKind::omnirange, "OVER", {-17.5, -179.9}),
        station(NavaidKind::omnirange, "HERE", {-17.6, 179.8}),
        station(NavaidKind::omnirange, "HERE", {-17.601, 179.8}),
        station(NavaidKind::omnirange, "MEASURES", {-17.605, 179.8}, "VOR-DME"),
        station(NavaidKind::beacon, "ONLY", {-17, 179}, "", 310),
        station(NavaidKind::localizer, "ISUV", {-18, 178.5}),
    });
    const StationChoice choice = proposeStations(index, {-17.6, 179.8});
    EXPECT_THAT(choice, ElementsAre(4, 2, 5, std::nullopt, 6));
    const auto near = index.nearest({-17.6, 179.8}, NavaidKind::omnirange, 10);
    ASSERT_EQ(near.size(), 4U);
    EXPECT_EQ(index[near[2].index].identifier, "OVER");
    EXPECT_NEAR(near[2].distance, 18.14, 0.05);
    EXPECT_NEAR(greatCircleDistance({0, 0}, {0, 180}), 10800, 1e-6);
}

class AnywhereChart : public testing::Test {
  protected:
    /// A chart of two VORs, two NDBs and a localizer about a place.
    std::optional<ChartFile> about(GeoPosition place) {
        const auto at = [&](double north, double east) {
            const double longitude = place.longitude + east;
            return GeoPosition{place.latitude + north,
                               longitude > 180 ? longitude - 360 : longitude};
        };
        localizer.position = at(0, 0.1);
        index = NavaidIndex({station(NavaidKind::omnirange, "AAA", at(0, 0), "VOR-DME", 113800),
                             station(NavaidKind::omnirange, "BBB", at(0.2, 0.3), "", 116050),
                             station(NavaidKind::beacon, "C", at(-0.2, 0.1), "", 382.4),
                             station(NavaidKind::beacon, "D", at(0.1, -0.2), "", 1690), localizer});
        return chartOf(index, proposeStations(index, place), paper);
    }

    static constexpr double paper = 6810;
    NavaidIndex index;
    Navaid localizer = station(NavaidKind::localizer, "ISAL", {}, "ILS", 108150);
};

TEST_F(AnywhereChart, HoldsWhatItsFileReadsBack) {
    localizer.course = 157.3;
    const auto made = about({47.8, 13});
    ASSERT_TRUE(made);
    const ChartFile chart = readChart(writeChart(*made, {}, AircraftLongitude::asItIs));
    EXPECT_FALSE(chart.problem);
    std::string texts;
    for (const ChartStation& slot : chart.stations)
        texts += *slot.identifier + " " + *slot.frequency + " ";
    EXPECT_EQ(texts, "AAA 113.80 BBB 116.05 D 1690 C 382 ISAL 108.15 ");
    EXPECT_EQ(chart.stations[0].state, (StationState{true, true, true}));
    EXPECT_EQ(chart.stations[1].state, (StationState{true, false, true}));
    EXPECT_EQ(chart.stations[2].position, (GeoPosition{47.9, 12.8}));
    EXPECT_EQ(chart.locCourse, 337); // the feather lies where one comes from
    EXPECT_NEAR(chart.aircraft->longitude, 13.05, 0.2);
    EXPECT_GT(*chart.mapScaleTwips, 125);
    localizer.frequency.reset();
    EXPECT_EQ(about({47.8, 13})->stations[4].frequency, "---.--");
}

TEST_F(AnywhereChart, KeepsEveryPlaceWhereLongitudesJumpOrLoseTheirSign) {
    for (const double longitude : {-0.5, -0.1, 1.5, 179.95, -179.9, -70.0}) {
        const GeoPosition place{51.5, longitude};
        const auto chart = about(place);
        ASSERT_TRUE(chart) << longitude;
        const GeoPosition first = *chart->stations[0].position;
        EXPECT_NEAR(std::remainder(first.longitude - longitude, 360), 0, 1e-9);
        for (const ChartStation& slot : chart->stations) {
            EXPECT_NEAR(toPlain(toSplit(*slot.position)).longitude, slot.position->longitude, 1e-9);
            EXPECT_LT(std::abs(slot.position->longitude - first.longitude), 1);
        }
        EXPECT_LT(std::abs(chart->aircraft->longitude - first.longitude), 1);
    }
}

TEST_F(AnywhereChart, LeavesOutWhereItCanNotTellSouthFromNorth) {
    const auto chart = about({-0.9, 36});
    EXPECT_EQ(chart->stations[0].state, StationState{});
    EXPECT_EQ(chart->stations[2].identifier, "C");
    EXPECT_EQ(chart->stations[0].position, chart->stations[2].position);
    EXPECT_FALSE(chartOf(index, {0}, paper));
    EXPECT_FALSE(chartOf(index, {}, paper));
}

} // namespace
} // namespace tarnel
