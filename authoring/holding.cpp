#include "authoring/manoeuvres.h"
#include "authoring/wording.h"
#include "exercises/holding_answer.h"

#include <cmath>

namespace tarnel {

namespace {

using enum Phrase;

constexpr double entryLeg = 60;           ///< seconds
constexpr double beforeTheFirstWord = 12; ///< seconds, so that nothing is told beside a question

LocalText course(double degrees) {
    return same(threeDigits(degrees));
}

LocalText turnTowards(Turn turn) {
    return worded(turn == Turn::left ? leftTurn : rightTurn);
}

LocalText side(double signedDegrees) {
    return worded(signedDegrees < 0 ? left : right);
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

  private:
    [[nodiscard]] double outbound() const { return circle(holding.inbound + 180); }
    [[nodiscard]] double correctedOutbound() const;
    /// Seconds from where a turn to the inbound course, begun now, would end.
    [[nodiscard]] double inboundAfterTurn() const;
    void flyEntryLeg(double heading, Turn turn, Turn back);
    void flyOutbound(bool joins);
    void flyInbound();

    Pilot& pilot;
    const Holding& holding;
    CourseLine inbound;
    LocalText fix;
    HoldingAnswer answer;
    double inboundTime = 0; ///< of the last inbound leg, seconds; 0 before there was one
    int outboundLegs = 0;
};

double HoldingFlight::correctedOutbound() const {
    return wholeDegrees(outbound() - 3 * pilot.triangle(holding.inbound).correction);
}

double HoldingFlight::inboundAfterTurn() const {
    const FromStation end =
        pilot.afterTurn(holding.fix, pilot.headingOn(holding.inbound), holding.turns);
    return -end.alongTrack(holding.inbound) / pilot.triangle(holding.inbound).groundSpeed * 3600;
}

void HoldingFlight::arrive() {
    const double heading = pilot.now().heading;
    answer = answerOf(holding, heading);
    const double angle = turnBetween(holding.inbound, heading);
    pilot.wait(beforeTheFirstWord);
    pilot.say(worded(holdSector, {course(heading), course(holding.inbound), number(std::abs(angle)),
                                  side(angle), worded(entryPhrase(answer.entry))}));
    pilot.flyOver(holding.fix);
}

void HoldingFlight::enter() {
    if (answer.entry == "direct")
        return;
    const Turn turn = answer.firstTurn == "left" ? Turn::left : Turn::right;
    pilot.say(worded(holdEntry, {fix, worded(entryPhrase(answer.entry)), turnTowards(turn),
                                 course(answer.firstHeading)}));
    flyEntryLeg(answer.firstHeading, turn,
                answer.entry == "offset" ? holding.turns : opposite(holding.turns));
}

void HoldingFlight::flyEntryLeg(double heading, Turn turn, Turn back) {
    if (turnBetween(pilot.now().heading, heading) != 0)
        pilot.turnTo(heading, turn);
    pilot.restartStopwatch();
    pilot.say(worded(holdOnEntryLeg, {course(heading)}));
    pilot.wait(entryLeg);
    pilot.say(worded(holdEntryReturn, {turnTowards(back), course(holding.inbound), fix}));
    pilot.establish(inbound, back, 45);
    flyInbound();
}

void HoldingFlight::circuit(bool joins) {
    if (joins && answer.entry == "direct")
        pilot.say(worded(holdEntry,
                         {fix, worded(direct), turnTowards(holding.turns), course(outbound())}));
    else
        pilot.say(worded(holdFix, {fix, minutesAndSeconds(inboundTime), turnTowards(holding.turns),
                                   course(correctedOutbound())}));
    flyOutbound(joins && answer.entry == "direct");
    pilot.establish(inbound, holding.turns, std::abs(pilot.offCourse(inbound)) > 0.9 ? 30 : 45);
    flyInbound();
}

void HoldingFlight::flyOutbound(bool joins) {
    pilot.turnTo(joins ? outbound() : correctedOutbound(), holding.turns);
    pilot.flyUntil([&] { return pilot.from(holding.fix).alongTrack(holding.inbound) <= 0; });
    pilot.restartStopwatch();
    const double begun = pilot.seconds();
    pilot.say(worded(holdAbeam, {fix, course(correctedOutbound())}));
    pilot.turnTo(correctedOutbound());
    const bool byTheClock = holding.firstOutbound && outboundLegs == 0;
    pilot.flyUntil([&] {
        return byTheClock ? pilot.seconds() - begun >= *holding.firstOutbound
                          : inboundAfterTurn() >= holding.minutes * 60;
    });
    ++outboundLegs;
    pilot.say(worded(holdInboundTurn, {minutesAndSeconds(pilot.seconds() - begun),
                                       turnTowards(holding.turns), course(holding.inbound)}));
}

void HoldingFlight::flyInbound() {
    const double begun = pilot.seconds();
    pilot.restartStopwatch();
    pilot.say(
        worded(holdInbound, {course(holding.inbound), course(pilot.headingOn(holding.inbound))}));
    pilot.track(inbound, [&] { return pilot.from(holding.fix).alongTrack(holding.inbound) >= 0; });
    inboundTime = pilot.seconds() - begun;
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
}

} // namespace tarnel
