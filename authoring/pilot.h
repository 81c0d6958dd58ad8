#pragma once

#include "authoring/authored_chart.h"
#include "authoring/local_text.h"
#include "core/station_geometry.h"
#include "core/wind_triangle.h"
#include "flights/flight.h"
#include "flights/flight_csv.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnel {

/// Which way a turn goes; `shorter` at 180 degrees goes right.
enum class Turn { left, right, shorter };

[[nodiscard]] constexpr Turn opposite(Turn turn) {
    return turn == Turn::left ? Turn::right : turn == Turn::right ? Turn::left : Turn::shorter;
}

/// A course over a station, flown towards it or away from it; degrees true.
struct CourseLine {
    Slot station = Slot::vor1;
    double course = 0;
};

/// What was said, and when.
struct SaidComment {
    std::size_t tick = 0;
    LocalText text;
};

/// A manoeuvre that does not come to its end.
class LostPilot : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// `Pilot`: flies a trainer by what is seen from it, tick by tick, with heading bug, knobs and
/// stopwatch. It knows the wind and the stations' places, as an instructor does who shows how.
///
/// Each call of a manoeuvre flies until that is done.
class Pilot {
  public:
    Pilot(ScriptedFlight& flown, const AuthoredChart& over);

    [[nodiscard]] const FlightRow& now() const { return flownRows.back(); }
    [[nodiscard]] double seconds() const { return now().seconds; }
    [[nodiscard]] double altitude() const; ///< feet
    [[nodiscard]] FromStation from(Slot station) const;
    [[nodiscard]] std::optional<Slot> slotOf(const std::string& name) const {
        return chart.slotOf(name);
    }
    /// Slant range in NM.
    [[nodiscard]] double dme(Slot station) const;
    /// Seconds.
    [[nodiscard]] double stopwatch() const {
        return stopwatchRuns ? seconds() - stopwatchSince : 0;
    }
    [[nodiscard]] const std::string& name(Slot station) const { return chart.identifier(station); }
    /// Whether the station lies abeam or behind.
    [[nodiscard]] bool isOver(Slot station) const;
    /// NM to the right of a course line.
    [[nodiscard]] double offCourse(const CourseLine& line) const;
    /// On a course in the present wind. Throws LostPilot if the wind is too strong for it.
    [[nodiscard]] WindTriangle triangle(double course) const;
    /// The whole degrees that hold a course in the present wind.
    [[nodiscard]] double headingOn(double course) const;
    /// Where the aircraft is once `turnTo` has turned it to `heading` from now on.
    [[nodiscard]] FromStation afterTurn(Slot station, double heading, Turn turn) const;

    /// The smallest usual cut by which a turn begun now meets a course line well before its
    /// station; nothing if none does.
    [[nodiscard]] std::optional<double> cutBefore(const CourseLine& line, Turn turn) const;

    /// NM beyond the station, or before it if negative, where `establish` begun now would have the
    /// aircraft on a course line.
    [[nodiscard]] double onLine(const CourseLine& line, Turn turn) const;

    void set(const FlightSettings& settings) { flight.apply(settings); }
    /// Comments from now on, until the next comment.
    void say(const LocalText& text);
    void restartStopwatch();

    void step();
    /// Throws LostPilot if it does not come about in `patience` seconds.
    void flyUntil(const std::function<bool()>& reached, double patience = 1800);
    void wait(double time);
    void turnTo(double heading, Turn turn = Turn::shorter);
    /// On a course line, correcting what is left of an error, until `reached`.
    void track(const CourseLine& line, const std::function<bool()>& reached);
    /// Flies on until the turn onto a course line has to begin, if it hasn't already, calls `leads`
    /// with the degrees that the bearing still has to change, and turns.
    void establishFrom(const CourseLine& line, const std::function<void(double lead)>& leads);
    /// Turns onto a course line towards its station: at once if that leads onto it, else by the
    /// smallest usual cut that meets it well before the station.
    void establish(const CourseLine& line, Turn turn);

    [[nodiscard]] const std::vector<FlightRow>& rows() const { return flownRows; }
    [[nodiscard]] const std::vector<SaidComment>& said() const { return comments; }

  private:
    /// NM right of the line where a turn onto its course, begun now, would end.
    [[nodiscard]] double missOf(const CourseLine& line, Turn turn) const;
    /// NM beyond the station where a cut by so many degrees, turned to now, would meet a course
    /// line; nothing if it never does.
    [[nodiscard]] std::optional<double> meetsLine(const CourseLine& line, double cut,
                                                  Turn turn) const;
    void setHeading(double heading);

    ScriptedFlight& flight;
    const AuthoredChart& chart;
    std::vector<FlightRow> flownRows;
    std::vector<SaidComment> comments;
    bool stopwatchRuns = false;
    double stopwatchSince = 0; ///< seconds of the flight
};

} // namespace tarnel
