#include "persistence/flight_shelf.h"

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "persistence/file_path.h"
#include "persistence/line_writer.h"
#include "persistence/sample_fields.h"
#include "persistence/save_file.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/process.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <tuple>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

constexpr const char* copyPrefix = "live-";
constexpr const char* flightSuffix = ".ts";
constexpr const char* trackSuffix = ".track";
constexpr const char* lockSuffix = ".lock";
constexpr const char* offeredName = "offered";
constexpr std::size_t offeredLimit = 256;
/// More than all comments and stations of a session take, in bytes.
constexpr std::size_t headLimit = std::size_t{512} << 10;

/// What the name of a flight's file tells: "20260131T120000Z-400s-1234-0-1.ts".
struct FlightName {
    std::int64_t time = 0;
    int seconds = 0;
    int counter = 0;
};

std::string dateText(std::int64_t time) {
    using namespace std::chrono;
    const sys_seconds moment{seconds{time}};
    const auto day = floor<days>(moment);
    const year_month_day date{day};
    const hh_mm_ss clock{moment - day};
    return zeroPadded(int{date.year()}, 4) + zeroPadded(unsigned{date.month()}, 2) +
           zeroPadded(unsigned{date.day()}, 2) + "T" + zeroPadded(clock.hours().count(), 2) +
           zeroPadded(clock.minutes().count(), 2) + zeroPadded(clock.seconds().count(), 2) + "Z";
}

std::optional<FlightName> parsed(const std::string& name) {
    using namespace std::chrono;
    int year_ = 0, hour = 0, minute = 0, second = 0, end = 0;
    unsigned month_ = 0, day_ = 0;
    FlightName result;
    const int found =
        std::sscanf(name.c_str(), "%4d%2u%2uT%2d%2d%2dZ-%6ds-%*d-%*d-%9d.ts%n", &year_, &month_,
                    &day_, &hour, &minute, &second, &result.seconds, &result.counter, &end);
    if (found != 8 || static_cast<std::size_t>(end) != name.size())
        return {};
    const sys_days date{year{year_} / month{month_} / day{day_}};
    result.time = (sys_seconds{date} + hours{hour} + minutes{minute} + seconds{second})
                      .time_since_epoch()
                      .count();
    return result;
}

std::string trackOf(const std::string& flight) {
    return textOf(pathOf(flight).replace_extension(trackSuffix));
}

/// The first `most` bytes of a file, fewer if it has no more.
std::string headOf(const std::string& path, std::size_t most) {
    std::string bytes(most, '\0');
    std::ifstream file(pathOf(path), std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::string stationsOf(const StationBlock& block) {
    std::string names;
    for (const ChartStation& station : block.stations)
        if (station.identifier && !station.identifier->empty())
            names += (names.empty() ? "" : " ") + *station.identifier;
    return names;
}

std::string trackBytes(const ReferenceTrack& track) {
    LineWriter lines({}, {}, 0);
    for (int i = 1; i <= track.size(); ++i) {
        lines.numberLine(track.at(i).latitude);
        lines.numberLine(track.at(i).longitude);
    }
    return std::move(lines).finish();
}

/// A damaged track is none: half of one would call a right flight wrong.
ReferenceTrack readTrack(const std::string& path) {
    try {
        LineSource lines(readFileBytes(path, largestSession));
        lines.openPlain();
        ReferenceTrack track;
        while (!lines.atEnd()) {
            const double latitude = lines.nextNumber(SampleRules::latitude);
            track.append({latitude, lines.nextNumber(SampleRules::longitude)});
        }
        return track;
    } catch (const RunTimeError&) {
    } catch (const FileProblem&) {
    }
    return {};
}

void write(const KeptFlight& flight, const std::string& path, bool withTrack) {
    if (withTrack)
        saveFileBytes(trackOf(path), trackBytes(flight.reference));
    saveFileBytes(path, writeSession(flight.session, {}));
}

void removeFlight(const std::string& path) {
    std::error_code ignored;
    fs::remove(pathOf(path), ignored);
    fs::remove(pathOf(trackOf(path)), ignored);
}

/// The names of the regular files in `folder`.
std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code failure;
    for (auto entry = fs::directory_iterator(pathOf(folder), failure);
         !failure && entry != fs::directory_iterator(); entry.increment(failure))
        if (std::error_code ignored; entry->is_regular_file(ignored))
            names.push_back(textOf(entry->path().filename()));
    return names;
}

std::size_t samplesIn(const std::string& bytes) {
    constexpr std::string_view sampleEnd = "\n---\r\n";
    std::size_t count = 0;
    for (std::size_t at = bytes.find(sampleEnd); at != std::string::npos;
         at = bytes.find(sampleEnd, at + 1))
        ++count;
    return count;
}

} // namespace

int secondsOfSamples(std::size_t samples) {
    constexpr std::size_t ticksPerSample = 4;
    constexpr std::size_t ticksPerSecond = 3;
    return static_cast<int>(samples * ticksPerSample / ticksPerSecond);
}

FlightShelf::FlightShelf(std::string place) : folder(std::move(place)) {
    constexpr int mostPrograms = 100;
    std::error_code ignored;
    fs::create_directories(portablePath(folder), ignored);
    folder = textOf(portablePath(folder));
    for (int i = 0; i < mostPrograms && !lock; ++i) {
        program = numberText(std::int64_t{ownProcess()}) + "-" + numberText(std::int64_t{i});
        // A program that had this number before may have left its copy.
        if (!fs::exists(pathOf(inFolder(copyPrefix + program + flightSuffix)), ignored))
            lock = LockFile::take(inFolder(copyPrefix + program + lockSuffix));
    }
}

std::string FlightShelf::inFolder(const std::string& name) const {
    return textOf(pathOf(folder) / pathOf(name));
}

std::string FlightShelf::nextName(std::int64_t time, int seconds) {
    const std::string start =
        dateText(time) + "-" + numberText(std::int64_t{seconds}) + "s-" + program + "-";
    std::string path;
    std::error_code ignored;
    do {
        path = inFolder(start + numberText(std::int64_t{counter++}) + flightSuffix);
    } while (fs::exists(pathOf(path), ignored));
    return path;
}

void FlightShelf::put(const KeptFlight& flight, std::int64_t time) {
    write(flight, nextName(time, secondsOfSamples(flight.session.samples.size())),
          !flight.reference.empty());
    prune();
}

std::vector<ShelvedFlight> FlightShelf::flights() const {
    std::vector<std::pair<FlightName, std::string>> found;
    for (const std::string& name : namesIn(folder))
        if (const auto told = parsed(name))
            found.emplace_back(*told, name);
    std::ranges::sort(found, [](const auto& a, const auto& b) {
        return std::tie(a.first.time, a.first.counter, a.second) >
               std::tie(b.first.time, b.first.counter, b.second);
    });
    std::vector<ShelvedFlight> all;
    all.reserve(found.size());
    for (const auto& [told, name] : found)
        all.push_back({told.time, told.seconds, inFolder(name), {}});
    return all;
}

std::string FlightShelf::stations(const ShelvedFlight& flight) {
    return stationsOf(flight.unwritten ? flight.unwritten->session
                                       : readSessionHead(headOf(flight.path, headLimit)));
}

KeptFlight FlightShelf::read(const ShelvedFlight& flight) {
    if (flight.unwritten)
        return *flight.unwritten;
    return {readSession(readFileBytes(flight.path, largestSession)),
            readTrack(trackOf(flight.path))};
}

void FlightShelf::writeCopy(const KeptFlight& flight) {
    const bool newTrack = flight.reference != copiedTrack;
    write(flight, inFolder(copyPrefix + program + flightSuffix), newTrack);
    copiedTrack = flight.reference;
}

void FlightShelf::dropCopy() {
    removeFlight(inFolder(copyPrefix + program + flightSuffix));
    copiedTrack.clear();
}

void FlightShelf::adoptCopies(int leastSeconds) {
    for (const std::string& name : namesIn(folder)) {
        const fs::path file = pathOf(name);
        if (!name.starts_with(copyPrefix) || file.extension() == trackSuffix)
            continue;
        const auto left = LockFile::take(inFolder(textOf(file.stem()) + lockSuffix));
        const std::string copy = inFolder(textOf(file.stem()) + flightSuffix);
        if (left && fs::exists(pathOf(copy)))
            adopt(copy, leastSeconds);
    }
    prune();
}

/// Its time is that of its last writing.
void FlightShelf::adopt(const std::string& copy, int leastSeconds) {
    const auto found = factsOf(pathOf(copy));
    std::error_code failure;
    const int seconds = secondsOfSamples(samplesIn(headOf(copy, largestSession)));
    if (!found || seconds < leastSeconds) {
        removeFlight(copy);
        return;
    }
    const std::string flight = nextName(found->changed, seconds);
    fs::rename(pathOf(trackOf(copy)), pathOf(trackOf(flight)), failure);
    fs::rename(pathOf(copy), pathOf(flight), failure);
}

void FlightShelf::prune() const {
    const std::vector<ShelvedFlight> all = flights();
    for (std::size_t i = most; i < all.size(); ++i)
        removeFlight(all[i].path);
}

void FlightShelf::noteOffered(const ShelvedFlight& flight) const {
    try {
        saveFileBytes(inFolder(offeredName), textOf(pathOf(flight.path).filename()));
    } catch (const RunTimeError&) {
        // The flight is offered once more.
    }
}

bool FlightShelf::wasOffered(const ShelvedFlight& flight) const {
    return headOf(inFolder(offeredName), offeredLimit) == textOf(pathOf(flight.path).filename());
}

} // namespace tarnel
