#include "authoring/holding_words.h"
#include "authoring/manoeuvres.h"
#include "authoring/wording.h"
#include "core/holding_answer.h"

#include <cmath>
#include <vector>

namespace tarnel {

namespace {

using enum Phrase;

constexpr double entryLeg = 60; ///< seconds
constexpr double afterTheLastWord = 8;
constexpr double beforeTheFirstWord = 12; ///< seconds, so that nothing is told beside a question
constexpr double betweenWords = 16;
constexpr double afterAbeam = 10;

LocalText turnTowards(Turn turn) {
    return worded(turn == Turn::left ? leftTurn : rightTurn);
}

Phrase entryPhrase(const std::string& entry) {
    return entry == "direct" ? direct : entry == "offset" ? offset : parallel;
}

/// The flight of a holding, leg by leg.
class HoldingFlight {
  public:
    HoldingFlight(Pilot& flying, const Holding& flown)
        : pilot(flying),
          holding(flown),
          inbound{flown.fix, flown.inbound},
          fix(same(flying.name(flown.fix))) {}

    void arrive();
    void enter();
    void circuit(bool joins);
    void end();

  private:
    [[nodiscard]] double outbound() const { return circle(holding.inbound + 180); }
    [[nodiscard]] double correctedOutbound() const;
    /// Seconds from where a turn to the inbound course, begun now, would end.
    [[nodiscard]] double inboundAfterTurn() const;
    [[nodiscard]] std::vector<LocalText> arrivalTold(double heading) const;
    void tellAbeam(bool enters);
    void tellInbound();
    void tellLateness();
    void tellFix();
    void flyEntryLeg(double heading, Turn turn, Turn back);
    void flyOutbound(bool enters);
    void flyInbound();

    Pilot& pilot;
    const Holding& holding;
    CourseLine inbound;
    LocalText fix;
    HoldingAnswer answer;
    double inboundTime = 0; ///< of the last inbound leg, seconds; 0 before there was one
    double foretold = 0;    ///< of the inbound leg that is flown, seconds
    double misjudged = 0;   ///< seconds that an inbound leg has taken longer than foretold
    int outboundLegs = 0;
};

double HoldingFlight::correctedOutbound() const {
    return wholeDegrees(outbound() - 3 * std::round(pilot.triangle(holding.inbound).correction));
}

double HoldingFlight::inboundAfterTurn() const {
    return -pilot.onLine(inbound, holding.turns) / pilot.triangle(holding.inbound).groundSpeed *
           3600;
}

void HoldingFlight::arrive() {
    const double heading = pilot.now().heading;
    answer = answerOf(holding, heading);
    const double begun = pilot.seconds();
    const auto over = [&] { return pilot.isOver(holding.fix); };
    double next = begun + beforeTheFirstWord;
    for (const LocalText& words : arrivalTold(heading)) {
        pilot.flyUntil([&] { return over() || pilot.seconds() >= next; });
        if (over())
            break;
        pilot.say(words);
        next += betweenWords;
    }
    pilot.flyUntil(over);
    inboundTime = pilot.seconds() - begun;
}

std::vector<LocalText> HoldingFlight::arrivalTold(double heading) const {
    if (!holding.established)
        return {sectorTold(holding, heading)};
    const FlightRow& now = pilot.now();
    return windTold({now.windDirection, now.windSpeed}, holding.inbound, now.tas);
}

void HoldingFlight::enter() {
    if (answer.entry == "direct")
        return;
    const Turn turn = answer.firstTurn == "left" ? Turn::left : Turn::right;
    const LocalText entry = worded(entryPhrase(answer.entry));
    const LocalText heading = courseText(answer.firstHeading);
    pilot.say(answer.firstTurn == "maintain"
                  ? worded(holdEntryStraight, {fix, entry, heading})
                  : worded(holdEntry, {fix, entry, turnTowards(turn), heading}));
    flyEntryLeg(answer.firstHeading, turn,
                answer.entry == "offset" ? holding.turns : opposite(holding.turns));
}

void HoldingFlight::flyEntryLeg(double heading, Turn turn, Turn back) {
    pilot.turnTo(heading, turn);
    pilot.restartStopwatch();
    const double begun = pilot.seconds();
    const double intoWind = pilot.headingOn(heading);
    pilot.say(intoWind == wholeDegrees(heading)
                  ? worded(holdOnEntryLeg, {courseText(heading)})
                  : worded(holdOnEntryLegInWind, {courseText(heading), courseText(intoWind)}));
    pilot.turnTo(intoWind); // only now against the wind, as the answer is without
    pilot.flyUntil([&] {
        return pilot.seconds() - begun >= entryLeg && pilot.cutBefore(inbound, back).has_value();
    });
    pilot.say(worded(holdEntryReturn, {minutesAndSeconds(pilot.seconds() - begun),
                                       turnTowards(back), courseText(holding.inbound), fix}));
    pilot.establish(inbound, back);
    flyInbound();
}

void HoldingFlight::circuit(bool joins) {
    const bool enters = joins && answer.entry == "direct" && !holding.established;
    if (enters)
        pilot.say(worded(
            holdEntry, {fix, worded(direct), turnTowards(holding.turns), courseText(outbound())}));
    else
        tellFix();
    flyOutbound(enters);
    pilot.establish(inbound, holding.turns);
    flyInbound();
    // A circuit that began with the entry comes back from elsewhere than the others.
    misjudged = enters ? 0 : inboundTime - foretold;
}

void HoldingFlight::flyOutbound(bool enters) {
    pilot.turnTo(enters ? outbound() : correctedOutbound(), holding.turns);
    pilot.flyUntil([&] { return pilot.from(holding.fix).alongTrack(holding.inbound) <= 0; });
    pilot.restartStopwatch();
    const double begun = pilot.seconds();
    tellAbeam(enters);
    pilot.turnTo(correctedOutbound());
    const bool byTheClock = holding.firstOutbound && outboundLegs == 0;
    if (holding.firstOutbound && !byTheClock) {
        pilot.flyUntil([&] { return pilot.seconds() - begun >= afterAbeam; });
        tellLateness();
    }
    pilot.flyUntil([&] {
        return byTheClock ? pilot.seconds() - begun >= *holding.firstOutbound
                          : inboundAfterTurn() + misjudged >= holding.minutes * 60;
    });
    foretold = inboundAfterTurn();
    ++outboundLegs;
    pilot.say(worded(holdInboundTurn, {minutesAndSeconds(pilot.seconds() - begun),
                                       turnTowards(holding.turns), courseText(holding.inbound)}));
}

void HoldingFlight::flyInbound() {
    const double begun = pilot.seconds();
    pilot.restartStopwatch();
    tellInbound();
    pilot.track(inbound, [&] { return pilot.from(holding.fix).alongTrack(holding.inbound) >= 0; });
    inboundTime = pilot.seconds() - begun;
}

/// Where the time outbound begins, and the heading against the wind if that is new.
void HoldingFlight::tellAbeam(bool enters) {
    const double into = turnBetween(outbound(), correctedOutbound());
    if (into == 0 || !enters)
        return pilot.say(worded(holdAbeam, {fix, courseText(correctedOutbound())}));
    pilot.say(
        worded(holdAbeamInWind, {fix, courseText(outbound()), same(into < 0 ? "-" : "+"),
                                 number(std::abs(into) / 3), courseText(correctedOutbound())}));
}

void HoldingFlight::tellInbound() {
    const double heading = pilot.headingOn(holding.inbound);
    const double into = turnBetween(holding.inbound, heading);
    if (into == 0)
        return pilot.say(worded(holdInbound, {courseText(holding.inbound)}));
    pilot.say(worded(holdInboundInWind, {courseText(holding.inbound), same(into < 0 ? "-" : "+"),
                                         number(std::abs(into)), courseText(heading)}));
}

/// The fix, how long the inbound leg took, and the heading outbound.
void HoldingFlight::tellFix() {
    const LocalText time = minutesAndSeconds(inboundTime);
    const LocalText heading = courseText(correctedOutbound());
    const double into = turnBetween(outbound(), correctedOutbound());
    if (into == 0)
        return pilot.say(worded(holdFix, {fix, time, turnTowards(holding.turns), heading}));
    pilot.say(
        worded(holdFixInWind, {fix, time, turnTowards(holding.turns), courseText(outbound()),
                               same(into < 0 ? "-" : "+"), number(std::abs(into) / 3), heading}));
}

/// What follows outbound from how long the last inbound leg took.
void HoldingFlight::tellLateness() {
    constexpr double rightEnough = 3; ///< seconds
    const double late = inboundTime - holding.minutes * 60;
    if (std::abs(late) > rightEnough)
        pilot.say(worded(late > 0 ? holdWasLong : holdWasShort, {number(std::abs(late))}));
}

void HoldingFlight::end() {
    pilot.say(worded(holdDone, {fix, minutesAndSeconds(inboundTime)}));
    pilot.wait(afterTheLastWord);
}

} // namespace

HoldingAnswer answerOf(const Holding& holding, double heading) {
    HoldingAnswer answer;
    std::string kind = holding.turns == Turn::right ? "Standard" : "";
    std::int16_t outbound = 0;
    std::int16_t offsetHeading = 0;
    std::int16_t abeam = 0;
    std::int16_t first = 0;
    findHoldingAnswer(static_cast<std::int16_t>(wholeDegrees(heading)),
                      static_cast<std::int16_t>(wholeDegrees(holding.inbound)), kind, answer.entry,
                      outbound, offsetHeading, abeam, first, answer.firstTurn);
    answer.firstHeading = first;
    return answer;
}

void fly(Pilot& pilot, const Holding& holding) {
    HoldingFlight flight(pilot, holding);
    flight.arrive();
    flight.enter();
    for (int pattern = 0; pattern < holding.patterns; ++pattern)
        flight.circuit(pattern == 0);
    if (holding.patterns > 0)
        flight.end();
}

} // namespace tarnel
