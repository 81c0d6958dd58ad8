#pragma once

#include "core/reference_track.h"
#include "engine/chart_desk.h"
#include "engine/comment_marking.h"
#include "engine/file_picker.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/hand_history.h"
#include "engine/load_gate.h"
#include "engine/replay.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"
#include "persistence/session_file.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// Sessions: takes them from files and from elsewhere, saves them, and knows which flight has no
/// file as it is now.
class SessionDesk {
  public:
    struct Given {
        SimulationMessages& messages; ///< told what is wrong with a file
        const ClockProperties& clocks;
        FlightProperties& flight; ///< a loaded flight may be flown on
        ChartProperties& chart;   ///< its length and scale
        ReplayProperties& replayProperties;
        SessionProperties& editing; ///< ended by a load
        FileProperties& files;
        const FlightScene& scene;
        WindSetting& wind; ///< forgets what was drawn by chance
        FlightTape& tape;
        FlightRecorder& recorder;
        CommentMarking& comments;
        SessionOnDisk& session;
        HandHistory& history;
        Replay& replay;    ///< shows a sample of what was loaded
        ChartDesk& charts; ///< for the stations of a session
        const FilePicker& picker;
        const LoadGate& gate;
    };
    explicit SessionDesk(const Given& what) : given(what) {}

    /// Does what `c_loadSession`, `c_LoadOLDSession` and `c_saveSession` ask for.
    void load();
    void loadOld();
    void save();
    /// Loads a session that the user picked elsewhere, as his pick in the dialog does.
    void open(const std::string& path);
    /// Loads a session of the program's own: its first sample comes up. False, with a box and
    /// nothing changed, if the file has no whole sample.
    bool loadByName(const std::string& path);
    /// Takes a flight that has no file of its own, as a session that the user opened.
    void takeFlight(const SessionFile& flight, const ReferenceTrack& track);
    /// Saves the flight aside, as a `c_saveSession` of 3 does. False, with a box, if that failed.
    bool keepTemporary();
    /// Loads that flight again. False, with a box and nothing changed, if that failed.
    bool recallTemporary();

    /// The flight in memory with its comments and stations.
    [[nodiscard]] SessionFile session() const;
    /// The bytes of a session file with the flight as it was recorded.
    [[nodiscard]] std::string bytes() const;
    /// Saves the flight as it was recorded. Throws what `saveFileBytes` throws.
    void saveTo(const std::string& path) const;
    [[nodiscard]] FlightVersion version() const;
    /// Whether a flight was recorded or changed that no file of the user's has as it is now.
    [[nodiscard]] bool unsaved() const;

  private:
    void loadAsked(FileRequest request, Property<std::int16_t>& how);
    bool loadFrom(FileRequest request, const std::string& path, std::int16_t how);
    void take(const SessionFile& session, FileRequest request, const std::string& path,
              std::int16_t how);
    void takeReference(const SessionFile& session);
    void apply(const SessionFile& session);
    [[nodiscard]] Sample situation() const;

    Given given;
};

} // namespace tarnel
