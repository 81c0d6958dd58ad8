#include "core/number_text.h"
#include "engine/user_control_2.h"

#include <utility>

namespace tarnel {

namespace {

/// What `c_WindSetEN` asks for.
constexpr std::int16_t noWind = 0;
constexpr std::int16_t drawnWind = 1;
constexpr std::int16_t chanceWind = 2;
constexpr std::int16_t lastWindAgain = 3;

constexpr int chanceStep = 5; ///< degrees and knots of a wind by chance

} // namespace

void UserControl2::switchWind() {
    if (c_WindSetEN != drawnWind && mouse.windTool())
        mouse.cancel();
    HandStep step = beginStep(Deed::setWind);
    if (c_WindSetEN == noWind)
        takeWind({}, WindSource::none);
    else if (c_WindSetEN == lastWindAgain)
        takeWind(lastWind, WindSource::byHand);
    else if (c_WindSetEN == drawnWind)
        mouse.pickWindTool();
    else if (c_WindSetEN == chanceWind)
        drawWindByChance();
    publishWind();
    finishStep(std::move(step));
}

void UserControl2::takeWind(const Wind& next, WindSource source) {
    wind = next;
    windSource = source;
}

void UserControl2::randomize() {
    if (const auto seed = clockSeed ? clockSeed() : std::nullopt)
        random.seed(*seed);
}

/// The winds by chance of a session stay what they are when its replay brings them again. From 0
/// to 350 degrees and 5 to 45 kt, in steps of 5.
void UserControl2::drawWindByChance() {
    randomize();
    const double direction = random.below(71) * chanceStep;
    const auto speed = static_cast<std::int16_t>((random.below(9) + 1) * chanceStep);
    lastWind = {direction, speed};
    chanceWinds.push_back(lastWind);
    takeWind(lastWind, WindSource::byChance);
}

void UserControl2::setWind(const Wind& next) {
    HandStep step = beginStep(Deed::setWind);
    step.joins = true;
    lastWind = next;
    takeWind(next, WindSource::byHand);
    c_WindSetEN.publish(lastWindAgain);
    publishWind();
    finishStep(std::move(step));
}

void UserControl2::drawWind(const Wind& next) {
    lastWind = next;
    takeWind(next, WindSource::byHand);
    publishWind();
}

void UserControl2::tellChanceWind(bool told) {
    if (std::exchange(chanceWindTold, told) != told)
        showWindLabel();
}

void UserControl2::tellWind() {
    c_wind.publish(numberText(wind.direction) + "/" + numberText(std::int64_t{wind.speed}));
}

void UserControl2::publishWind() {
    tellWind();
    refresh();
}

} // namespace tarnel
