#include "authoring/flown_turns.h"
#include "authoring/manoeuvres.h"
#include "authoring/solution_check.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr std::size_t ticksPerSecond = 3;

/// A passage of the fix on the inbound course, with what led to it.
struct Passage {
    std::size_t tick = 0;
    double offCourse = 0;  ///< NM
    double offTrack = 0;   ///< degrees
    double onCourse = 0;   ///< seconds established before it
    double legSeconds = 0; ///< since the turn onto the inbound course ended
};

/// The flight of a holding as its rows tell it.
class HoldingCheck {
  public:
    HoldingCheck(const BuiltQuestion& asked, SourceFindings& found)
        : question(asked), flown(asked.flown), findings(found), turns(turnsIn(asked.flown.rows)) {}

    void entry() const;
    void firstLeg() const;
    void circuits(std::size_t wanted, bool firstByTheClock) const;

  private:
    void wrong(const std::string& text) const { findings.push_back(question.finding(text)); }
    [[nodiscard]] FromStation from(std::size_t tick) const {
        return flown.from(flown.situation.station, flown.rows[tick]);
    }
    [[nodiscard]] double inbound() const { return flown.situation.inbound; }
    [[nodiscard]] bool isInbound(std::size_t tick, double degrees) const {
        return std::abs(turnBetween(flown.rows[tick].track, inbound())) <= degrees;
    }
    [[nodiscard]] std::size_t arrival() const;
    [[nodiscard]] Passage passage(std::size_t tick) const;
    [[nodiscard]] std::vector<Passage> passagesAfter(std::size_t tick) const;

    const BuiltQuestion& question;
    const FlownSituation& flown;
    SourceFindings& findings;
    std::vector<FlownTurn> turns;
};

/// The tick at which the fix lies abeam for the first time.
std::size_t HoldingCheck::arrival() const {
    std::size_t tick = FlownSituation::askedTick;
    const auto ahead = [&] { return from(tick).alongTrack(flown.rows[tick].track) < 0; };
    while (tick + 1 < flown.rows.size() && ahead())
        ++tick;
    return tick;
}

Passage HoldingCheck::passage(std::size_t tick) const {
    constexpr double onLine = 0.15;    // NM
    constexpr double established = 10; // degrees
    constexpr double ontoCourse = 25;  // degrees of a turn; corrections on it are smaller
    Passage passed{tick, std::abs(from(tick).crossTrack(inbound())),
                   std::abs(turnBetween(flown.rows[tick].track, inbound()))};
    std::size_t begun = tick;
    while (begun > 0 && isInbound(begun, established) &&
           std::abs(from(begun).crossTrack(inbound())) < onLine)
        --begun;
    passed.onCourse = static_cast<double>(tick - begun) / ticksPerSecond;
    for (const FlownTurn& turn : turns)
        if (turn.end <= tick && std::abs(turn.degrees) >= ontoCourse)
            passed.legSeconds = static_cast<double>(tick - turn.end) / ticksPerSecond;
    return passed;
}

std::vector<Passage> HoldingCheck::passagesAfter(std::size_t tick) const {
    constexpr double inboundWay = 60; // degrees
    constexpr double nearFix = 1;     // NM
    std::vector<Passage> passages;
    // The last pattern ends over the fix, perhaps a tick before it.
    const auto along = [&](std::size_t at) { return from(at).alongTrack(inbound()); };
    const auto passes = [&](std::size_t at) {
        const bool last = at + 1 == flown.rows.size() && along(at) > -0.1;
        return ((along(at - 1) < 0 && along(at) >= 0) || last) && isInbound(at, inboundWay) &&
               std::abs(from(at).crossTrack(inbound())) < nearFix;
    };
    for (std::size_t at = tick + 10 * ticksPerSecond; at < flown.rows.size(); ++at)
        if (passes(at)) {
            passages.push_back(passage(at));
            at += 10 * ticksPerSecond;
        }
    return passages;
}

/// The turn behind the fix by what the exercise takes as right.
void HoldingCheck::entry() const {
    const HoldingAnswer answer = answerOf(
        {.fix = flown.situation.station, .inbound = inbound(), .turns = flown.situation.turns},
        flown.asked().heading);
    const std::size_t over = arrival();
    if (from(over).distance > 0.3)
        return wrong("the flight misses the fix by " + tenths(from(over).distance).english + " NM");
    if (turns.empty() || turns.front().begin + 2 * ticksPerSecond < over)
        return wrong("the flight turns before the fix");
    if (answer.firstTurn == "maintain") {
        if (turns.front().begin < over + 30 * ticksPerSecond)
            wrong("the answer is \"maintain\", and the flight turns over the fix");
        return;
    }
    if (std::abs(turnBetween(flown.asked().heading, answer.firstHeading)) < 1)
        return wrong("the answer's first turn is " + answer.firstTurn + ", and its heading " +
                     threeDigits(answer.firstHeading) + " is flown already; choose another");
    // A turn may go on to the heading outbound against the wind.
    const FlownTurn& first = turns.front();
    const double way = first.degrees;
    const double wanted = turnBetween(flown.rows[first.begin].heading, answer.firstHeading);
    if (first.side() != answer.firstTurn)
        wrong("the answer's first turn is " + answer.firstTurn + ", and the flight turns " +
              first.side());
    else if (std::abs(turnBetween(wanted, way)) > 1)
        wrong("the answer's first heading is " + threeDigits(answer.firstHeading) + ", and " +
              threeDigits(flown.rows[first.end].heading) + " is flown");
}

/// A minute along the inbound course to the fix, against the wind.
void HoldingCheck::firstLeg() const {
    const std::size_t over = arrival();
    const double seconds = flown.rows[over].seconds - flown.asked().seconds;
    if (std::abs(seconds - 60) > 2)
        wrong("the first inbound leg lasts " + number(seconds).english + " s and no minute");
    for (std::size_t tick = 1; tick < over; ++tick)
        if (!isInbound(tick, 1.01))
            return wrong("the first inbound leg is not flown along " + threeDigits(inbound()));
}

void HoldingCheck::circuits(std::size_t wanted, bool firstByTheClock) const {
    constexpr double onLine = 0.2;        // NM
    constexpr double onTrack = 8;         // degrees
    constexpr double established = 25;    // seconds
    constexpr double lastTolerance = 10;  // seconds, as a student's would be
    constexpr double firstTolerance = 15; // seconds, while the wind and the entry are corrected
    const std::vector<Passage> passages = passagesAfter(arrival());
    if (passages.size() < wanted)
        return wrong("the flight comes back over the fix " + std::to_string(passages.size()) +
                     " times, and not " + std::to_string(wanted));
    for (const Passage& passed : passages)
        if (passed.offCourse > onLine || passed.offTrack > onTrack || passed.onCourse < established)
            wrong("the flight is not established on inbound course " + threeDigits(inbound()) +
                  " before the fix at " +
                  minutesAndSeconds(flown.rows[passed.tick].seconds).english);
    for (std::size_t i = passages.size() - (firstByTheClock ? 1 : 2); i < passages.size(); ++i) {
        const bool last = i + 1 == passages.size();
        if (std::abs(passages[i].legSeconds - 60) > (last ? lastTolerance : firstTolerance))
            wrong("the inbound leg that ends at " +
                  minutesAndSeconds(flown.rows[passages[i].tick].seconds).english + " lasts " +
                  number(passages[i].legSeconds).english + " s and no minute");
    }
}

} // namespace

void checkHoldingFlown(const BuiltQuestion& question, SourceFindings& findings) {
    const HoldingCheck check(question, findings);
    if (question.kind.type == ExerciseType::wind) {
        check.firstLeg();
        return check.circuits(2, true);
    }
    check.entry();
    const HoldingAnswer answer = answerOf({.fix = question.flown.situation.station,
                                           .inbound = question.flown.situation.inbound,
                                           .turns = question.flown.situation.turns},
                                          question.flown.asked().heading);
    check.circuits(answer.entry == "direct" ? 2 : 3, false);
}

} // namespace tarnel
