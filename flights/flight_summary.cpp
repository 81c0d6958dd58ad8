#include "flights/flight_summary.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "flights/flight.h"
#include "flights/flight_csv.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr int positionDigits = 4;
constexpr int timeDigits = 1;

std::string number(double value, int digits = 0) {
    return numberText(roundTo(value, digits));
}

std::string side(double degrees, const char* positive, const char* negative) {
    return number(std::abs(degrees), positionDigits) + (degrees < 0 ? negative : positive);
}

} // namespace

std::string flightRemarks(const ScriptedFlight& flight) {
    constexpr double ticksPerSecond = 3;
    std::string remarks;
    for (const WrittenBox& box : flight.boxes()) {
        std::string text = box.title + ": " + box.text;
        std::replace(text.begin(), text.end(), '\n', ' ');
        remarks += "After " + number(box.tick / ticksPerSecond, timeDigits) + " s: " + text + "\n";
    }
    if (flight.stopped())
        remarks += "The flight was stopped before its end.\n";
    return remarks;
}

std::string flightSummary(ScriptedFlight& flight) {
    const FlightRow end = presentRow(flight);
    return flight.plan().file + ": " + number(end.seconds, timeDigits) + " s flown in " +
           number(end.tick) + " ticks, recorded up to sample " + number(end.sample) + "\n" +
           "End: " + side(end.latitude, " N", " S") + " " + side(end.longitude, " E", " W") +
           ", heading " + number(end.heading) + ", " + number(end.tas) + " kt, track " +
           number(end.track) + ", " + number(end.groundSpeed) + " kt over the ground\n" +
           flightRemarks(flight);
}

} // namespace tarnel
