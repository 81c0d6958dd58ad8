#include "core/number_text.h"
#include "engine/user_control_2.h"

namespace tarnel {

namespace {

/// What `c_WindSetEN` asks for.
constexpr std::int16_t noWind = 0;
constexpr std::int16_t drawnWind = 1;
constexpr std::int16_t chanceWind = 2;
constexpr std::int16_t lastWindAgain = 3;

constexpr int step = 5; ///< degrees and knots of a wind by chance

} // namespace

void UserControl2::switchWind() {
    if (c_WindSetEN != drawnWind && mouse.windTool())
        mouse.cancel();
    if (c_WindSetEN == noWind)
        wind = {};
    else if (c_WindSetEN == lastWindAgain)
        wind = lastWind;
    else if (c_WindSetEN == drawnWind)
        mouse.pickWindTool();
    else if (c_WindSetEN == chanceWind)
        drawWindByChance();
    publishWind();
}

void UserControl2::randomize() {
    if (const auto seed = clockSeed ? clockSeed() : std::nullopt)
        random.seed(*seed);
}

/// From 0 to 350 degrees and 5 to 45 kt, in steps of 5.
void UserControl2::drawWindByChance() {
    randomize();
    wind.direction = random.below(71) * step;
    wind.speed = static_cast<std::int16_t>((random.below(9) + 1) * step);
    lastWind = wind;
}

void UserControl2::setWind(const Wind& next) {
    wind = lastWind = next;
    c_WindSetEN.publish(lastWindAgain);
    publishWind();
}

void UserControl2::drawWind(const Wind& next) {
    wind = lastWind = next;
    publishWind();
}

void UserControl2::tellWind() {
    c_wind.publish(numberText(wind.direction) + "/" + numberText(std::int64_t{wind.speed}));
}

void UserControl2::publishWind() {
    tellWind();
    refresh();
}

} // namespace tarnel
