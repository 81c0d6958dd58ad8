#pragma once

#include "controls/form_controls.h"
#include "controls/form_frame.h"
#include "core/run_time_error.h"
#include "engine/user_control_2.h"
#include "exercises/qa_form.h"
#include "instruments/ap_control_face.h"
#include "instruments/dme_control_face.h"
#include "instruments/radio_face.h"
#include "instruments/stopwatch_face.h"
#include "instruments/user_control_1.h"
#include "shell/exercise_menu.h"
#include "shell/flight_desk.h"
#include "shell/instrument_feed.h"
#include "shell/instrument_position.h"
#include "shell/outside_world.h"
#include "shell/practice_task.h"
#include "shell/question_cover.h"
#include "shell/station_editor.h"
#include "shell/strip_controls.h"
#include "strings/string_table.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace tarnel {

/// `Form1`: the whole trainer without its window: the simulation, the panel, the strip, and the
/// tick that couples them. It never looks at a clock: a window's timers, a test or a scripted
/// flight call the timer procedures.
class Form1 : private SimulationMessages {
  public:
    /// `applicationPath` is the folder of charts and pictures.
    Form1(const StringTable& texts, OutsideWorld& outside, std::string applicationPath);

    // The timer procedures. A run-time error in one pauses the flight and is shown once; none runs
    // while a box is up.
    void Timer1(); ///< the coupling, as often as the window can
    void
    simulationTimer(); ///< 1/3 simulated second, every `c_TimerSIMrate` ms while `c_TimerEN` is 1
    void autopilotTimer(); ///< the rate drive of the autopilot's knobs, a few times a second
    void Timer2();         ///< the replay, every `c_TimerSIMrate` ms while `replayRuns()`

    /// Runs what the user's hand started, with the same catch as the timer procedures.
    template <class Action>
    void guarded(Action action) {
        try {
            action();
        } catch (const RunTimeError& error) {
            reportRunTimeError(error);
        }
    }

    void SelectInst2(std::int16_t type) { selectInstrument(inst2Links, type); }
    void SelectInst3(std::int16_t type) { selectInstrument(inst3Links, type); }
    void PositionInst2(bool large) { resizeInstrument(inst2, large); }
    void SwitchInst3(bool large) { resizeInstrument(inst3, large); }
    void StopFly();
    void StopReplay();
    /// What the station editor starts with.
    [[nodiscard]] StationEdit stationToEdit(Slot slot) const;
    /// Takes the editor's values. False, with a box, if the frequency is wrong.
    bool applyStationEdit(const StationEdit& edit);
    /// Opens a session that the user picked outside the menus, as the menu does.
    void openSession(const std::string& path);
    /// Opens a chart (".map") or a session that the user picked outside the menus, as the menus do.
    /// In flight and in an exercise a box asks him to end it first.
    void openFile(const std::string& path);

    // Documents of the application folder. A box tells of one that is missing; a flight goes on.
    /// Opens the book, at a page if that is above 0.
    void openBook(int page);
    /// Opens one of `approachCharts`, and at rest the session that goes with it.
    void openApproachChart(std::size_t index);
    void openHelp();
    void openUserGuide();
    void openProductPage();
    /// Does what a letter on the status panels stands for: M, P, H, T, V, W or R. False for others.
    bool pressKey(char letter);

    /// The next of the radial-line displays: the centre radial, the lines beside it, none.
    void cycleRadialLines();
    /// Moves the chart's scale by `steps` of those offered; positive shows less chart, larger. From
    /// a scale between them the first step goes to the next one.
    void stepScale(int steps);
    /// Twips per NM.
    void setScale(std::int16_t twipsPerMile);
    void setNorthUp(bool northUp);
    /// A chart under the heading would tell where a hidden aircraft is.
    [[nodiscard]] bool mayTurnHeadingUp() const { return !questionOpen(); }
    /// Degrees that the wind comes from, and knots.
    void setManualWind(double direction, std::int16_t speed);
    void setFloatingGyroOpen(bool open);
    /// Tells in a box what the program is.
    void showAbout();
    /// Says once that pictures can't be loaded.
    void pictureMissing(const std::string& file);

    /// Sets the heading bug everywhere, and the autopilot's heading with it.
    void setHeadingBug(std::int16_t heading);

    [[nodiscard]] FeedSources feedSources();
    [[nodiscard]] bool simulationRuns() const { return simStopped == 0; }
    [[nodiscard]] bool replayRuns() const { return replayOn != 0; }
    [[nodiscard]] bool exerciseRuns() const { return exerciseUp; }
    /// While a question stands open: its answer must not be found by other means.
    [[nodiscard]] bool questionOpen() const {
        return exerciseUp && !solutionSeen && !questionFlown;
    }
    /// Whether the solution of the question that is up has been shown.
    [[nodiscard]] bool solutionShown() const { return exerciseUp && solutionSeen; }
    /// What the open question keeps from sight; nothing if none is open.
    [[nodiscard]] QuestionCover cover() const;
    [[nodiscard]] const PositionLinks& links2() const { return inst2Links; }
    [[nodiscard]] const PositionLinks& links3() const { return inst3Links; }
    [[nodiscard]] bool anyInstrumentLarge() const;
    /// Whether the figures of the wind may be shown: one by chance or of a recording is told only
    /// to who asks for it.
    [[nodiscard]] bool windIsTold() const;

    /// Called before a box opens: what shows the form is to be brought up to date.
    std::function<void()> beforeBox;

    const StringTable& texts;
    FormState state;

  private:
    OutsideWorld& outside;

  public:
    UserControl2 UserControl11;
    InstrumentPosition inst1; ///< the reserve instrument `UserControl12`
    InstrumentPosition inst2; ///< `UserControl13(0)`
    InstrumentPosition inst3; ///< `UserControl13(1)`
    UserControl_1 UserControl_DG;
    NAVControlFace NAVControlFace1;
    NAVControlFace NAVControlFace2;
    ADFControlFace ADFControlFace1;
    ADFControlFace ADFControlFace2;
    DMEControlFace DMEControlFace1;
    DMEControlFace DMEControlFace2;
    APControlFace APControlFace1;
    tvsmtimer tvsmtimer1;
    QAform QAform1{state, exerciseSurroundings()};

    // The control strip.
    CommandButton startButton{state, "Command6", Text::startSim, Text::startSimTip};
    CommandButton backButton{state, "Command7", Text::backToExercise, Text::backToExerciseTip};
    OptionGroup rateGroup;
    OptionButton rateReal{state, rateGroup, "Option5", Text::realTime, Text::realTimeTip};
    OptionButton rateHalf{state, rateGroup, "Option6", Text::rateHalf, Text::rateHalfTip};
    OptionButton rateDouble{state, rateGroup, "Option7", Text::rateDouble, Text::rateDoubleTip};
    OptionButton rateQuadruple{state, rateGroup, "Option8", Text::rateQuadruple,
                               Text::rateQuadrupleTip};
    StripPages pages{state};
    ChartPage chartPage{state};
    ReplayPage replayPage{state};
    WindPage windPage{state};
    StationPage stationPage{state};
    CommentPanel commentPanel{state};
    PracticePanel practicePanel{state};
    CommandButton radialCycleButton{state, "Command8", Text::cycleRadialLines,
                                    Text::cycleRadialLinesTip};
    CommandButton stopwatchStartButton{state, "StopwatchStart", Text::stopwatchStart,
                                       Text::stopwatchStartTip};
    CommandButton stopwatchResetButton{state, "StopwatchReset", Text::stopwatchReset,
                                       Text::stopwatchResetTip};
    CheckBox floatingGyroBox{state, "FloatingGyro", Text::floatingGyro, Text::floatingGyroTip};

    FlightDesk flightDesk{state, texts, UserControl11, outside};
    FileMenu fileMenu{state};
    EditMenu editMenu{state};
    ExerciseMenu exerciseMenu{state};

    // The instrument panel.
    SelectionList inst3TypeList{state, "Combo2", instrumentKinds(), Text::instrument2Selection};
    SelectionList inst2TypeList{state, "Combo3", instrumentKinds(), Text::instrument1Selection};
    CommandButton inst1ChannelButton{state, "Command5", Text::channelNav, Text::channelTip};
    CommandButton inst2ChannelButton{state, "Command10", Text::channelNav, Text::channelTip};
    CommandButton inst3ChannelButton{state, "Command9", Text::channelNav, Text::channelTip};
    OptionGroup inst2SizeGroup;
    OptionButton inst2Small{state, inst2SizeGroup, "Option1", Text::smallDisplay,
                            Text::smallDisplayTip};
    OptionButton inst2Large{state, inst2SizeGroup, "Option2", Text::largeDisplay,
                            Text::largeDisplayTip};
    OptionGroup inst3SizeGroup;
    OptionButton inst3Small{state, inst3SizeGroup, "Option3", Text::smallDisplay,
                            Text::smallDisplayTip};
    OptionButton inst3Large{state, inst3SizeGroup, "Option4", Text::largeDisplay,
                            Text::largeDisplayTip};
    CheckBox inst2RadialBox{state, "Check2", Text::showRadial, Text::showRadialTip};
    CheckBox inst3RadialBox{state, "Check1", Text::showRadial, Text::showRadialTip};
    CheckBox inst2OverlayBox{state, "Check12", Text::rmiPointer, Text::rmiPointerTip};
    CheckBox inst3OverlayBox{state, "Check10", Text::rmiPointer, Text::rmiPointerTip};

    FormFrame instruments{state, "UserControl13"}; ///< both positions

    // The status bar.
    TextPanel sessionPanel{state, "StatusPanel1"};
    TextPanel windPanel{state, "StatusPanel4", {}, Text::panelWindTip};
    TextPanel hidePanel{state, "StatusPanel5", {}, Text::panelHideTip};
    TextPanel tracePanel{state, "StatusPanel6", {}, Text::panelTraceTip};
    TextPanel vectorsPanel{state, "StatusPanel7", {}, Text::panelVectorsTip};
    TextPanel modePanel{state, "StatusPanel8", {}, Text::panelModeTip};
    TextPanel flightTimePanel{state, "FlightTime", {}, Text::flightTime};
    TextPanel speedReadout{state, "Text1_16"};
    TextPanel turnReadout{state, "Text1_3"};

  private:
    static std::vector<Text> instrumentKinds();
    [[nodiscard]] std::string text(Text id) const { return std::string(texts[id]); }

    // Start-up.
    void connectControls();
    void connectPosition(const PositionLinks& links);
    void connectStrip();
    void connectChartPage();
    void connectReplay();
    void connectWind();
    void connectHistory();
    void connectComments();
    void connectFiles();
    void startUp(const std::string& applicationPath);
    void setApplicationPath(const std::string& path);
    void setReceiverDefaults();
    void setPanelDefaults();

    // Exercises.
    void connectExercises();
    void startExercise(const ExerciseItem& item);
    void leaveExercise();
    void endExerciseFlight();
    ExerciseSurroundings exerciseSurroundings();
    void rememberShell();
    [[nodiscard]] std::string shippedSession(const std::string& name, bool ownLanguage) const;
    void openPractice(const std::string& name, bool practised);
    void switchFaces(bool active);
    void frameQuestion();
    void showSolution();
    void showNextQuestion();
    void hideForQuestion();
    void coverReadings();
    void letStudentFly();
    void loadQuestionSession();

    // The tick, in this order.
    void tick();
    void showSessionName();
    void guardPractiseArea();
    void echoReplayLock();
    void followFrequencies();
    void echoSelectors();
    void followExerciseFlight();
    void copyReceiverSelections();
    void followExercise();
    void followInstrumentSelectors();
    void coupleAutopilot();
    void coupleHeadingBug();
    void showDme();
    void pinAltitude();
    void blinkCommentMark();
    void followReplayBar();
    void echoChannelButtons();
    void showComment();
    [[nodiscard]] std::string practiceHint() const;
    void pushPanelState();
    void pushPosition(const PositionLinks& links);
    void pullPanelState();
    void turnFloatingGyro();
    void showState();
    void showWind();
    void showStopwatch();
    void showFlightTime();
    void showReadouts();
    void showReplayClock();
    void followStations();
    void followHistory();
    void showPresentSample();

    void writeHeadingBug(std::int16_t heading);

    // The instrument panel.
    void selectInstrument(const PositionLinks& links, std::int16_t type);
    void labelInstrument(InstrumentPosition& position);
    void resizeInstrument(InstrumentPosition& position, bool large);
    void stepChannel(InstrumentPosition& position);
    void stepVorChannel(InstrumentPosition& position, std::int16_t& channel);
    void takeVor(InstrumentPosition& position, std::int16_t channel);
    [[nodiscard]] std::string dmeText(Slot slot) const;

    // The control strip.
    void startOrStop();
    void startFlight();
    void stopFlight();
    void setRate(std::int16_t milliseconds);
    void setHidden(bool hidden);
    void applyTrace();
    void setVectorMode(int mode);
    void applyVectors();
    void setEditing(bool editing);
    void switchStation(std::size_t index);
    void cycleWind();
    void startReplay();
    void stopReplay();
    void moveReplayBar();
    void lockReplay();
    void scrollReplay();
    void pumpReplay();
    void stepReplay();
    void startOrStopComment();
    void stepComment(int step);
    void followCommentStrip();
    bool loadPractised(const std::string& path);
    void showPracticePanel(std::int16_t panel);
    void newSession();
    void keepPracticeFlight();
    void recallPracticeFlight();
    void restOrFly(bool resting);
    void enableControls();
    void setLocked(bool locked);
    void toggleStopwatch();
    void resetStopwatch();

    // Boxes.
    void showBehindBox();
    void showBox(const std::string& title, const std::string& message,
                 BoxKind kind = BoxKind::warning);
    bool confirm(const std::string& title, const std::string& question);
    bool openDocument(const std::string& path, int page);
    bool openShipped(const std::string& german, const std::string& other);
    void reportRunTimeError(const RunTimeError& error);
    void tellSettingsTrouble();
    [[nodiscard]] std::string problemText(const FileProblem& problem) const;
    [[nodiscard]] std::string afterFailedLoad() const;
    [[nodiscard]] bool questionTells(FileRequest request) const;
    void bufferWarning(BufferWarning warning) override;
    std::optional<std::string> chooseFile(FileRequest request, const std::string& present) override;
    [[nodiscard]] bool isShipped(const std::string& path) const override;
    void stopForLoading(FileRequest request, bool picked) override;
    void fileFailed(FileRequest request, const std::string& path,
                    const RunTimeError& error) override;
    void fileWrong(FileRequest request, const std::string& path, const FileProblem& problem,
                   bool taken) override;

    PositionLinks inst2Links;
    PositionLinks inst3Links;
    std::int16_t simStopped = 1;
    std::int16_t hideOn = 0;
    std::int16_t traceOn = 0;
    std::int16_t vectorMode = 0;    ///< 0 off, 1 the wind triangle, 2 the turns ahead
    std::int16_t replayOn = 0;      ///< -1 while the replay runs
    std::int16_t replayIndex = 1;   ///< the sample shown; 0 if it was not gone to by hand
    std::int16_t replaySubStep = 0; ///< the quarter of the way to the next one
    std::int16_t blinkCounter = 0;
    std::int16_t locCourse = 0;
    std::int16_t radialCycle = 0;
    bool exerciseUp = false; ///< an exercise has taken the shell over
    bool practising = false; ///< a practice session is loaded
    struct {
        OptionButton* rate = nullptr;
        int trace = 1;
        int inst2Type = 0;
        int inst3Type = 0;
        bool inst2Large = false;
        bool inst3Large = false;
        int radialShown = 0;
    } beforeExercise;
    bool solutionSeen = false;  ///< of the question that is up
    bool questionFlown = false; ///< the recording is the student's own
    std::string practisedPath;  ///< the session that a practice flight is compared with
    PracticeTask practiceTask;
    bool boxUp = false;
    std::string sessionShown; ///< the path whose name the status panel shows
    std::string errorTold;    ///< the run-time error that was last told and still lasts
    bool pictureMissingSaid = false;
    std::array<std::int16_t, 3> flightTimeShown{-1, -1, -1};
    std::array<std::int16_t, 2> stopwatchShown{-1, -1};
    std::array<std::int16_t, 2> readoutsShown{-1, -1};
    std::array<std::int16_t, 2> replayClockShown{-1, -1};
};

} // namespace tarnel
