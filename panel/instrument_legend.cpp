#include "panel/instrument_legend.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "panel/signal_name.h"

namespace tarnel {

namespace {

std::string degreesText(const StringTable& texts, double degrees) {
    return zeroPadded(static_cast<std::int64_t>(roundToEven(degrees)), 3) +
           std::string(texts[Text::unitDegreeSign]);
}

std::string receiverName(const StringTable& texts, std::int16_t receiver) {
    return std::string(texts[receiver == 1 ? Text::faceNav1 : Text::faceNav2]);
}

LegendPart coursePart(NeedleRole needle, const StringTable& texts, double degrees) {
    const std::string value = degreesText(texts, degrees);
    return {needle, std::string(texts[Text::courseShort]) + " " + value, value};
}

LegendPart stationPart(NeedleRole needle, const StringTable& texts, const NeedleSource& source) {
    return {needle, std::string(texts[signalName(source.slot)])};
}

} // namespace

std::vector<LegendPart> instrumentLegend(const StringTable& texts,
                                         const InstrumentPosition& position,
                                         const FeedSources& sources, const QuestionCover& cover) {
    using enum NeedleRole;
    if (cover.instruments)
        return {};
    const NeedleSources needles = needleSources(position, sources);
    const std::string receiver = receiverName(texts, position.navSel);
    std::vector<LegendPart> parts;
    switch (position.type) {
    case adf:
        return {stationPart(first, texts, *needles.first)};
    case rmi:
        return {{first, receiver}, stationPart(second, texts, *needles.second)};
    case vor:
        parts = {{bar, receiver}};
        if (!cover.figures)
            parts.push_back(coursePart(none, texts, position.obs));
        return parts;
    case hsi:
        parts = {{arrow, receiver}};
        if (!cover.figures)
            parts.push_back(coursePart(arrow, texts, position.instrument.c_OBS_x));
        if (position.instrument.c_RMIoverlayEN == 1)
            parts.push_back(stationPart(overlay, texts, *needles.first));
        return parts;
    default:
        return {};
    }
}

} // namespace tarnel
