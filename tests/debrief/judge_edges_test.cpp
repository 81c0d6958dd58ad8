#include "debrief/expect_found.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace tarnel {
namespace {

using enum FindingKind;
constexpr double degree = std::numbers::pi / 180;

const Finding* findingOf(const Debrief& debrief, FindingKind kind, int turn = 0) {
    const auto found = std::ranges::find_if(debrief.findings, [&](const Finding& finding) {
        return finding.kind == kind && (turn == 0 || finding.turn == turn);
    });
    return found == debrief.findings.end() ? nullptr : &*found;
}

Verdict verdictOf(const Debrief& debrief, FindingKind kind, int turn = 0) {
    const Finding* found = findingOf(debrief, kind, turn);
    return found ? found->verdict : Verdict::open;
}

/// Each station stands where VOR 1 does.
FlownFlight overAnyStation(FlownFlight flight) {
    for (Sample& sample : flight.samples)
        sample.traceStations.fill(sample.traceStations[0]);
    return flight;
}

/// On the course 090 for 15 s, then so many degrees right of it by the needle, 14 to 3 NM off.
FlownFlight beside(double degrees) {
    FlownFlight flight(-14, 0, 90);
    flight.fly(15).until([&] {
        flight.north = std::tan(degrees * degree) * flight.east;
        return flight.east > -3;
    });
    return overAnyStation(flight);
}

FlownFlight joinedAt(double angle) {
    FlownFlight flight(-12, -3, 90 - angle);
    flight.until([&] { return flight.north > -0.64 * (1 - std::cos(angle * degree)); });
    return flight.turnTo(90).fly(60);
}

/// Clockwise round 10 NM by DME for 60 degrees; off by so many miles after the first ten.
FlownFlight round(double miles) {
    FlownFlight flight(0, 10, 90);
    for (double radial = 0; radial < 60; radial += 0.4) {
        const double dme = radial < 10 ? 10 : 10 + miles;
        const double distance = std::sqrt(dme * dme - 0.9875 * 0.9875);
        flight.east = distance * std::sin(radial * degree);
        flight.north = distance * std::cos(radial * degree);
        flight.heading = radial + 90;
        flight.step();
    }
    return flight;
}

FlownFlight straight(double north = 0, double tas = 120) {
    FlownFlight flight(0, north, 90);
    flight.fly(100);
    for (Sample& sample : flight.samples)
        sample.traceTAS = static_cast<std::int16_t>(tas);
    return flight;
}

FlownFlight pointing(double heading) {
    FlownFlight flight = straight();
    for (Sample& sample : flight.samples)
        sample.traceHeading = heading;
    return flight;
}

FlownFlight over(double north) {
    FlownFlight flight(-4, north, 90);
    flight.fly(120).turn(180).fly(110).turn(180);
    return flight.until([&] { return flight.east > 0.2; });
}

TEST(Limits, TurnTheVerdictAtTheirFigure) {
    const auto onLine = [](Slot station) { return LineTask{.station = station, .course = 90}; };
    const Task reference = ReferenceTask{straight().samples};
    const Task arc = ArcTask{.distance = 10, .final = 270};
    const struct {
        FindingKind kind;
        Task task;
        std::array<double, 3> limits; ///< wide, standard, check ride
        double step;                  ///< so little to either side
        std::function<FlownFlight(double)> fly;
    } cases[] = {
        {largestDeviation, onLine(Slot::vor2), {10, 7.5, 5}, 0.1, beside},
        {largestDeviation, onLine(Slot::localizer), {2, 1.5, 1}, 0.05, beside},
        {largestDeviation, onLine(Slot::ndb1), {10, 5, 5}, 0.1, beside},
        {interceptAngle, LineTask{.course = 90, .joins = true}, {110, 95, 90}, 0.5, joinedAt},
        {interceptAngle,
         LineTask{.course = 90, .joins = true, .cut = 45},
         {65, 55, 50},
         0.5,
         joinedAt},
        {arcOutside, arc, {1.5, 1, 0.5}, 0.01, round},
        {arcInside, arc, {1.5, 1, 0.5}, 0.01, [](double miles) { return round(-miles); }},
        {fixCrossed, HoldTask{.inbound = 90}, {0.6, 0.3, 0.2}, 0.02, over},
        {meanOffReference,
         reference,
         {0.66, 0.33, 0.2},
         0.005,
         [](double off) { return straight(off); }},
        {largestOffReference,
         reference,
         {1.66, 1, 0.66},
         0.01,
         [](double off) { return straight(-off); }},
        {headingOffReference,
         reference,
         {20, 10, 5},
         0.1,
         [](double off) { return pointing(90 - off); }},
        {speedOffReference, reference, {20, 10, 5}, 1, [](double off) {
             return straight(0, 120 - off);
         }}};
    for (const auto& each : cases)
        for (const Strictness strictness :
             {Strictness::wide, Strictness::standard, Strictness::checkRide}) {
            const double limit = each.limits.at(static_cast<std::size_t>(strictness));
            const auto verdictAt = [&](double value) {
                return verdictOf(judge(each.fly(value).samples, each.task, strictness), each.kind);
            };
            EXPECT_EQ(verdictAt(limit - each.step), Verdict::right)
                << static_cast<int>(each.kind) << " below " << limit;
            EXPECT_EQ(verdictAt(limit + each.step), Verdict::wrong)
                << static_cast<int>(each.kind) << " above " << limit;
        }
}

/// As in a mirror that lies along the inbound course.
FlownFlight mirrored(FlownFlight flight) {
    for (Sample& sample : flight.samples) {
        sample.traceLat = 2 * sample.traceStations[0].latitude - sample.traceLat;
        sample.traceHeading = circle(180 - sample.traceHeading);
    }
    return flight;
}

/// Over the fix on a heading, into the right-hand holding on 090 as each entry is flown.
FlownFlight entering(double heading, HoldingEntry by) {
    FlownFlight flight(-4 * std::sin(heading * degree), -4 * std::cos(heading * degree), heading);
    flight.fly(123);
    if (by == HoldingEntry::parallel) {
        flight.turnTo(270).fly(70).turn(-225).until([&] { return flight.north > -0.19; });
        flight.turnTo(90);
    } else if (by == HoldingEntry::offset) {
        flight.turnTo(240).fly(60).turn(210);
    } else {
        flight.turn(circle(270 - heading)).fly(60).turn(180);
    }
    flight.until([&] { return flight.east > 0; }).turn(180);
    return flight.until([&] { return flight.east < 0; }).fly(60).turn(180).fly(80);
}

TEST(Entry, MayBeThatOfTheNextSectorWithinFiveDegrees) {
    using enum HoldingEntry;
    const struct {
        double limit; ///< heading
        HoldingEntry below, above;
    } sectors[] = {{200, direct, offset}, {270, offset, parallel}, {380, parallel, direct}};
    for (const auto& [limit, below, above] : sectors)
        for (const double beyond : {-7, -4, 4, 7})
            for (const HoldingEntry by : {below, above}) {
                const FlownFlight flight = entering(limit + beyond, by);
                const bool own = by == (beyond < 0 ? below : above);
                const bool fits = own || std::abs(beyond) < 5;
                for (const HoldingSide side : {HoldingSide::right, HoldingSide::left}) {
                    const bool isLeft = side == HoldingSide::left;
                    const Debrief debrief =
                        judge((isLeft ? mirrored(flight) : flight).samples,
                              HoldTask{.inbound = 90, .side = side}, Strictness::standard);
                    const auto isWrong = [&](FindingKind kind) {
                        return verdictOf(debrief, kind) == Verdict::wrong;
                    };
                    EXPECT_NE(isWrong(entry) || isWrong(wrongSide), fits)
                        << limit + beyond << " by " << static_cast<int>(by) << " left " << isLeft;
                }
            }
}

/// Direct from the heading, then circuits of so many seconds outbound and at such speed inbound.
FlownFlight holdingFrom(double heading, std::initializer_list<std::pair<double, double>> each) {
    FlownFlight flight(-4 * std::sin(heading * degree), -4 * std::cos(heading * degree), heading);
    flight.fly(120);
    for (const auto& [seconds, tas] : each) {
        flight.turn(circle(270 - flight.heading)).until([&] { return flight.east < 0; });
        flight.fly(seconds).turn(180);
        flight.tas = tas;
        flight.until([&] { return flight.east > 0; });
        flight.tas = 120;
    }
    return flight.fly(10);
}

TEST(Hold, GivesTheFirstCircuitAndOneJoinedFromTheSideMoreRoom) {
    const struct {
        const char* what;
        double heading;
        std::pair<double, double> first, second;
        FindingKind kind;
        int turn;
        Verdict verdict;
    } cases[] = {
        {"5 s more outbound at first", 90, {73, 120}, {60, 120}, outboundTime, 1, Verdict::right},
        {"no more than 5 s", 90, {77, 120}, {60, 120}, outboundTime, 1, Verdict::wrong},
        {"not so later", 90, {60, 120}, {73, 120}, outboundTime, 2, Verdict::wrong},
        {"30 s to join", 40, {110, 120}, {60, 120}, outboundTime, 1, Verdict::right},
        {"no more than them", 40, {120, 120}, {60, 120}, outboundTime, 1, Verdict::wrong},
        {"twice the tolerance inbound", 40, {60, 160}, {60, 120}, inboundTime, 1, Verdict::right},
        {"once for who comes straight", 90, {60, 160}, {60, 120}, inboundTime, 1, Verdict::wrong},
        {"once in the next circuit", 40, {60, 120}, {60, 160}, inboundTime, 2, Verdict::wrong}};
    for (const auto& each : cases) {
        const FlownFlight flight = holdingFrom(each.heading, {each.first, each.second});
        const Debrief debrief =
            judge(flight.samples, HoldTask{.inbound = 90}, Strictness::standard);
        const Finding* found = findingOf(debrief, each.kind, each.turn);
        ASSERT_TRUE(found) << each.what;
        EXPECT_EQ(found->verdict, each.verdict) << each.what << ": " << found->value;
    }
}

TEST(Arc, CountsNothingInATurnOfALeg) {
    const auto weaving = [](int turning) { // so many samples to the right, then to the left
        FlownFlight flight = round(0);
        const FlownFlight wide = round(3);
        for (int i = 0; i < 2 * turning; ++i) {
            Sample& sample = flight.samples[static_cast<std::size_t>(60 + i)];
            sample.traceHeading = circle(sample.traceHeading + 4 * std::min(i, 2 * turning - i));
            if (i > 0) {
                sample.traceLat = wide.samples[static_cast<std::size_t>(60 + i)].traceLat;
                sample.traceLon = wide.samples[static_cast<std::size_t>(60 + i)].traceLon;
            }
        }
        return judge(flight.samples, ArcTask{.distance = 10, .final = 270}, Strictness::standard);
    };
    EXPECT_EQ(verdictOf(weaving(10), arcOutside), Verdict::right);
    EXPECT_EQ(std::ranges::count(weaving(10).outside, true), 0);
    EXPECT_EQ(verdictOf(weaving(5), arcOutside), Verdict::wrong);
    EXPECT_EQ(std::ranges::count(weaving(5).outside, true), 9);
}

TEST(Line, CountsNothingOverTheStation) {
    const auto jumping = [](double from, double to) { // half a mile aside there
        FlownFlight flight(-8, 0, 90);
        flight.until([&] {
            flight.north = flight.east > from && flight.east < to ? 0.5 : 0;
            return flight.east > -0.1;
        });
        return judge(flight.samples, LineTask{.course = 90}, Strictness::standard);
    };
    EXPECT_EQ(verdictOf(jumping(-0.8, -0.2), largestDeviation), Verdict::right);
    EXPECT_EQ(verdictOf(jumping(-1.6, -1.3), largestDeviation), Verdict::wrong);
}

const std::vector<Task>& everyTask() {
    static const std::vector<Task> tasks = {
        LineTask{.course = 90},
        LineTask{.course = 90, .joins = true, .cut = 45},
        LineTask{.course = 270, .inbound = false, .joins = true},
        HoldTask{.inbound = 90},
        WindTask{{.inbound = 90, .side = HoldingSide::left}},
        ArcTask{.distance = 10, .final = 270},
        ReferenceTask{straight().samples},
        ReferenceTask{}};
    return tasks;
}

void expectWhole(const Debrief& debrief, int samples) {
    int next = 0;
    for (const Phase& phase : debrief.phases) {
        EXPECT_EQ(phase.samples.first, next);
        EXPECT_LE(phase.samples.first, phase.samples.last);
        next = phase.samples.last + 1;
    }
    EXPECT_EQ(next, samples);
    EXPECT_EQ(static_cast<int>(debrief.outside.size()), samples);
    EXPECT_LE(debrief.series.size(), 3U);
    for (const Series& series : debrief.series)
        for (const Series::Band& band : series.bands)
            EXPECT_TRUE(band.samples.first <= band.samples.last && band.samples.last < samples);
    const auto rank = [](const Finding& finding) {
        return finding.verdict == Verdict::wrong   ? -finding.weight
               : finding.verdict == Verdict::right ? 0
                                                   : 1;
    };
    EXPECT_TRUE(std::ranges::is_sorted(debrief.findings, {}, rank));
    for (const Finding& finding : debrief.findings)
        EXPECT_TRUE(std::isfinite(finding.value) && finding.samples.last < samples);
    // No sample is outside that no band says is.
    for (int i = 0; i < samples; ++i) {
        bool beyond = false;
        for (const Series& series : debrief.series)
            for (const Series::Band& band : series.bands) {
                const auto value = series.values[static_cast<std::size_t>(i)];
                beyond = beyond || (i >= band.samples.first && i <= band.samples.last && value &&
                                    (*value < band.low || *value > band.high));
            }
        EXPECT_LE(debrief.outside[static_cast<std::size_t>(i)], beyond) << i;
    }
}

TEST(Judge, TellsAnyFlightWholeByAnyTask) {
    const std::vector<FlownFlight> flights = {beside(9),
                                              joinedAt(70),
                                              round(1.3),
                                              straight(1.4),
                                              over(0.4),
                                              holdingFrom(20, {{90, 150}, {40, 120}}),
                                              entering(250, HoldingEntry::parallel)};
    for (std::size_t task = 0; task < everyTask().size(); ++task)
        for (std::size_t flown = 0; flown < flights.size(); ++flown) {
            SCOPED_TRACE(testing::Message() << "task " << task << ", flight " << flown);
            const std::vector<Sample>& samples = flights[flown].samples;
            expectWhole(judge(samples, everyTask()[task], Strictness::standard),
                        static_cast<int>(samples.size()));
        }
    for (const auto& [task, flight] : {std::pair(0, 0), {5, 2}, {6, 3}}) {
        const Debrief debrief =
            judge(flights[static_cast<std::size_t>(flight)].samples,
                  everyTask()[static_cast<std::size_t>(task)], Strictness::checkRide);
        EXPECT_GT(std::ranges::count(debrief.outside, true), 10) << task;
    }
}

TEST(Judge, SaysNoMoreOfASampleOrTwoThanItSaw) {
    const std::array never = {neverEstablished, holdingNotFlown, arcNotJoined};
    for (int count = 0; count <= 2; ++count)
        for (std::size_t task = 0; task < everyTask().size(); ++task) {
            SCOPED_TRACE(testing::Message() << count << " samples, task " << task);
            const FlownFlight flown = straight();
            const Debrief debrief =
                judge(std::span(flown.samples).first(static_cast<std::size_t>(count)),
                      everyTask()[task], Strictness::checkRide);
            expectWhole(debrief, count);
            for (const Finding& finding : debrief.findings)
                EXPECT_TRUE(finding.verdict == Verdict::right ||
                            std::ranges::count(never, finding.kind) == 1)
                    << static_cast<int>(finding.kind);
            EXPECT_TRUE(count > 0 || debrief.findings.empty());
        }
}

/// What is flown on 090 says the same when it is flown on 360, whose headings wrap.
TEST(Judge, JudgesNorthAsEast) {
    const auto turned = [](FlownFlight flight) {
        for (Sample& sample : flight.samples) {
            const GeoPosition& station = sample.traceStations[0];
            const FromStation seen = fromStation(station, {sample.traceLat, sample.traceLon});
            const GeoPosition place = placeOn(station, {circle(seen.radial - 90), seen.distance});
            sample.traceLat = place.latitude;
            sample.traceLon = place.longitude;
            sample.traceHeading = circle(sample.traceHeading - 90);
        }
        return flight;
    };
    const std::tuple<Task, Task, FlownFlight> cases[] = {
        {LineTask{.course = 90, .joins = true}, LineTask{.course = 360, .joins = true},
         joinedAt(60)},
        {LineTask{.course = 90}, LineTask{.course = 0}, beside(6)},
        {HoldTask{.inbound = 90}, HoldTask{.inbound = 360},
         holdingFrom(20, {{70, 120}, {50, 150}})},
        {HoldTask{.inbound = 90}, HoldTask{.inbound = 0}, entering(330, HoldingEntry::parallel)},
        {ArcTask{.distance = 10, .final = 270}, ArcTask{.distance = 10, .final = 180}, round(0.7)}};
    for (const auto& [east, north, flight] : cases) {
        const Debrief asEast = judge(flight.samples, east, Strictness::standard);
        const Debrief asNorth = judge(turned(flight).samples, north, Strictness::standard);
        ASSERT_EQ(asEast.findings.size(), asNorth.findings.size());
        for (const Finding& finding : asEast.findings) {
            const Finding* other = findingOf(asNorth, finding.kind, finding.turn);
            ASSERT_TRUE(other) << static_cast<int>(finding.kind);
            EXPECT_EQ(finding.verdict, other->verdict) << static_cast<int>(finding.kind);
            EXPECT_NEAR(finding.value, other->value, 0.2) << static_cast<int>(finding.kind);
        }
    }
}

TEST(FindingText, IsWholeForEachKindInBothLanguages) {
    for (int kind = 0; kind <= static_cast<int>(speedOffReference); ++kind)
        for (const Verdict verdict : {Verdict::right, Verdict::wrong, Verdict::open})
            for (const int form : {0, 1, 2, 3}) {
                Finding finding;
                finding.kind = static_cast<FindingKind>(kind);
                finding.value = 1;
                finding.expected = form % 2 == 1 ? std::optional(2.0) : std::nullopt;
                finding.tolerance = form > 1 ? std::optional(0.25) : std::nullopt;
                finding.verdict = verdict;
                const std::string english = findingText(finding, englishTable());
                const std::string german = findingText(finding, germanTable());
                EXPECT_NE(english, german) << kind;
                for (const std::string& text : {english, german}) {
                    EXPECT_GT(text.size(), 5U) << kind;
                    EXPECT_THAT(text, testing::Not(testing::HasSubstr("%1"))) << text;
                    EXPECT_THAT(text, testing::Not(testing::HasSubstr("%2"))) << text;
                    EXPECT_THAT(text, testing::Not(testing::EndsWith("."))) << text;
                }
                for (const StringTable& table : {englishTable(), germanTable()})
                    EXPECT_EQ(verdictText(finding, table).empty(), verdict == Verdict::open);
            }
}

} // namespace
} // namespace tarnel
