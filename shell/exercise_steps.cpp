#include "chart/holding_chart.h"
#include "exercises/exercise_catalogue.h"
#include "persistence/file_path.h"
#include "shell/form_1.h"
#include "shell/text_format.h"

namespace tarnel {

namespace {

/// Types of exercises that the shell treats differently.
constexpr std::int16_t windExercise = 8;
constexpr std::int16_t orientation = 10;

/// `c_showResult`.
enum ShowResult : std::int16_t { replaySolution = 1, nextQuestion = 2, fly = 4, replayArmed = 6 };

/// Whether a solution is shown with the selected radial.
bool showsRadial(std::int16_t type) {
    return (type >= 1 && type <= 3) || type == 9 || type == orientation;
}

} // namespace

/// A question that the student flies himself: the panel is free until he looks at his own flight,
/// and the way back is open.
void Form1::followExerciseFlight() {
    if (QAform1.c_QAFly <= 0)
        return;
    if (simStopped == 0 || !questionFlown)
        replayPage.lock.set(0);
    inst3RadialBox.set(0);
    backButton.setVisible(true);
    if (QAform1.c_TrackDelta > 0) {
        UserControl11.c_TrackDelta = QAform1.c_TrackDelta;
        QAform1.c_TrackDelta = 0;
    }
}

/// Carries out what the exercise asks of the shell.
void Form1::followExercise() {
    if (QAform1.c_QAtype == exerciseLeft)
        leaveExercise();
    if (!exerciseUp)
        return;
    if (QAform1.c_QAFly <= 0 && simStopped == 0)
        endExerciseFlight();
    const std::int16_t wanted = QAform1.c_showResult;
    QAform1.c_showResult = 0;
    if (wanted == nextQuestion)
        showNextQuestion();
    if (!QAform1.c_QASessionFileName.get().empty())
        loadQuestionSession();
    if ((wanted == replaySolution || wanted == replayArmed) && QAform1.posed())
        showSolution();
    if (wanted == fly)
        letStudentFly();
    enableControls();
}

/// The holding that the flight of the question flies; else the stations, and the aircraft where it
/// is shown: its track in a solution, its place where the chart is asked about.
void Form1::frameQuestion() {
    UserControl2& sim = UserControl11;
    const ExerciseKind* exercise = exerciseOf(QAform1.c_QAtype);
    if (exercise && exercise->fliesHolding && sim.c_TraceBufferMax >= 1) {
        const HoldingChart chart =
            holdingChart(sim.recording, sim.c_TraceBufferMax, sim.stations, sim.picture.size);
        return sim.showChart(chart.fix, chart.scale);
    }
    std::vector<GeoPosition> shown;
    for (int i = 1; solutionSeen && i <= sim.c_TraceBufferMax; ++i)
        shown.push_back({sim.recording.at(i).traceLat, sim.recording.at(i).traceLon});
    if (shown.empty() && exercise && exercise->askedOnChart)
        shown.push_back(sim.aircraft.published());
    sim.frameStations(shown);
}

void Form1::showSolution() {
    StopReplay();
    StopFly();
    solutionSeen = true;
    frameQuestion();
    inst3RadialBox.set(showsRadial(QAform1.c_QAtype) ? 1 : 0);
    setHidden(false);
    if (QAform1.c_QAtype == windExercise) {
        UserControl11.c_SpeedVectorEN = 1;
        UserControl11.c_TraceEN = 0;
    }
    replayPage.lock.set(1);
    backButton.setVisible(true);
    replayPage.loop.set(0);
    UserControl11.c_HscrollRepeatValue = 0;
    replayIndex = 0;
    replayPage.play.choose();
}

void Form1::showNextQuestion() {
    StopReplay();
    StopFly();
    solutionSeen = false;
    QAform1.c_smallFrame = false;
    inst3RadialBox.set(0);
    replayPage.lock.set(1);
    backButton.setVisible(false);
    coupling.switchFaces(!asksForPosition(QAform1.c_QAtype));
    hideForQuestion();
}

QuestionCover Form1::cover() const {
    return questionOpen() ? questionCover(QAform1.c_QAtype, QAform1.posed()) : QuestionCover{};
}

/// A question gives nothing away: no track, no comment, no radial, and no aircraft but where the
/// chart is what is asked about.
void Form1::hideForQuestion() {
    solutionSeen = questionFlown = false;
    setHidden(true);
    inst2RadialBox.set(0);
    if (QAform1.posed() && exerciseOf(QAform1.c_QAtype)->askedOnChart)
        UserControl11.c_AirplaneEN.setIfChanged(1);
}

void Form1::coverReadings() {
    const QuestionCover covered = cover();
    instruments.setVisible(!covered.instruments);
    for (DigitReadout* digits :
         {&APControlFace1.headingDigits, &DMEControlFace1.distance, &DMEControlFace1.speed})
        digits->setCovered(covered.figures);
}

/// The flight begins at the first sample, with the settings that were recorded there; the next tick
/// frees them.
void Form1::letStudentFly() {
    StopReplay();
    setHidden(true);
    solutionSeen = questionFlown = false;
    coupling.switchFaces(true);
    replayPage.lock.set(1);
    if (UserControl11.c_FlyEN == 1)
        UserControl11.c_HscrollRepeatValue = 1;
}

void Form1::loadQuestionSession() {
    const std::string path = QAform1.c_QASessionFileName;
    QAform1.c_QASessionFileName = std::string();
    if (!loadPractised(path))
        QAform1.sessionMissing(
            filledIn(texts[Text::questionWithoutFlight], {portablePath(path).filename().string()}));
    if (!solutionSeen)
        hideForQuestion();
}

} // namespace tarnel
