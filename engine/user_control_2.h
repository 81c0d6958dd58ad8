#pragma once

#include "chart/chart_drawing.h"
#include "chart/chart_framing.h"
#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/aircraft.h"
#include "core/comments.h"
#include "core/flight_clock.h"
#include "core/recording.h"
#include "core/reference_track.h"
#include "core/runtime_random.h"
#include "core/setting_kinds.h"
#include "core/speed_vectors.h"
#include "core/stations.h"
#include "engine/chart_mouse.h"
#include "engine/flight_in_memory.h"
#include "engine/hand_history.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"
#include "persistence/chart_file.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tarnel {

struct SessionFile;

/// `UserControl2`: the simulation engine: aircraft, chart, radios and recording behind one set of
/// properties. It knows neither window nor clock: whoever owns it calls `Timer1` three times per
/// simulated second while `c_TimerEN` is 1.
class UserControl2 : public SimulationProperties {
  public:
    explicit UserControl2(SimulationMessages& messages);

    /// One tick of simulated time: 1/3 second.
    void Timer1();
    /// Moves the aircraft if a tick asks for it, and brings chart, radios and read-outs up to date.
    void SimStep();

    /// Redraws for a new scale, centre or station position.
    void MapScale();
    void MapCenterSelect();
    /// The start of a recording: the next start of the clock discards what was recorded, and sample
    /// 1 holds the present state.
    void markFreshStart();
    /// Moves the aircraft by hand to a chart position; the next start discards what was recorded.
    void placeAircraft(ChartPoint point);
    /// Puts the aircraft at a position by hand; the chart is centred on it.
    void placeAircraft(const GeoPosition& position);
    /// Turns the aircraft by hand. Degrees, 0 to 360.
    void turnAircraft(double heading);
    /// Centres the chart on the aircraft.
    void centreOnAircraft();
    /// Centres the chart on a position. Twips per NM.
    void showChart(const SplitPosition& centre, std::int16_t scale);
    /// While the aircraft's place is to be found out, nothing centres the chart on it or tells it.
    void setPlaceSecret(bool secret) { secretPlace = secret; }
    [[nodiscard]] bool placeIsSecret() const { return secretPlace; }
    /// Shows all five stations with the localizer's feather, and the places of an aircraft, as
    /// large as they all fit.
    void frameStations(std::span<const GeoPosition> aircraftPlaces = {});
    /// Frames the stations, with north at the top.
    void resetView();
    /// Loads a session that the user picked elsewhere, as his pick in the dialog does.
    void openSession(const std::string& path);
    /// Loads a chart that the user picked elsewhere, as his pick in the dialog does.
    void openChart(const std::string& path);
    /// Loads a session of the program's own: its first sample comes up. False, with a box and
    /// nothing changed, if the file has no whole sample.
    bool loadByName(const std::string& path);
    /// The flight in memory with its comments and stations.
    [[nodiscard]] SessionFile session() const;
    /// The bytes of a session file with the flight as it was recorded.
    [[nodiscard]] std::string sessionBytes();
    /// Takes a flight that has no file of its own, as a session that the user opened.
    void takeFlight(const SessionFile& flight, const ReferenceTrack& track);
    [[nodiscard]] FlightVersion flightVersion() const;
    /// Whether a flight was recorded or changed that no file of the user's has as it is now.
    [[nodiscard]] bool flightUnsaved() const;
    /// Saves the flight aside, as a `c_saveSession` of 3 does. False, with a box, if that failed.
    bool keepTemporary();
    /// Loads that flight again. False, with a box and nothing changed, if that failed.
    bool recallTemporary();
    /// Forgets the flight and its reference; the aircraft stays.
    void dropRecording();
    /// Saves the flight as it was recorded. Throws what `saveFileBytes` throws.
    void saveSessionTo(const std::string& path);
    /// Moves a station; its label and radials follow.
    void placeStation(Slot which, ChartPoint point);
    void moveStation(Slot which, const SplitPosition& position);
    /// Switches a station and its DME; with both off its button comes up.
    void switchStation(Slot which, bool stationOn, bool dmeOn);
    /// Sets the wind of the whole chart by hand; a switched-on wind is this one from now on.
    void setWind(const Wind& next);
    /// Whether the figures of a wind by chance may stand on the chart.
    void tellChanceWind(bool told);
    /// The wind as the mouse draws it: as `setWind`, while the drawing goes on.
    void drawWind(const Wind& next);

    // What the hand did at rest and can be taken back. A start, a load and a new session forget it;
    // a replay forgets all but the moves of stations.
    /// What a thing done by hand begins with, to be finished once it is done.
    [[nodiscard]] HandStep beginStep(Deed deed, Slot slot = Slot::vor1) const;
    /// Remembers a step, and writes a moved station into the samples from the present one on. False
    /// if nothing has changed or the aircraft flies.
    bool finishStep(HandStep step);
    /// Brings back what stood before a step.
    void putBack(const HandStep& step);
    /// Takes the last step back, or what the mouse is just doing. False if there is none.
    bool undo();
    bool redo();

    /// The sample that the user looks at: the one gone to in a replay, else the newest.
    [[nodiscard]] std::int16_t presentSampleIndex() const;
    /// True while the flight rests on a sample that was gone to.
    [[nodiscard]] bool inReplay() const { return stopped() && resumeMode == ResumeMode::cut; }

    // The author's comments. Samples carry an entry of the comment table.
    /// Writes `text` into the entry being written and marks from the present sample on. Throws the
    /// subscript error behind entry 100.
    void startComment(const std::string& text);
    /// Ends the mark, if there is one. At rest it is laid on the samples from where it began to the
    /// present one.
    void stopComment();
    /// Takes the present sample's comment off all samples that touch it and carry it too.
    void deleteComment();
    void deleteAllComments();
    /// True if a sample carries a comment or one is being marked.
    [[nodiscard]] bool hasCommentMarks() const;
    /// Moves the entry being written by `step`, never below 0. Throws the subscript error, and
    /// stays, beyond entry 100.
    void stepComment(int step);

    [[nodiscard]] RadialInputs radialInputs() const;

    Aircraft aircraft;
    Wind wind;
    WindSource windSource = WindSource::none;
    bool windLabelOn = true; ///< false while the aircraft is placed with the mouse
    RuntimeRandom random;
    FlightClock clock;
    Stations stations = defaultStations();
    Recording recording;
    Comments comments;
    ReferenceTrack reference;
    ReferenceReading referenceReading;
    MapView view;
    ChartPicture picture;
    SpeedVectors speedVectors;
    ChartMouse mouse{*this};
    HandHistory history;
    /// The name of a session that has none.
    std::string newSessionName;

    /// Where a draw by chance starts from. Without it, from where the last one ended.
    std::function<std::optional<std::uint32_t>()> clockSeed;
    /// Called when the aircraft was placed on the chart.
    std::function<void()> placedByHand;
    /// Called with the state that the practice panel takes.
    std::function<void(std::int16_t)> practicePanelSet;

  private:
    void connect();
    void connectChart();
    void relabel(Slot which);
    void stationOnOff(Slot which);
    void refresh();
    void redrawChart() { redrawChart(radialInputs()); }
    void redrawChart(const RadialInputs& inputs);
    void redrawTrace();
    void switchRadials();
    void switchAirplane();
    void switchClock();
    void switchView();
    void resizeChart();
    void switchEditing();
    void centreOn(const SplitPosition& centre);
    void putAircraft(const SplitPosition& position);
    void aircraftPlaced();
    [[nodiscard]] SplitPosition aircraftCentre() const;
    void resetStopwatch();
    void publishStopwatch();
    void publishFlightTime();
    void showScale();
    void showAirplane();
    [[nodiscard]] bool traceShown() const { return c_TraceEN == 1 && c_AirplaneEN == 1; }
    [[nodiscard]] double rotation() const { return view.rotation(aircraft.trueHeading); }

    void turnByTick();
    void headingTurned(double before);
    void recordSample();
    [[nodiscard]] Sample presentSample() const;
    [[nodiscard]] double recorded(setting::Course, const Property<double>& course) const;
    template <class Kind, class Value>
    [[nodiscard]] Value recorded(Kind, const Property<Value>& property) const {
        return property;
    }
    void copySettings(Sample& sample) const;
    void freshRecording();
    void renewFirstSample();
    [[nodiscard]] bool flown() const;
    [[nodiscard]] Sample situation() const;
    void compareWithReference(std::int16_t index);
    void showComment(std::int16_t index);

    void goToSample();
    void overwriteSettings(std::int16_t index);
    void restoreMotion(const Sample& sample);
    void restoreSettings(const Sample& sample);
    void restorePlace(const Sample& sample);
    void flyBetweenSamples();
    void restoreWind();
    void redrawReplay();
    void resumeFromReplay();
    void startSession();
    void becomeNewSession();
    void standBelowStations();
    void showPracticePanel();

    void switchWind();
    void takeWind(const Wind& next, WindSource source);
    void drawWindByChance();
    void tellWind();
    void publishWind();
    void showWindLabel();
    void showTurnsAhead();

    [[nodiscard]] HandState handState() const;
    void bringAbout(const HandStep& step, const HandState& state);
    std::vector<std::pair<std::int16_t, GeoPosition>> recordStation(Slot slot);
    void putBackStation(const HandStep& step);
    [[nodiscard]] FlightInMemory flightInMemory() const;
    [[nodiscard]] std::shared_ptr<const FlightInMemory> flightThatEnds() const;
    void putBackFlight(const FlightInMemory& flight, const SplitPosition& place);

    void moveAircraft();
    void measure();
    void followHeadingUp(bool moved);

    std::optional<std::string> nameFor(FileRequest request, std::int16_t how,
                                       const std::string& present) const;
    [[nodiscard]] std::string namedByUser(const std::string& path) const;
    std::optional<int> keyToSave();
    void randomize();
    void makeWayFor(FileRequest request, std::int16_t how);
    void loadChart();
    void loadChartFrom(const std::string& path, std::int16_t how);
    void saveChart();
    void applyChart(const ChartFile& chart);
    void applyStations(const StationBlock& block);
    void applyStation(Slot which, const ChartStation& station);
    void describeStations(StationBlock& block) const;
    void loadSession();
    void loadOldSession();
    void saveSession();
    bool loadSessionFrom(FileRequest request, const std::string& path, std::int16_t how);
    void takeSession(const SessionFile& session, FileRequest request, const std::string& path,
                     std::int16_t how);
    void takeReference(const SessionFile& session);
    void applySession(const SessionFile& session);
    void restoreAll(std::int16_t index);
    void forgetComments();

    SimulationMessages& messages;
    AirplaneOutline airplaneOutline;
    bool redrawOnly = false;
    std::string chartNamedByUser; ///< the path that a save may overwrite unasked
    std::string sessionNamedByUser;
    std::uint64_t stationChanges = 0; ///< of names, frequencies and places
    FlightVersion versionInFile;      ///< the `flightVersion` that was loaded or saved last
    bool secretPlace = false;
    Wind lastWind;
    bool chanceWindTold = true;
    std::vector<Wind> chanceWinds; ///< drawn since the session began
    std::int16_t replaySample = 1; ///< the last sample gone to
    bool flownBetween = false;     ///< the aircraft has flown on from it
    ResumeMode resumeMode = ResumeMode::goOn;
};

} // namespace tarnel
