#include "window/dials/spoken_reading.h"

#include "core/angle.h"
#include "core/number_text.h"
#include "core/rounding.h"
#include "instruments/needle_role.h"
#include "panel/signal_name.h"
#include "shell/text_format.h"

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
    void addWords(const std::string& part) { append(part); }
    [[nodiscard]] std::string take() { return std::move(words); }

  private:
    void append(const std::string& part) { words += words.empty() ? part : ", " + part; }

    const StringTable& texts;
    std::string words;
};

void addDots(Sentence& sentence, const Receiver& receiver, double deviation) {
    constexpr double centredWithin = 0.25;
    constexpr int noise = 6; ///< decimals behind which a difference of angles means nothing
    const double travel = barTravel(receiver, deviation);
    const double exact = roundTo(std::abs(travel) * dotsASide, noise);
    const double steps = receiver.localizer ? 10 : 2;
    const double dots = std::round(exact * steps) / steps;
    if (exact <= centredWithin)
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

void addDeviation(Sentence& sentence, const UserControl_1& instrument, bool stationOn) {
    const InstrumentReading reading = instrument.reading();
    sentence.add(Text::spokenCourse, reading.course);
    if (!reading.received || !stationOn) {
        sentence.add(Text::spokenNoSignal);
        return;
    }
    addDots(sentence, receiverFor(instrument.c_LOCEN), reading.deviation);
    addFlag(sentence, reading.flag);
}

/// Says which station a needle follows. True if the needle has something to tell of it.
bool addStation(Sentence& sentence, const std::optional<SpokenStation>& station) {
    if (station)
        sentence.addWords(station->name);
    return !station || station->received;
}

void addPointer(Sentence& sentence, const std::optional<SpokenStation>& station, Text words,
                double bearing) {
    if (addStation(sentence, station))
        sentence.add(words, bearing);
    else
        sentence.add(Text::spokenNoSignal);
}

bool shows(const InstrumentReading& reading, InstrumentKind kind) {
    return reading.display == static_cast<std::int16_t>(kind);
}

} // namespace

std::optional<SpokenStation> spokenStation(const std::optional<NeedleSource>& source,
                                           const UserControl2& simulation,
                                           const StringTable& texts) {
    if (!source)
        return {};
    std::string name(texts[signalName(source->slot)]);
    name += ' ';
    name += simulation.slot(source->slot).name.get();
    return SpokenStation{std::move(name), source->received};
}

std::string spokenReading(const UserControl_1& instrument, const SpokenStations& stations,
                          const StringTable& texts) {
    using enum InstrumentKind;
    Sentence sentence(texts);
    const InstrumentReading reading = instrument.reading();
    if (!shows(reading, vor))
        sentence.add(Text::spokenHeading, reading.cardHeading);
    if (shows(reading, adf))
        addPointer(sentence, stations.first, Text::spokenBearing,
                   instrument.adfradial - instrument.angle);
    if (shows(reading, rmi)) {
        addPointer(sentence, stations.first, Text::spokenNeedleOne,
                   instrument.adfradial - instrument.angle);
        addPointer(sentence, stations.second, Text::spokenNeedleTwo,
                   instrument.adf2radial - instrument.angle);
    }
    if (instrument.showsCourse())
        addDeviation(sentence, instrument, addStation(sentence, stations.first));
    if (shows(reading, hsi) && instrument.c_RMIoverlayEN == 1)
        sentence.add(Text::spokenBearing, instrument.adf2radial - 180);
    if (hasHeadingBug(instrument.picture.kind))
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
    if (digits.isDark())
        return std::string(texts[Text::spokenSwitchedOff]);
    if (digits.showsDashes())
        return std::string(texts[Text::spokenNoSignal]);
    std::string words = digits.text();
    if (pointAfter > 0)
        words.insert(pointAfter, 1, '.');
    std::erase_if(words, [](char c) { return c == ' ' || c == '-'; });
    return words;
}

std::string spokenDme(const DMEControlFace& face, const std::optional<SpokenStation>& station,
                      const StringTable& texts) {
    constexpr std::size_t pointAfter = 2;
    Sentence sentence(texts);
    const std::string distance =
        spokenDigits(face.distance, face.wholeMiles() ? 0 : pointAfter, texts);
    const bool received = face.distance.isDark() || addStation(sentence, station);
    if (!received)
        sentence.add(Text::spokenNoSignal);
    else if (face.distance.isDark() || face.distance.showsDashes())
        sentence.addWords(distance);
    else
        sentence.addWords(filledIn(texts[Text::spokenDmeDistance],
                                   {distance, spokenDigits(face.speed, 0, texts)}));
    return sentence.take();
}

} // namespace tarnel
