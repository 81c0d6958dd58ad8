#include "authoring/route.h"

#include "authoring/wording.h"

#include <cmath>

namespace tarnel {

namespace {

/// The reading that stands for a mark without its braces; nothing for another one.
std::optional<LocalText> reading(const Pilot& pilot, const std::string& mark, double lead) {
    if (mark == "lead")
        return number(lead);
    if (mark == "heading")
        return same(threeDigits(pilot.now().heading));
    if (mark == "clock")
        return minutesAndSeconds(pilot.stopwatch());
    const auto colon = mark.find(':');
    if (colon == std::string::npos)
        return std::nullopt;
    const auto station = pilot.slotOf(mark.substr(colon + 1));
    const std::string what = mark.substr(0, colon);
    if (!station)
        return std::nullopt;
    if (what == "radial")
        return same(threeDigits(pilot.from(*station).radial));
    if (what == "qdm")
        return same(threeDigits(pilot.from(*station).radial + 180));
    if (what == "relative")
        return same(threeDigits(pilot.from(*station).radial + 180 - pilot.now().heading));
    if (what == "distance")
        return tenths(pilot.from(*station).distance);
    if (what == "dme")
        return tenths(pilot.dme(*station));
    return std::nullopt;
}

std::string filledIn(const Pilot& pilot, const LocalText& text, Language language, double lead) {
    std::string filled = text.in(language);
    for (std::size_t open = 0; (open = filled.find('{', open)) != std::string::npos;) {
        const auto close = filled.find('}', open);
        if (close == std::string::npos)
            break;
        const auto value = reading(pilot, filled.substr(open + 1, close - open - 1), lead);
        if (!value)
            throw LostPilot("{heading}, {clock}, {lead}, or {radial:STATION}, {qdm:STATION}, "
                            "{relative:STATION}, {dme:STATION}, {distance:STATION}, with VOR or "
                            "NDB before a name that two stations share, not " +
                            filled.substr(open, close - open + 1));
        filled.replace(open, close - open + 1, value->in(language));
        open += value->in(language).size();
    }
    return filled;
}

void tell(Pilot& pilot, const LocalText& text, double lead) {
    if (!text.empty())
        pilot.say({filledIn(pilot, text, Language::german, lead),
                   filledIn(pilot, text, Language::english, lead)});
}

/// Flies what a leg holds.
struct Flying {
    Pilot& pilot;
    const RouteLeg& told;

    void operator()(const Straight& leg) const { pilot.wait(leg.seconds); }
    void operator()(const TurnTo& leg) const { pilot.turnTo(leg.heading, leg.turn); }
    void operator()(const FlyOver& leg) const {
        pilot.flyUntil([&] { return pilot.isOver(leg.station); });
    }
    void operator()(const HomeTo& leg) const;
    void operator()(const ToRadial& leg) const;
    void operator()(const TrackAlong& leg) const;
    void operator()(const Intercept& leg) const {
        fly(pilot, leg, [this](double lead) { tell(pilot, told.turnComment, lead); });
    }
    void operator()(const Holding& leg) const { fly(pilot, leg); }
    void operator()(const Arc& leg) const { fly(pilot, leg); }
};

void Flying::operator()(const HomeTo& leg) const {
    const double goal = leg.distance.value_or(0);
    pilot.flyUntil([&] {
        const FromStation place = pilot.from(leg.station);
        if (place.distance <= goal || (!leg.distance && pilot.isOver(leg.station)))
            return true;
        // Right over the station its bearing is nobody's to follow.
        constexpr double cone = 0.3; ///< NM
        if (place.distance > cone)
            pilot.set({.heading = static_cast<std::int16_t>(wholeDegrees(place.radial + 180))});
        return false;
    });
}

void Flying::operator()(const ToRadial& leg) const {
    const auto behind = [&] { return turnBetween(leg.radial, pilot.from(leg.station).radial); };
    const double first = behind();
    pilot.flyUntil([&] { return std::signbit(behind()) != std::signbit(first); });
}

void Flying::operator()(const TrackAlong& leg) const {
    const double end = pilot.seconds() + leg.seconds.value_or(0);
    const auto left = [&] {
        return pilot.from(leg.line.station).distance - leg.distance.value_or(0);
    };
    const double first = left();
    pilot.track(leg.line, [&] {
        if (leg.seconds)
            return pilot.seconds() >= end;
        if (leg.distance)
            return std::signbit(left()) != std::signbit(first);
        return pilot.from(leg.line.station).alongTrack(leg.line.course) >= 0;
    });
}

} // namespace

void flyLeg(Pilot& pilot, const RouteLeg& leg) {
    pilot.set(leg.settings);
    if (leg.restartsStopwatch)
        pilot.restartStopwatch();
    tell(pilot, leg.comment, 0);
    std::visit(Flying{pilot, leg}, leg.manoeuvre);
}

} // namespace tarnel
