#include "debrief/arc_judge.h"

#include "core/wind_turn.h"
#include "debrief/course_frame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double turnOffArc = 30; ///< degrees: smaller turns keep the arc
constexpr double degree = std::numbers::pi / 180;

/// The flight of an arc and of the course behind it.
class ArcFlight {
  public:
    ArcFlight(std::span<const Sample> flight, const ArcTask& arc, Judgement& judge)
        : task(arc),
          judgement(judge),
          path(flight, arc.station),
          final(path, arc.final, arc.inbound),
          hand(arc.clockwise ? 1 : -1) {}

    void judge();

  private:
    [[nodiscard]] double finalRadial() const {
        return circle(task.final + (task.inbound ? 180 : 0));
    }
    /// NM that the DME reads more than the arc's.
    [[nodiscard]] double tooFar(int i) const { return path.dme(i) - task.distance; }
    /// Degrees from the arc's direction, one way or the other round, to the heading.
    [[nodiscard]] double offTangent(int i, double way) const;
    [[nodiscard]] int firstRun(double way, double near, int samples) const;
    void findLegs();
    [[nodiscard]] double leadInWind() const;
    [[nodiscard]] double missAfter(double before) const;
    [[nodiscard]] double leadOfBook() const;
    void judgeArc();
    void judgeLead();
    void plot();
    void drawLine();

    const ArcTask& task;
    Judgement& judgement;
    FlownPath path;
    CourseFrame final;
    double hand;
    int joined = -1; ///< on the arc; -1 never
    int ends = 0;    ///< the last sample on the arc
    const TurnSpan* lead = nullptr;
    int established = -1; ///< on the final course
};

double ArcFlight::offTangent(int i, double way) const {
    const double course = circle(path.from(i).radial + 90 * way);
    const double correction = triangleAt(path, i, course).correction;
    return turnBetween(course + (std::isnan(correction) ? 0 : correction), path.heading(i));
}

/// The first of so many samples in a row that go round that way at about the distance.
int ArcFlight::firstRun(double way, double near, int samples) const {
    constexpr double along = 40; ///< degrees
    int run = 0;
    for (int i = 0; i < path.size(); ++i) {
        run = std::abs(tooFar(i)) <= near && std::abs(offTangent(i, way)) <= along ? run + 1 : 0;
        if (run == samples)
            return i - samples + 1;
    }
    return -1;
}

void ArcFlight::findLegs() {
    joined = firstRun(hand, judgement.limit(Limit::arcLargest), 8);
    ends = path.last();
    if (joined < 0)
        return;
    established = final.establishedAt(joined + 1, path.last(), final.established(judgement));
    // The turn onto the course is the last that leads from the arc's direction to about that of
    // the course.
    const int until = established < 0 ? path.last() : established;
    for (const TurnSpan* turn = path.turnBefore(until, turnOffArc); turn && turn->first > joined;
         turn = path.turnBefore(turn->first - 1, turnOffArc)) {
        const bool isNear =
            std::abs(turnBetween(path.from(turn->first).radial, finalRadial())) < 45;
        if (isNear && std::abs(offTangent(turn->first, hand)) < turnOffArc + 10)
            lead = turn;
        if (lead)
            break;
    }
    if (lead)
        ends = lead->first;
    else if (established >= 0)
        ends = established;
}

/// Degrees before the final radial at which the turn, in this wind and from this far off, would
/// end on the course.
double ArcFlight::leadInWind() const {
    double late = -5;
    double early = 25;
    const bool side = std::signbit(missAfter(late));
    for (int i = 0; i < 12; ++i) {
        const double middle = (late + early) / 2;
        (std::signbit(missAfter(middle)) == side ? late : early) = middle;
    }
    return early;
}

/// NM right of the final course where the turn would end that begins so many degrees before its
/// radial. Along the arc as he flies it, the heading goes with the radial.
double ArcFlight::missAfter(double before) const {
    const int at = lead->first;
    const double correction = triangleAt(path, at, task.final).correction;
    const double onFinal = task.final + (std::isnan(correction) ? 0 : correction);
    const double radial = finalRadial() - hand * before;
    const double heading = path.heading(at) + turnBetween(path.from(at).radial, radial);
    const PlaneOffset turned =
        turnInWind(path.wind(at), path.tas(at), heading, turnBetween(heading, onFinal)).back();
    const double east = path.from(at).distance * std::sin(radial * degree) + turned.east;
    const double north = path.from(at).distance * std::cos(radial * degree) + turned.north;
    return east * std::cos(task.final * degree) - north * std::sin(task.final * degree);
}

/// 60 / DME x GS / 200, degrees.
double ArcFlight::leadOfBook() const {
    const int at = lead->first;
    const double course = circle(path.from(at).radial + 90 * hand);
    const double groundSpeed = triangleAt(path, at, course).groundSpeed;
    return 60 / std::max(task.distance, 1.0) * groundSpeed / 200;
}

void ArcFlight::judgeArc() {
    double inside = 0;
    double outside = 0;
    double sum = 0;
    int count = 0;
    SampleSpan innermost{joined, joined};
    SampleSpan outermost{joined, joined};
    const double largest = judgement.limit(Limit::arcLargest);
    for (int i = joined; i <= ends; ++i) {
        if (path.inTurn(i, turnOffArc))
            continue;
        const double value = tooFar(i);
        if (value > outside) {
            outside = value;
            outermost = {i, i};
        }
        if (-value > inside) {
            inside = -value;
            innermost = {i, i};
        }
        if (std::abs(value) > largest)
            judgement.outside(i);
        sum += std::abs(value);
        ++count;
    }
    if (count == 0)
        return;
    judgement.atMost(FindingKind::arcInside, inside, largest, innermost);
    judgement.atMost(FindingKind::arcOutside, outside, largest, outermost);
    judgement.atMost(FindingKind::arcMean, sum / count, judgement.limit(Limit::arcMean),
                     {joined, ends});
}

void ArcFlight::judgeLead() {
    if (lead) {
        const auto [least, most] = std::minmax({leadOfBook(), leadInWind()});
        const double flown = hand * turnBetween(path.from(lead->first).radial, finalRadial());
        judgement.between(FindingKind::leadRadial, flown, {least, most},
                          judgement.limit(Limit::leadRadial), {lead->first, lead->last});
    }
    if (established < 0) {
        judgement.fault(FindingKind::neverEstablished, {ends, path.last()});
        return;
    }
    const int begun = lead ? lead->first : ends;
    judgement.atMost(FindingKind::timeToEstablished, (established - begun) * secondsPerSample,
                     judgement.limit(Limit::timeToEstablished), {begun, established});
}

void ArcFlight::plot() {
    const double largest = judgement.limit(Limit::arcLargest);
    Series& arc = judgement.series(SeriesKind::offArc, FindingUnit::nauticalMiles,
                                   [this](int i) { return tooFar(i); });
    if (joined >= 0)
        arc.bands.push_back({{joined, ends}, -largest, largest});
    Series& needle = final.plot(judgement);
    const double within = final.established(judgement);
    if (established >= 0)
        needle.bands.push_back({{established, path.last()}, -within, within});
    plotHeading(judgement, path);
}

/// Round to the course from where the arc is joined, then along it.
void ArcFlight::drawLine() {
    constexpr double betweenPoints = 5; ///< degrees
    const double overGround = std::sqrt(
        std::max(0.0, task.distance * task.distance - std::pow(slantRange(0, fixedAltitude), 2)));
    const double from = path.from(std::max(joined, 0)).radial;
    const double round = circle(hand * (finalRadial() - from));
    TaskLine arc{TaskLineKind::arc, {}};
    for (double turned = 0; turned < round; turned += betweenPoints)
        arc.points.push_back(placeOn(path.place(), {circle(from + hand * turned), overGround}));
    arc.points.push_back(placeOn(path.place(), {finalRadial(), overGround}));
    judgement.told.lines.push_back(std::move(arc));
    judgement.told.lines.push_back(final.corridor(final.established(judgement), final.farthest()));
    judgement.told.lines.push_back(final.line(final.farthest()));
}

void ArcFlight::judge() {
    constexpr int surely = 30; ///< samples
    findLegs();
    plot();
    drawLine();
    if (joined < 0) {
        const int other = firstRun(-hand, 1.5 * judgement.limit(Limit::arcLargest), surely);
        if (other >= 0)
            judgement.fault(FindingKind::wrongSense, {other, other + surely});
        else
            judgement.fault(FindingKind::arcNotJoined, {0, path.last()});
        judgement.phase(PhaseKind::approach, path.last());
        return;
    }
    judgement.phase(PhaseKind::approach, joined - 1);
    judgement.phase(PhaseKind::arc, ends);
    if (lead)
        judgement.phase(PhaseKind::turn, lead->last);
    judgement.phase(PhaseKind::final, path.last());
    judgeArc();
    judgeLead();
}

} // namespace

void judgeArc(std::span<const Sample> flight, const ArcTask& task, Judgement& judgement) {
    ArcFlight(flight, task, judgement).judge();
}

} // namespace tarnel
