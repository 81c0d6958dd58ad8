#include "authoring/manoeuvres.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double legOfArc = 10; ///< degrees of radial to one heading

/// The flight along an arc.
class ArcFlight {
  public:
    ArcFlight(Pilot& flying, const Arc& flown) : pilot(flying), arc(flown) {}

    void join();
    void keep(const CourseLine& final);

  private:
    [[nodiscard]] double hand() const { return arc.clockwise ? 1 : -1; }
    [[nodiscard]] FromStation place() const { return pilot.from(arc.station); }
    /// NM that the DME reads more than the arc's.
    [[nodiscard]] double tooFar(const FromStation& at) const;
    /// At right angles to a radial, against the wind.
    [[nodiscard]] double tangent(double radial) const {
        return pilot.headingOn(circle(radial + 90 * hand()));
    }

    Pilot& pilot;
    const Arc& arc;
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
}

void ArcFlight::keep(const CourseLine& final) {
    double legEnds = place().radial + hand() * legOfArc / 2;
    const double side = pilot.offCourse(final);
    const double onFinal = pilot.headingOn(final.course);
    pilot.flyUntil([&] {
        const FromStation here = place();
        const FromStation after = pilot.afterTurn(arc.station, onFinal, Turn::shorter);
        if (std::signbit(after.crossTrack(final.course)) != std::signbit(side) &&
            std::abs(turnBetween(here.radial, final.course + (arc.inbound ? 180 : 0))) < 45)
            return true;
        if (hand() * turnBetween(legEnds, here.radial) >= 0) {
            constexpr double perMile = 60; ///< degrees of correction
            const double inwards = std::clamp(tooFar(here) * perMile, -20.0, 20.0);
            legEnds = here.radial + hand() * legOfArc;
            pilot.turnTo(tangent(here.radial + hand() * legOfArc / 2) + hand() * inwards);
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
    const double finalRadial = circle(arc.final + (arc.inbound ? 180 : 0));
    const LocalText course = same(threeDigits(arc.final));
    pilot.say(
        worded(Phrase::arcLead, {same(threeDigits(lead)),
                                 number(std::abs(turnBetween(wholeDegrees(lead), finalRadial))),
                                 same(threeDigits(finalRadial)), course}));
    pilot.turnTo(pilot.headingOn(arc.final));
}

} // namespace tarnel
