#include "fuzz_target.h"
#include "persistence/file_problem.h"
#include "tracks/track_reader.h"
#include "tracks/track_to_fly.h"
#include "tracks/track_writer.h"

#include <cmath>

using namespace tarnel;

namespace {

/// What was read has to be writable, and to be read again as the same way.
void requireThatItCanBeWritten(const Track& track) {
    require(!writeTrack(track, TrackFormat::kml).empty());
    for (const TrackFormat format : {TrackFormat::gpx, TrackFormat::csv}) {
        const Track again = readTrack(writeTrack(track, format));
        require(again.points.size() <= track.points.size());
        require(std::abs(again.points.front().position.latitude -
                         track.points.front().position.latitude) < 1e-8);
    }
}

void requireThatItCanBeFlown(const TrackToFly& found) {
    require(found.moments.size() > 1);
    for (const TrackMoment& moment : found.moments)
        require(std::abs(moment.position.latitude) <= 70 && moment.speed >= 0 &&
                moment.speed <= 500 && moment.course >= 0 && moment.course < 360);
}

} // namespace

/// Reads a track, and makes it fit to be flown along.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Track track = readTrack(asText(data, size));
        requireThatItCanBeFlown(trackToFly(track));
        requireThatItCanBeWritten(track);
    } catch (const FileProblem& problem) {
        require(problem.line > 0);
    }
    return 0;
}
