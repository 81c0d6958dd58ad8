#include "chart/holding_chart.h"
#include "exercises/exercise_catalogue.h"
#include "flights/flight.h"
#include "strings/string_table.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <functional>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

class ExerciseFlow : public testing::TestWithParam<std::size_t> {
  protected:
    void couple(int ticks = 3) {
        for (int i = 0; i < ticks; ++i)
            form.Timer1();
    }
    void start(std::size_t item) {
        form.exerciseMenu.exercises[item]->click();
        couple();
    }
    ExercisePanel& panel() { return *form.QAform1.activePanel(); }
    void click(CommandButton& button) {
        button.click();
        couple();
    }
    void toFirstQuestion() {
        while (panel().frame.text().find("( 1 von") == std::string::npos)
            click(panel().nextButton);
    }
    /// Lets the replay run to its end.
    void watch() {
        for (int i = 0; form.replay.runs() && i < 4 * Recording::lastSample; ++i) {
            form.Timer2();
            couple(1);
        }
    }
    void fly(int seconds) {
        for (int i = 0; i < 3 * seconds; ++i) {
            form.simulationTimer();
            couple(1);
        }
    }

    void expectHidden() {
        const UserControl2& sim = form.UserControl11;
        EXPECT_TRUE(form.exercise.questionOpen());
        EXPECT_EQ(sim.c_TraceEN + sim.c_SpeedVectorEN + sim.c_TraceAheadEN, 0);
        EXPECT_TRUE(sim.picture.trace.all().empty());
        EXPECT_FALSE(form.commentPanel.comment.visible());
        EXPECT_FALSE(form.startButton.enabled());
        EXPECT_FALSE(form.replayPage.play.enabled());
        EXPECT_FALSE(form.pressKey('H'));
        form.display.setNorthUp(false);
        EXPECT_EQ(sim.c_MAPnorthUP, 1);
        EXPECT_FALSE(form.chartPage.centre.enabled());
        EXPECT_FALSE(form.inst3TypeList.enabled());
        const GeoPosition before = sim.aircraft.published();
        for (const ChartButton button : {ChartButton::left, ChartButton::right}) {
            form.UserControl11.mouse.down(button, {1000, 1000});
            form.UserControl11.mouse.up();
        }
        EXPECT_EQ(sim.aircraft.published(), before);
        EXPECT_FALSE(sim.picture.heading.line.visible);
        EXPECT_EQ(sim.presentSampleIndex(), 1);
        EXPECT_GT(sim.c_TraceBufferMax, 40);
        expectChartStays();
        expectFiguresCovered();
    }
    /// Neither scales nor sizes centre the chart on the aircraft that is looked for.
    void expectChartStays() {
        const auto centre = [this] {
            const GeoPosition at = toPlain(form.UserControl11.view.mapCenter);
            return std::pair(at.latitude, at.longitude);
        };
        const auto before = centre();
        const std::int16_t scale = form.UserControl11.c_MAPscale;
        for (const auto& change : std::initializer_list<std::function<void()>>{
                 [&] { form.display.stepScale(-1); }, [&] { form.display.setScale(scale); },
                 [&] { form.inst2Large.click(); }, [&] { form.inst2Small.click(); },
                 [&] { form.chartPage.centre.click(); }}) {
            change();
            EXPECT_EQ(centre(), before);
        }
        form.inst3Small.click();
    }
    void expectFiguresCovered() {
        const bool covered = asksForPosition(form.QAform1.c_QAtype);
        EXPECT_EQ(form.exercise.cover().figures, covered);
        for (const DigitReadout* digits :
             {&form.APControlFace1.headingDigits, &form.DMEControlFace1.distance})
            EXPECT_EQ(digits->pictures().front() == DigitReadout::blankPicture, covered);
    }
    /// In holdings the pattern takes a third of the chart, about its fix.
    void expectHoldingFramed() {
        const UserControl2& sim = form.UserControl11;
        const double side = sim.picture.size;
        const double across = holdingLength(sim.recording.at(1).traceTAS) * sim.c_MAPscale;
        EXPECT_NEAR(across / side, 1.0 / 3, 0.01);
        double nearest = side;
        for (const Station& station : sim.stations)
            nearest = std::min(nearest, std::hypot(station.place.wide.x - side / 2,
                                                   station.place.wide.y - side / 2));
        EXPECT_LT(nearest, 30);
    }

    RecordingWorld world;
    Form1 form{germanTable(), world, TARNEL_APPLICATION_FOLDER};
};

TEST_P(ExerciseFlow, IsAskedShownAndLeft) {
    couple();
    const std::int16_t type = static_cast<std::int16_t>(exerciseItems()[GetParam()].type);
    start(GetParam());
    ASSERT_TRUE(form.exercise.runs());
    panel().randomBox.set(0);
    if (type == 10) // begins at random
        toFirstQuestion();
    EXPECT_THAT(panel().frame.text(), testing::HasSubstr("( 1 von 24)"));
    EXPECT_TRUE(world.boxes.empty()) << world.boxes[0].text;
    if (exerciseOf(type)->fliesHolding)
        expectHoldingFramed();
    expectHidden();
    EXPECT_EQ(form.UserControl11.c_AirplaneEN, type == 10 ? 1 : 0);
    EXPECT_EQ(form.exercise.cover().instruments, type == 10);
    for (CommandButton* item : form.exerciseMenu.items())
        EXPECT_FALSE(item->enabled()) << item->name();
    EXPECT_FALSE(form.fileMenu.loadSession.enabled());

    click(panel().solutionButton);
    EXPECT_FALSE(form.exercise.questionOpen());
    EXPECT_TRUE(form.replay.runs() && form.exercise.solutionShown());
    EXPECT_TRUE(!form.exercise.cover().instruments && form.backButton.visible());
    EXPECT_EQ(form.UserControl11.c_AirplaneEN, 1);
    EXPECT_EQ(form.UserControl11.c_SpeedVectorEN, type == 8 ? 1 : 0);
    couple(1);
    EXPECT_EQ(form.replayPage.lock.value(), 1);
    watch();
    EXPECT_EQ(form.replayPage.bar.value(), form.UserControl11.c_TraceBufferMax);
    click(panel().nextButton); // seen, not answered: the next question
    EXPECT_THAT(panel().frame.text(), testing::HasSubstr("( 2 von 24)"));
    EXPECT_THAT(panel().statistic.text(), testing::HasSubstr(": 0"));
    expectHidden();
    click(panel().cancelButton);
    EXPECT_FALSE(form.exercise.runs());
    form.inst2TypeList.pick(form.inst2.type % 5);
    form.replayPage.bar.scrollTo(2);
    EXPECT_FALSE(form.UserControl11.flightUnsaved()) << "looked at, not written over";
}

class FlownExercise : public ExerciseFlow {
  protected:
    void flyQuestion() {
        click(panel().flyButton);
        form.startButton.click();
        fly(5);
    }
};

TEST_P(FlownExercise, IsFlownByTheStudentAndComesBack) {
    couple();
    const std::int16_t type = static_cast<std::int16_t>(exerciseItems()[GetParam()].type);
    start(GetParam());
    const std::string question = panel().frame.text();
    const Sample first = form.UserControl11.recording.at(1);
    const std::int16_t samples = form.UserControl11.c_TraceBufferMax;
    click(panel().flyButton);
    EXPECT_GT(form.QAform1.c_QAFly, 0);
    EXPECT_TRUE(form.startButton.enabled());
    EXPECT_TRUE(form.backButton.visible());
    EXPECT_EQ(form.replayPage.lock.value(), 0);
    EXPECT_EQ(form.inst3.type, first.traceInst3);
    EXPECT_EQ(form.NAVControlFace1.c_OnOff, 1);
    EXPECT_FALSE(form.replayPage.play.enabled()); // the solution is still recorded
    EXPECT_FALSE(form.replayPage.hide.enabled());
    form.startButton.click();
    fly(20);
    EXPECT_TRUE(form.flight.flies());
    EXPECT_NEAR(form.UserControl11.c_TraceBufferMax, 16, 1);
    EXPECT_TRUE(form.UserControl11.referenceReading.known) << type;
    click(form.backButton);
    EXPECT_FALSE(form.flight.flies());
    EXPECT_LT(form.QAform1.c_QAFly, 0);
    EXPECT_EQ(panel().frame.text(), question);
    EXPECT_EQ(form.UserControl11.c_TraceBufferMax, samples); // the solution is there again
    expectHidden();

    flyQuestion();
    click(panel().solutionButton);
    EXPECT_FALSE(form.flight.flies());
    EXPECT_TRUE(form.replay.runs());
    EXPECT_EQ(form.UserControl11.c_TraceBufferMax, samples);
    watch();
    flyQuestion();
    click(panel().nextButton); // from the midst of a flight
    EXPECT_FALSE(form.flight.flies());
    expectHidden();
    flyQuestion();
    click(panel().cancelButton);
    EXPECT_FALSE(form.exercise.runs());
    EXPECT_FALSE(form.flight.flies());
    EXPECT_TRUE(world.boxes.empty());
}

std::string nameOf(const testing::TestParamInfo<std::size_t>& item) {
    return exerciseItems()[item.param].name;
}

/// The items whose questions the student can fly: those that don't ask for a position.
std::vector<std::size_t> flownItems() {
    std::vector<std::size_t> items;
    for (std::size_t i = 0; i < exerciseItems().size(); ++i)
        if (!asksForPosition(static_cast<int>(exerciseItems()[i].type)))
            items.push_back(i);
    return items;
}

INSTANTIATE_TEST_SUITE_P(All, ExerciseFlow, testing::Range<std::size_t>(0, exerciseItems().size()),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(All, FlownExercise, testing::ValuesIn(flownItems()), nameOf);

/// A shell that an exercise takes over and gives back.
class ExerciseShell : public ExerciseFlow {
  protected:
    /// All stations on the chart, clear of its edges, and the aircraft where it is shown.
    /// A holding has a chart of its own.
    void expectStationsInSight() {
        UserControl2& sim = form.UserControl11;
        if (exerciseOf(form.QAform1.c_QAtype)->fliesHolding)
            return;
        const auto expectOnPaper = [&](Point at) {
            EXPECT_GT(std::min(at.x, at.y), 300);
            EXPECT_LT(std::max(at.x, at.y), sim.picture.size - 300);
        };
        SCOPED_TRACE(sim.c_SessionFileName.get());
        for (const Station& station : sim.stations)
            expectOnPaper(station.place.wide);
        if (sim.c_AirplaneEN == 1)
            expectOnPaper(sim.aircraft.place.wide);
    }
};

/// What the shell shows, told as text.
std::string shellOf(Form1& form) {
    const auto flag = [](const auto& value) { return std::to_string(value) + " "; };
    std::string text;
    for (const OptionButton* rate :
         {&form.rateReal, &form.rateHalf, &form.rateDouble, &form.rateQuadruple})
        text += flag(rate->chosen());
    for (const CheckBox* box :
         {&form.replayPage.hide, &form.chartPage.hide, &form.chartPage.trace,
          &form.chartPage.vectors, &form.replayPage.lock, &form.inst3RadialBox})
        text += flag(box->value());
    for (const auto* face : {&form.NAVControlFace1.c_OnOff, &form.NAVControlFace2.c_OnOff,
                             &form.ADFControlFace1.c_OnOff, &form.DMEControlFace1.c_OnOff,
                             &form.APControlFace1.c_OnOff, &form.NAVControlFace1.c_LockSettings})
        text += flag(face->get());
    const UserControl2& sim = form.UserControl11;
    text += flag(form.inst2.type) + flag(form.inst3.type) + flag(form.inst2Large.chosen()) +
            flag(form.inst3Large.chosen()) + flag(sim.c_AirplaneEN.get()) +
            flag(sim.c_TraceEN.get()) + flag(sim.c_SpeedVectorEN.get()) +
            flag(!form.exercise.cover().instruments) + flag(form.startButton.enabled()) +
            flag(form.backButton.visible()) + flag(form.replay.runs());
    for (CommandButton* item : form.exerciseMenu.items())
        text += flag(item->enabled());
    for (CommandButton* item : form.fileMenu.items())
        text += flag(item->enabled());
    return text + form.hidePanel.text() + form.tracePanel.text() + form.vectorsPanel.text() +
           form.sessionPanel.text();
}

TEST_F(ExerciseShell, IsAsItWasAfterTenExercises) {
    form.rateDouble.click();
    form.chartPage.vectors.click();
    couple();
    const std::string before = shellOf(form);
    for (std::size_t item = 0; item < exerciseItems().size(); ++item) {
        start(item);
        expectStationsInSight();
        EXPECT_EQ(form.inst3Large.chosen(),
                  exerciseItems()[item].name == std::string("mnuAltitude"));
        if (item % 2 == 0) {
            click(panel().solutionButton);
            watch();
            expectStationsInSight();
        }
        click(panel().cancelButton);
        EXPECT_EQ(shellOf(form), before) << exerciseItems()[item].name;
    }
    form.startButton.click(); // and a free flight goes
    fly(5);
    EXPECT_TRUE(form.flight.flies());
}

TEST_F(ExerciseShell, AMissingSessionIsToldAndTheQuestionCanBePassed) {
    const TemporaryFolder folder;
    const fs::path bare = folder.at;
    fs::create_directories(bare / "default");
    fs::copy(TARNEL_APPLICATION_FOLDER "/default/study", bare / "default/study",
             fs::copy_options::recursive | fs::copy_options::skip_symlinks);
    form.QAform1.c_MainAppPath = bare.string();
    start(1);
    EXPECT_TRUE(world.boxes.empty()); // told in the question's own place
    EXPECT_THAT(panel().notice.text(), testing::HasSubstr("qdm01.ts"));
    EXPECT_EQ(form.UserControl11.c_FlyEN, 0); // no other flight in its place
    EXPECT_TRUE(form.exercise.cover().instruments);
    EXPECT_EQ(form.exercise.cover().reason, Text::instrumentWithoutFlight);
    EXPECT_FALSE(panel().solutionButton.visible());
    EXPECT_FALSE(panel().flyButton.visible());
    EXPECT_FALSE(form.replay.runs());
    click(panel().nextButton);
    EXPECT_THAT(panel().notice.text(), testing::HasSubstr("qdm02.ts"));
    EXPECT_TRUE(form.exercise.questionOpen());
    click(panel().cancelButton);
    EXPECT_FALSE(form.exercise.runs());
}

TEST_F(ExerciseShell, APracticeFlightStandsAtItsFirstSampleWithAReference) {
    form.exerciseMenu.vorPractice[9]->click();
    couple();
    EXPECT_THAT(form.UserControl11.c_SessionFileName.get(), testing::HasSubstr("vor practise 10"));
    EXPECT_EQ(form.replayPage.bar.value(), 1);
    EXPECT_TRUE(form.UserControl11.referenceReading.known);
    EXPECT_TRUE(form.practicePanel.frame.visible());
    const auto& task = form.commentPanel.comment;
    const std::string toldTask = task.text();
    EXPECT_THAT(toldTask, testing::StartsWith("Aufgabe"));
    EXPECT_THAT(toldTask, testing::HasSubstr(std::string(germanTable()[Text::startSim])));
    form.startButton.click();
    fly(20);
    EXPECT_TRUE(task.visible());
    EXPECT_EQ(toldTask.find(task.text()), 0U) << "the task, without how to start";
    form.startButton.click();
    const std::int16_t flown = form.UserControl11.c_TraceBufferMax;
    form.practicePanel.keep.click(); // the session again, the flight aside
    couple();
    EXPECT_GT(form.UserControl11.c_TraceBufferMax, flown);
    form.practicePanel.recall.click();
    couple();
    EXPECT_EQ(form.UserControl11.c_TraceBufferMax, flown);
    EXPECT_THAT(form.UserControl11.c_SessionFileName.get(), testing::HasSubstr("vor practise 10"));
    EXPECT_TRUE(world.boxes.empty());
}

} // namespace
} // namespace tarnel
