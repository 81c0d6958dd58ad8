#include "authoring/pilot.h"

#include "core/comments.h"
#include "core/number_text.h"
#include "core/wind_turn.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double secondsPerHour = 3600;
constexpr double longestFlight = 7000; ///< seconds; well below what a recording holds
/// As much is flown off on the course, without a cut, NM.
constexpr double nearTheLine = 0.15;
constexpr double steepestCut = 60; ///< degrees
/// Farther off a course line than this the needle shows it, NM.
constexpr double onTheLine = 0.04;

/// The turn in degrees, positive to the right, up to 360.
double signedTurn(double from, double to, Turn turn) {
    const double shorter = turnBetween(from, to);
    if (turn == Turn::right)
        return shorter < 0 ? shorter + 360 : shorter;
    if (turn == Turn::left)
        return shorter > 0 ? shorter - 360 : shorter;
    return shorter;
}

} // namespace

Pilot::Pilot(ScriptedFlight& flown, const AuthoredChart& over) : flight(flown), chart(over) {
    flight.start();
    flownRows.push_back(presentRow(flight));
}

double Pilot::altitude() const {
    return flight.form().UserControl11.c_Altitude;
}

FromStation Pilot::from(Slot station) const {
    return fromStation(chart.position(station), {now().latitude, now().longitude});
}

double Pilot::offCourse(const CourseLine& line) const {
    return from(line.station).crossTrack(line.course);
}

WindTriangle Pilot::triangle(double course) const {
    const WindTriangle wind =
        windTriangle({now().windDirection, now().windSpeed}, course, now().tas);
    if (std::isnan(wind.correction) || wind.groundSpeed <= 0)
        throw LostPilot("a wind in which course " + threeDigits(course) + " can be flown");
    return wind;
}

double Pilot::headingOn(double course) const {
    return wholeDegrees(course + triangle(course).correction);
}

FromStation Pilot::afterTurn(Slot station, double heading, Turn turn) const {
    const FromStation place = from(station);
    const PlaneOffset flown = turnInWind({now().windDirection, now().windSpeed}, now().tas,
                                         now().heading, signedTurn(now().heading, heading, turn))
                                  .back();
    const double east = place.distance * std::sin(place.radial * degree) + flown.east;
    const double north = place.distance * std::cos(place.radial * degree) + flown.north;
    return {circle(std::atan2(east, north) / degree), std::hypot(east, north)};
}

double Pilot::dme(Slot station) const {
    return slantRange(from(station).distance, altitude());
}

void Pilot::say(const LocalText& text) {
    if (comments.size() == Comments::count)
        throw LostPilot("at most " + std::to_string(Comments::count) + " comments");
    flight.apply({.comment = text.german});
    comments.push_back({flownRows.size() - 1, text});
}

void Pilot::restartStopwatch() {
    if (stopwatchRuns)
        flight.apply({.stopwatch = StopwatchPress::startOrStop});
    flight.apply({.stopwatch = StopwatchPress::reset});
    flight.apply({.stopwatch = StopwatchPress::startOrStop});
    stopwatchRuns = true;
    stopwatchSince = seconds();
}

void Pilot::step() {
    if (seconds() > longestFlight)
        throw LostPilot("a flight of at most " + numberText(longestFlight) + " seconds");
    if (flight.stopped())
        throw LostPilot("a flight within 80 NM of its VORs and localizer");
    flight.step();
    flownRows.push_back(presentRow(flight));
}

void Pilot::flyUntil(const std::function<bool()>& reached, double patience) {
    const double begun = seconds();
    while (!reached()) {
        if (seconds() - begun > patience)
            throw LostPilot("a manoeuvre that comes to its end");
        step();
    }
}

void Pilot::wait(double time) {
    const double end = seconds() + time;
    flyUntil([&] { return seconds() >= end - simTimeStep / 2; }, time + 1);
}

void Pilot::setHeading(double heading) {
    flight.apply({.heading = static_cast<std::int16_t>(wholeDegrees(heading))});
}

void Pilot::turnTo(double heading, Turn turn) {
    // The autopilot goes the shorter way, so a longer one is led by the bug.
    constexpr double surelyShorter = 150;
    double left = signedTurn(now().heading, wholeDegrees(heading), turn);
    flyUntil([&] {
        if (std::abs(left) > surelyShorter)
            setHeading(now().heading + std::copysign(surelyShorter, left));
        else
            setHeading(heading);
        step();
        const double next = turnBetween(now().heading, wholeDegrees(heading));
        left = std::abs(left) > surelyShorter
                   ? signedTurn(now().heading, wholeDegrees(heading), turn)
                   : next;
        return std::abs(next) < 0.5 && std::abs(left) < surelyShorter && now().turnRate == 0;
    });
}

void Pilot::track(const CourseLine& line, const std::function<bool()>& reached) {
    constexpr double perMile = 60; ///< degrees of correction
    constexpr double most = 20;
    constexpr double betweenLooks = 10; ///< seconds
    double nextLook = seconds();
    flyUntil([&] {
        if (reached())
            return true;
        if (seconds() >= nextLook) {
            const double error = offCourse(line);
            const double back =
                std::abs(error) < onTheLine ? 0 : std::clamp(-error * perMile, -most, most);
            setHeading(headingOn(line.course) + std::round(back));
            nextLook = seconds() + betweenLooks;
        }
        step();
        return false;
    });
}

double Pilot::missOf(const CourseLine& line, Turn turn) const {
    return afterTurn(line.station, headingOn(line.course), turn).crossTrack(line.course);
}

std::optional<double> Pilot::meetsLine(const CourseLine& line, double cut, Turn turn) const {
    const double miss = missOf(line, turn);
    const WindTriangle wind = triangle(line.course);
    const double heading = circle(line.course - std::copysign(cut, miss));
    const FromStation end = afterTurn(line.station, heading, turn);
    const double ahead = now().tas * std::cos(cut * degree) - wind.head;
    const double across =
        now().tas * std::sin(cut * degree) + std::copysign(1, miss) * wind.fromRight;
    if (across <= 0)
        return std::nullopt;
    return end.alongTrack(line.course) + std::abs(end.crossTrack(line.course)) * ahead / across;
}

std::optional<double> Pilot::cutBefore(const CourseLine& line, Turn turn) const {
    constexpr double wanted = 50; ///< seconds to be flown on the course, and for the turn onto it
    const double room = triangle(line.course).groundSpeed * wanted / secondsPerHour;
    for (const double cut : {30.0, 45.0, steepestCut})
        if (const auto met = meetsLine(line, cut, turn); met && *met < -room)
            return cut;
    return std::nullopt;
}

double Pilot::onLine(const CourseLine& line, Turn turn) const {
    if (std::abs(missOf(line, turn)) < nearTheLine)
        return afterTurn(line.station, headingOn(line.course), turn).alongTrack(line.course);
    constexpr double degreesPerHour = 3 * secondsPerHour;
    const double cut = cutBefore(line, turn).value_or(steepestCut);
    const double radius = now().tas / (degreesPerHour * degree);
    return meetsLine(line, cut, turn).value_or(0) + radius * std::tan(cut / 2 * degree);
}

void Pilot::establishFrom(const CourseLine& line, const std::function<void(double lead)>& leads) {
    const double side = offCourse(line);
    flyUntil([&] {
        const double miss = missOf(line, Turn::shorter);
        return std::signbit(miss) != std::signbit(side) || std::abs(miss) < 0.005;
    });
    leads(std::abs(std::remainder(from(line.station).radial - line.course, 180)));
    turnTo(headingOn(line.course));
}

void Pilot::establish(const CourseLine& line, Turn turn) {
    for (int attempt = 0; attempt < 4; ++attempt, turn = Turn::shorter) {
        const double miss = missOf(line, turn);
        if (std::abs(miss) < nearTheLine)
            break;
        turnTo(line.course - std::copysign(cutBefore(line, turn).value_or(steepestCut), miss),
               turn);
        if (std::signbit(missOf(line, Turn::shorter)) == std::signbit(miss)) {
            establishFrom(line, [](double) {});
            return;
        }
        // The turn itself has led across: from the other side, then.
    }
    turnTo(headingOn(line.course), turn);
}

bool Pilot::isOver(Slot station) const {
    return std::cos((from(station).radial + 180 - now().track) * degree) <= 0;
}

} // namespace tarnel
