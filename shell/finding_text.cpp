#include "shell/finding_text.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "shell/text_format.h"

#include <array>
#include <cmath>

namespace tarnel {

namespace {

Text sentenceOf(const Finding& finding) {
    static constexpr Text sentences[] = {
#define FINDING(name, unit, limit, text) Text::text,
#include "debrief/findings.def"
    };
    if (finding.kind == FindingKind::leadRadial && finding.value < 0)
        return Text::findingLeadBehind;
    return sentences[static_cast<std::size_t>(finding.kind)];
}

bool isCorrection(FindingKind kind) {
    return kind == FindingKind::correctionIn || kind == FindingKind::correctionOut;
}

std::string sideText(double value, const StringTable& texts) {
    return std::string(texts[value < 0 ? Text::findingLeft : Text::findingRight]);
}

std::string entryText(double value, const StringTable& texts) {
    static constexpr std::array names = {Text::findingDirect, Text::findingParallel,
                                         Text::findingOffset};
    return std::string(texts[names.at(static_cast<std::size_t>(value))]);
}

/// Without the unit; whole numbers but for miles and small angles.
std::string digitsOf(double value, FindingUnit unit, const StringTable& texts) {
    constexpr double small = 10;
    const int decimals = unit == FindingUnit::nauticalMiles                        ? 2
                         : unit == FindingUnit::degrees && std::abs(value) < small ? 1
                                                                                   : 0;
    // No minus before a nought.
    const double rounded = roundTo(value, decimals) + 0.0;
    std::string digits = numberText(rounded);
    if (const auto point = digits.find('.'); point != std::string::npos)
        digits.replace(point, 1, texts[Text::decimalMark]);
    return digits;
}

std::string withUnit(const std::string& digits, FindingUnit unit, const StringTable& texts) {
    const std::string sign = unitText(unit, texts);
    if (sign.empty())
        return digits;
    return unit == FindingUnit::degrees ? digits + sign : digits + " " + sign;
}

std::string valueOf(const Finding& finding, double value, const StringTable& texts) {
    const FindingUnit unit = unitOf(finding.kind);
    if (finding.kind == FindingKind::leadRadial)
        return valueText(std::abs(value), unit, texts);
    if (!isCorrection(finding.kind))
        return valueText(value, unit, texts);
    const double size = roundTo(std::abs(value), 0);
    const std::string degrees = valueText(size, unit, texts);
    return size == 0 ? degrees : degrees + " " + sideText(value, texts);
}

/// What is wrong with a value that has one that is expected.
Text wrongBeside(const Finding& finding) {
    const double expected = *finding.expected;
    switch (unitOf(finding.kind)) {
    case FindingUnit::seconds:
        return finding.value < expected ? Text::verdictTooShort : Text::verdictTooLong;
    case FindingUnit::degrees:
        if (finding.value * expected < 0)
            return Text::verdictWrong;
        return std::abs(finding.value) < std::abs(expected) ? Text::verdictTooSmall
                                                            : Text::verdictTooLarge;
    default:
        return Text::verdictWrong;
    }
}

/// Who leads by more turns before he should.
std::string leadVerdict(const Finding& finding, const StringTable& texts) {
    const double early = finding.value - finding.expected.value_or(0);
    return filledIn(texts[early > 0 ? Text::verdictEarlyBy : Text::verdictLateBy],
                    {valueText(std::abs(early), FindingUnit::degrees, texts)});
}

/// What is wrong with a value that is larger than the greatest allowed.
Text wrongBeyond(const Finding& finding) {
    if (finding.kind == FindingKind::interceptAngle)
        return Text::verdictTooLarge;
    switch (unitOf(finding.kind)) {
    case FindingUnit::seconds:
        return Text::verdictTooLate;
    case FindingUnit::degrees:
    case FindingUnit::nauticalMiles:
        return Text::verdictTooFar;
    default:
        return Text::verdictTooLarge;
    }
}

} // namespace

std::string findingText(const Finding& finding, const StringTable& texts) {
    std::string said =
        filledIn(texts[sentenceOf(finding)], {valueOf(finding, finding.value, texts)});
    if (finding.verdict == Verdict::open)
        return said;
    if (finding.expected && finding.tolerance)
        return filledIn(texts[Text::findingShouldBeAbout],
                        {said, valueOf(finding, *finding.expected, texts),
                         digitsOf(*finding.tolerance, FindingUnit::count, texts)});
    if (finding.expected)
        return finding.verdict == Verdict::right
                   ? said
                   : filledIn(texts[Text::findingShouldBe],
                              {said, valueOf(finding, *finding.expected, texts)});
    if (finding.tolerance)
        return filledIn(texts[Text::findingAtMost],
                        {said, valueOf(finding, *finding.tolerance, texts)});
    return said;
}

std::string verdictText(const Finding& finding, const StringTable& texts) {
    if (finding.verdict == Verdict::open)
        return "";
    if (finding.verdict == Verdict::wrong && finding.kind == FindingKind::leadRadial)
        return leadVerdict(finding, texts);
    const Text word = finding.verdict == Verdict::right ? Text::verdictRight
                      : finding.expected                ? wrongBeside(finding)
                      : finding.tolerance               ? wrongBeyond(finding)
                                                        : Text::verdictWrong;
    return std::string(texts[word]);
}

std::string valueText(double value, FindingUnit unit, const StringTable& texts) {
    if (unit == FindingUnit::side)
        return sideText(value, texts);
    if (unit == FindingUnit::entry)
        return entryText(value, texts);
    return withUnit(digitsOf(value, unit, texts), unit, texts);
}

std::string unitText(FindingUnit unit, const StringTable& texts) {
    switch (unit) {
    case FindingUnit::degrees:
        return std::string(texts[Text::unitDegreeSign]);
    case FindingUnit::nauticalMiles:
        return std::string(texts[Text::unitNauticalMiles]);
    case FindingUnit::knots:
        return std::string(texts[Text::unitKnots]);
    case FindingUnit::seconds:
        return std::string(texts[Text::unitSecondSign]);
    case FindingUnit::percent:
        return std::string(texts[Text::unitPercent]);
    case FindingUnit::count:
    case FindingUnit::side:
    case FindingUnit::entry:
    case FindingUnit::words:
        break;
    }
    return "";
}

Text nameOf(PhaseKind phase) {
    static constexpr Text names[] = {Text::phaseApproach, Text::phaseJoin, Text::phaseTrack,
                                     Text::phaseEntry,    Text::phaseTurn, Text::phaseOutbound,
                                     Text::phaseInbound,  Text::phaseArc,  Text::phaseFinal};
    return names[static_cast<std::size_t>(phase)];
}

Text nameOf(SeriesKind series) {
    static constexpr Text names[] = {
        Text::seriesNeedle,  Text::seriesOffLine,  Text::seriesOffArc, Text::seriesOffReference,
        Text::seriesHeading, Text::seriesDistance, Text::seriesSpeed};
    return names[static_cast<std::size_t>(series)];
}

} // namespace tarnel
