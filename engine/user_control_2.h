#pragma once

#include "chart/chart_drawing.h"
#include "chart/chart_framing.h"
#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/aircraft.h"
#include "core/comments.h"
#include "core/flight_clock.h"
#include "core/property.h"
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
#include "engine/station_properties.h"
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
class UserControl2 {
  public:
    explicit UserControl2(SimulationMessages& messages);

    /// One tick of simulated time: 1/3 second.
    void Timer1();
    /// Moves the aircraft if a tick asks for it, and brings chart, radios and read-outs up to date.
    void SimStep();

    /// The properties of a station slot.
    [[nodiscard]] StationProperties& slot(Slot which) { return inSlot(stationSlots, which); }
    [[nodiscard]] const StationProperties& slot(Slot which) const {
        return inSlot(stationSlots, which);
    }

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
    [[nodiscard]] bool stopped() const { return c_TimerEN == 0; }

    PropertyBag properties;

    // Flight. A set refreshes the picture without moving the aircraft.
    Property<std::int16_t> Turn_Rate{properties, "Turn_Rate", 0, [this] { refresh(); }};
    Property<std::int16_t> c_TAS{properties, "c_TAS", 0, [this] { refresh(); }};
    Property<double> c_Altitude{properties, "c_Altitude", 0, [this] { refresh(); }};
    Property<double> c_HDG{properties, "c_HDG"};
    Property<std::int16_t> c_HDGbug{properties, "c_HDGbug"};
    Property<std::int16_t> c_HDGchanged{properties, "c_HDGchanged"};
    Property<std::int16_t> c_APhdg{properties, "c_APhdg"};
    Property<std::int16_t> c_APtas{properties, "c_APtas"};
    Property<std::int16_t> c_APalt{properties, "c_APalt"};
    Property<std::int16_t> c_FlyEN{properties, "c_FlyEN"};
    Property<std::int16_t> c_PractiseStopFly{properties, "c_PractiseStopFly"};

    // Clocks. `c_TimerSIMrate` is the real time of one tick in milliseconds.
    Property<std::int16_t> c_TimerEN{properties, "c_TimerEN", 0, [this] { switchClock(); }};
    Property<std::int16_t> c_TimerSIMrate{properties, "c_TimerSIMrate", 333};
    Property<std::int16_t> c_ResetTimer{properties, "c_ResetTimer", 1,
                                        [this] { resetStopwatch(); }};
    Property<std::int16_t> c_Timer_on_off{properties, "c_Timer_on_off"};
    Property<std::int16_t> c_ApSeconds{properties, "c_ApSeconds"};
    Property<std::int16_t> c_ApMinutes{properties, "c_ApMinutes"};
    Property<std::int16_t> c_ApSeconds2{properties, "c_ApSeconds2"};
    Property<std::int16_t> c_ApMinutes2{properties, "c_ApMinutes2"};
    Property<std::int16_t> c_ApHours2{properties, "c_ApHours2"};

    // Receivers: 0 VOR 1, 1 VOR 2, 2 localizer; ADF 0 NDB 1, 1 NDB 2.
    Property<std::int16_t> c_NAV1freq{properties, "c_NAV1freq", 0, [this] { redrawChart(); }};
    Property<std::int16_t> c_NAV2freq{properties, "c_NAV2freq", 0, [this] { redrawChart(); }};
    Property<std::int16_t> c_ADFfreq{properties, "c_ADFfreq"};
    Property<std::int16_t> c_DMEfreq{properties, "c_DMEfreq"};
    Property<std::int16_t> c_Inst2NAVselect{properties, "c_Inst2NAVselect", 1,
                                            [this] { redrawChart(); }};
    Property<std::int16_t> c_Inst3NAVselect{properties, "c_Inst3NAVselect", 1,
                                            [this] { redrawChart(); }};
    Property<std::int16_t> c_NAVRadI2{properties, "c_NAVRadI2", 0, [this] { switchRadials(); }};
    Property<std::int16_t> c_NAVRadI3{properties, "c_NAVRadI3", 0, [this] { switchRadials(); }};
    Property<double> c_obsI2{properties, "c_obsI2", 0, [this] { redrawChart(); }};
    Property<double> c_obsI3{properties, "c_obsI3", 0, [this] { redrawChart(); }};
    Property<double> c_OBS1{properties, "c_OBS1"};
    Property<double> c_OBS2{properties, "c_OBS2"};
    Property<std::int16_t> c_NAVRadCenter{properties, "c_NAVRadCenter", on,
                                          [this] { switchRadials(); }};
    Property<std::int16_t> c_NAVRadBorder{properties, "c_NAVRadBorder", off,
                                          [this] { switchRadials(); }};
    Property<double> c_LocCrs1{properties, "c_LocCrs1", 0, [this] { redrawChart(); }};

    // The instruments' settings, kept for the recording.
    Property<std::int16_t> c_inst2{properties, "c_inst2"};
    Property<std::int16_t> c_inst3{properties, "c_inst3"};
    Property<std::int16_t> c_Inst2_ADFCardselect{properties, "c_Inst2_ADFCardselect", 1};
    Property<std::int16_t> c_Inst3_ADFCardselect{properties, "c_Inst3_ADFCardselect", 1};

    // Chart.
    Property<std::int16_t> c_MAPnorthUP{properties, "c_MAPnorthUP", 1, [this] { switchView(); }};
    Property<std::int16_t> c_MAPscale{properties, "c_MAPscale", 250, [this] { MapScale(); }};
    Property<double> c_CenterTwips{properties, "c_CenterTwips", 3405, [this] { resizeChart(); }};
    Property<std::int16_t> c_MAPCenterSelect{properties, "c_MAPCenterSelect", 1};
    Property<std::int16_t> c_NAV1NULLPositionX{properties, "c_NAV1NULLPositionX"};
    Property<std::int16_t> c_AirplaneEN{properties, "c_AirplaneEN", 1,
                                        [this] { switchAirplane(); }};
    Property<std::int16_t> c_TraceEN{properties, "c_TraceEN", 0, [this] { redrawTrace(); }};
    Property<std::int16_t> c_SpeedVectorEN{properties, "c_SpeedVectorEN", 0, [this] { refresh(); }};
    Property<std::int16_t> c_TraceAheadEN{properties, "c_TraceAheadEN", 0, [this] { refresh(); }};
    Property<std::int16_t> c_TraceBufferMax{properties, "c_TraceBufferMax", 1};

    // Wind. `c_WindSetEN`: 0 none, 1 draws one with the mouse, 2 by chance, 3 the last one again;
    // 4 and 5 tell that a replay has brought one, or one with a part that is zero.
    Property<std::string> c_wind{properties, "c_wind", "0/0"};
    Property<std::int16_t> c_WindSetEN{properties, "c_WindSetEN", 0, [this] { switchWind(); }};

    // Replay. `c_RepeatValue` goes to a sample of a resting flight: below 1 it does nothing, above
    // 6000 it throws the subscript error. `c_ReplayInterpolation`: 0 shows the sample, 1 flies one
    // tick on from it, 2 and 3 one tick on from where the aircraft is. `c_replayInstLock`: 1
    // restores the instruments' settings and sets `c_replayActive`; else the present settings are
    // written over the sample's.
    Property<std::int16_t> c_RepeatValue{properties, "c_RepeatValue", 0, [this] { goToSample(); }};
    Property<std::int16_t> c_HscrollRepeatValue{properties, "c_HscrollRepeatValue"};
    Property<std::int16_t> c_ReplayInterpolation{properties, "c_ReplayInterpolation"};
    Property<std::int16_t> c_replayActive{properties, "c_replayActive"};
    Property<std::int16_t> c_replayInstLock{properties, "c_replayInstLock"};
    Property<std::string> c_CurrentComment{properties, "c_CurrentComment"};
    /// Any set starts an empty session: the stations framed as in `resetView`, the aircraft below
    /// them heading north, without wind, comments and reference. The stations stay.
    Property<std::int16_t> c_NewSession{properties, "c_NewSession", 0, [this] { startSession(); }};
    /// Shows the practice panel in one of its states, 0 to 3, and goes back to 0.
    Property<std::int16_t> c_TrackDelta{properties, "c_TrackDelta", 0,
                                        [this] { showPracticePanel(); }};

    // Chart editing: 1 lets the mouse drag stations; samples lose the marks of their comments.
    Property<std::int16_t> c_mapedit{properties, "c_mapedit", 0, [this] { switchEditing(); }};

    // Files. 1 asks the user for a name, 2 takes the present one, 3 is the temporary session in
    // `c_ScratchPath`; each goes back to 0. A save by the present name asks too unless the user
    // picked it. `c_doEncrypt` other than 0 writes enciphered files.
    Property<std::string> c_ScratchPath{properties, "c_ScratchPath"};
    Property<std::int16_t> c_saveChart{properties, "c_saveChart", 0, [this] { saveChart(); }};
    Property<std::int16_t> c_loadSession{properties, "c_loadSession", 0, [this] { loadSession(); }};
    Property<std::int16_t> c_saveSession{properties, "c_saveSession", 0, [this] { saveSession(); }};
    Property<std::int16_t> c_LoadOLDSession{properties, "c_LoadOLDSession", 0,
                                            [this] { loadOldSession(); }};
    Property<std::int16_t> c_doEncrypt{properties, "c_doEncrypt", off};
    Property<std::string> c_MainAppPath{properties, "c_MainAppPath"};
    Property<std::string> c_ChartFileName{properties, "c_ChartFileName"};
    Property<std::string> c_SessionFileName{properties, "c_SessionFileName"};
    Property<std::int16_t> c_loadChart{properties, "c_loadChart", 0, [this] { loadChart(); }};

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
    using Slots = std::array<StationProperties, slotCount>;

    Slots makeSlots();
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
    Slots stationSlots = makeSlots();
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
