#pragma once

#include "core/run_time_error.h"
#include "engine/user_control_2.h"
#include "exercises/qa_form.h"
#include "shell/flight_desk.h"
#include "shell/instrument_positions.h"
#include "shell/outside_world.h"
#include "shell/panel_controls.h"
#include "shell/panel_coupling.h"
#include "shell/practice_task.h"
#include "shell/question_cover.h"
#include "shell/station_editor.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace tarnel {

/// `Form1`: the whole trainer without its window: the simulation, the panel, the strip, and the
/// tick that couples them. It never looks at a clock: a window's timers, a test or a scripted
/// flight call the timer procedures.
class Form1 : public TrainerControls, public PanelControls, private SimulationMessages {
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

    void SelectInst2(std::int16_t type) { positions.select(positions.links2(), type); }
    void SelectInst3(std::int16_t type) { positions.select(positions.links3(), type); }
    void PositionInst2(bool large) { positions.resize(inst2, large); }
    void SwitchInst3(bool large) { positions.resize(inst3, large); }
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
    void setHeadingBug(std::int16_t heading) { coupling.setHeadingBug(heading); }

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
    /// Whether the figures of the wind may be shown: one by chance or of a recording is told only
    /// to who asks for it.
    [[nodiscard]] bool windIsTold() const;

    /// Called before a box opens: what shows the form is to be brought up to date.
    std::function<void()> beforeBox;

    const StringTable& texts;

  private:
    OutsideWorld& outside;

  public:
    UserControl2 UserControl11;
    QAform QAform1{state, exerciseSurroundings()};
    InstrumentPositions positions{UserControl11, *this, texts};
    FlightDesk flightDesk{state, texts, UserControl11, outside};

  private:
    [[nodiscard]] std::string text(Text id) const { return std::string(texts[id]); }

    // Start-up.
    void connectControls();
    void connectStrip();
    void connectChartPage();
    void connectReplay();
    void connectWind();
    void connectHistory();
    void connectComments();
    void connectFiles();
    void startUp(const std::string& applicationPath);
    void setApplicationPath(const std::string& path);
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
    void followExerciseFlight();
    void followExercise();
    void blinkCommentMark();
    void followReplayBar();
    void showComment();
    [[nodiscard]] std::string practiceHint() const;
    void showState();
    void showWind();
    void showStopwatch();
    void showFlightTime();
    void showReadouts();
    void showReplayClock();
    void followStations();
    void followHistory();
    void showPresentSample();

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

    PanelCoupling coupling{UserControl11, *this};
    std::int16_t simStopped = 1;
    std::int16_t hideOn = 0;
    std::int16_t traceOn = 0;
    std::int16_t vectorMode = 0;    ///< 0 off, 1 the wind triangle, 2 the turns ahead
    std::int16_t replayOn = 0;      ///< -1 while the replay runs
    std::int16_t replayIndex = 1;   ///< the sample shown; 0 if it was not gone to by hand
    std::int16_t replaySubStep = 0; ///< the quarter of the way to the next one
    std::int16_t blinkCounter = 0;
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
