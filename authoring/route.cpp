#include "authoring/route.h"

#include "authoring/wording.h"

#include <cmath>

namespace tarnel {

namespace {

/// Flies what a leg holds.
struct Flying {
    Pilot& pilot;

    void operator()(const Straight& leg) const { pilot.wait(leg.seconds); }
    void operator()(const TurnTo& leg) const { pilot.turnTo(leg.heading, leg.turn); }
    void operator()(const FlyOver& leg) const {
        pilot.flyUntil([&] { return pilot.isOver(leg.station); });
    }
    void operator()(const ToRadial& leg) const;
    void operator()(const TrackAlong& leg) const;
    void operator()(const Intercept& leg) const { fly(pilot, leg); }
    void operator()(const Holding& leg) const { fly(pilot, leg); }
    void operator()(const Arc& leg) const { fly(pilot, leg); }
};

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

/// The reading that stands for a mark without its braces; nothing for another one.
std::optional<LocalText> reading(const Pilot& pilot, const std::string& mark) {
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
    if (what == "dme")
        return tenths(pilot.dme(*station));
    return std::nullopt;
}

std::string filledIn(const Pilot& pilot, const LocalText& text, Language language) {
    std::string filled = text.in(language);
    for (std::size_t open = 0; (open = filled.find('{', open)) != std::string::npos;) {
        const auto close = filled.find('}', open);
        if (close == std::string::npos)
            break;
        const auto value = reading(pilot, filled.substr(open + 1, close - open - 1));
        if (!value)
            throw LostPilot("{heading}, {clock}, {radial:STATION}, {qdm:STATION} or {dme:STATION}, "
                            "not " +
                            filled.substr(open, close - open + 1));
        filled.replace(open, close - open + 1, value->in(language));
        open += value->in(language).size();
    }
    return filled;
}

} // namespace

void flyLeg(Pilot& pilot, const RouteLeg& leg) {
    pilot.set(leg.settings);
    if (!leg.comment.empty())
        pilot.say({filledIn(pilot, leg.comment, Language::german),
                   filledIn(pilot, leg.comment, Language::english)});
    std::visit(Flying{pilot}, leg.manoeuvre);
}

} // namespace tarnel
