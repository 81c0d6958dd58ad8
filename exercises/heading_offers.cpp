#include "exercises/heading_offers.h"

#include "core/angle.h"
#include "core/number_text.h"
#include "core/rounding.h"

#include <cmath>

namespace tarnel {

std::string headingCaption(double heading) {
    const std::int32_t degrees = toInt32(heading);
    std::string digits = numberText(std::int64_t{degrees == 0 ? 360 : degrees});
    if (degrees == 0 || degrees > 99)
        return digits;
    return (degrees > 9 ? "0" : "00") + digits;
}

std::vector<std::string> HeadingOffers::captions() const {
    std::vector<std::string> texts;
    for (const std::int16_t offset : offsets)
        texts.push_back(headingCaption(notAbove359(base + offset)));
    return texts;
}

bool HeadingOffers::isRight(int option) const {
    const std::int16_t offset = offsets[static_cast<std::size_t>(option)];
    return std::fmod(base + offset - right, 360) == 0;
}

} // namespace tarnel
