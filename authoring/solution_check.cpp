#include "authoring/solution_check.h"

#include "authoring/flown_turns.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr std::size_t ticksPerSecond = 3;
constexpr double sameHeading = 1; ///< degrees

/// A flight straight on.
void checkPosition(const BuiltQuestion& question, SourceFindings& findings) {
    constexpr double longEnough = 60; ///< seconds
    const auto& rows = question.flown.rows;
    if (rows.back().seconds - question.flown.asked().seconds < longEnough)
        findings.push_back(question.finding("the flight is too short to see where the needle goes; "
                                            "at least 60 s are needed"));
    if (!turnsIn(rows).empty())
        findings.push_back(question.finding("the flight is not straight on"));
    if (question.kind.type == ExerciseType::orientation)
        return;
    const Slot station = question.flown.situation.station;
    const double first = question.flown.from(station, question.flown.asked()).radial;
    double least = 0;
    double most = 0;
    for (std::size_t tick = FlownSituation::askedTick; tick < rows.size(); ++tick) {
        const double moved = turnBetween(first, question.flown.from(station, rows[tick]).radial);
        least = std::min(least, moved);
        most = std::max(most, moved);
    }
    constexpr double overhead = 90;
    if (most - least > overhead)
        findings.push_back(
            question.finding("the flight passes the station, so the needle goes both ways"));
}

/// Half a minute along a course over a station, to the end of the flight.
void checkTracked(const BuiltQuestion& question, double course, const std::string& what,
                  SourceFindings& findings) {
    constexpr std::size_t tracked = 30 * ticksPerSecond;
    constexpr double onBearing = 2; // degrees
    constexpr double onLine = 0.1;  // NM; near the station a bearing says little
    constexpr double onTrack = 8;   // degrees, while small errors are corrected
    const auto& rows = question.flown.rows;
    const auto isOn = [&](const FlightRow& row) {
        const FromStation from = question.flown.from(question.flown.situation.station, row);
        const double off = std::abs(std::remainder(from.radial - course, 180));
        return (off <= onBearing || std::abs(from.crossTrack(course)) <= onLine) &&
               std::abs(turnBetween(row.track, course)) <= onTrack;
    };
    const std::size_t from = rows.size() - std::min(rows.size(), tracked);
    if (!std::all_of(rows.begin() + static_cast<std::ptrdiff_t>(from), rows.end(), isOn))
        findings.push_back(question.finding("the solution does not end with half a minute on " +
                                            what + " " + threeDigits(course)));
}

/// Whether a turn is the one that the answers tell; "maintain" is none within half a minute.
void checkFirstTurn(const BuiltQuestion& question, const std::string& side, double heading,
                    SourceFindings& findings) {
    constexpr std::size_t atOnce = 30 * ticksPerSecond;
    const std::vector<FlownTurn> turns = turnsIn(question.flown.rows);
    const bool none = turns.empty() || turns.front().begin > atOnce;
    const std::string flownSide = none && side == "maintain" ? "maintain"
                                  : turns.empty()            ? "no turn"
                                                             : turns.front().side();
    if (flownSide != side)
        findings.push_back(question.finding("the answer says \"" + side +
                                            "\", and the first turn of the flight goes " +
                                            flownSide));
    const double flown = flownSide == "maintain" || turns.empty()
                             ? question.flown.asked().heading
                             : question.flown.rows[turns.front().end].heading;
    if (std::abs(turnBetween(flown, heading)) > sameHeading)
        findings.push_back(question.finding("the answer's first heading is " +
                                            threeDigits(heading) + ", and " + threeDigits(flown) +
                                            " is flown"));
}

void checkIntercept(const BuiltQuestion& question, SourceFindings& findings) {
    const StudyRecord& record = question.in(Language::english);
    checkFirstTurn(question, record[ans3], std::stod(record[ans6]), findings);
    const bool inbound = question.kind.type == ExerciseType::qdm;
    const double required = question.flown.situation.required;
    checkTracked(question, required, inbound ? "QDM" : "QDR", findings);
    const double along =
        question.flown.from(question.flown.situation.station, question.flown.rows.back())
            .alongTrack(required);
    if ((along < 0) != inbound)
        findings.push_back(question.finding("the solution ends beyond the station"));
}

/// The last turn before the final course; what follows are small corrections along it.
const FlownTurn* leadTurn(const std::vector<FlightRow>& rows, const std::vector<FlownTurn>& turns,
                          double final) {
    constexpr double away = 20; // degrees
    const auto turnsOn = [&](const FlownTurn& turn) {
        return std::abs(turnBetween(rows[turn.begin].heading, final)) > away &&
               std::abs(turnBetween(rows[turn.end].heading, final)) <= away;
    };
    const auto last = std::find_if(turns.rbegin(), turns.rend(), turnsOn);
    return last == turns.rend() ? nullptr : &*last;
}

void checkArcKept(const BuiltQuestion& question, std::size_t from, std::size_t until,
                  SourceFindings& findings) {
    constexpr double kept = 0.2;    // NM
    constexpr double shortest = 15; // degrees
    const FlownSituation& flown = question.flown;
    const auto dme = [&](const FlightRow& row) {
        return (flown.situation.station == Slot::vor1 ? row.vor1 : row.vor2).dme;
    };
    double worst = 0;
    double around = 0;
    const auto radial = [&](std::size_t tick) {
        return flown.from(flown.situation.station, flown.rows[tick]).radial;
    };
    for (std::size_t tick = from; tick < until; ++tick) {
        worst = std::max(worst, std::abs(dme(flown.rows[tick]) - flown.situation.arc));
        around += turnBetween(radial(tick), radial(tick + 1));
    }
    if (worst > kept + 1e-6)
        findings.push_back(question.finding("the arc is left by " + tenths(worst).english +
                                            " NM, and 0.2 NM is the most"));
    if (std::abs(around) < shortest)
        findings.push_back(question.finding("the arc is too short to be flown"));
    else if ((around > 0) != flown.situation.clockwise)
        findings.push_back(question.finding("the arc is flown the wrong way round"));
}

void checkArc(const BuiltQuestion& question, SourceFindings& findings) {
    const StudyRecord& record = question.in(Language::english);
    checkTracked(question, question.flown.situation.final, "final course", findings);
    const auto& rows = question.flown.rows;
    const std::vector<FlownTurn> turns = turnsIn(rows);
    const FlownTurn* lead = leadTurn(rows, turns, question.flown.situation.final);
    if (lead == nullptr || lead == &turns.front()) {
        findings.push_back(question.finding("the flight has no turn from the arc to the final"));
        return;
    }
    checkArcKept(question, turns.front().end, lead->begin, findings);
    const double radial =
        question.flown.from(question.flown.situation.station, rows[lead->begin]).radial;
    if (std::abs(turnBetween(radial, std::stod(record[ans3]))) > sameHeading)
        findings.push_back(question.finding("the answer's lead radial is " + record[ans3] +
                                            ", and the turn begins on " + threeDigits(radial)));
}

} // namespace

void checkSolution(const BuiltQuestion& question, SourceFindings& findings) {
    switch (question.kind.type) {
    case ExerciseType::hsiHolding:
    case ExerciseType::dgHolding:
    case ExerciseType::wind:
        return checkHoldingFlown(question, findings);
    case ExerciseType::qdm:
    case ExerciseType::qdr:
        return checkIntercept(question, findings);
    case ExerciseType::dmeArc:
        return checkArc(question, findings);
    default:
        return checkPosition(question, findings);
    }
}

} // namespace tarnel
