#include "debrief/debrief.h"
#include "debrief/expect_found.h"
#include "debrief/racetrack.h"
#include "shell/finding_text.h"
#include "strings/string_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tarnel {
namespace {

using enum FindingKind;

/// From the south-west to the course 090, by a cut; `early` NM before the turn would lead onto it.
FlownFlight joining(double cut, double early = 0) {
    constexpr double radius = 120 / 60.0 / std::numbers::pi;
    FlownFlight flight(-16, -3, 45);
    flight.course = 90;
    flight.fly(10).turnTo(90 - cut);
    const double lead = radius * (1 - std::cos(cut / 180 * std::numbers::pi)) + early;
    return flight.until([&] { return flight.north > -lead; });
}

FlownFlight toTheStation(FlownFlight flight) {
    flight.turnTo(90);
    return flight.until([&] { return flight.east > -0.5; });
}

FlownFlight awayFirst(double course) {
    FlownFlight flight(-18, -3, 75);
    flight.course = course;
    flight.fly(10).turnTo(120).fly(50).turnTo(45);
    flight.until([&] { return flight.north > -0.19; });
    return toTheStation(flight);
}

TEST(Judge, FindsWhatIsWrongInJoiningAndTracking) {
    const LineTask line{.course = 90, .joins = true, .cut = 45};
    expectFound(
        line,
        {{"good", {}, [] { return toTheStation(joining(45)); }},
         {"beside the station itself", {}, [] { return toTheStation(joining(45, 0.12)); }},
         {"cut too steep", interceptAngle, [] { return toTheStation(joining(70)); }},
         {"turned late", overshoot,
          [] {
              FlownFlight flight(-9, -3, 45);
              flight.fly(10);
              flight.until([&] { return flight.north > 0.45; }).turnTo(90).turnTo(120);
              flight.until([&] { return flight.north < 0.1; });
              return toTheStation(flight);
          }},
         {"turned early", timeToEstablished,
          [] {
              FlownFlight flight = joining(45, 2);
              flight.turnTo(75).until([&] { return flight.north > -0.05; });
              flight.turnTo(84).fly(5);
              return toTheStation(flight);
          }},
         {"flown beside it", neverEstablished, [] { return joining(45, 2.5).turnTo(90).fly(200); }},
         {"an excursion", largestDeviation,
          [] {
              FlownFlight flight = joining(45);
              flight.turnTo(90).until([&] { return flight.east > -9; }).turnTo(110);
              flight.until([&] { return flight.north < -0.9; }).turnTo(70);
              flight.until([&] { return flight.north > -0.05; });
              return toTheStation(flight);
          }},
         {"always beside it", meanDeviation,
          [] {
              FlownFlight flight = joining(45);
              flight.turnTo(90).fly(15).turnTo(110);
              flight.until([&] { return flight.north / flight.east > 0.07; }).turnTo(86);
              return flight.until([&] { return flight.east > -1.2; });
          }},
         {"away from it", turnedAway, [] { return awayFirst(90); }},
         {"by the wrong end of the needle", reversedNeedle, [] { return awayFirst(270); }},
         {"over the station", stationPassed,
          [] { return toTheStation(joining(45)).turn(20).fly(100); }},
         {"over it and on along the course", {}, [] {
              return toTheStation(joining(45)).fly(300);
          }}});
}

TEST(Judge, TellsWhereTheNeedleAndTheLineWere) {
    const FlownFlight flown = toTheStation(joining(45));
    const Debrief debrief =
        judge(flown.samples, LineTask{.course = 90, .joins = true}, Strictness::standard);
    ASSERT_EQ(debrief.series.size(), 3U);
    const Series& needle = debrief.series[0];
    EXPECT_NEAR(*needle.values[0], -std::atan2(3, 16) / std::numbers::pi * 180, 0.1); // to the left
    ASSERT_EQ(needle.bands.size(), 1U);
    EXPECT_EQ(needle.bands[0].high, 7.5);
    EXPECT_NEAR(*debrief.series[1].values[0], std::hypot(16, 3, 0.9875), 0.01);
    ASSERT_EQ(debrief.lines.size(), 2U);
    EXPECT_EQ(debrief.lines[1].points.back(), flown.samples[0].traceStations[0]);
    for (const int edge : {1, 2}) {
        const FromStation seen =
            fromStation(debrief.lines[1].points.back(), debrief.lines[0].points[edge]);
        EXPECT_NEAR(seen.radial, edge == 1 ? 262.5 : 277.5, 0.01) << "as wide as the band";
        EXPECT_NEAR(seen.distance, std::hypot(16, 3), 0.01);
    }
    const LineTask onBeacon{.station = Slot::ndb1, .course = 90};
    const Series beside = judge(flown.samples, onBeacon, Strictness::standard).series[1];
    EXPECT_EQ(beside.kind, SeriesKind::offLine);
    EXPECT_TRUE(judge({}, LineTask{}, Strictness::standard).findings.empty());
}

/// A racetrack with its inbound course 090, to the right.
struct Pattern {
    double out = 60;
    double tasOut = 120;
    double tasIn = 120;
    double rateOut = 3;
    double rateIn = 3;
    double side = 1;
    double turnOut = 180;
    double turnIn = 180;
    std::function<void(FlownFlight&)> inbound = [](FlownFlight&) {};
};

FlownFlight arriving(double heading) {
    constexpr double miles = 4;
    const double radians = heading / 180 * std::numbers::pi;
    FlownFlight flight(-miles * std::sin(radians), -miles * std::cos(radians), heading);
    flight.until(
        [&] { return flight.east * std::sin(radians) + flight.north * std::cos(radians) >= 0; });
    return flight;
}

FlownFlight& circle(FlownFlight& flight, const Pattern& pattern = {}) {
    flight.rate = pattern.rateOut;
    flight.turn(pattern.turnOut * pattern.side).until([&] { return flight.east <= 0; });
    flight.tas = pattern.tasOut;
    flight.fly(pattern.out);
    flight.tas = 120;
    flight.rate = pattern.rateIn;
    flight.turn(pattern.turnIn * pattern.side);
    flight.rate = 3;
    flight.tas = pattern.tasIn;
    pattern.inbound(flight);
    flight.until([&] { return flight.east >= 0; });
    flight.tas = 120;
    return flight;
}

FlownFlight holding(const Pattern& second) {
    FlownFlight flight = arriving(90);
    circle(flight);
    return circle(flight, second).fly(10);
}

/// Outbound behind the fix, then by a left turn back onto the inbound course.
FlownFlight parallelFrom(double heading, double firstTurn) {
    FlownFlight flight = arriving(heading);
    flight.turn(firstTurn).turnTo(270).fly(70).turn(-225);
    flight.until([&] { return flight.north > -0.19; }).turnTo(90);
    flight.until([&] { return flight.east >= 0; });
    return circle(flight).fly(10);
}

TEST(Judge, FindsWhatIsWrongInAHolding) {
    const auto flies = [](const Pattern& second) { return [second] { return holding(second); }; };
    const auto inbound = [](const std::function<void(FlownFlight&)>& how) {
        return [how] { return holding({.inbound = how}); };
    };
    expectFound(HoldTask{.inbound = 90},
                {{"good", {}, flies({})},
                 {"parallel entry", {}, [] { return parallelFrom(330, -60); }},
                 {"near the limit of its sector", {}, [] { return parallelFrom(268, 2); }},
                 {"parallel where offset is right", entry, [] { return parallelFrom(250, 20); }},
                 {"the long way round", firstTurn, [] { return parallelFrom(330, 300); }},
                 {"to the left", wrongSide,
                  [] {
                      FlownFlight flight = arriving(90);
                      circle(flight, {.side = -1});
                      return circle(flight, {.side = -1}).fly(10);
                  }},
                 {"flown through", holdingNotFlown, [] { return arriving(90).fly(300); }},
                 {"outbound too short", outboundTime,
                  [] {
                      FlownFlight flight = arriving(90);
                      circle(flight, {.out = 40, .tasOut = 180});
                      return circle(flight).fly(10);
                  }},
                 {"inbound too short", inboundTime, flies({.tasIn = 165})},
                 {"outbound too far to the left", correctionOut,
                  flies({.out = 75,
                         .turnOut = 172,
                         .turnIn = 158,
                         .inbound =
                             [](FlownFlight& flight) {
                                 flight.until([&] { return flight.north > -0.09; }).turnTo(90);
                             }})},
                 {"held against no wind", correctionIn,
                  inbound([](FlownFlight& flight) { flight.turnTo(84).fly(34).turnTo(96); })},
                 {"turned inbound too late", inboundOvershoot,
                  [] {
                      return holding(
                          {.rateIn = 2.2, .inbound = [](FlownFlight& flight) {
                               flight.turnTo(112);
                               flight.until([&] { return flight.north < 0.04; }).turnTo(90);
                           }});
                  }},
                 {"beside the fix", fixCrossed, flies({.rateOut = 2.2})},
                 {"off the inbound course", largestDeviation, inbound([](FlownFlight& flight) {
                      flight.fly(4).turnTo(78).fly(20).turnTo(106).fly(16).turnTo(90);
                  })}});
}

/// Whoever flies the figures of a racetrack is on the inbound course a minute before the fix.
TEST(Racetrack, ClosesInAnyWind) {
    for (const HoldingSide side : {HoldingSide::left, HoldingSide::right})
        for (int from = 0; from < 360; from += 30) {
            const Wind wind{static_cast<double>(from), 25};
            const HoldTask task{.inbound = 90, .side = side};
            const auto track = racetrackOf(task, wind, 120);
            ASSERT_TRUE(track);
            FlownFlight flight(0, 0, 90 + track->correctionIn);
            flight.wind = wind;
            const double way = side == HoldingSide::right ? 1 : -1;
            const double change = way * 180 + track->correctionOut - track->correctionIn;
            flight.turn(change).until([&] { return flight.east <= 0; });
            flight.fly(track->outboundSeconds).turn(way * 360 - change);
            EXPECT_NEAR(flight.north, 0, 0.12) << from;
            flight.fly(60);
            EXPECT_NEAR(flight.east, 0, 0.12) << from;
        }
    EXPECT_FALSE(racetrackOf(HoldTask{.inbound = 90}, {0, 100}, 90));
}

/// Round VOR 1 at 10 NM by DME, clockwise from the north to radial 090 less `lead` degrees;
/// `beside` tells by the radial how many NM too far out.
FlownFlight arc(double lead, const std::function<double(double)>& beside) {
    FlownFlight flight(0, 14, 180);
    flight.until([&] { return flight.north <= 9.95 + 0.64 + beside(0); }).turnTo(90);
    const auto radial = [&] {
        return std::atan2(flight.east, flight.north) / std::numbers::pi * 180;
    };
    return flight.until([&] {
        const double off = std::hypot(flight.east, flight.north, 0.9875) - 10 - beside(radial());
        flight.heading = radial() + 90 + std::clamp(60 * off, -25.0, 25.0);
        return radial() >= 90 - lead;
    });
}

TEST(Judge, FindsWhatIsWrongInAnArc) {
    const auto on = [](double) { return 0.0; };
    const auto bump = [](double miles) {
        return [miles](double radial) { return radial > 30 && radial < 45 ? miles : 0; };
    };
    const auto inbound = [](FlownFlight flight) {
        return flight.turnTo(270).until([&] { return flight.east < 2; });
    };
    expectFound(
        ArcTask{.distance = 10, .final = 270},
        {{"good", {}, [&] { return inbound(arc(3.8, on)); }},
         {"cut short", arcInside, [&] { return inbound(arc(3.8, bump(-1.2))); }},
         {"flown out", arcOutside, [&] { return inbound(arc(3.8, bump(1.2))); }},
         {"always inside", arcMean, [&] { return inbound(arc(4, [](double) { return -0.7; })); }},
         {"turned early", leadRadial, [&] { return inbound(arc(7, on)); }},
         {"turned too little", timeToEstablished,
          [&] {
              FlownFlight flight = arc(3.8, on);
              flight.turnTo(235).fly(75).turnTo(310);
              return inbound(flight.until([&] { return flight.north > -0.1; }));
          }},
         {"not onto the final", neverEstablished,
          [&] { return arc(3.8, on).turnTo(225).fly(100); }},
         {"the wrong way round", wrongSense,
          [&] {
              FlownFlight flight = arc(3.8, on);
              for (Sample& sample : flight.samples) { // as in a mirror
                  const double station = sample.traceStations[0].longitude;
                  sample.traceLon = 2 * station - sample.traceLon;
                  sample.traceHeading = tarnel::circle(-sample.traceHeading);
              }
              return flight;
          }},
         {"straight on", arcNotJoined, [] { return FlownFlight(0, 14, 180).fly(600); }}});
}

TEST(Judge, FindsWhatIsOffAReference) {
    const auto straight = [](double north) { return FlownFlight(0, north, 90).fly(600); };
    expectFound(ReferenceTask{straight(0).samples},
                {{"good", {}, [&] { return straight(0.1); }},
                 {"beside it", meanOffReference, [&] { return straight(0.5); }},
                 {"an excursion", largestOffReference,
                  [] {
                      FlownFlight flight(0, 0, 90);
                      flight.fly(100);
                      flight.tas = 139; // to stay abeam
                      flight.turnTo(120).fly(55).turnTo(60).fly(55);
                      flight.tas = 120;
                      return flight.turnTo(90).fly(360);
                  }},
                 {"weaving", headingOffReference,
                  [] {
                      FlownFlight flight(0, 0, 78);
                      for (int i = 0; i < 15; ++i)
                          flight.fly(20).turnTo(i % 2 == 0 ? 102 : 78);
                      return flight;
                  }},
                 {"fast and slow", speedOffReference, [] {
                      FlownFlight flight(0, 0, 90);
                      for (int i = 0; i < 20; ++i) {
                          flight.tas = i % 2 == 0 ? 134 : 106;
                          flight.fly(30);
                      }
                      return flight;
                  }}});
}

TEST(Judge, ForgivesATurnThatBeginsLater) {
    const auto weaving = [](double first) {
        FlownFlight flight(0, 0, 50);
        flight.fly(first);
        for (int i = 0; i < 12; ++i)
            flight.turnTo(i % 2 == 0 ? 130 : 50).fly(16);
        return flight;
    };
    expectFound(ReferenceTask{weaving(20).samples}, {{"late", {}, [&] { return weaving(27); }}});
}

TEST(Limits, AreWiderForBeginnersAndHaveSources) {
    for (int i = 0; i <= static_cast<int>(Limit::referenceSpeed); ++i) {
        const auto limit = static_cast<Limit>(i);
        EXPECT_GE(limitOf(limit, Strictness::wide), limitOf(limit, Strictness::standard)) << i;
        EXPECT_GE(limitOf(limit, Strictness::standard), limitOf(limit, Strictness::checkRide)) << i;
        EXPECT_FALSE(sourceOf(limit).empty()) << i;
    }
}

TEST(FindingText, SaysItAsAnInstructorDoes) {
    const auto said = [](FindingKind kind, double value, std::optional<double> expected,
                         std::optional<double> tolerance) {
        Finding finding{kind, value, expected, tolerance, Verdict::wrong, 2, {}, 0};
        return findingText(finding, englishTable()) + ": " + verdictText(finding, englishTable()) +
               " | " + findingText(finding, germanTable()) + ": " +
               verdictText(finding, germanTable());
    };
    EXPECT_EQ(said(inboundTime, 48.2, 60, 10), "Inbound leg 48 s, should be 60 s ± 10: too short | "
                                               "Inbound-Zeit 48 s, soll 60 s ± 10: zu kurz");
    EXPECT_EQ(said(correctionOut, -32, -17, 5),
              "Outbound correction 32° left, should be 17° left ± 5: too large | "
              "Vorhaltewinkel outbound 32° links, soll 17° links ± 5: zu groß");
    EXPECT_EQ(said(entry, 0, 2, {}), "Entry: direct, should be offset: wrong | "
                                     "Entry: Direct, soll Offset: falsch");
    EXPECT_EQ(said(arcOutside, 1.25, {}, 1),
              "Up to 1.25 NM outside the arc, at most 1 NM: too far | "
              "Bis zu 1,25 NM außerhalb des Bogens, höchstens 1 NM: zu weit");
    EXPECT_EQ(said(leadRadial, 9.5, 6, 2),
              "Turned onto the final 9.5° before its radial, should be 6° ± 2: 3.5° early | "
              "Zum Endkurs 9,5° vor dessen Radial eingedreht, soll 6° ± 2: 3,5° zu früh");
    EXPECT_EQ(said(leadRadial, -2, 6, 2),
              "Turned onto the final 2° past its radial, should be 6° ± 2: 8° late | "
              "Zum Endkurs 2° hinter dessen Radial eingedreht, soll 6° ± 2: 8° zu spät");
}

} // namespace
} // namespace tarnel
