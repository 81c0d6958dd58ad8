#include "shell/flight_log.h"

#include "exercises/text_hash.h"
#include "persistence/flight_shelf.h"
#include "persistence/session_file.h"
#include "platform/path_text.h"
#include "shell/task_key.h"
#include "shell/task_text.h"
#include "shell/text_format.h"

#include <algorithm>
#include <bit>
#include <filesystem>

namespace tarnel {

namespace {

constexpr std::size_t fewestSamples = 2; ///< of a flight that can be judged

/// Tells flights apart by where the aircraft was and where it headed.
std::int64_t fingerprintOf(std::span<const Sample> samples) {
    std::string bytes;
    for (const Sample& sample : samples)
        for (const double value : {sample.traceLat, sample.traceLon, sample.traceHeading}) {
            const auto parts = std::bit_cast<std::array<char, sizeof value>>(value);
            bytes.append(parts.begin(), parts.end());
        }
    return static_cast<std::int64_t>(textHash(bytes));
}

} // namespace

struct FlightLog::Kept {
    LoggedFlight entry;
    SessionFile session;
};

FlightLog::FlightLog(Given what) : given(std::move(what)) {
    given.debrief.onJudged = [this](const Attempt& attempt) {
        keep({*given.debrief.task(), given.flown.place()}, attempt.samples,
             attempt.debrief.findings);
    };
}

void FlightLog::flightStarts() {
    started.reset();
    if (std::optional<Task> task = given.flown.taskAhead())
        started = {*std::move(task), given.flown.place()};
}

void FlightLog::flightRests() {
    if (!started || !given.training.hasLog())
        return;
    const std::vector<Sample> samples = given.sim.recording.samplesTo(given.sim.c_TraceBufferMax);
    if (secondsOfSamples(samples.size()) < FlightKeeper::leastSeconds)
        return;
    const Debrief judged = judge(samples, started->task, given.debrief.strictness());
    if (!judged.findings.empty())
        keep(*started, samples, judged.findings);
}

LoggedFlight FlightLog::entryOf(const PlacedTask& task) const {
    const StringTable& texts = given.boxes.texts;
    const std::string station = given.sim.slot(choiceOf(task.task).station).name;
    const std::string place = task.place.empty() ? station : task.place;
    const std::string detail = std::holds_alternative<ReferenceTask>(task.task)
                                   ? textOf(pathOf(place).stem())
                                   : taskDetail(task.task, station, texts);
    LoggedFlight entry;
    entry.taskKey = taskKey(task.task, place) + '\n' + place;
    entry.title = taskName(task.task, texts) + ' ' + detail;
    return entry;
}

void FlightLog::keep(const PlacedTask& task, std::span<const Sample> samples,
                     const std::vector<Finding>& findings) {
    LoggedFlight entry = entryOf(task);
    entry.findings = findings;
    entry.fingerprint = fingerprintOf(samples);
    const bool goesOn = last.id != 0 && last.taskKey == entry.taskKey &&
                        samples.size() >= last.samples &&
                        fingerprintOf(samples.first(last.samples)) == last.fingerprint;
    entry.id = goesOn ? last.id : 0;
    const std::string taskKey = entry.taskKey;
    const std::int64_t fingerprint = entry.fingerprint;
    const auto id = given.training.keepFlight(std::move(entry), given.sim.sessionBytes());
    last = {id.value_or(0), taskKey, samples.size(), fingerprint};
}

void FlightLog::tell(Text what, const LoggedFlight& flight) {
    const StringTable& texts = given.boxes.texts;
    given.boxes.show(Text::errorTitle,
                     flight.title + ' ' +
                         filledIn(texts[Text::attemptNumber], {std::to_string(flight.attempt)}) +
                         '\n' + std::string(texts[what]));
}

/// The oldest first.
std::optional<std::vector<FlightLog::Kept>>
FlightLog::read(const std::vector<std::int64_t>& flights) {
    std::vector<Kept> kept;
    std::optional<std::pair<Text, LoggedFlight>> trouble;
    const bool opened = given.training.with([&](TrainingLog& log) {
        for (LoggedFlight& entry : log.flights()) {
            if (std::ranges::count(flights, entry.id) == 0)
                continue;
            std::optional<std::string> bytes = log.session(entry.id);
            SessionFile session = bytes ? readSession(*bytes) : SessionFile();
            if (session.samples.size() < fewestSamples)
                trouble = {bytes ? Text::flightFileDamaged : Text::flightFileGone, entry};
            kept.insert(kept.begin(), {std::move(entry), std::move(session)});
        }
    });
    if (trouble)
        tell(trouble->first, trouble->second);
    if (!opened || trouble || kept.empty())
        return {};
    return kept;
}

/// The two lines of a key are those of `entryOf`.
std::optional<PlacedTask> FlightLog::taskOf(const LoggedFlight& flight) const {
    const std::size_t line = flight.taskKey.find('\n');
    if (line == std::string::npos)
        return {};
    std::optional<Task> task =
        taskOfKey(std::string_view(flight.taskKey).substr(0, line),
                  [&](const std::string& name) { return referenceFlight(name, given.places()); });
    if (!task)
        return {};
    return PlacedTask{*std::move(task), flight.taskKey.substr(line + 1)};
}

bool FlightLog::open(const std::vector<std::int64_t>& flights) {
    if (!given.menu.enabled())
        return false;
    std::optional<std::vector<Kept>> kept = read(flights);
    if (!kept)
        return false;
    const std::optional<PlacedTask> placed = taskOf(kept->back().entry);
    ReferenceTrack track;
    const auto* shown = placed ? std::get_if<ReferenceTask>(&placed->task) : nullptr;
    for (const Sample& sample : shown ? shown->samples : std::vector<Sample>())
        track.append({sample.traceLat, sample.traceLon});
    given.sim.takeFlight(kept->back().session, track);
    given.keeper.takeAsKept();
    if (placed)
        given.flown.take(*placed);
    std::vector<Attempt> attempts;
    for (Kept& each : *kept)
        attempts.push_back({each.entry.attempt, std::move(each.session.samples), {}});
    given.debrief.open(std::move(attempts), placed ? std::optional(placed->task) : std::nullopt);
    return given.debrief.isOpen();
}

} // namespace tarnel
