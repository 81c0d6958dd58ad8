#include "shell/trainer_fixture.h"

namespace tarnel {
namespace {

using testing::HasSubstr;

class FilesTest : public TrainerWithFiles {
  protected:
    /// As the menu does.
    void load(const std::string& name) {
        world.chosen = folder.path + "/" + name;
        form->guarded([this] { form->fileMenu.loadSession.click(); });
        couple();
    }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder.path + "/" + name, std::ios::binary) << text;
    }
};

TEST_F(FilesTest, ASessionComesBackAsItWasAndRestsOnItsLastSample) {
    form->inst2TypeList.pick(vor - 1);
    sim().setWind({240, 15});
    form->startButton.click();
    form->commentPanel.text.type("Größe");
    form->commentPanel.startStop.click();
    form->startButton.click();
    fly(40);
    const std::int16_t samples = sim().c_TraceBufferMax;
    const Sample tenth = sim().recording.at(10);
    saveAs("flight.ts");
    const std::string saved = bytes("flight.ts");

    form->fileMenu.newSession.click();
    form->inst2TypeList.pick(dg - 1);
    load("flight.ts");
    EXPECT_EQ(told(sim().c_TraceBufferMax, form->replayPage.bar), told(samples, samples));
    EXPECT_EQ(told(form->replayPage.lock, form->inst2.type, sim().c_wind, sim().c_TraceEN,
                   sim().c_FlyEN, form->commentPanel.comment),
              "1 3 240/15 1 1 Größe"); // the next tick pushes the panel
    EXPECT_EQ(sim().recording.at(10), tenth);
    EXPECT_EQ(sim().aircraft.place.point, (ChartPoint{3405, 3405}));
    EXPECT_TRUE(sim().referenceReading.known);
    EXPECT_EQ(sim().referenceReading.lamps[0], Lamp::green);

    form->fileMenu.saveSession.click(); // the name came from a dialog
    EXPECT_EQ(bytes("flight.ts"), saved);
    form->fileMenu.encipher.click();
    saveAs("secret.ts");
    EXPECT_THAT(bytes("secret.ts"), testing::StartsWith("*****"));
    form->fileMenu.encipher.click();
    form->stationPage.edit.set(1);
    load("secret.ts");
    EXPECT_EQ(told(sim().reference.size(), sim().c_mapedit), told(samples, 0));
    saveAs("flight.ts");
    EXPECT_EQ(bytes("flight.ts"), saved);
    const GeoPosition end = sim().aircraft.published();
    fly(4); // goes on from the last sample
    EXPECT_EQ(sim().c_TraceBufferMax, samples + 3);
    EXPECT_LT(CourseAndDistance(end, sim().aircraft.published()).distance, 0.3);
    EXPECT_EQ(sim().reference.at(samples).latitude, sim().recording.at(samples).traceLat);
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(FilesTest, SavingAsksBeforeItOverwritesWhatItDidNotName) {
    const auto expectAsked = [this](std::size_t times) {
        EXPECT_EQ(world.questions.size(), times);
        world.questions.clear();
    };
    fly(8);
    form->fileMenu.saveSession.click(); // "New Session.ts" was never named
    expectAsked(1);
    saveAs("mine.ts");
    form->fileMenu.saveSession.click();
    expectAsked(1);
    saveAs("default/sessions/shipped.ts");
    form->fileMenu.saveSession.click();
    EXPECT_TRUE(world.questions.back().saves);
    EXPECT_THAT(world.questions.back().present, HasSubstr("shipped.ts"));
    expectAsked(2);
    sim().loadByName(folder.path + "/mine.ts"); // as an exercise does
    couple();
    EXPECT_EQ(form->replayPage.bar.value(), 1);
    for (const char* file : {"mine.ts", "default.map"}) {
        load("mine.ts");
        file == std::string("mine.ts") ? form->fileMenu.newSession.click()
                                       : form->files.openFile(folder.path + "/default.map");
        form->fileMenu.saveSession.click();
        expectAsked(2);
    }
    world.chosen.reset(); // the user changes his mind
    form->fileMenu.saveChart.click();
    form->fileMenu.loadOldSession.click();
    expectAsked(2);
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(FilesTest, AWrongLineIsNamedAndTheWholeSamplesCount) {
    fly(20);
    saveAs("whole.ts");
    std::string text = bytes("whole.ts");
    text.resize(text.size() * 2 / 3);
    write("half.ts", text);
    const std::int16_t samples = sim().c_TraceBufferMax;
    load("half.ts");
    ASSERT_EQ(world.boxes.size(), 1U);
    EXPECT_THAT(world.boxes[0], HasSubstr("ERROR: LoadSession ERROR # 62 was generated "));
    EXPECT_THAT(world.boxes[0], HasSubstr("half.ts"));
    EXPECT_GT(sim().c_TraceBufferMax, samples / 2);
    EXPECT_LT(sim().c_TraceBufferMax, samples);
    EXPECT_EQ(form->replayPage.bar.value(), sim().c_TraceBufferMax);

    load("nowhere.ts");
    EXPECT_THAT(world.boxes[1], HasSubstr("LoadSession ERROR # 53"));
    EXPECT_EQ(form->sessionPanel.text(), "half.ts"); // what was there stays
    world.chosen.reset();
    form->fileMenu.saveSession.click(); // a damaged file is not overwritten unasked
    EXPECT_EQ(bytes("half.ts"), text);
    form->exerciseMenu.adfPractice[3]->click(); // a file that is not there
    couple();
    world.boxes.pop_back();
    EXPECT_EQ(form->sessionPanel.text(), "half.ts");
    world.chosen = folder.path + "/nofolder/x.ts";
    form->fileMenu.saveSessionAs.click();
    EXPECT_THAT(world.boxes[2], HasSubstr("SaveSession ERROR # 76"));
}

TEST_F(FilesTest, AFileWithoutWhatItShouldHoldChangesNothing) {
    fly(20);
    saveAs("mine.ts");
    const std::string session = bytes("mine.ts");
    const std::string chart = bytes("default.map");
    const std::size_t firstSample = session.find("\r\n", session.find(":ms:,")) + 2;
    load("mine.ts"); // locked, which a load that the user asks for would end
    form->chartPage.trace.set(0);
    const auto state = [this] {
        couple();
        return sim().sessionBytes() + form->sessionPanel.text() + form->tracePanel.text() +
               std::to_string(form->replayPage.lock.value()) + sim().c_ChartFileName.get() +
               std::to_string(sim().referenceReading.known);
    };
    const std::string before = state();
    const auto expectUnchanged = [&](const std::string& name, const std::string& text) {
        write(name, text);
        world.boxes.clear();
        form->files.openFile(folder.path + "/" + name);
        ASSERT_EQ(world.boxes.size(), 1U) << text;
        EXPECT_THAT(world.boxes[0], HasSubstr("\nNothing was changed.")) << text;
        EXPECT_TRUE(state() == before) << text;
    };
    for (std::size_t end = 0; end + 2 < chart.size(); end = chart.find('\n', end + 1))
        expectUnchanged("bad.map", chart.substr(0, end));
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, firstSample, firstSample + 50})
        expectUnchanged("bad.ts", session.substr(0, size));
    write("default/sessions/introduction 1.ts", "");
    form->exerciseMenu.introduction1.click();
    EXPECT_EQ(world.boxes.size(), 2U);
    EXPECT_TRUE(state() == before);
}

TEST_F(FilesTest, ALoadLeavesNoHalfWrittenComment) {
    form->commentPanel.startStop.click();
    form->commentPanel.startStop.click();
    form->startButton.click();
    form->commentPanel.startStop.click();
    form->startButton.click();
    fly(20);
    saveAs("commented.ts");
    form->commentPanel.startStop.click();
    form->commentPanel.text.type("half");
    form->commentPanel.startStop.click();
    load("commented.ts");
    EXPECT_EQ(form->commentPanel.startStop.caption(), Text::commentStart);
    EXPECT_EQ(form->commentPanel.text.text(), "");
    const std::int16_t mark = sim().recording.at(5).traceComment;
    sim().stopComment();
    EXPECT_EQ(sim().recording.at(5).traceComment, mark);
}

TEST_F(FilesTest, AFlightThatCanNotBeKeptStays) {
    fly(20);
    saveAs("own.ts");
    sim().c_ScratchPath = folder.path + "/nowhere";
    sim().c_TrackDelta = 3;
    fly(20);
    const std::int16_t samples = sim().c_TraceBufferMax;
    form->practicePanel.keep.click();
    EXPECT_EQ(world.boxes.size(), 1U);
    EXPECT_EQ(sim().c_TraceBufferMax, samples);
}

TEST_F(FilesTest, NonsenseInTheSettingsOfASampleDoesNoHarm) {
    for (const auto nonsense : std::initializer_list<std::int16_t>{32767, -32767, -1, 77}) {
        form->fileMenu.newSession.click();
        fly(8);
        for (int i = 1; i <= sim().c_TraceBufferMax; ++i) {
            Sample& sample = sim().recording.edit(i);
#define SETTING(name, type, rule, kind, property, control) sample.name = nonsense;
#include "core/sample_rows.def"
            sample.traceComment = 100;
            sample.traceTAS = sample.traceAPtas = 1000;
            sample.traceWindDirection = 32767;
            sample.traceHeading = 32767;
            sample.traceWindSpeed = 500;
        }
        saveAs("nonsense.ts");
        form->fileMenu.newSession.click();
        load("nonsense.ts");
        couple(20);
        form->replayPage.bar.scrollTo(2);
        couple(20);
        fly(4);
        EXPECT_TRUE(world.boxes.empty()) << nonsense << ": " << world.boxes[0];
    }
}

TEST_F(FilesTest, AnOlderSessionIsFlownAnewAndSavedInTodaysForm) {
    fly(12);
    saveAs("today.ts");
    const std::string today = bytes("today.ts");
    write("old.ts", ":n1:,1\r\n:n2:,0\r\n:n3:,1\r\n:n4:,1\r\n:n1:,1\r\n:mc:,1\r\n" +
                        today.substr(today.find("\r\n", today.find(":ms:,")) + 2));
    form->fileMenu.newSession.click();
    world.chosen = folder.path + "/old.ts";
    form->fileMenu.loadOldSession.click();
    couple();
    EXPECT_GT(sim().c_TraceBufferMax, 1);
    EXPECT_EQ(sim().slot(Slot::vor2).enabled, off);
    saveAs("new.ts");
    load("new.ts");
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(FilesTest, AChartComesBackWithTheStationsAsTheyWereMoved) {
    form->stationPage.edit.click();
    const Point symbol = sim().stations[0].place.wide;
    ASSERT_EQ(sim().mouse.stationAt(symbol), Slot::vor1);
    const GeoPosition aircraft = sim().aircraft.published();
    const double radial = sim().slot(Slot::vor1).radial;
    sim().mouse.down(ChartButton::left, symbol);
    sim().mouse.move({sim().stations[1].place.wide.x - 1000, sim().stations[1].place.wide.y});
    EXPECT_TRUE(sim().picture.stationReadout.visible);
    EXPECT_EQ(sim().picture.stationBearings[0].other, Slot::vor2);
    EXPECT_EQ(sim().picture.stationBearings[0].bearing, 270);
    EXPECT_NE(sim().slot(Slot::vor1).radial, radial);
    sim().mouse.up();
    EXPECT_FALSE(sim().picture.stationReadout.visible);
    EXPECT_EQ(sim().aircraft.published(), aircraft);
    const GeoPosition moved = toPlain(sim().stations[0].position);

    StationEdit edit = form->stationDesk.toEdit(Slot::vor1);
    edit.name = "KES";
    edit.frequency = "11a.60";
    EXPECT_FALSE(form->stationDesk.apply(edit));
    EXPECT_EQ(world.boxes.back(), "ERROR - Frequency Format: Wrong Frequency Format. Enter a "
                                  "correct Frequency e.g. 110.40");
    edit.frequency = "113.60";
    edit.dmeOn = false;
    edit.labelPlace = 3;
    EXPECT_TRUE(form->stationDesk.apply(edit));
    couple();
    EXPECT_EQ(form->NAVControlFace1.c_Freq1.get(), "113.60");

    world.chosen = folder.path + "/moved.map";
    form->fileMenu.saveChartAs.click();
    for (const char* chart : {"/default.map", "/moved.map"}) {
        world.chosen = folder.path + chart;
        form->fileMenu.loadChart.click();
    }
    couple();
    const StationProperties& slot = sim().slot(Slot::vor1);
    EXPECT_EQ(told(slot.name, slot.frequency, slot.enabled == off, slot.dmeEnabled == off,
                   sim().stations[0].labelOffsetY),
              "KES 113.60 0 1 135");
    EXPECT_NEAR(toPlain(sim().stations[0].position).latitude, moved.latitude, 1e-9);
    EXPECT_EQ(world.boxes.size(), 1U);
    form->startButton.click(); // a flight puts the editing away
    EXPECT_FALSE(sim().mouse.stationAt(sim().stations[0].place.wide));
}

} // namespace
} // namespace tarnel
