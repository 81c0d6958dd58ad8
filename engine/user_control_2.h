#pragma once

#include "engine/chance.h"
#include "engine/chart_desk.h"
#include "engine/chart_mouse.h"
#include "engine/chart_sheet.h"
#include "engine/comment_marking.h"
#include "engine/file_picker.h"
#include "engine/flight_in_memory.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/flight_tape.h"
#include "engine/hand_work.h"
#include "engine/load_gate.h"
#include "engine/new_session.h"
#include "engine/replay.h"
#include "engine/session_desk.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"
#include "engine/wind_setting.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace tarnel {

/// `UserControl2`: the simulation engine: aircraft, chart, radios and recording behind one set of
/// properties. It knows neither window nor clock: whoever owns it calls `Timer1` three times per
/// simulated second while `c_TimerEN` is 1.
///
/// The work is done in rooms, each an object that is given what it may touch and knows nothing of
/// the whole. Here they are built, the properties are connected with them, and what comes from
/// outside is handed on: what it does is told where the room tells it.
class UserControl2 : public SimulationProperties {
  public:
    explicit UserControl2(SimulationMessages& messages);

    /// One tick of simulated time: 1/3 second.
    void Timer1();
    /// Moves the aircraft if a tick asks for it, and brings chart, radios and read-outs up to date.
    void SimStep();

    // The chart.
    void MapScale() { sheet.MapScale(); }
    void MapCenterSelect() { sheet.MapCenterSelect(); }
    void centreOnAircraft() { sheet.centreOnAircraft(); }
    void showChart(const SplitPosition& centre, std::int16_t scale) {
        sheet.showChart(centre, scale);
    }
    void frameStations(std::span<const GeoPosition> aircraftPlaces = {}) {
        sheet.frameStations(aircraftPlaces);
    }
    void resetView() { sheet.resetView(); }
    void setPlaceSecret(bool secret) { sheet.setPlaceSecret(secret); }
    [[nodiscard]] bool placeIsSecret() const { return sheet.placeIsSecret(); }
    /// Switches a station and its DME; with both off its button comes up.
    void switchStation(Slot which, bool stationOn, bool dmeOn);
    void tellChanceWind(bool told);

    // The hand.
    void placeAircraft(ChartPoint point) { hand.placeAircraft(point); }
    void placeAircraft(const GeoPosition& position) { hand.placeAircraft(position); }
    void turnAircraft(double heading) { scene.turnAircraft(heading); }
    void moveStation(Slot which, const SplitPosition& place) { hand.moveStation(which, place); }
    void setWind(const Wind& next) { hand.setWind(next); }
    /// Takes the last step back, or what the mouse is just doing. False if there is none.
    bool undo();
    bool redo();

    // The flight in memory.
    [[nodiscard]] std::int16_t presentSampleIndex() const { return tape.presentSampleIndex(); }
    /// Whether more than a situation is in memory.
    [[nodiscard]] bool hasFlight() const { return tape.flown(); }
    [[nodiscard]] bool inReplay() const { return tape.inReplay(); }
    void markFreshStart() { recorder.markFreshStart(); }
    void dropRecording() { newSession.dropRecording(); }
    void startComment(const std::string& text) { marking.start(text); }
    void stopComment() { marking.stop(); }
    void deleteComment() { marking.deletePresent(); }
    void deleteAllComments() { marking.deleteAll(); }
    [[nodiscard]] bool hasCommentMarks() const { return marking.anyMarks(); }
    void stepComment(int step) { marking.step(step); }

    // Files.
    void openChart(const std::string& path) { charts.open(path); }
    bool saveAndOpenChart(const ChartFile& chart, const std::string& name) {
        return charts.saveAndOpen(chart, name);
    }
    void openSession(const std::string& path) { sessions.open(path); }
    bool loadByName(const std::string& path) { return sessions.loadByName(path); }
    void takeFlight(const SessionFile& flight, const ReferenceTrack& track) {
        sessions.takeFlight(flight, track);
    }
    bool keepTemporary() { return sessions.keepTemporary(); }
    bool recallTemporary() { return sessions.recallTemporary(); }
    [[nodiscard]] SessionFile session() const { return sessions.session(); }
    [[nodiscard]] std::string sessionBytes() const { return sessions.bytes(); }
    void saveSessionTo(const std::string& path) const { sessions.saveTo(path); }
    [[nodiscard]] FlightVersion flightVersion() const { return sessions.version(); }
    [[nodiscard]] bool flightUnsaved() const { return sessions.unsaved(); }

    /// The name of a session that has none.
    std::string newSessionName;
    /// Where a draw by chance starts from. Without it, from where the last one ended.
    Chance::Clock clockSeed;
    /// Called when the aircraft was placed on the chart.
    std::function<void()> placedByHand;
    /// Called with the heading that the bug takes: the one that was just drawn, whole degrees 0 to
    /// 359, or the bug's before it if that is taken back.
    HandWork::HeadingDrawn headingDrawn;
    /// Called with the state that the practice panel takes.
    std::function<void(std::int16_t)> practicePanelSet;

  private:
    void connect();
    void connectChart();
    void connectFiles();
    void switchClock();
    void switchWind();
    void startSession();
    void switchEditing();
    void showPracticePanel();

    // Each room knows some of those above it, and none below.
    Chance chance{clockSeed};
    WindSetting windSetting{*this, chance};
    FlightTape tape{*this};
    SimulationClocks clocks{*this};
    SessionOnDisk sessionOnDisk{*this, newSessionName};
    CommentMarking marking;
    FlightScene scene;
    ChartSheet sheet;
    FlightRecorder recorder;
    FlightMemory memory;
    HandWork hand;
    Replay replay;
    FilePicker picker;
    LoadGate gate;
    ChartDesk charts;
    SessionDesk sessions;
    NewSession newSession;

  public:
    ChartMouse mouse;

    // What the rooms hold, under the names that all know it by. Only rooms change what is const.
    const Aircraft& aircraft = scene.aircraft;
    Stations& stations = scene.stations;
    const MapView& view = scene.view;
    const ChartPicture& picture = scene.picture;
    const SpeedVectors& speedVectors = scene.speedVectors;
    Wind& wind = windSetting.wind;
    const WindSource& windSource = windSetting.source;
    const FlightClock& clock = clocks.clock;
    Recording& recording = tape.recording;
    Comments& comments = marking.comments;
    ReferenceTrack& reference = recorder.reference;
    const ReferenceReading& referenceReading = recorder.reading;
    HandHistory& history = hand.history;
};

} // namespace tarnel
