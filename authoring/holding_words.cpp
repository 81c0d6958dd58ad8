#include "authoring/holding_words.h"

#include "authoring/wording.h"
#include "core/wind_triangle.h"
#include "exercises/heading_offers.h"

#include <cmath>
#include <string>

namespace tarnel {

namespace {

using enum Phrase;

constexpr double nothing = 0.05; ///< knots that are none when written in tenths

LocalText side(double toTheRight) {
    return worded(toTheRight < 0 ? left : right);
}

LocalText components(const WindTriangle& triangle, const LocalText& wind,
                     const LocalText& inbound) {
    const LocalText along =
        worded(triangle.head < 0 ? tailWind : headWind, {tenths(std::abs(triangle.head))});
    const LocalText across = worded(triangle.fromRight < 0 ? windFromLeft : windFromRight,
                                    {tenths(std::abs(triangle.fromRight))});
    if (std::abs(triangle.fromRight) < nothing)
        return worded(windAlong, {wind, inbound, along});
    if (std::abs(triangle.head) < nothing)
        return worded(windAcross, {wind, inbound, across});
    return worded(windComponents, {wind, inbound, along, across});
}

LocalText correctionTold(const WindTriangle& triangle, double inbound, double tas) {
    const double heading = wholeDegrees(inbound + triangle.correction);
    if (std::abs(triangle.fromRight) < nothing)
        return worded(noCorrection, {courseText(heading)});
    return worded(correction,
                  {tenths(std::abs(triangle.fromRight)), number(tas),
                   tenths(std::abs(triangle.correction)), courseText(inbound),
                   same(triangle.correction < 0 ? "-" : "+"),
                   number(std::abs(turnBetween(inbound, heading))), courseText(heading)});
}

LocalText outboundTold(const WindTriangle& triangle) {
    if (std::abs(triangle.head) < nothing)
        return worded(sameSpeeds, {number(triangle.groundSpeed)});
    return worded(outboundTime,
                  {tenths(triangle.groundSpeed), tenths(triangle.groundSpeed + 2 * triangle.head),
                   number(outboundSeconds(triangle))});
}

} // namespace

LocalText sectorTold(const Holding& holding, double heading) {
    constexpr double nearLimit = 70; // degrees from the inbound course, against the turns
    constexpr double farLimit = 110; // with the turns
    const double angle = turnBetween(holding.inbound, heading);
    const bool rightTurns = holding.turns == Turn::right;
    const LocalText turned[] = {courseText(heading), courseText(holding.inbound),
                                number(std::abs(angle)), side(angle)};
    const std::string entry = answerOf(holding, heading).entry;
    if (entry == "direct")
        return worded(holdDirectSector, {turned[0], turned[1], turned[2], turned[3], worded(direct),
                                         number(rightTurns ? nearLimit : farLimit),
                                         number(rightTurns ? farLimit : nearLimit)});
    const bool isOffset = entry == "offset";
    return worded(holdSector,
                  {turned[0], turned[1], turned[2], turned[3], worded(isOffset ? offset : parallel),
                   number(isOffset ? farLimit : nearLimit), number(180),
                   worded(isOffset == rightTurns ? right : left)});
}

std::vector<LocalText> windTold(const Wind& wind, double inbound, double tas) {
    const WindTriangle triangle = windTriangle(wind, inbound, tas);
    const LocalText told = same(headingCaption(wind.direction) + "/" + std::to_string(wind.speed));
    return {components(triangle, told, courseText(inbound)), correctionTold(triangle, inbound, tas),
            outboundTold(triangle)};
}

} // namespace tarnel
