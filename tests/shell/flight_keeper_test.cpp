#include "shell/trainer_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A trainer with a shelf.
class FlightKeeperTest : public TrainerWithFiles {
  protected:
    FlightKeeperTest() { start(); }
    /// Starts the trainer, as often as told.
    void start() {
        form.reset();
        form = std::make_unique<Form1>(englishTable(), world, folder.path);
        keeper().useShelf(folder.path + "/flights");
    }
    void save() { form->fileMenu.saveSession.click(); }
    void placeAircraft() { sim().placeAircraft(ChartPoint{1000, 2000}); }
    [[nodiscard]] std::vector<Sample> recorded() {
        std::vector<Sample> samples;
        for (int i = 1; i <= sim().c_TraceBufferMax; ++i)
            samples.push_back(sim().recording.at(i));
        return samples;
    }
    void bringBack(std::size_t index) {
        form->flightDesk.bringBack(keeper().flights().at(index));
        couple();
    }
    FlightKeeper& keeper() { return form->flightDesk.keeper; }
};

TEST_F(FlightKeeperTest, NoWayOfLeavingAFlightLosesIt) {
    fly(20);
    saveAs("other.ts");
    fs::copy(folder.path + "/other.ts", folder.path + "/default/sessions/introduction 1.ts");
    fs::copy(folder.path + "/other.ts", folder.path + "/default/sessions/e-adf practise 01.ts");
    const std::vector<std::pair<const char*, std::function<void()>>> ways = {
        {"new session", [this] { form->fileMenu.newSession.click(); }},
        {"a session", [this] { load("other.ts"); }},
        {"a chart", [this] { load("default.map"); }},
        {"a practice", [this] { form->exerciseMenu.adfPractice[0]->click(); }},
        {"the introduction", [this] { form->exerciseMenu.introduction1.click(); }},
        {"an exercise without its session", [this] { sim().dropRecording(); }},
        {"placing the aircraft", [this] { placeAircraft(); }},
        {"a start in the middle",
         [this] {
             form->replayPage.bar.scrollTo(20);
             form->startButton.click();
         }},
        {"closing", [this] { EXPECT_TRUE(form->flightDesk.mayClose()); }},
    };
    for (const auto& [name, leave] : ways) {
        SCOPED_TRACE(name);
        start();
        const std::size_t before = keeper().flights().size();
        form->commentPanel.text.type("Größe");
        form->commentPanel.startStop.click();
        fly(40);
        sim().reference.append({48, 11});
        const std::vector<Sample> flown = recorded();
        const ReferenceTrack track = sim().reference;
        form->replayPage.lock.set(1);
        leave();
        keeper().putAside(); // nothing more to be put aside
        ASSERT_EQ(keeper().flights().size(), before + 1);
        EXPECT_THAT(form->flightDesk.notice.text(), HasSubstr("Flight of 0 min 40 s put aside"));

        start();
        ASSERT_TRUE(keeper().offer());
        EXPECT_EQ(keeper().offer()->path, keeper().flights()[0].path);
        bringBack(0);
        EXPECT_FALSE(keeper().offer());
        EXPECT_EQ(recorded(), flown);
        EXPECT_EQ(sim().comments.text(0), "Größe");
        EXPECT_EQ(sim().reference, track);
        EXPECT_TRUE(sim().flightUnsaved());
        form->fileMenu.newSession.click();
        EXPECT_EQ(keeper().flights().size(), before + 1); // it lies there already
        start();
        EXPECT_FALSE(keeper().offer());
    }
    EXPECT_TRUE(world.boxes.empty()) << world.boxes[0];
}

TEST_F(FlightKeeperTest, AFullRecordingIsPutAsideBeforeItStartsOver) {
    form->startButton.click();
    sim().Turn_Rate = 3;
    while (world.boxes.size() < 2) {
        form->simulationTimer();
        sim().Turn_Rate = 3;
    }
    ASSERT_EQ(keeper().flights().size(), 1U);
    EXPECT_EQ(keeper().flights()[0].seconds, 5979 * 4 / 3);
    form->startButton.click();
    bringBack(0);
    EXPECT_EQ(sim().c_TraceBufferMax, 5979);
}

TEST_F(FlightKeeperTest, OnlyWhatNoFileHasIsPutAside) {
    fly(28);
    form->fileMenu.newSession.click(); // too short
    fly(40);
    EXPECT_THAT(form->flightDesk.title(), HasSubstr("New Session.ts (not saved)"));
    saveAs("mine.ts");
    EXPECT_THAT(form->flightDesk.title(), testing::StartsWith("mine.ts –"));
    load("mine.ts");
    for (int i = 1; i < 30; ++i)
        form->replayPage.bar.scrollTo(i); // locked
    EXPECT_FALSE(sim().flightUnsaved());
    load("mine.ts");
    EXPECT_TRUE(keeper().flights().empty());

    form->replayPage.lock.click();
    couple();
    form->replayPage.bar.scrollTo(7);
    EXPECT_FALSE(sim().flightUnsaved());
    form->NAVControlFace1.c_SetFreq = 2;
    couple();
    form->replayPage.bar.scrollTo(8);
    EXPECT_THAT(form->flightDesk.title(), HasSubstr("mine.ts (not saved)"));
    form->fileMenu.newSession.click();
    EXPECT_EQ(keeper().flights().size(), 1U);
}

TEST_F(FlightKeeperTest, AFlightThatCanNotBeWrittenIsHeldUntilItCan) {
    std::error_code held;
    if (fs::remove_all(folder.path + "/flights", held); held)
        GTEST_SKIP() << "what a program has open stays on this system";
    std::ofstream(folder.path + "/flights") << "no folder";
    fly(40);
    const std::vector<Sample> flown = recorded();
    form->fileMenu.newSession.click();
    EXPECT_THAT(form->flightDesk.notice.text(), HasSubstr("cannot be put aside"));
    EXPECT_FALSE(form->flightDesk.mayClose());
    EXPECT_EQ(world.boxes.size(), 1U);
    bringBack(0);
    EXPECT_EQ(recorded(), flown);
    fs::remove(folder.path + "/flights");
    fs::create_directory(folder.path + "/flights");
    EXPECT_TRUE(form->flightDesk.mayClose());
    start();
    bringBack(0);
    EXPECT_EQ(recorded(), flown);
}

TEST_F(FlightKeeperTest, AFlightThatIsCalledBackIsNotPutAsideOnceMore) {
    fly(40);
    saveAs("default/sessions/e-adf practise 01.ts");
    form->exerciseMenu.adfPractice[0]->click();
    couple();
    fly(36); // no longer than the example
    for (int i = 0; i < 3; ++i) {
        form->practicePanel.keep.click();
        couple();
        form->practicePanel.recall.click();
        couple();
    }
    EXPECT_EQ(keeper().flights().size(), 1U);
    EXPECT_EQ(sim().c_TraceBufferMax, 28);
}

TEST_F(FlightKeeperTest, ANameHoldsForTheFlightThatItWasGivenTo) {
    const std::vector<std::pair<const char*, std::function<void()>>> others = {
        {"placed and started", [this] { placeAircraft(), fly(40); }},
        {"placed alone", [this] { placeAircraft(); }},
        {"started in the middle",
         [this] {
             form->replayPage.bar.scrollTo(9);
             fly(40);
         }},
        {"a brought back one",
         [this] {
             fly(40);
             form->fileMenu.newSession.click();
             load("mine.ts");
             bringBack(0);
         }},
        {"a situation that is flown",
         [this] {
             form->fileMenu.newSession.click();
             saveAs("mine.ts");
             world.questions.clear();
             fly(40);
         }},
    };
    for (const auto& [name, change] : others) {
        SCOPED_TRACE(name);
        start();
        fly(40);
        saveAs("mine.ts");
        world.questions.clear();
        change();
        save();
        EXPECT_EQ(world.questions.size(), 1U);
    }
    start();
    fly(40);
    saveAs("mine.ts");
    fly(8); // goes on
    world.questions.clear();
    save();
    EXPECT_TRUE(world.questions.empty());
    EXPECT_FALSE(sim().flightUnsaved());
}

TEST_F(FlightKeeperTest, ASituationSetUpByHandIsSavedAndFound) {
    const auto situation = [this] {
        const GeoPosition place = sim().aircraft.published();
        const GeoPosition station = toPlain(inSlot(sim().stations, Slot::ndb1).position);
        return told(sim().c_TraceBufferMax, place.latitude, place.longitude, station.latitude,
                    sim().c_HDG, sim().c_HDGbug, sim().c_wind, form->inst2.type,
                    form->NAVControlFace1.c_SetFreq, form->APControlFace1.c_TAS);
    };
    for (const bool afterFlight : {false, true}) {
        SCOPED_TRACE(afterFlight);
        start();
        if (afterFlight)
            fly(40);
        placeAircraft();
        sim().turnAircraft(77);
        form->coupling.setHeadingBug(123);
        form->windDesk.setManual(240, 15);
        form->inst2TypeList.pick(vor - 1);
        form->NAVControlFace1.c_SetFreq = 1;
        form->APControlFace1.c_TAS = 150.0;
        sim().moveStation(Slot::ndb1, toSplit({49.2, 11.2}));
        couple();
        saveAs("task.ts");
        const std::string before = situation();
        EXPECT_THAT(before, testing::EndsWith(" 77 123 240/15 3 1 150"));
        form->fileMenu.newSession.click();
        load("task.ts");
        EXPECT_EQ(situation(), before);
        save();
        EXPECT_EQ(bytes("task.ts").find("---"), bytes("task.ts").rfind("---"));
        form->windDesk.setManual(90, 20); // and changed a day later
        couple();
        save();
        load("task.ts");
        EXPECT_EQ(sim().c_wind.get(), "90/20");
    }
}

// What was saved meanwhile must not make a changed flight look saved, nor a kept one new.
TEST_F(FlightKeeperTest, AFlightThatUndoBringsBackIsAsUnsavedAsBefore) {
    for (const bool saved : {false, true}) {
        SCOPED_TRACE(saved);
        start();
        const std::size_t before = keeper().flights().size();
        fly(40);
        if (saved)
            saveAs("mine.ts");
        for (int i = 0; i < 2; ++i) {
            sim().mouse.down(ChartButton::left, {1000, 2000});
            sim().mouse.up();
            saveAs("task.ts");
            form->editMenu.undo.click();
            couple();
            EXPECT_EQ(sim().flightUnsaved(), !saved);
        }
        form->editMenu.redo.click();
        form->editMenu.undo.click();
        EXPECT_EQ(keeper().flights().size(), before + (saved ? 0 : 1));
        for (int i = 0; i < 9; ++i) {
            form->UserControl11.comments.setText(0, std::to_string(i));
            EXPECT_TRUE(sim().flightUnsaved()) << i;
        }
        form->editMenu.redo.click();
        form->editMenu.undo.click();
        EXPECT_EQ(sim().comments.text(0), "8");
        EXPECT_EQ(keeper().flights().size(), before + (saved ? 1 : 2));
    }
}

} // namespace
} // namespace tarnel
