#pragma once

#include "authoring/pilot.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnel {

/// Onto a course line from the side where the aircraft is: by a cut of `angle` degrees, or on a
/// heading that lies so many degrees `beyond` the actual QDM.
struct Intercept {
    CourseLine line;
    double angle = 30;
    std::optional<double> beyond = {};
};
/// Flies to the turn's end, not along the line. `turns` is called where the turn onto the line
/// begins, with the degrees that the bearing still has to change. Throws LostPilot if the station
/// comes first.
void fly(Pilot& pilot, const Intercept& intercept, const std::function<void(double lead)>& turns);

struct Holding {
    Slot fix = Slot::vor1;
    double inbound = 0; ///< degrees true
    Turn turns = Turn::right;
    double minutes = 1;       ///< of the inbound leg
    int patterns = 2;         ///< 0: the entry, and inbound to the fix
    bool established = false; ///< on the inbound course already
    /// Of the first outbound leg by the stopwatch, seconds; without it, and later, as long as makes
    /// the inbound leg last its minutes.
    std::optional<double> firstOutbound = {};
};

/// The answer that belongs to a heading at the fix.
struct HoldingAnswer {
    std::string entry; ///< "direct", "parallel" or "offset"
    double firstHeading = 0;
    std::string firstTurn; ///< "left", "right" or "maintain"
};
[[nodiscard]] HoldingAnswer answerOf(const Holding& holding, double heading);

/// Flies the present heading to the fix, enters, and flies the patterns; all of it ends over the
/// fix. Tells each step, and uses the stopwatch.
void fly(Pilot& pilot, const Holding& holding);

struct Arc {
    Slot station = Slot::vor1;
    double distance = 0; ///< NM, as the DME reads them
    bool clockwise = true;
    double final = 0;    ///< the course that it is left on, degrees
    bool inbound = true; ///< towards the station
};

/// Joins the arc, keeps it, and turns onto the final course.
void fly(Pilot& pilot, const Arc& arc);

} // namespace tarnel
