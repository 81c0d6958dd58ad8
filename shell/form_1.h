#pragma once

#include "engine/user_control_2.h"
#include "exercises/qa_form.h"
#include "panel/instrument_positions.h"
#include "panel/panel_controls.h"
#include "panel/panel_coupling.h"
#include "panel/stopwatch_desk.h"
#include "shell/box_desk.h"
#include "shell/chart_display.h"
#include "shell/comment_strip.h"
#include "shell/course_desk.h"
#include "shell/debrief_desk.h"
#include "shell/document_desk.h"
#include "shell/exercise_conduct.h"
#include "shell/file_desk.h"
#include "shell/flight_desk.h"
#include "shell/flight_log.h"
#include "shell/flight_switch.h"
#include "shell/flown_task.h"
#include "shell/outside_world.h"
#include "shell/practice_desk.h"
#include "shell/recent_files.h"
#include "shell/reference_guard.h"
#include "shell/replay_deck.h"
#include "shell/station_desk.h"
#include "shell/status_readouts.h"
#include "shell/track_desk.h"
#include "shell/trainer_controls.h"
#include "shell/training_desk.h"
#include "shell/usable_controls.h"
#include "shell/wind_desk.h"
#include "strings/string_table.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tarnel {

/// `Form1`: the whole trainer without its window: the simulation, the panel, the strip, the desks
/// where each kind of work is done, and the tick that couples them. It never looks at a clock: a
/// window's timers, a test or a scripted flight call the timer procedures.
class Form1 : public TrainerControls, public PanelControls {
  public:
    /// `applicationPath` is the folder of charts and pictures.
    Form1(const StringTable& table, OutsideWorld& world, std::string applicationPath);

    // The timer procedures. A run-time error in one pauses the flight and is shown once; none runs
    // while a box is up.
    void Timer1(); ///< the coupling, as often as the window can
    /// 1/3 simulated second, every `c_TimerSIMrate` ms while `c_TimerEN` is 1
    void simulationTimer();
    void autopilotTimer(); ///< the rate drive of the autopilot's knobs, a few times a second
    void Timer2();         ///< the replay, every `c_TimerSIMrate` ms while `replay.runs()`
    void blinkTimer();     ///< the mark beside a comment, twice a second while `markBlinks()`
    [[nodiscard]] bool markBlinks() const { return comments.markBlinks(!flight.flies()); }

    /// Runs what the user's hand started, with the same catch as the timer procedures.
    template <class Action>
    void guarded(Action action) {
        boxes.guarded(action);
    }

    void SelectInst2(std::int16_t type) { positions.select(positions.links2(), type); }
    void SelectInst3(std::int16_t type) { positions.select(positions.links3(), type); }
    void PositionInst2(bool large) { positions.resize(inst2, large); }
    void SwitchInst3(bool large) { positions.resize(inst3, large); }
    void StopFly() { flight.stop(); }
    void StopReplay() { replay.stop(); }
    /// Does what a letter on the status panels stands for: M, P, H, T, V, W or R. False for others,
    /// and for all but M while a question stands open.
    bool pressKey(char letter);
    void setFloatingGyroOpen(bool open);

    /// Called before a box opens: what shows the form is to be brought up to date.
    std::function<void()> beforeBox;

    const StringTable& texts;
    BoxDesk boxes;

  private:
    FileSurroundings fileSurroundings();
    ExerciseStage exerciseStage();
    ReferencePlaces referencePlaces();
    DebriefDesk::Given debriefGiven();
    void flyAgain();
    TaskChoice likelyTask();

  public:
    FileDesk files{fileSurroundings()};
    UserControl2 UserControl11{files};
    QAform QAform1;
    PanelCoupling coupling{UserControl11, *this};
    InstrumentPositions positions{UserControl11, *this, texts};
    ReplayDeck replay{UserControl11, replayPage};
    FlightSwitch flight{UserControl11, *this, replay};
    ChartDisplay display{UserControl11, *this, texts};
    WindDesk windDesk{UserControl11, *this, display, texts};
    StationDesk stationDesk{UserControl11, stationPage, boxes, replay, display};
    CommentStrip comments{UserControl11, commentPanel, boxes};
    RecentFiles recentFiles;
    FlightDesk flightDesk;
    PracticeDesk practice{UserControl11, *this, flightDesk.keeper, texts};
    TrackDesk tracks;
    ExerciseConduct exercise{QAform1, exerciseStage()};
    CourseDesk courses{boxes, exercise, exerciseMenu.ownCourses};
    TrainingDesk training;
    FlownTask flown;
    DebriefControls debriefControls{state};
    DebriefDesk debrief{debriefControls, debriefGiven()};
    FlightLog flightLog;
    DocumentDesk documents;

  private:
    // Start-up.
    void connectDesks();
    void connectSimulation();
    void connectHistory();
    void connectPanel();
    void startUp(const std::string& applicationPath);
    void setApplicationPath(const std::string& path);
    void setPanelDefaults();

    // The tick.
    void tick();
    void guardPractiseArea();
    void guardReference();
    void showState();
    void showMode();
    void showComment();
    void letGo();

    ReferenceGuard reference{UserControl11};
    StopwatchDesk stopwatch{UserControl11, *this};
    StatusReadouts readouts{UserControl11, *this, texts};
    UsableControls usable{UserControl11, *this,  positions, flightDesk.menu,
                          flight,        replay, exercise,  debrief};
};

} // namespace tarnel
