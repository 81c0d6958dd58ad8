#include "shell/form_1.h"

#include "core/angle.h"
#include "panel/needle_sources.h"
#include "persistence/file_bytes.h"

#include <cmath>
#include <optional>

namespace tarnel {

namespace {

std::optional<std::string> readStudy(const std::string& path) {
    try {
        return readFileBytes(path, largestStudyFile);
    } catch (const RunTimeError&) {
        return {};
    }
}

ExerciseSurroundings exerciseSurroundings(const StringTable& texts, OutsideWorld& outside) {
    return {.texts = texts,
            .settings = outside.settings(),
            .readFile = readStudy,
            .seed = [&outside] { return outside.clockSeed().value_or(0); }};
}

} // namespace

Form1::Form1(const StringTable& table, OutsideWorld& world, std::string applicationPath)
    : PanelControls(state),
      texts(table),
      boxes(table, world),
      QAform1(state, exerciseSurroundings(table, world)),
      recentFiles(world.settings()),
      flightDesk(state, boxes, UserControl11, world),
      tracks(UserControl11, fileMenu, boxes, practice, world),
      training(QAform1, exercise, courses, boxes, world),
      flown({UserControl11, flight, exercise, QAform1, practice,
             [this](const std::string& path) { return referenceName(path, referencePlaces()); }}),
      flightLog({UserControl11, training, boxes, flightDesk.keeper, flown, debrief,
                 fileMenu.loadSession, [this] { return referencePlaces(); }}),
      documents(UserControl11, *this, practice, boxes, world) {
    UserControl11.clockSeed = [&world] { return world.clockSeed(); };
    connectDesks();
    connectSimulation();
    connectHistory();
    connectPanel();
    guarded([&] { startUp(applicationPath); });
}

FileSurroundings Form1::fileSurroundings() {
    return {.sim = UserControl11,
            .strip = *this,
            .coupling = coupling,
            .boxes = boxes,
            .replay = replay,
            .flight = flight,
            .practice = practice,
            .comments = comments,
            .exercise = exercise};
}

ExerciseStage Form1::exerciseStage() {
    return {.sim = UserControl11,
            .strip = *this,
            .panel = *this,
            .coupling = coupling,
            .replay = replay,
            .flight = flight,
            .display = display,
            .practice = practice,
            .boxes = boxes};
}

ReferencePlaces Form1::referencePlaces() {
    return {UserControl11.c_MainAppPath, courses.place(), texts};
}

DebriefDesk::Given Form1::debriefGiven() {
    return {.sim = UserControl11,
            .replay = replay,
            .display = display,
            .lock = replayPage.lock,
            .button = practicePanel.debrief,
            .mayShow = [this] { return !flight.flies() && !exercise.awaitsAnswer(); },
            .giveUp =
                [this] {
                    const bool wanted = boxes.confirm(Text::debrief, Text::debriefGivesUpQuestion);
                    if (wanted)
                        QAform1.giveUp();
                    return wanted;
                },
            .ownFlight = [this] { return flown.isOwn(); },
            .knownTask = [this] { return flown.task(); },
            .proposal = [this] { return likelyTask(); },
            .reference = [this] { return flown.reference(); },
            .flyAgain = [this] { flyAgain(); }};
}

/// The station and the course that the right instrument shows.
TaskChoice Form1::likelyTask() {
    TaskChoice likely;
    if (const auto needle = needleSources(inst3, positions.feedSources()).first)
        likely.station = needle->slot;
    const double onChart = UserControl11.c_obsI3; // from its top
    const double shown = UserControl11.view.northUpMode ? onChart : onChart + UserControl11.c_HDG;
    const auto course = static_cast<int>(std::lround(intoCircle(shown)));
    likely.course = course == 0 ? 360 : course;
    return likely;
}

/// The aircraft stands where the flight began, with the settings that were recorded there.
void Form1::flyAgain() {
    if (exercise.studentFlies())
        return exercise.flyAgain();
    if (debrief.task())
        flown.flyAgain(*debrief.task());
    replayPage.lock.set(1);
    UserControl11.c_HscrollRepeatValue = 1;
    replay.followBar();
    coupling.push();
    replayPage.lock.set(0);
}

/// What one desk lets the others know.
void Form1::connectDesks() {
    boxes.pause = [this] {
        StopReplay();
        StopFly();
    };
    boxes.beforeBox = [this] {
        letGo();
        if (beforeBox)
            beforeBox();
    };
    for (std::function<void()>* changed : {&replay.changed, &flight.changed, &stationDesk.changed,
                                           &exercise.changed, &debrief.changed})
        *changed = [this] {
            usable.update();
            showMode();
        };
    flight.onStart = [this] {
        flightLog.flightStarts();
        exercise.flightStarts();
    };
    flight.onStop = [this] {
        if (practice.practises() || exercise.studentFlies())
            UserControl11.c_TrackDelta = 3;
        flightLog.flightRests();
    };
    practice.onLeave = [this] { flown.drop(); };
    files.openTrack = [this](const std::string& path) { tracks.flyAlong(path); };
    files.onUsed = [this](const std::string& path) { recentFiles.note(path); };
    tracks.onUsed = files.onUsed;
    files.connectMenu();
}

void Form1::connectSimulation() {
    UserControl11.placedByHand = [this] {
        StopReplay();
        flown.drop();
    };
    UserControl11.practicePanelSet = [this](std::int16_t panel) { practice.showPanel(panel); };
    UserControl11.headingDrawn = [this](std::int16_t heading) { coupling.setHeadingBug(heading); };
}

/// A flight that came back is shown at the sample where it was.
void Form1::connectHistory() {
    editMenu.undo.onClick = [this] {
        if (UserControl11.undo())
            replay.standAt(UserControl11.presentSampleIndex());
        usable.followHistory();
    };
    editMenu.redo.onClick = [this] {
        UserControl11.redo();
        usable.followHistory();
    };
}

void Form1::connectPanel() {
    replayPage.lock.onClick = [this] { coupling.setLocked(replayPage.lock.value() == 1); };
    floatingGyroBox.onClick = [this] { setFloatingGyroOpen(floatingGyroBox.value() == 1); };
    for (UserControl_1* instrument :
         {&inst1.instrument, &inst2.instrument, &inst3.instrument, &UserControl_DG})
        instrument->showMessage = [this](const std::string&) {
            boxes.show(Text::windowTitle, std::string(texts[Text::unsupportedDisplay]));
        };
}

void Form1::Timer1() {
    if (!boxes.up())
        guarded([this] {
            tick();
            boxes.tellSettingsTrouble();
        });
}

void Form1::simulationTimer() {
    if (!boxes.up() && UserControl11.c_TimerEN == 1)
        guarded([this] { UserControl11.Timer1(); });
}

void Form1::Timer2() {
    if (!boxes.up() && replay.runs())
        guarded([this] { replay.pump(); });
}

void Form1::autopilotTimer() {
    if (!boxes.up())
        guarded([this] { APControlFace1.Timer1(); });
}

void Form1::blinkTimer() {
    if (!boxes.up())
        comments.blinkMark(!flight.flies());
}

void Form1::setFloatingGyroOpen(bool open) {
    floatingGyroBox.set(open ? 1 : 0);
    if (!open)
        return;
    UserControl_DG.c_MainAppPath = UserControl11.c_MainAppPath.get();
    UserControl_DG.Display = dg;
}

} // namespace tarnel
