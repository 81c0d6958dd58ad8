#include "shell/track_desk.h"

#include "core/number_text.h"
#include "core/sailing.h"
#include "core/station_geometry.h"
#include "persistence/file_bytes.h"
#include "persistence/file_path.h"
#include "persistence/save_file.h"
#include "platform/path_text.h"
#include "shell/flight_switch.h"
#include "shell/problem_text.h"
#include "shell/text_format.h"
#include "shell/track_session.h"
#include "strings/cause_text.h"
#include "tracks/flown_track.h"
#include "tracks/track_reader.h"
#include "tracks/track_writer.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <vector>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

std::string wholeText(double value) {
    return numberText(static_cast<std::int64_t>(std::lround(value)));
}

std::string stemOf(const std::string& path) {
    return textOf(portablePath(path).stem());
}

} // namespace

TrackDesk::TrackDesk(UserControl2& simulation, FileMenu& menu, BoxDesk& boxDesk,
                     PracticeDesk& practiceDesk, OutsideWorld& world)
    : sim(simulation),
      boxes(boxDesk),
      texts(boxDesk.texts),
      practice(practiceDesk),
      outside(world) {
    menu.exportFlight.onClick = [this] { exportFlight(); };
    menu.flyAlong.onClick = [this] { chooseTrack(); };
}

void TrackDesk::exportFlight() {
    const std::string name = stemOf(sim.c_SessionFileName);
    const auto path =
        boxes.chooseFile({.saves = true,
                          .title = std::string(texts[Text::exportTrack]),
                          .present = name + '.' + std::string(extensionOf(TrackFormat::gpx)),
                          .folder = sim.c_MainAppPath,
                          .filter = std::string(texts[Text::exportTrackFilter]),
                          .extension = std::string(extensionOf(TrackFormat::gpx))});
    if (path)
        save(*path, name);
}

/// The flight ends with the moment of the export: a session tells no day, and no program has to do
/// with times to come.
void TrackDesk::save(const std::string& path, const std::string& name) {
    const auto format = formatOf(path);
    if (!format)
        return tell(path, std::string(texts[Text::exportTrackEnding]));
    const std::vector<Sample> samples = sim.session().samples;
    const auto seconds = static_cast<std::int64_t>(
        std::ceil(secondsPerSample * static_cast<double>(samples.size())));
    try {
        saveFileBytes(
            path, writeTrack(flownTrack(samples, name, outside.secondsNow() - seconds), *format));
    } catch (const RunTimeError& error) {
        tell(path, std::string(causeText(texts, error.cause())));
    }
}

void TrackDesk::chooseTrack() {
    const auto path = boxes.chooseFile({.title = std::string(texts[Text::flyAlong]),
                                        .present = {},
                                        .folder = sim.c_MainAppPath,
                                        .filter = std::string(texts[Text::flyAlongFilter]) + ";;" +
                                                  std::string(texts[Text::anyFileFilter]),
                                        .extension = std::string(extensionOf(TrackFormat::gpx))});
    if (path)
        flyAlong(*path);
}

void TrackDesk::flyAlong(const std::string& path) {
    const std::string unchanged = '\n' + std::string(texts[Text::nothingChanged]);
    try {
        const TrackToFly track = trackToFly(readTrack(readFileBytes(path, largestTrackFile)));
        if (!practise(track, stemOf(path)))
            return;
        onUsed(path);
        tellLimits(track);
    } catch (const FileProblem& problem) {
        tell(path, problemText(texts, problem) + unchanged);
    } catch (const RunTimeError& error) {
        tell(path, std::string(causeText(texts, error.cause())) + unchanged);
    }
}

/// The track becomes a session of the program's own, so that all that can be done with a practice
/// flight can be done with it.
bool TrackDesk::practise(const TrackToFly& track, const std::string& name) {
    constexpr int secondsPerMinute = 60;
    const int seconds =
        static_cast<int>(secondsPerSample * static_cast<double>(track.moments.size() - 1));
    const TrackMoment& start = track.moments.front();
    const std::string task = filledIn(texts[Text::flyAlongTask],
                                      {name, numberText(std::int64_t{seconds / secondsPerMinute}),
                                       numberText(std::int64_t{seconds % secondsPerMinute}),
                                       threeDigits(start.course), wholeText(start.speed)});
    const fs::path folder = portablePath(sim.c_ScratchPath.get() + "/track");
    const std::string session = textOf(folder / pathOf(name + ".ts"));
    std::error_code ignored; // the save tells
    fs::create_directories(folder, ignored);
    saveFileBytes(session, writeSession(sessionAlong(track, sim.session(), task), {}));
    if (!practice.openFile(session, true))
        return false;
    std::vector<GeoPosition> places;
    places.reserve(track.moments.size());
    for (const TrackMoment& moment : track.moments)
        places.push_back(moment.position);
    sim.frameStations(places);
    return true;
}

void TrackDesk::tellLimits(const TrackToFly& track) {
    constexpr double secondsPerMinute = 60;
    if (track.cut)
        boxes.show(Text::windowTitle,
                   filledIn(texts[Text::flyAlongCut],
                            {wholeText(secondsPerSample / secondsPerMinute *
                                       static_cast<double>(track.moments.size()))}),
                   BoxKind::notice);
    const double farthest = farthestFromStations(track);
    if (farthest > practiseAreaLimit)
        boxes.show(
            Text::windowTitle,
            filledIn(texts[Text::flyAlongFar], {wholeText(farthest), wholeText(practiseAreaLimit)}),
            BoxKind::notice);
}

/// NM from the DME that comes to lie farthest, as the practise area is counted.
double TrackDesk::farthestFromStations(const TrackToFly& track) const {
    double farthest = 0;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        if (!hasDme(slot))
            continue;
        const GeoPosition station = toPlain(sim.stations[slot].position);
        for (const TrackMoment& moment : track.moments)
            farthest = std::max(farthest, CourseAndDistance(station, moment.position).distance);
    }
    return farthest;
}

void TrackDesk::tell(const std::string& path, const std::string& what) {
    boxes.show(Text::windowTitle, path + '\n' + what);
}

} // namespace tarnel
