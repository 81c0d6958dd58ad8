#pragma once

#include "core/reference_track.h"
#include "persistence/lock_file.h"
#include "persistence/session_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// A flight with the track that it was compared with.
struct KeptFlight {
    SessionFile session;
    ReferenceTrack reference;
};

/// The simulated seconds that `samples` samples stand for, whole.
[[nodiscard]] int secondsOfSamples(std::size_t samples);

/// What is known of a flight that was put aside before it is read.
struct ShelvedFlight {
    std::int64_t time = 0;                       ///< when it was put aside, seconds since 1970 UTC
    int seconds = 0;                             ///< its length, simulated
    std::string path;                            ///< its file; empty while it could not be written
    std::shared_ptr<const KeptFlight> unwritten; ///< the flight itself then
};

/// `FlightShelf`: the folder in which flights are put aside, for all programs of a user. A flight
/// is a plain session file beside which the track lies that it was compared with, if it had one.
///
/// Each program also keeps a copy there of the flight that goes on in it. Nobody else touches that
/// before the program has ended.
class FlightShelf {
  public:
    /// As many flights lie here; with a further one the oldest goes.
    static constexpr std::size_t most = 20;

    /// Makes the folder if need be. Never throws: without a folder nothing can be put aside.
    explicit FlightShelf(std::string folder);

    /// Puts a flight aside. Throws what `saveFileBytes` throws.
    void put(const KeptFlight& flight, std::int64_t time);
    /// The flights that lie here, the newest first.
    [[nodiscard]] std::vector<ShelvedFlight> flights() const;
    /// Throws what `readFileBytes` throws. A damaged flight is read as far as it is whole.
    [[nodiscard]] static KeptFlight read(const ShelvedFlight& flight);
    /// The identifiers of its stations, with blanks between them.
    [[nodiscard]] static std::string stations(const ShelvedFlight& flight);

    /// Replaces the copy of the flight that goes on; another thread may do so. Throws what
    /// `saveFileBytes` throws.
    void writeCopy(const KeptFlight& flight);
    /// Removes the copy.
    void dropCopy();
    /// Puts the copies aside that programs left behind, if they are at least `leastSeconds` long.
    void adoptCopies(int leastSeconds);

    /// Notes that the flight put aside last need not be offered any more.
    void noteOffered(const ShelvedFlight& flight) const;
    [[nodiscard]] bool wasOffered(const ShelvedFlight& flight) const;

  private:
    [[nodiscard]] std::string inFolder(const std::string& name) const;
    [[nodiscard]] std::string nextName(std::int64_t time, int seconds);
    void adopt(const std::string& copy, int leastSeconds);
    void prune() const;

    std::string folder;
    std::string program; ///< a name that no other running program has
    std::optional<LockFile> lock;
    ReferenceTrack copiedTrack;
    int counter = 0;
};

} // namespace tarnel
