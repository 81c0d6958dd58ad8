#include "chart/holding_chart.h"
#include "exercises/exercise_catalogue.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"
#include "shell/exercise_conduct.h"
#include "shell/question_wind.h"
#include "shell/text_format.h"

#include <algorithm>
#include <vector>

namespace tarnel {

/// A question that the student flies himself: the panel is free until he looks at his own flight,
/// and the way back is open.
void ExerciseConduct::followFlight() {
    if (!studentFlies())
        return;
    if (stage.flight.flies() || question != Question::flown)
        stage.strip.replayPage.lock.set(0);
    stage.panel.inst3RadialBox.set(0);
    stage.strip.backButton.setVisible(true);
    if (form.c_TrackDelta > 0) {
        stage.sim.c_TrackDelta = form.c_TrackDelta;
        form.c_TrackDelta = 0;
    }
}

/// Carries out what the exercise asks for.
void ExerciseConduct::follow() {
    if (form.c_QAtype == static_cast<std::int16_t>(ExerciseType::left))
        leave();
    if (!runs())
        return;
    if (!studentFlies() && stage.flight.flies())
        endFlight();
    const auto wanted = static_cast<ShowResult>(form.c_showResult.get());
    form.c_showResult = 0;
    if (wanted == ShowResult::nextQuestion)
        showNext();
    if (!form.c_QASessionFileName.get().empty())
        loadSession();
    if ((wanted == ShowResult::replaySolution || wanted == ShowResult::replayArmed) && form.posed())
        showSolution();
    if (wanted == ShowResult::studentFlies)
        letStudentFly();
    tellWind();
    changed();
}

/// What the exercise on the wind gives, it says itself.
void ExerciseConduct::tellWind() {
    if (ExercisePanel* asked = form.activePanel();
        asked && form.posed() && form.c_QAtype != static_cast<std::int16_t>(ExerciseType::wind))
        asked->wind.setText(questionWind(stage.boxes.texts, stage.sim.wind, stage.sim.c_TAS));
}

/// The holding that the flight of the question flies; else the stations, and the aircraft where it
/// is shown: its track in a solution, its place where the chart is asked about.
void ExerciseConduct::frame() {
    UserControl2& sim = stage.sim;
    const ExerciseKind* exercise = exerciseOf(form.c_QAtype);
    if (exercise && exercise->fliesHolding && sim.c_TraceBufferMax >= 1) {
        const HoldingChart chart =
            holdingChart(sim.recording, sim.c_TraceBufferMax, sim.stations, sim.picture.size);
        return sim.showChart(chart.fix, chart.scale);
    }
    // A question stands at its flight's first sample, though the aircraft may not yet.
    const bool asked = !solutionShown() && exercise && exercise->askedOnChart;
    const int last = solutionShown() ? sim.c_TraceBufferMax
                     : asked         ? std::min<int>(sim.c_TraceBufferMax, 1)
                                     : 0;
    std::vector<GeoPosition> shown;
    for (int i = 1; i <= last; ++i)
        shown.push_back({sim.recording.at(i).traceLat, sim.recording.at(i).traceLon});
    sim.frameStations(shown);
}

void ExerciseConduct::showSolution() {
    stage.replay.stop();
    stage.flight.stop();
    question = Question::solved;
    frame();
    const ExerciseKind& exercise = *exerciseOf(form.c_QAtype);
    stage.panel.inst3RadialBox.set(exercise.solvedByRadial ? 1 : 0);
    stage.display.setHidden(false);
    if (exercise.solvedByWind) {
        stage.sim.c_SpeedVectorEN = 1;
        stage.sim.c_TraceEN = 0;
    }
    stage.strip.replayPage.lock.set(1);
    stage.strip.backButton.setVisible(true);
    stage.strip.replayPage.loop.set(0);
    stage.sim.c_HscrollRepeatValue = 0;
    stage.replay.leaveSample();
    stage.strip.replayPage.play.choose();
}

void ExerciseConduct::showNext() {
    stage.replay.stop();
    stage.flight.stop();
    form.c_smallFrame = false;
    stage.panel.inst3RadialBox.set(0);
    stage.strip.replayPage.lock.set(1);
    stage.strip.backButton.setVisible(false);
    switchFaces();
    hide();
}

QuestionCover ExerciseConduct::cover() const {
    return questionOpen() ? questionCover(form.c_QAtype, form.posed()) : QuestionCover{};
}

/// A question gives nothing away: no track, no comment, no radial, and no aircraft but where the
/// chart is what is asked about.
void ExerciseConduct::hide() {
    question = Question::open;
    stage.display.setHidden(true);
    stage.panel.inst2RadialBox.set(0);
    if (form.posed() && exerciseOf(form.c_QAtype)->askedOnChart)
        stage.sim.c_AirplaneEN.setIfChanged(1);
}

void ExerciseConduct::coverReadings() {
    const bool covered = cover().figures;
    for (DigitReadout* digits :
         {&stage.panel.APControlFace1.headingDigits, &stage.panel.DMEControlFace1.distance,
          &stage.panel.DMEControlFace1.speed})
        digits->setCovered(covered);
}

/// The flight begins at the first sample, with the settings that were recorded there; the next tick
/// frees them.
void ExerciseConduct::letStudentFly() {
    stage.replay.stop();
    stage.display.setHidden(true);
    question = Question::open;
    stage.coupling.switchFaces(true);
    stage.strip.replayPage.lock.set(1);
    if (stage.sim.c_FlyEN == 1)
        stage.sim.c_HscrollRepeatValue = 1;
}

void ExerciseConduct::loadSession() {
    const std::string path = form.c_QASessionFileName;
    form.c_QASessionFileName = std::string();
    stage.practice.expect(path);
    if (!stage.practice.load(path))
        form.sessionMissing(filledIn(stage.boxes.texts[Text::questionWithoutFlight],
                                     {textOf(portablePath(path).filename())}));
    if (!solutionShown())
        hide();
}

} // namespace tarnel
