#include "shell/debrief_words.h"

#include "core/number_text.h"
#include "shell/text_format.h"

#include <cmath>
#include <cstdint>

namespace tarnel {

namespace {

std::string tenths(double value) {
    const auto all = static_cast<std::int64_t>(std::llround(std::abs(value) * 10));
    return (value < 0 ? "-" : "") + numberText(all / 10) + "." + numberText(all % 10);
}

} // namespace

std::string sentenceOf(const StringTable& texts, const Finding& finding) {
    return filledIn(texts[Text::findingMeanOffReference], {valueOf(texts, finding)});
}

std::string valueOf(const StringTable& texts, const Finding& finding) {
    return tenths(finding.value) + " " + std::string(texts[Text::unitNauticalMiles]);
}

std::string verdictOf(const StringTable& texts, const Finding& finding) {
    static constexpr Text words[] = {Text::findingRight, Text::findingWrong, Text::findingTold};
    return std::string(texts[words[static_cast<std::size_t>(finding.verdict)]]);
}

std::string nameOf(const StringTable& texts, PhaseKind phase) {
    static constexpr Text names[] = {Text::phaseApproach, Text::phaseJoin, Text::phaseTrack,
                                     Text::phaseEntry,    Text::phaseTurn, Text::phaseOutbound,
                                     Text::phaseInbound,  Text::phaseArc,  Text::phaseFinal};
    return std::string(texts[names[static_cast<std::size_t>(phase)]]);
}

std::string nameOf(const StringTable& texts, SeriesKind series) {
    static constexpr Text names[] = {
        Text::seriesNeedle,  Text::seriesOffLine,  Text::seriesOffArc, Text::seriesOffReference,
        Text::seriesHeading, Text::seriesDistance, Text::seriesSpeed};
    return std::string(texts[names[static_cast<std::size_t>(series)]]);
}

std::string nameOf(const StringTable& texts, FindingUnit unit) {
    switch (unit) {
    case FindingUnit::degrees:
        return std::string(texts[Text::unitDegreeSign]);
    case FindingUnit::nauticalMiles:
        return std::string(texts[Text::unitNauticalMiles]);
    case FindingUnit::seconds:
        return "s";
    case FindingUnit::dots:
        return std::string(texts[Text::unitDots]);
    case FindingUnit::percent:
        return "%";
    case FindingUnit::knots:
        return std::string(texts[Text::unitKnots]);
    case FindingUnit::count:
    case FindingUnit::entry:
    case FindingUnit::words:
        break;
    }
    return {};
}

} // namespace tarnel
