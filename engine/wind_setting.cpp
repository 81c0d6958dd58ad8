#include "engine/wind_setting.h"

#include "core/number_text.h"

#include <algorithm>
#include <utility>

namespace tarnel {

namespace {

constexpr int chanceStep = 5; ///< degrees and knots of a wind by chance

/// `c_WindSetEN` of a wind that is put back.
WindRequest requestOf(WindSource source) {
    static constexpr WindRequest requests[] = {WindRequest::none, WindRequest::lastAgain,
                                               WindRequest::byChance, WindRequest::recorded};
    return requests[static_cast<std::size_t>(source)];
}

} // namespace

void WindSetting::takeAsked() {
    if (asked() == WindRequest::none)
        take({}, WindSource::none);
    else if (asked() == WindRequest::lastAgain)
        take(last, WindSource::byHand);
    else if (asked() == WindRequest::byChance)
        drawByChance();
    tell();
}

void WindSetting::take(const Wind& next, WindSource from) {
    wind = next;
    source = from;
}

/// From 0 to 350 degrees and 5 to 45 kt, in steps of 5.
void WindSetting::drawByChance() {
    RuntimeRandom& random = chance.draw();
    const double direction = random.below(71) * chanceStep;
    const auto speed = static_cast<std::int16_t>((random.below(9) + 1) * chanceStep);
    last = {direction, speed};
    chanceWinds.push_back(last);
    take(last, WindSource::byChance);
}

void WindSetting::takeByHand(const Wind& next) {
    last = next;
    take(next, WindSource::byHand);
    tell();
}

void WindSetting::chooseByHand(const Wind& next) {
    takeByHand(next);
    publish(WindRequest::lastAgain);
}

void WindSetting::takeRecorded(const Wind& next) {
    const bool blows = next.speed != 0;
    const bool byChance = std::ranges::find(chanceWinds, next) != chanceWinds.end();
    take(next, !blows ? WindSource::none : byChance ? WindSource::byChance : WindSource::recorded);
    if (blows)
        last = next;
    publish(next.direction > 0 && blows ? WindRequest::recorded : WindRequest::recordedWithZero);
    tell();
}

void WindSetting::calm() {
    take({}, WindSource::none);
    publish(WindRequest::none);
    tell();
}

void WindSetting::putBack(const WindState& earlier) {
    take(earlier.wind, earlier.source);
    last = earlier.last;
    publish(requestOf(source));
    tell();
}

bool WindSetting::tellChanceWind(bool told) {
    return std::exchange(chanceWindTold, told) != told;
}

void WindSetting::publish(WindRequest request) {
    properties.c_WindSetEN.publish(static_cast<std::int16_t>(request));
}

void WindSetting::tell() {
    properties.c_wind.publish(numberText(wind.direction) + "/" +
                              numberText(std::int64_t{wind.speed}));
}

} // namespace tarnel
