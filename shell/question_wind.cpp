#include "shell/question_wind.h"

#include "core/number_text.h"
#include "core/station_geometry.h"
#include "shell/text_format.h"

namespace tarnel {

std::string questionWind(const StringTable& texts, const Wind& wind, std::int16_t tas) {
    if (wind.speed == 0)
        return {};
    return filledIn(texts[Text::questionWind],
                    {threeDigits(wind.direction), numberText(std::int64_t{wind.speed}),
                     numberText(std::int64_t{tas})});
}

} // namespace tarnel
