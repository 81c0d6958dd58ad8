#include "shell/instrument_legend.h"

#include "core/number_text.h"
#include "core/rounding.h"

namespace tarnel {

namespace {

std::string degreesText(const StringTable& texts, double degrees) {
    return zeroPadded(static_cast<std::int64_t>(roundToEven(degrees)), 3) +
           std::string(texts[Text::unitDegreeSign]);
}

std::string receiverName(const StringTable& texts, std::int16_t receiver) {
    return std::string(texts[receiver == 1 ? Text::faceNav1 : Text::faceNav2]);
}

LegendPart coursePart(const StringTable& texts, double degrees) {
    const std::string value = degreesText(texts, degrees);
    return {LegendNeedle::course, std::string(texts[Text::courseShort]) + " " + value, value};
}

} // namespace

std::vector<LegendPart> instrumentLegend(const StringTable& texts,
                                         const InstrumentPosition& position,
                                         std::int16_t adfSelection) {
    const Text ndb = adfSelection == 0 ? Text::signalNdb1 : Text::signalNdb2;
    switch (position.type) {
    case adf:
        return {{LegendNeedle::first, std::string(texts[ndb])}};
    case rmi:
        return {{LegendNeedle::first, receiverName(texts, position.navSel)},
                {LegendNeedle::second, std::string(texts[ndb])}};
    case vor:
        return {{LegendNeedle::course, receiverName(texts, position.navSel)},
                coursePart(texts, position.obs)};
    case hsi:
        return {{LegendNeedle::course, receiverName(texts, position.navSel)},
                coursePart(texts, position.instrument.c_OBS_x)};
    default:
        return {};
    }
}

} // namespace tarnel
