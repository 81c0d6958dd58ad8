#include "persistence/session_file.h"
#include "shell/memory_log.h"
#include "shell/trainer_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

/// A log whose flights' files go as the test wants.
struct ThinLog : MemoryLog {
    std::optional<std::string> session(std::int64_t flight) override {
        return gone ? std::nullopt : MemoryLog::session(flight);
    }
    bool gone = false;
};

/// A trainer with a practice flight, whose own flights go into a log.
class FlightLogTest : public TrainerWithFiles {
  protected:
    FlightLogTest() {
        flyTo(90, 200);
        saveAs("default/sessions/e-adf practise 01.ts");
        form->fileMenu.newSession.click();
        form->flightDesk.keeper.useShelf(folder.path + "/shelf");
        form->training.useLog([this](TrainingDesk&) {
            auto made = std::make_unique<ThinLog>();
            log = made.get();
            return made;
        });
        (void)form->training.mistakesOf("", ExerciseType::qdm); // opens it
        couple();
    }
    void flyTo(int heading, int seconds) {
        form->coupling.setHeadingBug(static_cast<std::int16_t>(heading));
        fly(seconds);
    }
    /// The practice flight, flown in another way.
    void practise(int heading, int seconds) {
        form->exerciseMenu.adfPractice[0]->click();
        couple();
        flyTo(heading, seconds);
    }
    std::vector<std::string> kept() {
        std::vector<std::string> lines;
        for (const LoggedFlight& flight : log->flights())
            lines.push_back(flight.title + " " + std::to_string(flight.attempt) +
                            (flight.findings.empty() ? "" : "!"));
        return lines;
    }
    [[nodiscard]] std::size_t samplesOf(std::int64_t flight) {
        return readSession(*log->session(flight)).samples.size();
    }
    void openLogged(std::initializer_list<std::size_t> places) {
        std::vector<std::int64_t> ids;
        for (const std::size_t place : places)
            ids.push_back(log->flights()[place].id);
        form->flightLog.open(ids);
        couple();
    }
    ThinLog* log = nullptr;
};

TEST_F(FlightLogTest, KeepsEachFlightAtATaskOnceHoweverItIsDebriefed) {
    practise(110, 20);
    EXPECT_THAT(kept(), ElementsAre()) << "too short to tell anything";
    flyTo(110, 40);
    const char* const title = "Flying after the example adf practise 01";
    EXPECT_THAT(kept(), ElementsAre(title + std::string(" 1!")));
    form->debriefControls.item.click();
    form->debriefControls.close.click();
    const std::size_t before = samplesOf(1);
    flyTo(115, 30); // on
    EXPECT_THAT(kept(), ElementsAre(title + std::string(" 1!")));
    EXPECT_GT(samplesOf(1), before + 20);
    form->debriefControls.item.click();
    TaskChoice other{.kind = TaskKind::holding, .course = 90};
    for (const bool own : {false, true, false}) { // held to something else, and back
        form->debrief.choose(own ? TaskChoice{.kind = TaskKind::reference} : other);
        form->debriefControls.judge.click();
    }
    EXPECT_EQ(log->flights().size(), 2U);
    form->debriefControls.close.click();
    couple();
    saveAs("mine.ts");
    practise(100, 40);
    EXPECT_EQ(log->flights()[0].attempt, 2);
    form->fileMenu.newSession.click();
    couple();
    fly(60);
    EXPECT_EQ(log->flights().size(), 3U) << "flown at no task";
}

TEST_F(FlightLogTest, BringsFlightsBackWithTheirTaskOneOverTheOther) {
    practise(110, 40);
    practise(100, 40);
    practise(80, 40);
    form->fileMenu.newSession.click();
    couple();
    flyTo(30, 60);
    const std::size_t aside = form->flightDesk.keeper.flights().size();
    openLogged({1, 2});
    ASSERT_TRUE(form->debrief.isOpen());
    EXPECT_EQ(form->flightDesk.keeper.flights().size(), aside + 1) << "the one in memory is kept";
    ASSERT_NE(form->debrief.task(), nullptr);
    EXPECT_TRUE(std::holds_alternative<ReferenceTask>(*form->debrief.task()));
    EXPECT_EQ(form->debrief.attempt()->number, 2);
    ASSERT_EQ(form->debrief.compared().size(), 1U);
    EXPECT_EQ(form->debrief.compared()[0].number, 1);
    EXPECT_EQ(form->debrief.attempt()->debrief.findings, log->flights()[1].findings);
    form->debriefControls.close.click();
    form->debriefControls.item.click();
    EXPECT_EQ(form->debrief.compared().size(), 1U) << "looked at again";
    EXPECT_EQ(log->flights().size(), 3U);

    form->debriefControls.flyAgain.click();
    flyTo(60, 40);
    EXPECT_EQ(kept()[0], "Flying after the example adf practise 01 4!");
    form->debriefControls.item.click();
    EXPECT_EQ(form->debrief.compared().size(), 2U);
    EXPECT_EQ(log->flights().size(), 4U);

    openLogged({3});
    const std::size_t before = form->flightDesk.keeper.flights().size();
    openLogged({2});
    EXPECT_EQ(form->flightDesk.keeper.flights().size(), before) << "one of the log is kept there";
    form->debriefControls.close.click();
    couple();
    fly(40); // on, as he likes
    EXPECT_EQ(log->flights().size(), 4U);
    form->debriefControls.item.click();
    EXPECT_TRUE(form->debrief.choosesTask());
}

TEST_F(FlightLogTest, TellsWhatIsGoneAndAsksForAnUnknownTask) {
    practise(110, 40);
    form->fileMenu.newSession.click();
    couple();
    const std::string before = sim().sessionBytes();
    log->gone = true;
    openLogged({0});
    EXPECT_THAT(world.boxes,
                ElementsAre(HasSubstr("(attempt 1)\nThe file of this flight is gone")));
    EXPECT_EQ(sim().sessionBytes(), before);
    log->gone = false;
    for (const char* key : {"Warteschleife\nMUN", "", "reference gone.ts\ngone.ts"}) {
        LoggedFlight old = log->flights()[0];
        old.taskKey = key;
        const std::int64_t id = log->add(old, *log->session(1), {});
        EXPECT_TRUE(form->flightLog.open({id, 1})) << key;
        EXPECT_TRUE(form->debrief.choosesTask());
    }
    form->debrief.choose({.kind = TaskKind::holding, .course = 90});
    form->debriefControls.judge.click();
    EXPECT_EQ(form->debrief.compared().size(), 1U) << "what was marked is compared all the same";
    EXPECT_EQ(world.boxes.size(), 1U);
    EXPECT_FALSE(form->flightLog.open({99}));
}

} // namespace
} // namespace tarnel
