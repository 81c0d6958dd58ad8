#include "shell/chart_finder.h"

#include "core/number_text.h"
#include "core/station_geometry.h"
#include "navdata/anywhere_chart.h"
#include "persistence/file_bytes.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"
#include "shell/problem_text.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace tarnel {

namespace {

constexpr std::size_t mostHits = 200;
constexpr std::size_t mostOffers = 40;

std::string whole(double number) {
    return numberText(std::int64_t{std::llround(number)});
}

/// Sentences behind each other.
void append(std::string& text, std::string_view sentence) {
    if (!text.empty())
        text += ' ';
    text += sentence;
}

Text kindName(const Navaid& navaid) {
    switch (navaid.kind) {
    case NavaidKind::omnirange:
        return navaid.hasDme ? Text::navVorDme : Text::navVor;
    case NavaidKind::beacon:
        return Text::navNdb;
    case NavaidKind::localizer:
        break;
    }
    return navaid.hasDme ? Text::navLocalizerDme : Text::navLocalizer;
}

/// The other slot for stations of the same kind.
std::optional<Slot> twinOf(Slot slot) {
    switch (slot) {
    case Slot::vor1:
        return Slot::vor2;
    case Slot::vor2:
        return Slot::vor1;
    case Slot::ndb1:
        return Slot::ndb2;
    case Slot::ndb2:
        return Slot::ndb1;
    case Slot::localizer:
        break;
    }
    return {};
}

} // namespace

ChartFinder::ChartFinder(UserControl2& simulation, BoxDesk& boxDesk, const NavFolders& navFolders,
                         LongJob whileReading)
    : sim(simulation),
      boxes(boxDesk),
      folders(navFolders),
      longJob(std::move(whileReading)),
      found(findNavData(navFolders)) {
    if (!found.empty())
        read(0);
}

std::string ChartFinder::titleOf(const NavPlace& place) const {
    static constexpr Text names[] = {Text::navFlightGear, Text::navXPlane, Text::navOurAirports};
    std::string file = textOf(place.file);
    const std::string home = textOf(folders.home) + "/";
    if (home.size() > 1 && file.starts_with(home))
        file.replace(0, home.size(), "~/");
    if (place.program == NavProgram::other)
        return file;
    return std::string(boxes.texts[names[static_cast<std::size_t>(place.program)]]) + " - " + file;
}

void ChartFinder::read(std::size_t place) {
    if (readFile(found[place]))
        readOne = place;
}

void ChartFinder::readOther() {
    const auto text = [this](Text id) { return std::string(boxes.texts[id]); };
    const auto path =
        boxes.chooseFile({.saves = false,
                          .title = text(Text::chartFinderTitle),
                          .present = readOne ? textOf(found[*readOne].file) : "",
                          .folder = textOf(folders.downloads),
                          .filter = text(Text::navDataFilter) + ";;" + text(Text::anyFileFilter),
                          .extension = {}});
    if (!path)
        return;
    const NavPlace place{NavProgram::other, pathOf(*path)};
    const auto known = std::ranges::find(found, place.file, &NavPlace::file);
    if (known != found.end())
        return read(static_cast<std::size_t>(known - found.begin()));
    if (!readFile(place))
        return;
    found.push_back(place);
    readOne = found.size() - 1;
}

bool ChartFinder::readFile(const NavPlace& place) {
    const std::string path = textOf(place.file);
    std::string trouble;
    try {
        NavData data;
        longJob([&] {
            data = readNavData(readFileBytes(path, largestNavData));
            if (data.refused)
                return;
            addRunways(data, place);
            index = NavaidIndex(std::move(data.navaids));
            data.navaids.clear();
        });
        if (!data.refused) {
            told = std::move(data);
            hitList.clear();
            middle.reset();
            choice = {};
            return true;
        }
        trouble = problemText(boxes.texts, *data.refused);
    } catch (const RunTimeError& error) {
        trouble = causeText(boxes.texts, error.cause());
    }
    boxes.show(Text::chartFinderTitle,
               path + "\n" + trouble + "\n" + std::string(boxes.texts[Text::nothingChanged]));
    return false;
}

/// OurAirports keeps its runways in a file beside the stations. Without it there are no localizers.
void ChartFinder::addRunways(NavData& data, const NavPlace& place) {
    hasRunways = false;
    if (data.version != 0)
        return;
    try {
        const auto file = place.file.parent_path() / "runways.csv";
        NavData runways = readRunways(readFileBytes(textOf(file), largestNavData));
        hasRunways = !runways.navaids.empty();
        std::ranges::move(runways.navaids, std::back_inserter(data.navaids));
    } catch (const RunTimeError&) {
        // `summary` tells that there are none, and where they are looked for.
    }
}

std::string ChartFinder::summary() const {
    const StringTable& texts = boxes.texts;
    if (!readOne)
        return std::string(texts[Text::navDataMissing]);
    std::string text =
        filledIn(texts[Text::navDataCount], {numberText(static_cast<std::int64_t>(index.size()))});
    if (told.firstWrong)
        append(text,
               filledIn(texts[Text::navRowsLeftOut], {numberText(std::int64_t{told.wrongRows}),
                                                      problemText(texts, *told.firstWrong)}));
    if (told.version == 0 && !hasRunways)
        append(text, texts[Text::navNoLocalizers]);
    return text;
}

void ChartFinder::search(const std::string& words) {
    hitList = index.search(words, mostHits);
    searched = words.find_first_not_of(' ') != std::string::npos;
}

std::string ChartFinder::searchNote() const {
    if (!readOne || !hitList.empty())
        return {};
    return std::string(boxes.texts[searched ? Text::navNothingFound : Text::navChooseHit]);
}

ChartFinder::StationLine ChartFinder::lineOf(std::size_t station) const {
    const Navaid& navaid = index[station];
    const StringTable& texts = boxes.texts;
    const Text unit = navaid.kind == NavaidKind::beacon ? Text::unitKilohertz : Text::unitMegahertz;
    return {.identifier = navaid.identifier,
            .name = navaid.kind == NavaidKind::localizer ? navaid.airport + " " + navaid.runway
                                                         : navaid.name,
            .kind = std::string(texts[kindName(navaid)]),
            .frequency = frequencyText(navaid) + " " + std::string(texts[unit])};
}

void ChartFinder::choosePlace(std::size_t station) {
    if (middle == station)
        return;
    middle = station;
    choice = proposeStations(index, index[station].position);
}

std::vector<std::size_t> ChartFinder::offers(Slot slot) const {
    std::vector<std::size_t> stations;
    if (middle)
        for (const NearNavaid& near :
             index.nearest(index[*middle].position, kindOf(slot), mostOffers))
            stations.push_back(near.index);
    return stations;
}

std::string ChartFinder::offerText(std::size_t station) const {
    const StringTable& texts = boxes.texts;
    const Navaid& navaid = index[station];
    const StationLine line = lineOf(station);
    std::string text = line.identifier + ", ";
    if (line.name != line.identifier)
        text += line.name + ", ";
    text += line.kind + " " + line.frequency;
    if (navaid.kind == NavaidKind::localizer)
        text += ", " + filledIn(texts[Text::navCourse], {threeDigits(navaid.course)});
    const GeoPosition& from = index[*middle].position;
    GeoPosition to = navaid.position;
    to.longitude = from.longitude + std::remainder(to.longitude - from.longitude, 360.0);
    const double distance = greatCircleDistance(from, to);
    constexpr double leastWithBearing = 0.5;
    return text + ", " +
           (distance < leastWithBearing
                ? filledIn(texts[Text::navDistance], {"0"})
                : filledIn(texts[Text::navFromPlace],
                           {whole(distance), threeDigits(fromStation(from, to).radial)}));
}

void ChartFinder::exchange(Slot slot, std::optional<std::size_t> station) {
    if (const auto twin = twinOf(slot); twin && station && inSlot(choice, *twin) == station)
        inSlot(choice, *twin) = inSlot(choice, slot);
    inSlot(choice, slot) = station;
}

/// By how many degrees the radials that are published for a VOR differ from true ones.
std::string ChartFinder::variations() const {
    std::string list;
    for (const Slot slot : {Slot::vor1, Slot::vor2}) {
        const auto station = inSlot(choice, slot);
        const auto degrees = station ? std::llround(index[*station].variation) : 0;
        if (degrees == 0)
            continue;
        list += list.empty() ? "" : ", ";
        list += index[*station].identifier + (degrees > 0 ? " −" : " +") +
                numberText(std::int64_t{std::abs(degrees)}) + "°";
    }
    return list;
}

bool ChartFinder::nearEquator() const {
    constexpr double farthest = 2; // degrees
    return std::abs(index[*middle].position.latitude) < farthest;
}

std::string ChartFinder::notes() const {
    const StringTable& texts = boxes.texts;
    if (!middle)
        return {};
    std::string text(texts[Text::navAllTrue]);
    if (const std::string list = variations(); !list.empty())
        append(text, filledIn(texts[Text::navVariation], {list}));
    if (const auto localizer = inSlot(choice, Slot::localizer);
        localizer && !index[*localizer].frequency)
        append(text, filledIn(texts[Text::navRunway], {index[*localizer].identifier}));
    if (nearEquator())
        append(text, texts[Text::navEquator]);
    if (!mayMake())
        append(text, texts[Text::navNoChart]);
    return text;
}

std::optional<ChartFile> ChartFinder::chart() const {
    return chartOf(index, choice, sim.picture.size);
}

bool ChartFinder::mayMake() const {
    return chart().has_value();
}

std::string ChartFinder::suggestedName() const {
    std::string name = index[*middle].identifier;
    std::ranges::replace_if(
        name, [](char c) { return c == '/' || c == '\\' || c == ' '; }, '_');
    return name + ".map";
}

bool ChartFinder::make() {
    const auto made = chart();
    if (!made || !sim.saveAndOpenChart(*made, suggestedName()))
        return false;
    sim.resetView(); // also where no scale of a file shows all five
    return true;
}

} // namespace tarnel
