#include "debrief/hold_judge.h"

#include "core/holding_answer.h"
#include "debrief/course_frame.h"
#include "debrief/racetrack.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tarnel {

namespace {

constexpr double holdTurn = 60;   ///< degrees: so much leads from one leg to the next
constexpr double wingsLevel = 10; ///< degrees: a smaller turn corrects the heading

double direction(double signedDegrees) {
    return signedDegrees < 0 ? -1 : 1;
}

/// From over the fix to over the fix.
struct Circuit {
    int number = 0;
    int begin = 0;
    int outbound = 0; ///< where its time begins
    int turn = 0;     ///< inbound
    int inbound = 0;  ///< where its time begins
    double end = 0;   ///< over the fix, between two samples
    bool enters = false;

    [[nodiscard]] int last() const { return static_cast<int>(end); }
    [[nodiscard]] double secondsOut() const { return (turn - outbound) * secondsPerSample; }
    [[nodiscard]] double secondsIn() const { return (end - inbound) * secondsPerSample; }
};

/// The worst of several values that are told as one finding.
struct Worst {
    double worst = -1;
    double value = 0;
    SampleSpan samples;
    int circuit = 0;

    void take(double howBad, double found, SampleSpan where, int number) {
        if (howBad > worst)
            *this = {howBad, found, where, number};
    }
    [[nodiscard]] bool found() const { return worst >= 0; }
};

/// The flight of a holding, circuit by circuit.
class HoldFlight {
  public:
    HoldFlight(std::span<const Sample> flight, const HoldTask& holding, Judgement& judge)
        : task(holding),
          judgement(judge),
          path(flight, holding.fix),
          frame(path, holding.inbound, true),
          side(holding.side == HoldingSide::right ? 1 : -1) {}

    void judge();

  private:
    /// How the holding was entered, as far as its legs tell.
    struct Entered {
        HoldingEntry entry = HoldingEntry::direct;
        const TurnSpan* first = nullptr; ///< the first turn behind the fix
        bool mirrored = false;           ///< a racetrack on the other side
    };

    [[nodiscard]] double outbound() const { return circle(task.inbound + 180); }
    [[nodiscard]] double along(int i) const { return path.from(i).alongTrack(task.inbound); }
    [[nodiscard]] int arrival() const;
    [[nodiscard]] std::vector<double> crossings(int arrived) const;
    [[nodiscard]] double arrivalHeading(int arrived) const;
    [[nodiscard]] std::array<HoldingEntry, 2> sectors(double heading) const;
    [[nodiscard]] Entered enteredBy(int arrived, double heading, int end) const;
    [[nodiscard]] Circuit circuit(int begin, double end) const;
    [[nodiscard]] double
    medianHeading(int first, int last, double from,
                  double within = std::numeric_limits<double>::infinity()) const;
    [[nodiscard]] double miss(double crossing) const;
    void findCircuits(int arrived, const std::vector<double>& over);
    void judgeEntry(int arrived, int end);
    void judgeSide();
    void judgeTimes();
    void judgeCorrections();
    void judgeInbound();
    void judgeFix(int arrived);
    void tellPhases(int arrived);
    void drawLine();

    const HoldTask& task;
    Judgement& judgement;
    FlownPath path;
    CourseFrame frame;
    double side;
    std::optional<Racetrack> track; ///< in the wind at the fix
    Entered entered;
    std::vector<Circuit> circuits;
    int entryEnds = -1; ///< over the fix again behind a parallel or offset entry
};

/// The first sample over the fix or abeam it, -1 without one.
int HoldFlight::arrival() const {
    constexpr double near = 1.5; ///< NM
    for (int i = 0; i < path.last(); ++i)
        if (path.from(i).distance < near && path.from(i + 1).distance >= path.from(i).distance)
            return i;
    return -1;
}

/// Where the fix is crossed on the inbound course, between two samples.
std::vector<double> HoldFlight::crossings(int arrived) const {
    constexpr double near = 2;  ///< NM
    constexpr int soonest = 56; ///< samples: no pattern is shorter than its turns
    std::vector<double> over;
    int before = arrived;
    for (int i = arrived + 1; i < path.size(); ++i) {
        const bool crosses = along(i - 1) < 0 && along(i) >= 0 && path.from(i).distance < near &&
                             std::abs(turnBetween(task.inbound, path.heading(i))) < 90;
        if (!crosses || i - before < soonest)
            continue;
        over.push_back(i - along(i) / (along(i) - along(i - 1)));
        before = i;
    }
    return over;
}

/// Before the turn, if that begins before the fix.
double HoldFlight::arrivalHeading(int arrived) const {
    constexpr int lead = 12;
    const TurnSpan* turn = path.turnBefore(arrived, wingsLevel);
    return path.heading(turn && turn->first >= arrived - lead && turn->last >= arrived ? turn->first
                                                                                       : arrived);
}

/// The entry of the sector, and that of the other one within the tolerance at its limit.
std::array<HoldingEntry, 2> HoldFlight::sectors(double heading) const {
    const double tolerance = judgement.limit(Limit::entrySector);
    const auto sectorOf = [&](double degrees) {
        std::string kind = task.side == HoldingSide::right ? "Standard" : "";
        std::string entry;
        std::string turn;
        std::int16_t unused[4] = {};
        findHoldingAnswer(static_cast<std::int16_t>(wholeDegrees(degrees)),
                          static_cast<std::int16_t>(wholeDegrees(task.inbound)), kind, entry,
                          unused[0], unused[1], unused[2], unused[3], turn);
        return entry == "direct"   ? HoldingEntry::direct
               : entry == "offset" ? HoldingEntry::offset
                                   : HoldingEntry::parallel;
    };
    const HoldingEntry own = sectorOf(heading);
    for (const double beside : {heading - tolerance, heading + tolerance})
        if (sectorOf(beside) != own)
            return {own, sectorOf(beside)};
    return {own, own};
}

HoldFlight::Entered HoldFlight::enteredBy(int arrived, double heading, int end) const {
    constexpr int lead = 12;
    constexpr int late = 30;
    Entered found;
    const TurnSpan* first = path.turnAfter(std::max(0, arrived - lead), 8);
    if (first && first->first <= arrived + late)
        found.first = first;
    const int settled = found.first ? found.first->last : arrived;
    const TurnSpan* back = path.turnAfter(settled, holdTurn);
    if (!back || back->first > end)
        return found;
    const double aside = medianHeading(settled, back->first, outbound());
    const bool thisSide = back->degrees * side > 0;
    // As far as that a parallel entry turns as well, where its sector allows it.
    const auto right = sectors(heading);
    const bool maybeParallel = std::ranges::count(right, HoldingEntry::parallel) > 0;
    found.mirrored =
        !thisSide && !maybeParallel && found.first && found.first->degrees * side < -110;
    if (!thisSide)
        found.entry = found.mirrored ? HoldingEntry::direct : HoldingEntry::parallel;
    else if (const double turned = -aside * side; turned > 12 && turned < 60)
        found.entry = HoldingEntry::offset;
    // What the wind asks of a direct entry's outbound leg may look like an offset one: where the
    // flight fits the sector, it flies that.
    if (thisSide && track) {
        const double slack = 15 + 3 * std::abs(track->correctionIn);
        for (const HoldingEntry entry : right)
            if ((entry == HoldingEntry::direct && std::abs(aside) < slack) ||
                (entry == HoldingEntry::offset && std::abs(-aside * side - 30) < slack)) {
                found.entry = entry;
                break;
            }
    }
    return found;
}

/// Degrees from a course to the middle one of the headings of a leg, without its turns and without
/// what is flown farther off the line than `within` NM, back to it.
double HoldFlight::medianHeading(int first, int last, double from, double within) const {
    std::vector<double> headings;
    for (int i = first; i <= last; ++i)
        if (!path.inTurn(i, wingsLevel) && std::abs(frame.cross(i)) <= within)
            headings.push_back(turnBetween(from, path.heading(i)));
    if (headings.empty())
        return turnBetween(from, path.heading(last));
    const auto middle = headings.begin() + static_cast<std::ptrdiff_t>(headings.size() / 2);
    std::ranges::nth_element(headings, middle);
    return *middle;
}

Circuit HoldFlight::circuit(int begin, double end) const {
    Circuit flown;
    flown.begin = begin;
    flown.end = end;
    const TurnSpan* out = path.turnAfter(std::max(0, begin - 12), holdTurn);
    int level = out ? out->last : begin;
    if (out && out->first > flown.last())
        level = begin;
    while (level < flown.last() && along(level) > 0)
        ++level;
    flown.outbound = level;
    const TurnSpan* in = path.turnAfter(level, holdTurn);
    flown.turn = in && in->first < flown.last() ? in->first : flown.last();
    constexpr double nearCourse = 25;
    int from = flown.last();
    while (from > flown.turn && std::abs(frame.headingOff(from - 1)) <= nearCourse)
        --from;
    while (from < flown.last() && path.inTurn(from, wingsLevel))
        ++from;
    flown.inbound = from;
    return flown;
}

void HoldFlight::findCircuits(int arrived, const std::vector<double>& over) {
    constexpr double aside = 30; ///< degrees
    const bool joinsFromAside =
        std::abs(turnBetween(task.inbound, arrivalHeading(arrived))) > aside;
    double begin = arrived;
    for (const double end : over) {
        if (entryEnds < 0 && entered.entry != HoldingEntry::direct) {
            entryEnds = static_cast<int>(end);
        } else {
            Circuit flown = circuit(static_cast<int>(begin), end);
            flown.number = static_cast<int>(circuits.size()) + 1;
            flown.enters = circuits.empty() && entryEnds < 0 && joinsFromAside;
            circuits.push_back(flown);
        }
        begin = end;
    }
}

void HoldFlight::judgeEntry(int arrived, int end) {
    const double heading = arrivalHeading(arrived);
    const auto right = sectors(heading);
    const bool known = entered.entry == right[0] || entered.entry == right[1];
    judgement.same(FindingKind::entry, static_cast<double>(entered.entry),
                   static_cast<double>(known ? entered.entry : right[0]), {arrived, end});
    if (entered.mirrored || !entered.first)
        return;
    constexpr double eitherWay = 10; ///< degrees about straight on and about straight back
    const double firstHeading =
        entered.entry == HoldingEntry::offset ? outbound() - side * 30 : outbound();
    const double shorter = turnBetween(heading, firstHeading);
    const double turned = direction(entered.first->degrees);
    const double expected = entered.entry == HoldingEntry::direct ? side : direction(shorter);
    const bool any = entered.entry != HoldingEntry::direct &&
                     (std::abs(shorter) < eitherWay || std::abs(shorter) > 180 - eitherWay);
    judgement.same(FindingKind::firstTurn, turned, any ? turned : expected,
                   {entered.first->first, entered.first->last});
}

/// Circuits that turn the other way.
void HoldFlight::judgeSide() {
    for (const Circuit& flown : circuits) {
        const TurnSpan* in = path.turnAfter(flown.outbound, holdTurn);
        const bool other = in && in->first < flown.last() && in->degrees * side < 0;
        if (other && (!flown.enters || entered.mirrored)) {
            judgement.fault(FindingKind::wrongSide, {flown.begin, flown.last()}).turn =
                flown.number;
            return;
        }
    }
}

/// Outbound the book has several figures in a wind, and each of them is right. An inbound leg that
/// lasts its time justifies the outbound one before it, but in the first circuit, which is flown by
/// the book. The first inbound leg behind that is measured, and the next outbound one corrected by
/// it. Who joins from the side needs room to meet the course.
void HoldFlight::judgeTimes() {
    constexpr double toJoin = 30; ///< seconds
    constexpr double firstTurn =
        5; ///< seconds; it begins on another heading than the inbound course
    const double leg = task.minutes * 60;
    for (const Circuit& flown : circuits) {
        const double tolerance = judgement.limit(Limit::legTime) * (flown.enters ? 2 : 1);
        const WindTriangle wind = triangleAt(path, flown.outbound, task.inbound);
        const double byDistance = leg * wind.groundSpeed / (wind.groundSpeed + 2 * wind.head);
        const double exact = track ? track->outboundSeconds : leg;
        const auto [low, high] = std::minmax({leg, byDistance, exact});
        Finding& in = judgement.about(FindingKind::inboundTime, flown.secondsIn(), leg, tolerance,
                                      {flown.inbound, flown.last()});
        in.turn = flown.number;
        const bool isInTime = in.verdict == Verdict::right;
        const bool isMeasured = flown.number == 1 && path.wind(flown.outbound).speed > 5;
        const std::pair<double, double> ends{low, high + (flown.enters ? toJoin : 0)};
        const bool isByTheBook = flown.secondsOut() >= ends.first - tolerance &&
                                 flown.secondsOut() <= ends.second + tolerance;
        if (!track || (isMeasured && isByTheBook))
            in.verdict = Verdict::open;
        Finding& out = judgement.between(FindingKind::outboundTime, flown.secondsOut(), ends,
                                         tolerance + (flown.number == 1 ? firstTurn : 0),
                                         {flown.outbound, flown.turn});
        out.turn = flown.number;
        if (!track || (isInTime && flown.number > 1))
            out.verdict = Verdict::open;
    }
}

void HoldFlight::judgeCorrections() {
    constexpr double onLine = 0.15; ///< NM
    Worst out;
    Worst in;
    if (!track)
        return;
    const auto [low, high] =
        std::minmax({-2 * track->correctionIn, -3 * track->correctionIn, track->correctionOut});
    for (const Circuit& flown : circuits) {
        if (flown.turn - flown.outbound > 4) {
            const double value = medianHeading(flown.outbound, flown.turn, outbound());
            out.take(std::abs(value - (low + high) / 2), value, {flown.outbound, flown.turn},
                     flown.number);
        }
        if (flown.last() - flown.inbound > 4) {
            const double value = medianHeading(flown.inbound, flown.last(), task.inbound, onLine);
            in.take(std::abs(value - track->correctionIn), value, {flown.inbound, flown.last()},
                    flown.number);
        }
    }
    if (out.found())
        judgement
            .between(FindingKind::correctionOut, out.value, {low, high},
                     judgement.limit(Limit::correctionOut), out.samples)
            .turn = out.circuit;
    if (in.found())
        judgement
            .about(FindingKind::correctionIn, in.value, track->correctionIn,
                   judgement.limit(Limit::correctionIn), in.samples)
            .turn = in.circuit;
}

/// The turn inbound and the leg behind it.
void HoldFlight::judgeInbound() {
    constexpr double towards = 60; ///< degrees: the heading of one who is about to roll out
    const double within = frame.kept(judgement);
    const double settled = frame.established(judgement);
    // Three times the correction leads across in a strong wind.
    const double drift = track ? std::abs(track->correctionIn) : 0;
    Worst over;
    Worst kept;
    for (const Circuit& flown : circuits) {
        bool onLine = false;
        for (int i = flown.turn; i <= flown.last(); ++i) {
            if (path.inCone(i) || std::abs(frame.headingOff(i)) > towards || !frame.onThisSide(i))
                continue;
            const double aside = frame.deviation(i);
            if (!flown.enters)
                over.take(std::max(0.0, -aside * side), std::max(0.0, -aside * side),
                          {i, flown.last()}, flown.number);
            onLine = onLine || (i >= flown.inbound && std::abs(aside) <= settled);
            if (!onLine)
                continue;
            kept.take(std::abs(aside), std::abs(aside), {i, i}, flown.number);
            if (std::abs(aside) > within)
                judgement.outside(i);
        }
        judgement.told.series.front().bands.push_back(
            {{flown.inbound, flown.last()}, -within, within});
    }
    if (over.found())
        judgement
            .atMost(FindingKind::inboundOvershoot, over.value,
                    judgement.limit(Limit::inboundOvershoot) * frame.fullScale() + drift,
                    over.samples)
            .turn = over.circuit;
    if (kept.found())
        judgement.atMost(FindingKind::largestDeviation, kept.value, within, kept.samples).turn =
            kept.circuit;
}

/// NM beside the fix.
double HoldFlight::miss(double crossing) const {
    return std::abs(path.from(static_cast<int>(std::lround(crossing))).crossTrack(task.inbound));
}

void HoldFlight::judgeFix(int arrived) {
    Worst beside;
    beside.take(path.from(arrived).distance, path.from(arrived).distance, {arrived, arrived}, 1);
    int number = 1;
    const auto take = [&](double over) {
        const int at = static_cast<int>(over);
        beside.take(miss(over), miss(over), {at, at}, ++number);
    };
    if (entryEnds >= 0)
        take(entryEnds);
    for (const Circuit& flown : circuits)
        take(flown.end);
    judgement
        .atMost(FindingKind::fixCrossed, beside.value, judgement.limit(Limit::fixCrossed),
                beside.samples)
        .turn = beside.circuit;
    judgement.open(FindingKind::circuits, static_cast<double>(circuits.size()),
                   {arrived, path.last()});
}

void HoldFlight::tellPhases(int arrived) {
    const auto verdictOf = [&](FindingKind kind, int number) {
        for (const Finding& finding : judgement.told.findings)
            if (finding.kind == kind && finding.turn == number)
                return finding.verdict;
        return Verdict::open;
    };
    judgement.phase(PhaseKind::approach, arrived);
    if (entryEnds >= 0)
        if (Phase* entry = judgement.phase(PhaseKind::entry, entryEnds))
            entry->verdict = verdictOf(FindingKind::entry, 0);
    for (const Circuit& flown : circuits) {
        judgement.phase(flown.enters ? PhaseKind::entry : PhaseKind::turn, flown.outbound);
        if (Phase* out = judgement.phase(PhaseKind::outbound, flown.turn)) {
            out->seconds = flown.secondsOut();
            out->verdict = verdictOf(FindingKind::outboundTime, flown.number);
        }
        judgement.phase(PhaseKind::turn, flown.inbound);
        if (Phase* in = judgement.phase(PhaseKind::inbound, flown.last())) {
            in->seconds = flown.secondsIn();
            in->verdict = verdictOf(FindingKind::inboundTime, flown.number);
        }
    }
    judgement.phase(PhaseKind::turn, path.last());
}

void HoldFlight::drawLine() {
    if (!track)
        return;
    TaskLine line{TaskLineKind::racetrack, {}};
    for (const FromStation& point : track->points)
        line.points.push_back(placeOn(path.place(), point));
    const double farthest = std::ranges::max(track->points, {}, &FromStation::distance).distance;
    judgement.told.lines.push_back(frame.corridor(frame.kept(judgement), farthest));
    judgement.told.lines.push_back(frame.line(farthest));
    judgement.told.lines.push_back(std::move(line));
}

void HoldFlight::judge() {
    const int arrived = arrival();
    const int there = std::max(arrived, 0);
    track = racetrackOf(task, path.wind(there), path.tas(there));
    frame.plot(judgement);
    frame.plotDistance(judgement);
    plotHeading(judgement, path);
    drawLine();
    const std::vector<double> over = arrived < 0 ? std::vector<double>() : crossings(arrived);
    if (over.empty()) {
        judgement.fault(FindingKind::holdingNotFlown, {there, path.last()});
        judgement.phase(PhaseKind::approach, path.last());
        return;
    }
    const int end = static_cast<int>(over.front());
    entered = enteredBy(arrived, arrivalHeading(arrived), end);
    findCircuits(arrived, over);
    judgeEntry(arrived, end);
    judgeSide();
    judgeTimes();
    judgeCorrections();
    judgeInbound();
    judgeFix(arrived);
    tellPhases(arrived);
}

} // namespace

void judgeHold(std::span<const Sample> flight, const HoldTask& task, Judgement& judgement) {
    HoldFlight(flight, task, judgement).judge();
}

} // namespace tarnel
