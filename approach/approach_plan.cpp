#include "approach/approach_plan.h"

#include "authoring/chart_source.h"
#include "authoring/wording.h"
#include "core/station_geometry.h"
#include "flights/plan_error.h"

#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double knots = 120;
constexpr double turnRadius = knots / (60 * std::numbers::pi); ///< NM, three degrees a second
constexpr double joinMiles = 1.5;  ///< along the final course, where it is met without a cut
constexpr double shortestMark = 1; ///< NM of a leg that has room for its course
constexpr double steepest = 400;   ///< feet a mile before the final approach fix
constexpr double onTheLine = 0.02; ///< NM beside the final course that are none
constexpr double atTheFix = 0.1;   ///< NM between a beacon and the fix that it marks
constexpr double beyondFix = 1;    ///< NM that a cross radial goes on behind its fix

std::string degreesText(double course) {
    const int whole = wholeDegrees(course);
    return threeDigits(whole == 0 ? 360 : whole) + "\u00B0";
}

/// How far `at` lies to the right of a line, and along it.
struct OnLine {
    double right = 0;
    double along = 0;
};
OnLine onLine(Point at, Point origin, double course) {
    const Point way = at - origin;
    const Point ahead = onCourse(course, 1);
    const Point aside = onCourse(course + 90, 1);
    return {way.x * aside.x + way.y * aside.y, way.x * ahead.x + way.y * ahead.y};
}

/// Builds the plan leg by leg.
class PlanBuilder {
  public:
    PlanBuilder(const ApproachSource& of, const AuthoredChart& names, const ChartPlane& on)
        : source(of),
          chart(names),
          plane(on),
          pen(placeFrom(of.initialStation, of.initialRadial, of.initialDistance), 0) {}

    [[nodiscard]] ApproachPlan build();

  private:
    [[nodiscard]] Point placeFrom(Slot station, double radial, double miles) const {
        return plane.station(station) + onCourse(radial, plane.twips(miles));
    }
    [[nodiscard]] std::string name(Slot slot) const { return chart.identifier(slot); }
    [[nodiscard]] double radius() const { return plane.twips(turnRadius); }
    [[nodiscard]] Point localizer() const { return plane.station(Slot::localizer); }
    [[nodiscard]] double finalCourse() const { return plane.finalCourse(); }
    [[nodiscard]] Point onFinal(double dme) const {
        return localizer() + onCourse(finalCourse(), -plane.twips(dme));
    }
    [[nodiscard]] double dmeOf(Point at) const {
        return -plane.miles(onLine(at, localizer(), finalCourse()).along);
    }

    void placeRunway();
    void placeInitialFix();
    void fly(const LegToStation& leg, std::size_t index);
    void fly(const LegOnRadial& leg, std::size_t index);
    void fly(const LegOnArc& leg, std::size_t index);
    void fly(const LegInHolding& leg, std::size_t index);
    void joinArc(const LegOnArc& leg, std::size_t index);
    void straightLeg(Point end, std::optional<double> next, int altitude);
    [[nodiscard]] std::optional<double> courseAfter(std::size_t index, Point corner) const;
    [[nodiscard]] double interceptCourse(Point from) const;
    [[nodiscard]] double courseFromArc(Point station) const;
    void intercept();
    void flyFinal();
    void checkDescent() const;
    void placeFinalFix();
    void markFinal();
    void flyMissed();
    void mark(Point from, Point to, const std::string& altitude);

    const ApproachSource& source;
    const AuthoredChart& chart;
    const ChartPlane& plane;
    TrackPen pen;
    ApproachPlan plan;
};

void PlanBuilder::placeRunway() {
    const double farEnd = localizerBehindRunway;
    plan.descent = {farEnd + source.length / feetInMile, source.elevation, source.finalAltitude};
    plan.farEnd = onFinal(farEnd);
    plan.threshold = onFinal(plan.descent.thresholdDme);
}

void PlanBuilder::placeInitialFix() {
    plan.fixes.push_back(
        {pen.at(),
         {"IAF", name(source.initialStation) + " R-" + threeDigits(source.initialRadial),
          "D" + oneDecimal(source.initialDistance) + "  " + std::to_string(source.initialAltitude) +
              " ft"}});
}

void PlanBuilder::mark(Point from, Point to, const std::string& altitude) {
    const Point way = to - from;
    const double miles = plane.miles(lengthOf(way));
    const double course = courseOf(way);
    if (miles >= shortestMark)
        plan.marks.push_back({from + onCourse(course, lengthOf(way) / 2), course,
                              degreesText(course), altitude, lengthOf(way)});
}

/// Straight to a place, and round it if it is known how it goes on there.
void PlanBuilder::straightLeg(Point end, std::optional<double> next, int altitude) {
    mark(pen.at(), end, std::to_string(altitude));
    if (next)
        pen.roundCorner(end, *next, radius());
    else
        pen.straightTo(end);
}

/// On which the localizer is intercepted from a place.
double PlanBuilder::interceptCourse(Point from) const {
    const bool fromTheRight = onLine(from, localizer(), finalCourse()).right > 0;
    return circle(finalCourse() + (fromTheRight ? -1 : 1) * source.cut.value_or(0));
}

/// The course on which the way goes on after a leg that ends at `corner`; nothing before a holding
/// and where the final course is met without an intercept.
std::optional<double> PlanBuilder::courseAfter(std::size_t index, Point corner) const {
    if (index + 1 == source.legs.size())
        return source.cut ? std::optional(interceptCourse(corner)) : std::nullopt;
    const auto& next = source.legs[index + 1].way;
    if (const auto* radial = std::get_if<LegOnRadial>(&next))
        return radial->radial;
    if (const auto* station = std::get_if<LegToStation>(&next))
        return courseOf(plane.station(station->station) - corner);
    return std::nullopt;
}

void PlanBuilder::fly(const LegToStation& leg, std::size_t index) {
    const Point end = plane.station(leg.station);
    straightLeg(end, courseAfter(index, end), source.legs[index].altitude);
}

void PlanBuilder::fly(const LegOnRadial& leg, std::size_t index) {
    const Point end = placeFrom(leg.station, leg.radial, leg.distance);
    straightLeg(end, courseAfter(index, end), source.legs[index].altitude);
    plan.fixes.push_back(
        {end,
         {name(leg.station) + " R-" + threeDigits(leg.radial), "D" + oneDecimal(leg.distance)}});
}

void PlanBuilder::fly(const LegInHolding& leg, std::size_t index) {
    plan.hold = racetrack(plane.station(leg.fix), leg.inbound, leg.right,
                          plane.twips(leg.minutes * knots / 60), radius());
    const Point fix = plane.station(leg.fix);
    const Point outbound = onCourse(leg.inbound + (leg.right ? 90 : -90), 2 * radius());
    const Point middle = onCourse(leg.inbound, -plane.twips(leg.minutes * knots / 120));
    plan.marks.push_back({fix + middle, leg.inbound, degreesText(leg.inbound), "", 0});
    plan.marks.push_back({fix + middle + outbound, circle(leg.inbound + 180),
                          degreesText(leg.inbound + 180),
                          std::to_string(source.legs[index].altitude), 0});
}

/// Inbound on the radial, and with a turn away from the station onto the arc.
void PlanBuilder::joinArc(const LegOnArc& leg, std::size_t index) {
    if (index > 0 || leg.station != source.initialStation ||
        source.initialDistance < leg.distance + turnRadius)
        throw PlanError(
            source.file, source.legs[index].line,
            "an arc as the first leg, around the station of the initial fix, and nearer");
    const double outer = leg.distance + turnRadius;
    const double begins = std::sqrt(outer * outer - turnRadius * turnRadius);
    const Point turn = placeFrom(leg.station, source.initialRadial, begins);
    mark(pen.at(), turn, "");
    pen.straightTo(turn);
    const double hand = leg.clockwise ? 1 : -1;
    const double gained = std::asin(turnRadius / outer) * 180 / std::numbers::pi;
    pen.turn(-hand * (90 - gained), radius());
}

/// On which the turn from an arc ends: the final course, or one that leads to the localizer where
/// that lies beside the line over the station.
double PlanBuilder::courseFromArc(Point station) const {
    const double beside = plane.miles(onLine(station, localizer(), finalCourse()).right);
    if (std::abs(beside) < onTheLine)
        return finalCourse();
    if (source.cut)
        return interceptCourse(station);
    return finalCourse() - std::atan2(beside, joinMiles) * 180 / std::numbers::pi;
}

/// The turn from the arc is a circle that touches from inside the arc and the line over the station
/// along the final course.
void PlanBuilder::fly(const LegOnArc& leg, std::size_t index) {
    joinArc(leg, index);
    const Point station = plane.station(leg.station);
    const double hand = leg.clockwise ? 1 : -1;
    const double inner = leg.distance - turnRadius;
    const double lead =
        circle(finalCourse() + 180 - hand * std::asin(turnRadius / inner) * 180 / std::numbers::pi);
    const double first = courseOf(pen.at() - station);
    const double swept = circle(hand * (lead - first));
    pen.turn(hand * swept, plane.twips(leg.distance));
    plan.leadRadial = lead;

    const double middle = first + hand * swept / 2;
    plan.marks.push_back({placeFrom(leg.station, middle, leg.distance), circle(middle + hand * 90),
                          "D" + oneDecimal(leg.distance) + " " + name(leg.station),
                          std::to_string(source.legs[index].altitude), 0});
    plan.radials.push_back({leg.station, station,
                            placeFrom(leg.station, source.initialRadial, leg.distance),
                            source.initialRadial, "R-" + threeDigits(source.initialRadial)});
    plan.radials.push_back({leg.station, station, pen.at(), lead, "LR-" + threeDigits(lead)});
    pen.turn(turnBetween(pen.course, courseFromArc(station)), radius());
}

/// Straight on to the localizer, and onto it.
void PlanBuilder::intercept() {
    const OnLine at = onLine(pen.at(), localizer(), finalCourse());
    const double angle = turnBetween(pen.course, finalCourse()) * std::numbers::pi / 180;
    const Point corner =
        localizer() + onCourse(finalCourse(), at.along + std::abs(at.right / std::tan(angle)));
    if (source.cut)
        mark(pen.at(), corner, std::to_string(source.legs.back().altitude));
    pen.roundCorner(corner, finalCourse(), radius());
}

void PlanBuilder::flyFinal() {
    const OnLine at = onLine(pen.at(), localizer(), finalCourse());
    const bool beside = plane.miles(std::abs(at.right)) > onTheLine;
    if (source.cut || (plan.leadRadial && beside))
        intercept();
    else if (beside)
        pen.straightTo(localizer() + onCourse(finalCourse(), at.along + plane.twips(joinMiles)));
    plan.joinDme = dmeOf(pen.at());
    plan.joinAltitude = source.legs.back().altitude;
    checkDescent();
    pen.straightTo(plan.threshold);
}

/// There has to be room for the descent to the final approach fix.
void PlanBuilder::checkDescent() const {
    const double fix = plan.descent.fixDme();
    const double room = std::max(0.0, plan.joinDme - fix) * steepest;
    if (plan.joinDme < fix - joinMiles || plan.joinAltitude - source.finalAltitude > room)
        throw PlanError(source.file, 0,
                        "room to descend to the final approach fix at DME " + oneDecimal(fix) +
                            " where the final course is reached at DME " +
                            oneDecimal(plan.joinDme));
}

void PlanBuilder::placeFinalFix() {
    const double dme = plan.descent.fixDme();
    PlanFix fix{onFinal(dme), {"FAF", name(Slot::localizer) + " D" + oneDecimal(dme)}, true};
    for (const Slot beacon : {Slot::ndb1, Slot::ndb2})
        if (plane.miles(lengthOf(plane.station(beacon) - fix.at)) < atTheFix)
            fix.lines.front() += " " + name(beacon);
    if (source.cross) {
        const Point station = plane.station(*source.cross);
        const double radial = courseOf(fix.at - station);
        const std::string text = name(*source.cross) + " R-" + threeDigits(radial);
        fix.lines.push_back(text);
        plan.radials.push_back({*source.cross, station,
                                fix.at + onCourse(radial, plane.twips(beyondFix)), radial, text});
    }
    plan.fixes.push_back(fix);
}

void PlanBuilder::markFinal() {
    mark(onFinal(plan.descent.fixDme()), plan.threshold, "");
}

void PlanBuilder::flyMissed() {
    const MissedApproach& missed = source.missed;
    TrackPen way(plan.threshold, finalCourse());
    if (missed.right) {
        way.straightTo(localizer() + onCourse(finalCourse(), plane.twips(missed.after)));
        way.turnTo(plane.station(missed.station), *missed.right, radius());
    } else {
        way.straightTo(plane.station(missed.station));
    }
    plan.missed = way.track();
}

ApproachPlan PlanBuilder::build() {
    placeRunway();
    placeInitialFix();
    for (std::size_t i = 0; i < source.legs.size(); ++i)
        std::visit([&](const auto& leg) { fly(leg, i); }, source.legs[i].way);
    flyFinal();
    placeFinalFix();
    markFinal();
    flyMissed();
    plan.track = pen.track();
    return plan;
}

} // namespace

std::string oneDecimal(double value) {
    return tenths(value).english;
}

ApproachPlan planOf(const ApproachSource& source, const AuthoredChart& chart,
                    const ChartPlane& plane) {
    return PlanBuilder(source, chart, plane).build();
}

} // namespace tarnel
