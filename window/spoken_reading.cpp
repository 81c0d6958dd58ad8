#include "window/spoken_reading.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "shell/text_format.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnel {

namespace {

constexpr double dotsASide = 5;

/// Collects the parts of a sentence.
class Sentence {
  public:
    explicit Sentence(const StringTable& table) : texts(table) {}

    void add(Text text) { append(std::string(texts[text])); }
    void add(Text text, double degrees) {
        append(filledIn(texts[text], {zeroPadded(toInt32(intoCircle(degrees)), 3)}));
    }
    void add(Text text, const std::string& value) { append(filledIn(texts[text], {value})); }
    [[nodiscard]] std::string take() { return std::move(words); }

  private:
    void append(const std::string& part) { words += words.empty() ? part : ", " + part; }

    const StringTable& texts;
    std::string words;
};

void addDots(Sentence& sentence, double travel) {
    const double halfDots = std::round(std::abs(travel) * dotsASide * 2);
    const double dots = halfDots / 2;
    if (dots == 0)
        sentence.add(Text::spokenCentred);
    else if (dots == 1)
        sentence.add(travel < 0 ? Text::spokenOneDotLeft : Text::spokenOneDotRight);
    else
        sentence.add(travel < 0 ? Text::spokenDotsLeft : Text::spokenDotsRight, numberText(dots));
}

void addFlag(Sentence& sentence, FlagState flag) {
    if (flag == FlagState::to)
        sentence.add(Text::spokenTo);
    else if (flag == FlagState::from)
        sentence.add(Text::spokenFrom);
    else
        sentence.add(Text::spokenLocalizer);
}

void addDeviation(Sentence& sentence, const UserControl_1& instrument,
                  const InstrumentReading& reading) {
    sentence.add(Text::spokenCourse, reading.course);
    if (!reading.received) {
        sentence.add(Text::spokenNoSignal);
        return;
    }
    addDots(sentence, barTravel(receiverFor(instrument.c_LOCEN), reading.deviation));
    addFlag(sentence, reading.flag);
}

bool shows(const InstrumentReading& reading, InstrumentKind kind) {
    return reading.display == static_cast<std::int16_t>(kind);
}

} // namespace

std::string spokenReading(const UserControl_1& instrument, const StringTable& texts) {
    using enum InstrumentKind;
    Sentence sentence(texts);
    const InstrumentReading reading = instrument.reading();
    const bool deviation = shows(reading, vor) || shows(reading, hsi);
    if (!shows(reading, vor))
        sentence.add(Text::spokenHeading, reading.cardHeading);
    if (shows(reading, adf))
        sentence.add(Text::spokenBearing, instrument.adfradial - instrument.angle);
    if (shows(reading, rmi)) {
        sentence.add(Text::spokenNeedleOne, instrument.adfradial - instrument.angle);
        sentence.add(Text::spokenNeedleTwo, instrument.adf2radial - instrument.angle);
    }
    if (deviation)
        addDeviation(sentence, instrument, reading);
    if (instrument.picture.Line17to23.front().visible)
        sentence.add(Text::spokenHeadingBug, instrument.c_HDGbug);
    if (instrument.c_DisableKnobs == 0)
        sentence.add(Text::spokenLocked);
    return sentence.take();
}

Text spokenKind(std::int16_t display) {
    constexpr std::array names{Text::spokenAdf, Text::spokenRmi, Text::spokenVor, Text::spokenHsi};
    const auto index = static_cast<std::size_t>(display - 1);
    return index < names.size() ? names[index] : Text::spokenDg;
}

std::string spokenDigits(const DigitReadout& digits, std::size_t pointAfter,
                         const StringTable& texts) {
    const auto& pictures = digits.pictures();
    const auto all = [&pictures](std::int16_t picture) {
        return std::all_of(pictures.begin(), pictures.end(),
                           [picture](std::int16_t shown) { return shown == picture; });
    };
    if (all(DigitReadout::blankPicture))
        return std::string(texts[Text::spokenSwitchedOff]);
    if (all(DigitReadout::dashPicture))
        return std::string(texts[Text::spokenNoSignal]);
    std::string words;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        if (i == pointAfter && i > 0)
            words += '.';
        if (pictures[i] < DigitReadout::dashPicture)
            words += static_cast<char>('0' + pictures[i] - 1);
    }
    return words;
}

std::string spokenDme(const DMEControlFace& face, const StringTable& texts) {
    constexpr std::size_t wholeMiles = 2;
    const std::string distance = spokenDigits(face.distance, wholeMiles, texts);
    if (face.distance.pictures().front() >= DigitReadout::dashPicture)
        return distance;
    return filledIn(texts[Text::spokenDmeDistance], {distance, spokenDigits(face.speed, 0, texts)});
}

} // namespace tarnel
