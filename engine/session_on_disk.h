#pragma once

#include "engine/simulation_properties.h"

#include <cstdint>
#include <string>
#include <utility>

namespace tarnel {

/// Tells the states of the flight in memory apart; one that is brought back has its own again.
struct FlightVersion {
    std::uint64_t recording = 0; ///< counts of changes
    std::uint64_t comments = 0;
    std::uint64_t stations = 0; ///< of their names, frequencies and places
    bool operator==(const FlightVersion&) const = default;
};

/// The file of the session in memory, as far as it is known: its name, whether a save may write
/// over it unasked, and which state of the flight it holds.
class SessionOnDisk {
  public:
    /// `nameOfNew`: the name of a session that has none.
    SessionOnDisk(FileProperties& fileProperties, const std::string& nameOfNew)
        : properties(fileProperties), newSessionName(nameOfNew) {}

    /// The session gets no name of its own: a save asks for one.
    void becomeNew() {
        properties.c_SessionFileName.setIfChanged(newSessionName);
        namedByUser.clear();
    }
    /// The session lies at `path`. `overwritable`: what a save may write over unasked, empty if
    /// nothing.
    void take(const std::string& path, std::string overwritable) {
        properties.c_SessionFileName.setIfChanged(path);
        namedByUser = std::move(overwritable);
    }
    [[nodiscard]] const std::string& name() const { return properties.c_SessionFileName.get(); }

    std::string namedByUser; ///< the path that a save may write over unasked
    FlightVersion version;   ///< of the flight that was loaded or saved last

  private:
    FileProperties& properties;
    const std::string& newSessionName;
};

} // namespace tarnel
