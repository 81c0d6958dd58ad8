#include "approach/drawn_approach.h"
#include "approach/morse.h"
#include "core/station_geometry.h"
#include "engine/simulation_fixture.h"
#include "flights/plan_error.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnel {
namespace {

double distanceTo(Point from, Point to, Point at) {
    const Point way = to - from;
    const Point there = at - from;
    const double length = lengthOf(way);
    const double along =
        length == 0 ? 0
                    : std::clamp((there.x * way.x + there.y * way.y) / (length * length), 0.0, 1.0);
    return std::hypot(there.x - along * way.x, there.y - along * way.y);
}

double distanceTo(const std::vector<Point>& way, Point at) {
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < way.size(); ++i)
        least = std::min(least, distanceTo(way[i - 1], way[i], at));
    return least;
}

/// A session in the trainer, as its menu loads it, and the plan of its chart.
class PlanOnChart : public SimulationTest, public testing::WithParamInterface<const char*> {
  protected:
    PlanOnChart() {
        sim.c_SessionFileName = sessionPath(drawn.source.session + ".ts");
        sim.c_loadSession = 2;
    }
    /// A place of the plan in twips of the trainer's chart.
    [[nodiscard]] Point onChart(Point ofPlan) const {
        const double scale = drawn.plane->miles(sim.view.plot.mapScaleTwips);
        return {sim.view.plot.mapRefX + (ofPlan.x - drawn.framing.centre.x) * scale,
                sim.view.plot.mapRefY + (ofPlan.y - drawn.framing.centre.y) * scale};
    }
    /// The radial as the trainer draws it for the HSI.
    const Line& shownRadial(const PlanRadial& radial) {
        sim.c_NAV1freq = radial.station == Slot::vor2 ? 1 : 0;
        sim.c_Inst3NAVselect = 1;
        sim.c_obsI3 = radial.radial;
        sim.c_NAVRadI3 = 1;
        return sim.picture.radialsI3.course;
    }

    static constexpr double pixel = 6810.0 / 544; ///< twips of the chart in a window of 1280
    DrawnApproach drawn{GetParam()};
};

TEST_P(PlanOnChart, ItsStationsRadialsAndFinalCourseAgreeWithTheTrainersChart) {
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const Point plan = onChart(drawn.plane->picture.symbols[slot].leader.from);
        const Point chart = sim.picture.symbols[slot].leader.from;
        EXPECT_LT(lengthOf(chart - plan), pixel) << slot;
    }
    for (const PlanRadial& radial : drawn.plan.radials) {
        const Line& line = shownRadial(radial);
        EXPECT_LT(distanceTo(line.from, line.to, onChart(radial.to)), pixel) << radial.text;
    }
    const Line& feather = sim.picture.localizer.centre;
    for (const Point at : {drawn.plan.threshold, drawn.plan.farEnd, drawn.plan.track.back()})
        EXPECT_LT(distanceTo(feather.from, feather.to, onChart(at)), pixel);
}

/// NM; a flown holding has its entry and its wind besides.
TEST_P(PlanOnChart, TheRecordedFlightFollowsItsWayAllTheWay) {
    const bool holds = !drawn.plan.hold.empty();
    std::vector<Point> flown;
    for (const Sample& sample : drawn.session.samples) {
        const Point at = drawn.plane->place({sample.traceLat, sample.traceLon});
        const double off =
            holds ? std::min(distanceTo(drawn.plan.track, at), distanceTo(drawn.plan.hold, at))
                  : distanceTo(drawn.plan.track, at);
        EXPECT_LT(drawn.plane->miles(off), holds ? 1 : 0.4) << "sample " << flown.size() + 1;
        flown.push_back(at);
    }
    for (std::size_t i = 0; i + 1 < drawn.plan.track.size(); ++i)
        EXPECT_LT(drawn.plane->miles(distanceTo(flown, drawn.plan.track[i])), 0.4) << i;
    for (const PlanMark& mark : drawn.plan.marks)
        EXPECT_LT(drawn.plane->miles(std::min(distanceTo(drawn.plan.track, mark.at),
                                              distanceTo(drawn.plan.hold, mark.at))),
                  0.01)
            << mark.text;
}

/// Of the turns between two strokes, in degrees; the right is positive.
std::vector<double> turnsOf(const std::vector<Point>& way) {
    std::vector<double> turns;
    for (std::size_t i = 2; i < way.size(); ++i)
        turns.push_back(
            turnBetween(courseOf(way[i - 1] - way[i - 2]), courseOf(way[i] - way[i - 1])));
    return turns;
}

TEST_P(PlanOnChart, ItsWayTurnsWithoutACornerAndMissedToTheSideThatIsSaid) {
    const double corner = drawn.plan.hold.empty() ? 6 : 90; // the holding makes it
    for (const double turn : turnsOf(drawn.plan.track))
        EXPECT_LT(std::abs(turn), corner);
    for (const double turn : turnsOf(drawn.plan.missed))
        EXPECT_EQ(turn > 0, drawn.source.missed.right.value_or(turn > 0)) << turn;
}

INSTANTIATE_TEST_SUITE_P(Charts, PlanOnChart, testing::ValuesIn(placesOfCharts));

/// The number before "Grad vor Radial" in what the flight says where it leaves the arc.
std::optional<double> spokenLead(const SessionFile& session) {
    for (const std::string& comment : session.comments)
        if (comment.starts_with("Radial ") && comment.find(" Grad vor Radial") != std::string::npos)
            return std::stod(comment.substr(7, 3));
    return std::nullopt;
}

TEST(ApproachPlan, TheLeadRadialIsTheOneThatTheFlightSpeaksOf) {
    for (const std::string place : {"eddk", "lime", "lkkv", "lowg"}) {
        const DrawnApproach drawn(place);
        const auto spoken = spokenLead(drawn.session);
        ASSERT_TRUE(spoken && drawn.plan.leadRadial) << place;
        EXPECT_NEAR(*drawn.plan.leadRadial, *spoken, 1) << place; // one has wind
        const PlanRadial& lead = drawn.plan.radials.back();
        EXPECT_NEAR(drawn.plane->miles(lengthOf(lead.to - lead.from)),
                    std::get<LegOnArc>(drawn.source.legs[0].way).distance, 0.01)
            << place;
    }
}

/// The edges of a way: left, top, right, bottom; y grows downwards, to the south.
std::vector<double> edgesOf(const std::vector<Point>& way) {
    std::vector<double> edges{1e9, 1e9, -1e9, -1e9};
    for (const Point at : way)
        edges = {std::min(edges[0], at.x), std::min(edges[1], at.y), std::max(edges[2], at.x),
                 std::max(edges[3], at.y)};
    return edges;
}

TEST(TrackPen, TurnsToTheSideThatIsAskedFor) {
    const auto isAbout = [](double left, double top, double right, double bottom) {
        using testing::DoubleNear;
        return testing::ElementsAre(DoubleNear(left, 0.01), DoubleNear(top, 0.01),
                                    DoubleNear(right, 0.01), DoubleNear(bottom, 0.01));
    };
    EXPECT_THAT(edgesOf(racetrack({0, 0}, 0, true, 4, 1)), isAbout(0, -1, 2, 5));
    EXPECT_THAT(edgesOf(racetrack({0, 0}, 90, false, 4, 1)), isAbout(-5, -2, 1, 0));
    for (const bool right : {true, false}) {
        TrackPen pen({0, 0}, 0);
        pen.turnTo({10, -1}, right, 1); // from the top of a right turn straight to the east
        EXPECT_NEAR(pen.course, right ? 90 : 79.6, 0.1);
        EXPECT_THAT(edgesOf(pen.track()), right ? isAbout(0, -1, 10, 0) : isAbout(-2, -1, 10, 1));
    }
    TrackPen corner({0, 0}, 0);
    corner.roundCorner({0, -5}, 270, 1);
    corner.straight(3);
    EXPECT_THAT(edgesOf(corner.track()), isAbout(-4, -5, 0, 0));
}

/// By hand: three degrees are 318.4 feet a mile, 637 feet a minute at 120 knots.
TEST(Descent, LeadsFromTheFixToFiftyFeetAboveTheThreshold) {
    const Descent descent{2.2, 300, 2000};
    EXPECT_DOUBLE_EQ(descent.fixDme(), 7.4);
    EXPECT_NEAR(descent.altitudeAt(2.2), 350, 1e-9);
    EXPECT_NEAR(descent.altitudeAt(7.2), 350 + 1592, 0.5);
    EXPECT_THAT(descent.checkedMiles(), testing::ElementsAre(7, 6, 5, 4, 3));
    const DescentRate rate = descentRates(descent)[2];
    EXPECT_EQ(rate.knots, 120);
    EXPECT_EQ(rate.feetPerMinute, 640);
    EXPECT_EQ(rate.seconds, 156);
}

TEST(Morse, SpellsIdentifiers) {
    EXPECT_EQ(morseCode("KBO"), "-.- -... ---");
    EXPECT_EQ(morseCode("QF4"), "--.- ..-. ....-");
}

/// What the source of a chart is refused for once one text in it is replaced.
std::string refusal(const std::string& place, const std::string& from, const std::string& to) {
    const std::string file = TARNEL_CHARTS_FOLDER "/" + place + ".toml";
    std::string text = readFileBytes(file, 1 << 16);
    text.replace(text.find(from), from.size(), to);
    try {
        const DrawnApproach drawn(place, text);
    } catch (const PlanError& error) {
        return std::to_string(error.line()) + ": " + error.expected();
    }
    return "nothing";
}

TEST(ApproachSource, RefusesWhatCanNotBeFlownWithItsLine) {
    using testing::StartsWith;
    EXPECT_THAT(refusal("eddk", "station = \"KBO\"", "station = \"XXX\""),
                StartsWith("12: 'station' as one of KBO"));
    EXPECT_THAT(refusal("eddk", "distance = 11", "distance = 8.2"), StartsWith("17: an arc"));
    EXPECT_THAT(refusal("eddk", "elevation", "height"), testing::HasSubstr("elevation"));
    EXPECT_THAT(refusal("lowg", "altitude = 3500", "altitude = 5000"),
                testing::HasSubstr("room to descend"));
}

} // namespace
} // namespace tarnel
