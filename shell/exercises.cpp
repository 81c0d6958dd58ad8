#include "core/number_text.h"
#include "core/run_time_error.h"
#include "engine/file_requests.h"
#include "exercises/exercise_catalogue.h"
#include "persistence/file_bytes.h"
#include "shell/form_1.h"

#include <algorithm>
#include <filesystem>

namespace tarnel {

namespace {

constexpr std::size_t largestStudyFile = 1 << 20;
constexpr const char* sessionsFolder = "default/sessions/";

std::optional<std::string> readStudy(const std::string& path) {
    try {
        return readFileBytes(path, largestStudyFile);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

ExerciseSurroundings Form1::exerciseSurroundings() {
    return {texts, outside.settings(), readStudy,
            [this] { return outside.clockSeed().value_or(0); }};
}

void Form1::connectExercises() {
    backButton.onClick = [this] { endExerciseFlight(); };
    for (std::size_t i = 0; i < exerciseItems().size(); ++i)
        exerciseMenu.exercises[i]->onClick = [this, i] { startExercise(exerciseItems()[i]); };
    for (std::size_t i = 0; i < ExerciseMenu::practiceCount; ++i) {
        const std::string number = zeroPadded(static_cast<std::int64_t>(i + 1), 2);
        exerciseMenu.adfPractice[i]->onClick = [this, number] {
            openPractice("adf practise " + number + ".ts", true);
        };
        exerciseMenu.vorPractice[i]->onClick = [this, number] {
            openPractice("vor practise " + number + ".ts", true);
        };
    }
    exerciseMenu.introduction1.onClick = [this] { openPractice("introduction 1.ts", false); };
    exerciseMenu.introduction2.onClick = [this] { openPractice("introduction 2.ts", false); };
    exerciseMenu.resetStatistics.onClick = [this] {
        if (confirm(text(Text::resetStatistics), text(Text::resetStatisticsQuestion)))
            QAform1.statistics.reset();
    };
    QAform1.c_QAtype.publish(exerciseClosed);
    QAform1.statistics.prepare();
}

/// The sessions of other languages than German have "e-" before their names. Unless it has to be
/// the language's own, the German one serves where there is no other.
std::string Form1::shippedSession(const std::string& name, bool ownLanguage) const {
    const std::string folder = UserControl11.c_MainAppPath.get() + "/" + sessionsFolder;
    const std::string other = folder + "e-" + name;
    const bool takesOther = !texts.isGerman() && (ownLanguage || std::filesystem::exists(other));
    return takesOther ? other : folder + name;
}

void Form1::openPractice(const std::string& name, bool practised) {
    if (!loadPractised(shippedSession(name, practised)))
        return;
    chartPage.trace.set(1);
    practising = practised;
    UserControl11.c_TrackDelta = practising ? 1 : 0;
}

/// Loads a session of the program's own. In an exercise the stations are framed, which tells
/// nothing of where a hidden aircraft is, and a session that can't be read leaves no other flight
/// behind. False if it can't.
bool Form1::loadPractised(const std::string& path) {
    const bool loaded = UserControl11.loadByName(path);
    if (loaded || exerciseUp)
        practisedPath = path;
    if (loaded)
        practiceTask.take(
            UserControl11.comments.shownText(UserControl11.recording.at(1).traceComment));
    if (exerciseUp && loaded)
        frameQuestion();
    else if (exerciseUp)
        UserControl11.dropRecording();
    return loaded;
}

void Form1::startExercise(const ExerciseItem& item) {
    StopReplay();
    StopFly();
    stationPage.edit.set(0);
    rememberShell();
    UserControl11.history.clear();
    exerciseUp = true;
    practising = false;
    chartPage.trace.set(1);
    rateQuadruple.choose();
    replayPage.lock.set(1);
    if (item.inst2Kind >= 0)
        inst2TypeList.select(item.inst2Kind);
    if (item.inst3Kind >= 0)
        inst3TypeList.select(item.inst3Kind);
    if (item.size == ExerciseItem::Size::largeHsi)
        inst3Large.choose();
    else if (item.size == ExerciseItem::Size::small)
        inst2Small.choose();
    coupling.switchFaces(!asksForPosition(item.type));
    UserControl11.c_TrackDelta = 0;
    QAform1.c_smallFrame = false;
    QAform1.c_QAtype = item.type;
    hideForQuestion();
    enableControls();
}

void Form1::rememberShell() {
    for (OptionButton* rate : {&rateReal, &rateHalf, &rateDouble, &rateQuadruple})
        if (rate->chosen())
            beforeExercise.rate = rate;
    beforeExercise.trace = chartPage.trace.value();
    beforeExercise.inst2Type = inst2TypeList.index();
    beforeExercise.inst3Type = inst3TypeList.index();
    beforeExercise.inst2Large = inst2Large.chosen();
    beforeExercise.inst3Large = inst3Large.chosen();
    beforeExercise.radialShown = inst3RadialBox.value();
}

/// The student has left: the shell is again as a free flight needs it, at the question's first
/// sample.
void Form1::leaveExercise() {
    QAform1.c_QAtype.publish(exerciseClosed);
    if (!exerciseUp)
        return;
    StopReplay();
    StopFly();
    exerciseUp = solutionSeen = questionFlown = false;
    backButton.setVisible(false);
    coupling.switchFaces(true);
    if (UserControl11.c_FlyEN == 1)
        UserControl11.c_HscrollRepeatValue = 1;
    followReplayBar();
    coupling.push();
    replayIndex = 0;
    replayPage.lock.set(0);
    UserControl11.c_TrackDelta = 0;
    UserControl11.c_SessionFileName = UserControl11.newSessionName;
    inst3RadialBox.set(beforeExercise.radialShown);
    inst2TypeList.pick(beforeExercise.inst2Type);
    inst3TypeList.pick(beforeExercise.inst3Type);
    (beforeExercise.inst2Large ? inst2Large : inst2Small).choose();
    (beforeExercise.inst3Large ? inst3Large : inst3Small).choose();
    beforeExercise.rate->choose();
    chartPage.trace.set(beforeExercise.trace);
    setHidden(false);
    enableControls();
}

/// Back from a flight or from the solution to the question.
void Form1::endExerciseFlight() {
    StopReplay();
    StopFly();
    UserControl11.c_TrackDelta = 0;
    QAform1.c_smallFrame = false;
    if (QAform1.c_QAFly > 0)
        QAform1.c_QAFly = static_cast<std::int16_t>(-QAform1.c_QAFly);
    coupling.switchFaces(!asksForPosition(QAform1.c_QAtype));
    replayPage.lock.set(1);
    backButton.setVisible(false);
    if (!solutionSeen)
        hideForQuestion();
    enableControls();
}

} // namespace tarnel
