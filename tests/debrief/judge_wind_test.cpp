#include "debrief/expect_found.h"
#include "debrief/racetrack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace tarnel {
namespace {

using enum FindingKind;

/// A racetrack with its inbound course 090 as `wind` asks for it, but for what is off.
struct Blown {
    Wind wind{180, 20};
    HoldingSide side = HoldingSide::right;
    double moreOut = 0; ///< degrees of heading outbound
    double longer = 1;  ///< outbound time
    double tasOut = 120;
    double tasIn = 120;
    double rateOut = 3;
    /// Degrees off the heading that holds the course, each for so many seconds.
    std::vector<std::pair<double, double>> inbound = {};
};

Racetrack trackOf(const Blown& how) {
    return *racetrackOf(HoldTask{.inbound = 90, .side = how.side}, how.wind, 120);
}

void circuit(FlownFlight& flight, const Blown& how) {
    const Racetrack track = trackOf(how);
    const double way = how.side == HoldingSide::right ? 1 : -1;
    const double change = way * 180 + track.correctionOut - track.correctionIn;
    flight.rate = how.rateOut;
    flight.turn(change + how.moreOut).until([&] { return flight.east <= 0; });
    flight.tas = how.tasOut;
    flight.fly(track.outboundSeconds * how.longer);
    flight.tas = 120;
    flight.rate = 3;
    flight.turn(way * 360 - change - how.moreOut);
    flight.tas = how.tasIn;
    for (const auto& [off, seconds] : how.inbound)
        flight.turnTo(90 + track.correctionIn + off).fly(seconds);
    flight.until([&] { return flight.east >= 0; });
    flight.tas = 120;
}

/// Established inbound, then one circuit as each says.
FlownFlight blown(const std::vector<Blown>& circuits, double aside = 0) {
    FlownFlight flight(-4, aside, 90 + trackOf(circuits.front()).correctionIn);
    flight.wind = circuits.front().wind;
    flight.until([&] { return flight.east >= 0; });
    for (const Blown& each : circuits)
        circuit(flight, each);
    return flight.fly(10);
}

TEST(WindTask, TakesWhatTheWindAsksFor) {
    for (const HoldingSide side : {HoldingSide::left, HoldingSide::right})
        for (const double from : {0, 50, 90, 140, 180, 230, 270, 320}) {
            const Blown good{.wind = {from, 20}, .side = side};
            expectFound(WindTask{{.inbound = 90, .side = side}},
                        {{"good", {}, [&] {
                              return blown({good, good, good});
                          }}});
        }
}

TEST(WindTask, FindsEachFaultAlone) {
    const auto second = [](const Blown& how) { return [how] { return blown({{}, how}); }; };
    expectFound(
        WindTask{{.inbound = 90}},
        {{"too little against the wind outbound", correctionOut,
          second({.moreOut = 14, .inbound = {{20, 30}, {0, 0}}})},
         {"held against too little wind", correctionIn, second({.inbound = {{-6.5, 34}, {9, 0}}})},
         {"outbound too short", outboundTime,
          [] {
              return blown({{.longer = 0.6, .tasOut = 185}, {}});
          }},
         {"inbound too short", inboundTime, second({.tasIn = 170})},
         {"wide beside the fix", fixCrossed,
          [] {
              return blown({{}, {}}, -0.36);
          }},
         {"off the inbound course", largestDeviation,
          second({.inbound = {{0, 4}, {-14, 18}, {14, 12}, {0, 0}}})},
         {"the other way round", wrongSide,
          [] {
              const Blown left{.side = HoldingSide::left};
              return blown({left, left});
          }},
         {"flown through", holdingNotFlown, [] {
              FlownFlight flight(-4, 0, 90);
              return flight.fly(400);
          }}});
}

TEST(WindTask, TellsNothingOfTheEntry) {
    const FlownFlight flown = blown({{}, {}});
    const auto tells = [&](const Task& task, FindingKind kind) {
        const Debrief debrief = judge(flown.samples, task, Strictness::standard);
        return std::ranges::count(debrief.findings, kind, &Finding::kind);
    };
    const HoldTask holding{.inbound = 90};
    for (const FindingKind kind : {entry, firstTurn}) {
        EXPECT_EQ(tells(holding, kind), 1);
        EXPECT_EQ(tells(WindTask{holding}, kind), 0);
    }
    EXPECT_EQ(tells(WindTask{holding}, correctionOut), 1);
}

/// No heading holds the course, so none is asked for and no time is wrong.
TEST(WindTask, AsksForNoFigureThatCannotBeFlown) {
    FlownFlight flown = blown({{.wind = {0, 0}}, {.wind = {0, 0}, .longer = 0.3}});
    const Task task = WindTask{{.inbound = 90}};
    EXPECT_FALSE(judge(flown.samples, task, Strictness::standard).lines.empty());
    for (Sample& sample : flown.samples) {
        sample.traceWindDirection = 180;
        sample.traceWindSpeed = 100;
        sample.traceTAS = 90;
    }
    const Debrief debrief = judge(flown.samples, task, Strictness::standard);
    EXPECT_TRUE(debrief.lines.empty());
    for (const Finding& finding : debrief.findings) {
        EXPECT_NE(finding.kind, correctionOut);
        EXPECT_NE(finding.kind, correctionIn);
        if (finding.kind == inboundTime || finding.kind == outboundTime) {
            EXPECT_EQ(finding.verdict, Verdict::open);
        }
    }
}

} // namespace
} // namespace tarnel
