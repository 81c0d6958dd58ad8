#include "authoring/manoeuvres.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double legOfArc = 10;     ///< degrees of radial to one heading
constexpr double betweenWords = 60; ///< seconds
constexpr double lastWords = 12;    ///< degrees before the final radial

/// The flight along an arc.
class ArcFlight {
  public:
    ArcFlight(Pilot& flying, const Arc& flown) : pilot(flying), arc(flown) {}

    void join();
    void keep(const CourseLine& final);
    /// The radial on which the final course lies.
    [[nodiscard]] double finalRadial() const { return circle(arc.final + (arc.inbound ? 180 : 0)); }

  private:
    [[nodiscard]] double hand() const { return arc.clockwise ? 1 : -1; }
    [[nodiscard]] FromStation place() const { return pilot.from(arc.station); }
    /// NM that the DME reads more than the arc's.
    [[nodiscard]] double tooFar(const FromStation& at) const;
    /// At right angles to a radial, against the wind.
    [[nodiscard]] double tangent(double radial) const {
        return pilot.headingOn(circle(radial + 90 * hand()));
    }
    /// Degrees of radial to fly.
    [[nodiscard]] double left() const {
        return hand() * turnBetween(place().radial, finalRadial());
    }
    /// Why a leg of the arc is followed by one on this heading.
    void tellLeg(double heading);
    void tellEnd();

    Pilot& pilot;
    const Arc& arc;
    double told = 0; ///< when something was told last, seconds
    bool toldOfNeedle = false;
    bool toldOfEnd = false;
};

double ArcFlight::tooFar(const FromStation& at) const {
    return slantRange(at.distance, pilot.altitude()) - arc.distance;
}

void ArcFlight::join() {
    const double radial = wholeDegrees(place().radial);
    const double still = circle(radial + 90 * hand());
    const double firstHeading = tangent(radial);
    const LocalText sign = same(arc.clockwise ? "+" : "-");
    const LocalText heading = same(threeDigits(firstHeading));
    pilot.say(worded(still == firstHeading ? Phrase::arcPlan : Phrase::arcPlanInWind,
                     {same(threeDigits(radial)), sign, same(threeDigits(still)), heading}));
    const double side = tooFar(place());
    pilot.flyUntil([&] {
        const double after = tooFar(pilot.afterTurn(arc.station, firstHeading, Turn::shorter));
        return std::signbit(after) != std::signbit(side);
    });
    const bool toTheRight = turnBetween(pilot.now().heading, firstHeading) > 0;
    pilot.say(worded(Phrase::arcTurn,
                     {tenths(pilot.dme(arc.station)),
                      tenths(std::abs(pilot.dme(arc.station) - arc.distance)),
                      worded(toTheRight ? Phrase::rightTurn : Phrase::leftTurn), heading}));
    pilot.turnTo(firstHeading);
    pilot.say(worded(Phrase::arcKept, {tenths(arc.distance)}));
    told = pilot.seconds();
}

void ArcFlight::tellLeg(double heading) {
    constexpr double usual =
        4; // degrees that a turn may differ from a leg's and go by without a word
    if (pilot.seconds() - told < betweenWords || left() < 1.5 * lastWords)
        return;
    const FromStation here = place();
    const double off = std::round(tooFar(here) * 10) / 10;
    const double now = pilot.now().heading;
    const double turn = hand() * turnBetween(now, heading);
    const bool behind = std::abs(turnBetween(now, here.radial + 180)) > 90 && !toldOfNeedle;
    if (off == 0 && !behind && std::abs(turn - legOfArc) > usual)
        return;
    const LocalText dme = tenths(pilot.dme(arc.station));
    const LocalText radial = same(threeDigits(here.radial));
    const LocalText next = same(threeDigits(heading));
    if (off != 0)
        pilot.say(worded(off < 0 ? Phrase::arcTooNear : Phrase::arcTooFar,
                         {dme, radial, tenths(std::abs(off)), next}));
    else if (behind)
        pilot.say(worded(Phrase::arcNeedle, {dme, radial, next}));
    else
        pilot.say(worded(Phrase::arcRight, {dme, radial, number(turn), next}));
    toldOfNeedle = toldOfNeedle || off == 0;
    told = pilot.seconds();
}

void ArcFlight::tellEnd() {
    if (toldOfEnd || left() > lastWords)
        return;
    toldOfEnd = true;
    pilot.say(
        worded(Phrase::arcEnds, {same(threeDigits(place().radial)), number(std::round(left()))}));
}

void ArcFlight::keep(const CourseLine& final) {
    double legEnds = place().radial + hand() * legOfArc / 2;
    const double side = pilot.offCourse(final);
    const double onFinal = pilot.headingOn(final.course);
    pilot.flyUntil([&] {
        const FromStation here = place();
        const FromStation after = pilot.afterTurn(arc.station, onFinal, Turn::shorter);
        if (std::signbit(after.crossTrack(final.course)) != std::signbit(side) &&
            std::abs(turnBetween(here.radial, finalRadial())) < 45)
            return true;
        tellEnd();
        if (hand() * turnBetween(legEnds, here.radial) >= 0) {
            constexpr double perMile = 60; ///< degrees of correction
            const double inwards = std::clamp(tooFar(here) * perMile, -20.0, 20.0);
            legEnds = here.radial + hand() * legOfArc;
            const double next =
                circle(tangent(here.radial + hand() * legOfArc / 2) + hand() * inwards);
            tellLeg(next);
            pilot.turnTo(next);
        } else {
            pilot.step();
        }
        return false;
    });
}

} // namespace

void fly(Pilot& pilot, const Arc& arc) {
    ArcFlight flight(pilot, arc);
    flight.join();
    const CourseLine final{arc.station, arc.final};
    flight.keep(final);
    const double lead = pilot.from(arc.station).radial;
    const LocalText course = same(threeDigits(arc.final));
    pilot.say(worded(Phrase::arcLead,
                     {same(threeDigits(lead)),
                      number(std::abs(turnBetween(wholeDegrees(lead), flight.finalRadial()))),
                      same(threeDigits(flight.finalRadial())), course}));
    pilot.turnTo(pilot.headingOn(arc.final));
}

} // namespace tarnel
