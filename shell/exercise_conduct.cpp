#include "shell/exercise_conduct.h"

#include "exercises/exercise_catalogue.h"

#include <algorithm>

namespace tarnel {

namespace {

/// The entry of an instrument's list.
int entryOf(InstrumentKind kind) {
    return static_cast<int>(kind) - 1;
}

} // namespace

ExerciseConduct::ExerciseConduct(QAform& exercises, const ExerciseStage& trainerStage)
    : form(exercises), stage(trainerStage) {
    stage.strip.backButton.onClick = [this] { endFlight(); };
    ExerciseMenu& menu = stage.strip.exerciseMenu;
    for (std::size_t i = 0; i < exerciseItems().size(); ++i)
        menu.exercises[i]->onClick = [this, i] {
            start(exerciseItems()[i], shippedCourse(form.c_MainAppPath));
        };
    menu.resetStatistics.onClick = [this] {
        if (stage.boxes.confirm(Text::resetStatistics, Text::resetStatisticsQuestion))
            form.statistics.reset();
    };
    stage.practice.onLoad = [this](bool read) {
        if (runs())
            read ? frame() : stage.sim.dropRecording();
    };
    form.c_QAtype.publish(static_cast<std::int16_t>(ExerciseType::closed));
    form.statistics.prepare();
}

bool ExerciseConduct::mayFly() const {
    return !runs() || (studentFlies() && stage.sim.c_FlyEN == 1);
}

bool ExerciseConduct::awaitsAnswer() const {
    if (!runs())
        return false;
    const ExercisePanel* panel = form.activePanel();
    return questionOpen() ||
           (panel && std::ranges::any_of(panel->rows, [](const std::unique_ptr<AnswerRow>& row) {
                return row->state() == RowState::open;
            }));
}

void ExerciseConduct::flyAgain() {
    if (!studentFlies())
        return;
    letStudentFly();
    // At once, as the next tick unlocks, and what is unlocked is written over.
    stage.replay.followBar();
    stage.coupling.push();
}

void ExerciseConduct::flightStarts() {
    if (runs())
        question = Question::flown;
}

/// The radio faces would tell a position that is asked for.
void ExerciseConduct::switchFaces() {
    stage.coupling.switchFaces(!asksForPosition(form.c_QAtype));
}

void ExerciseConduct::start(const ExerciseItem& item, const Course& course, QAform::Order order) {
    stage.replay.stop();
    stage.flight.stop();
    stage.strip.stationPage.edit.set(0);
    rememberTrainer();
    stage.sim.history.clear();
    question = Question::open;
    stage.practice.leave();
    stage.strip.chartPage.trace.set(1);
    stage.strip.rateQuadruple.choose();
    stage.strip.replayPage.lock.set(1);
    if (item.inst2)
        stage.panel.inst2TypeList.select(entryOf(*item.inst2));
    if (item.inst3)
        stage.panel.inst3TypeList.select(entryOf(*item.inst3));
    if (item.size == ExerciseItem::Size::largeHsi)
        stage.panel.inst3Large.choose();
    else if (item.size == ExerciseItem::Size::small)
        stage.panel.inst2Small.choose();
    form.c_smallFrame = false;
    form.open(course, item.type, order);
    switchFaces();
    hide();
    changed();
}

void ExerciseConduct::rememberTrainer() {
    for (OptionButton* rate : {&stage.strip.rateReal, &stage.strip.rateHalf,
                               &stage.strip.rateDouble, &stage.strip.rateQuadruple})
        if (rate->chosen())
            before.rate = rate;
    before.trace = stage.strip.chartPage.trace.value();
    before.inst2Type = stage.panel.inst2TypeList.index();
    before.inst3Type = stage.panel.inst3TypeList.index();
    before.inst2Large = stage.panel.inst2Large.chosen();
    before.inst3Large = stage.panel.inst3Large.chosen();
    before.radialShown = stage.panel.inst3RadialBox.value();
}

void ExerciseConduct::restoreTrainer() {
    PanelControls& panel = stage.panel;
    panel.inst3RadialBox.set(before.radialShown);
    panel.inst2TypeList.pick(before.inst2Type);
    panel.inst3TypeList.pick(before.inst3Type);
    (before.inst2Large ? panel.inst2Large : panel.inst2Small).choose();
    (before.inst3Large ? panel.inst3Large : panel.inst3Small).choose();
    before.rate->choose();
    stage.strip.chartPage.trace.set(before.trace);
}

/// The student has left: the trainer is again as a free flight needs it, at the question's first
/// sample.
void ExerciseConduct::leave() {
    form.c_QAtype.publish(static_cast<std::int16_t>(ExerciseType::closed));
    if (!runs())
        return;
    stage.replay.stop();
    stage.flight.stop();
    question = Question::none;
    stage.strip.backButton.setVisible(false);
    stage.coupling.switchFaces(true);
    if (stage.sim.c_FlyEN == 1)
        stage.sim.c_HscrollRepeatValue = 1;
    stage.replay.followBar();
    stage.coupling.push();
    stage.replay.leaveSample();
    stage.strip.replayPage.lock.set(0);
    stage.sim.c_TrackDelta = 0;
    stage.sim.c_SessionFileName = stage.sim.newSessionName;
    restoreTrainer();
    stage.display.setHidden(false);
    changed();
    onLeave();
}

/// Back from a flight or from the solution to the question.
void ExerciseConduct::endFlight() {
    stage.replay.stop();
    stage.flight.stop();
    stage.sim.c_TrackDelta = 0;
    form.c_smallFrame = false;
    if (studentFlies())
        form.c_QAFly = static_cast<std::int16_t>(-form.c_QAFly);
    switchFaces();
    stage.strip.replayPage.lock.set(1);
    stage.strip.backButton.setVisible(false);
    if (!solutionShown())
        hide();
    changed();
}

} // namespace tarnel
