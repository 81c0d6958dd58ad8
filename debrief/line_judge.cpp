#include "debrief/line_judge.h"

#include "core/instrument_kind.h"
#include "debrief/course_frame.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double correction = 45; ///< degrees: a smaller turn on the line corrects an error
constexpr double aTurn = 10;      ///< degrees: a smaller one is no turn onto the line
constexpr double leaves = 60;     ///< degrees: who turns so far is through with the line

int samplesIn(double seconds) {
    return static_cast<int>(std::lround(seconds / secondsPerSample));
}

/// The flight along a line over a station, step by step.
class LineFlight {
  public:
    LineFlight(std::span<const Sample> flight, const LineTask& line, Judgement& judge)
        : task(line),
          judgement(judge),
          path(flight, line.station),
          frame(path, line.course, line.inbound) {}

    void judge();

  private:
    [[nodiscard]] int passage(int from) const;
    [[nodiscard]] const TurnSpan* turnOnto() const;
    [[nodiscard]] bool isDialReversed(int i) const;
    bool passesUnseen();
    void findLegs();
    void judgeDirection();
    void judgeJoin();
    void judgeTrack();

    const LineTask& task;
    Judgement& judgement;
    FlownPath path;
    CourseFrame frame;
    int joined = -1;   ///< established; -1 never
    int trackEnds = 0; ///< the last sample that is tracked
    const TurnSpan* onto = nullptr;
};

/// The sample at which the station comes abeam, -1 if it never does.
int LineFlight::passage(int from) const {
    for (int i = std::max(from, 1); i < path.size(); ++i)
        if (frame.onThisSide(i - 1) && !frame.onThisSide(i))
            return i;
    return -1;
}

/// The turn by which the line is joined: the last before the line is met, or, if that still leads
/// across, the first behind.
const TurnSpan* LineFlight::turnOnto() const {
    constexpr double there = 0.1; ///< NM
    constexpr double along = 25;  ///< degrees
    const double side = frame.deviation(0);
    int met = 0;
    while (met < path.last() && std::abs(frame.cross(met)) > there &&
           std::signbit(frame.deviation(met)) == std::signbit(side))
        ++met;
    const auto leadsOnto = [&](const TurnSpan& turn) {
        const double after = std::abs(frame.headingOff(turn.last));
        return after <= along && after < std::abs(frame.headingOff(turn.first));
    };
    for (const TurnSpan* turn = path.turnBefore(met, aTurn); turn;
         turn = path.turnBefore(turn->first - 1, aTurn)) {
        if (leadsOnto(*turn))
            return turn;
        if (std::abs(frame.headingOff(turn->last)) > along)
            break;
    }
    const TurnSpan* behind = path.turnAfter(met + 1, aTurn);
    return behind && leadsOnto(*behind) ? behind : nullptr;
}

void LineFlight::findLegs() {
    joined = frame.establishedAt(0, path.last(), frame.established(judgement));
    trackEnds = path.last();
    onto = turnOnto();
    if (joined < 0)
        return;
    if (const int over = task.inbound ? passage(joined) : -1; over >= 0)
        trackEnds = over - 1;
    const TurnSpan* away = path.turnAfter(joined + 1, leaves);
    if (away && away != onto)
        trackEnds = std::min(trackEnds, away->first);
}

/// Whether the flight goes on over the station as if it still lay ahead: straight on, and off the
/// course behind it. To go on along that is no fault of one who was established.
bool LineFlight::passesUnseen() {
    if (!task.inbound)
        return false;
    const int patience = samplesIn(judgement.limit(Limit::passedSeconds));
    for (int over = passage(0); over >= 0; over = passage(over + 1)) {
        const TurnSpan* turn = path.turnAfter(over - patience / 4, correction);
        const int goesOn = turn ? turn->first : path.last();
        const bool keepsOn =
            joined >= 0 && joined < over &&
            180 - std::abs(frame.deviation(std::min(over + patience, path.last()))) <=
                frame.kept(judgement);
        if (goesOn - over < patience || std::abs(frame.headingOff(over)) > leaves || keepsOn)
            continue;
        judgement.fault(FindingKind::stationPassed, {over, goesOn});
        return true;
    }
    return false;
}

/// A dial that follows this station is set to the other end of the line.
bool LineFlight::isDialReversed(int i) const {
    const Sample& at = path.sample(i);
    const auto reversed = [&](std::int16_t kind, std::int16_t receiver, double course) {
        constexpr std::int16_t localizerPlace = 2;
        const bool hasNeedle = kind == static_cast<std::int16_t>(InstrumentKind::vor) ||
                               kind == static_cast<std::int16_t>(InstrumentKind::hsi);
        const std::int16_t tuned = receiver == 2 ? at.traceNAV2freq : at.traceNAV1freq;
        const std::int16_t own = task.station == Slot::localizer
                                     ? localizerPlace
                                     : static_cast<std::int16_t>(task.station);
        return hasNeedle && tuned == own && std::abs(turnBetween(course, task.course)) > 90;
    };
    return !path.isBeacon() && (reversed(at.traceInst2, at.traceInst2NAVselect, at.traceObsI2) ||
                                reversed(at.traceInst3, at.traceInst3NAVselect, at.traceObsI3));
}

/// Straight legs that lead away from the line, once the pilot has begun to turn.
void LineFlight::judgeDirection() {
    constexpr double surely = 10; ///< degrees between heading and line, and how far the needle goes
    const int longEnough = samplesIn(20);
    const int end = joined < 0 ? path.last() : joined;
    for (const TurnSpan* turn = path.turnAfter(0, aTurn); turn && turn->last < end;) {
        const TurnSpan* next = path.turnAfter(turn->last, aTurn);
        const int from = turn->last;
        const int to = std::min(next ? next->first : path.last(), end);
        const double side = frame.deviation(from) < 0 ? -1 : 1;
        const bool away = frame.headingOff(from) * side > surely &&
                          frame.cross(to) * side > frame.cross(from) * side &&
                          frame.deviation(to) * side > frame.deviation(from) * side + surely / 4;
        if (to - from >= longEnough && away && frame.onThisSide(from) && frame.onThisSide(to) &&
            std::abs(frame.deviation(to)) > frame.established(judgement)) {
            judgement.fault(isDialReversed(from) ? FindingKind::reversedNeedle
                                                 : FindingKind::turnedAway,
                            {from, to});
            return;
        }
        turn = next;
    }
}

void LineFlight::judgeJoin() {
    const int begun = onto ? onto->first : 0;
    if (onto) {
        const double angle = std::abs(turnBetween(task.course, path.heading(begun)));
        const SampleSpan span{std::max(0, begun - samplesIn(10)), begun};
        if (task.cut)
            judgement.about(FindingKind::interceptAngle, angle, *task.cut,
                            judgement.limit(Limit::interceptAngle), span);
        else
            judgement.atMost(FindingKind::interceptAngle, angle,
                             judgement.limit(Limit::interceptLargest), span);
    }
    const int settled = std::min((onto ? onto->last : joined) + samplesIn(30), trackEnds);
    const double side = frame.deviation(begun) < 0 ? -1 : 1;
    double over = 0;
    int worst = begun;
    for (int i = begun; i <= settled; ++i)
        if (!path.inCone(i) && frame.onThisSide(i) && -side * frame.deviation(i) > over) {
            over = -side * frame.deviation(i);
            worst = i;
        }
    judgement.atMost(FindingKind::overshoot, over, frame.established(judgement),
                     {worst, std::max(worst, joined)});
    if (onto)
        judgement.atMost(
            FindingKind::timeToEstablished, std::max(0, joined - begun) * secondsPerSample,
            judgement.limit(Limit::timeToEstablished), {begun, std::max(begun, joined)});
}

void LineFlight::judgeTrack() {
    const double within = frame.kept(judgement);
    Series& needle = judgement.told.series.front();
    needle.bands.push_back({{joined, trackEnds}, -within, within});
    double largest = 0;
    double sum = 0;
    int count = 0;
    int inside = 0;
    SampleSpan worst{joined, joined};
    for (int i = joined; i <= trackEnds; ++i) {
        if (path.inCone(i) || !frame.onThisSide(i) || path.inTurn(i, correction))
            continue;
        const double aside = std::abs(frame.deviation(i));
        sum += aside;
        ++count;
        if (aside <= within)
            ++inside;
        else
            judgement.outside(i);
        if (aside > largest) {
            largest = aside;
            worst = {i, i};
        }
    }
    if (count == 0)
        return;
    judgement.atMost(FindingKind::largestDeviation, largest, within, worst);
    judgement.atMost(FindingKind::meanDeviation, sum / count,
                     frame.limit(judgement, Limit::mean, Limit::meanNdb), {joined, trackEnds});
    judgement.open(FindingKind::shareWithin, 100.0 * inside / count, {joined, trackEnds});
}

void LineFlight::judge() {
    findLegs();
    frame.plot(judgement);
    frame.plotDistance(judgement);
    plotHeading(judgement, path);
    judgement.told.lines.push_back(frame.corridor(frame.kept(judgement), frame.farthest()));
    judgement.told.lines.push_back(frame.line(frame.farthest()));
    judgeDirection();
    const bool unseen = passesUnseen();
    if (joined < 0) {
        if (!unseen)
            judgement.fault(FindingKind::neverEstablished, {0, path.last()});
        judgement.phase(PhaseKind::approach, path.last());
        return;
    }
    if (onto)
        judgement.phase(PhaseKind::approach, onto->first);
    judgement.phase(PhaseKind::join, joined - 1);
    judgement.phase(PhaseKind::track, path.last());
    if (task.joins)
        judgeJoin();
    judgeTrack();
}

} // namespace

void judgeLine(std::span<const Sample> flight, const LineTask& task, Judgement& judgement) {
    LineFlight(flight, task, judgement).judge();
}

} // namespace tarnel
