#include "soak/program.h"

#include "log/sqlite_log.h"
#include "persistence/user_data.h"
#include "window/widgets/dressing.h"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>

namespace tarnel {

namespace {

constexpr QSize usualWindow{1280, 800};
constexpr int millisecondsPerTick = 333;

const StringTable& dressed(const StringTable& texts, const std::string& folder) {
    dressApplication(texts, QString::fromStdString(folder));
    return texts;
}

} // namespace

Program::Program(const Given& given)
    : state(given.state),
      world({dressed(given.texts, given.applicationFolder), state.dice, state.trail, state.boxes,
             state.milliseconds, given.files, userDataFolder() + "/settings.ini"}),
      form(given.texts, world, given.applicationFolder),
      hand({state.dice, state.trail, state.controls, state.entries}),
      scratch(userDataFolder()),
      window(form) {
    form.courses.setFolder(userCourses());
    form.training.useLog([](TrainingDesk& desk) {
        auto log = std::make_unique<SqliteLog>(userDataFolder() + "/training");
        log->onSetAside = [&desk](const std::string& path) { desk.tellSetAside(path); };
        return log;
    });
    form.UserControl11.c_ScratchPath = scratch.path();
    world.setParent(&window);
    keepCount();
    exit().setEnabled(false);
    window.resize(usualWindow);
    window.show();
    window.activateWindow();
    form.flightDesk.keeper.useShelf(userDataFolder() + "/flights");
    settle();
}

void Program::keepCount() {
    form.QAform1.onJudged = [this, before = form.QAform1.onJudged](const JudgedRow& row) {
        ++state.answered;
        state.right += row.right ? 1 : 0;
        before(row);
    };
}

/// How often what is shown has changed.
std::array<std::uint64_t, 4> Program::changes() const {
    return {form.state.revision(), form.UserControl11.picture.surface.revision(),
            form.inst2.instrument.picture.surface.revision(),
            form.inst3.instrument.picture.surface.revision()};
}

/// The coupling has to be done with a change in a tick less than it has. What was left to be
/// deleted later goes only where the outermost loop runs.
void Program::settle() {
    const auto beat = [this](int ticks) {
        for (int i = 0; i < ticks; ++i)
            form.Timer1();
        window.refresh();
        return changes();
    };
    const auto before = beat(CouplingPulse::ticks - 1);
    const auto after = beat(CouplingPulse::ticks);
    constexpr const char* places[] = {"form", "chart", "instrument 2", "instrument 3"};
    for (std::size_t i = 0; i < after.size(); ++i)
        if (before[i] != after[i])
            throw Fault(std::string("the coupling was not done in all its ticks: ") + places[i]);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Program::pass(int seconds) {
    constexpr int ticksPerSecond = 3;
    constexpr int ticksPerPicture = 60;
    constexpr int ticksPerDrive = 3;
    constexpr int ticksPerCopy = 60;
    const UserControl2& sim = form.UserControl11;
    for (int i = 1; i <= seconds * ticksPerSecond; ++i) {
        const bool flies = sim.c_TimerEN == 1;
        if (!flies && !form.replay.runs())
            break;
        if (flies) {
            form.simulationTimer();
            ++state.ticks;
        }
        if (form.replay.runs())
            form.Timer2();
        if (form.APControlFace1.drives() && i % ticksPerDrive == 0)
            form.autopilotTimer();
        if (form.markBlinks() && i % ticksPerDrive == 0)
            form.blinkTimer();
        state.milliseconds += millisecondsPerTick;
        form.Timer1();
        if (++driven % ticksPerCopy == 0)
            form.flightDesk.keeper.keepCopy();
        if (i % ticksPerPicture == 0) {
            window.refresh();
            QApplication::processEvents();
        }
    }
    settle();
}

/// The entry that ends the program: at rest until it is to end.
QAction& Program::exit() {
    return *window.findChild<QAction*>(QStringLiteral("mnuExit"));
}

void Program::closeOthers() {
    hand.answerPopups();
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other != &window && other->isVisible())
            other->close();
    settle();
}

void Program::rest() {
    state.trail.note("rest");
    closeOthers();
    form.guarded([this] {
        form.UserControl11.mouse.cancel();
        form.StopFly();
        form.StopReplay();
        form.setFloatingGyroOpen(false);
        form.stationPage.edit.set(0);
        form.commentPanel.write.set(0);
    });
    settle();
    hand.press(window, "CloseProgress");
    settle();
    form.guarded([this] {
        if (form.debrief.isOpen())
            form.debriefControls.close.click();
        if (ExercisePanel* panel = form.QAform1.activePanel())
            panel->cancelButton.click();
    });
    settle();
    closeOthers();
    if (form.exercise.runs() || form.debrief.isOpen() || form.flight.flies() || form.boxes.up())
        throw Fault("the trainer does not come to rest");
}

void Program::end() {
    constexpr int patience = 40;
    rest();
    exit().setEnabled(true);
    for (int i = 0; window.isVisible(); ++i) {
        if (i == patience)
            throw Fault("the program does not end");
        hand.useEntry(window, "mnuExit");
    }
    // It has asked the loop to end; one that was never asked would begin ended.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

} // namespace tarnel
