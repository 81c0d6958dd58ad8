#include "shell/trainer_fixture.h"
#include "tracks/track_reader.h"

namespace tarnel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class TracksTest : public TrainerWithFiles {
  protected:
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder.path + "/" + name, std::ios::binary) << text;
    }
    void use(CommandButton& item, const std::string& file) {
        world.chosen = folder.path + "/" + file;
        form->guarded([&] { item.click(); });
        couple();
    }
    /// A log of a minute on course 030 with 120 knots, after a minute on the ground, from `start`.
    static std::string log(GeoPosition start) {
        std::string text = "time,lat,lon,alt_ft\n";
        double course = 30;
        for (int second = 0; second <= 120; second += 5) {
            text += told(second, start.latitude, start.longitude, 4000) + "\n";
            if (second >= 60)
                start = DeadReckon(toSplit(start), 120 * 5.0 / 3600, course).plain;
        }
        std::replace(text.begin(), text.end(), ' ', ',');
        return text;
    }
};

TEST_F(TracksTest, AFlightIsExportedOnceThereIsOne) {
    CommandButton& item = form->fileMenu.exportFlight;
    couple();
    EXPECT_FALSE(item.enabled());
    form->startButton.click();
    couple();
    EXPECT_FALSE(item.enabled()) << "in flight";
    form->startButton.click();
    fly(40);
    ASSERT_TRUE(item.enabled());
    use(item, "flight.txt");
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("has to end in .gpx, .kml or .csv")));
    EXPECT_FALSE(std::filesystem::exists(folder.path + "/flight.txt"));
    use(item, "nowhere/flight.kml");
    EXPECT_THAT(world.boxes.back(), HasSubstr("flight.kml"));
    world.boxes.clear();
    use(item, "flight.gpx");
    const Track track = readTrack(bytes("flight.gpx"));
    ASSERT_EQ(track.points.size(), static_cast<std::size_t>(sim().c_TraceBufferMax));
    EXPECT_EQ(track.name, "New Session");
    EXPECT_NEAR(track.points.back().position.latitude,
                sim().recording.at(sim().c_TraceBufferMax).traceLat, 1e-9);
    EXPECT_NEAR(static_cast<double>(track.start) + track.points.back().seconds,
                static_cast<double>(world.seconds), 3)
        << "it ends now";
    form->UserControl11.placeAircraft(ChartPoint{2000, 2000});
    couple();
    EXPECT_FALSE(item.enabled()) << "a situation behind the flight";
    EXPECT_THAT(world.boxes, testing::IsEmpty());
}

TEST_F(TracksTest, ATrackIsPractisedFromWhereItTakesOff) {
    const GeoPosition field{48.2, 11.5};
    sim().setWind({240, 25});
    form->inst2TypeList.pick(vor - 1);
    write("home.csv", log(field));
    use(form->fileMenu.flyAlong, "home.csv");
    EXPECT_THAT(world.boxes, testing::IsEmpty());
    EXPECT_NEAR(sim().reference.size(), 45, 2);
    EXPECT_LT(CourseAndDistance(field, sim().aircraft.published()).distance, 0.2);
    EXPECT_EQ(told(form->replayPage.bar, std::lround(sim().c_HDG), sim().c_APalt, sim().wind.speed,
                   form->inst2.type),
              "1 30 4000 0 3");
    EXPECT_EQ(sim().recording.at(20).traceTAS, 120);
    EXPECT_EQ(told(sim().c_ApHours2, sim().c_ApMinutes2, sim().c_ApSeconds2), "0 0 0");
    EXPECT_THAT(form->commentPanel.comment.text(),
                HasSubstr("Track \"home\", 1 min 0 s: from course 030°, "));
    form->startButton.click();
    form->APControlFace1.c_HDG = 75;
    form->APControlFace1.c_TAS = 120;
    for (int tick = 0; tick < 60; ++tick) {
        form->simulationTimer();
        couple();
    }
    EXPECT_TRUE(sim().referenceReading.known);
    EXPECT_GT(sim().referenceReading.distance, 0.1);
    EXPECT_LT(sim().referenceReading.distance, 0.6);
    form->startButton.click();
    couple();
    form->practicePanel.keep.click();
    couple();
    EXPECT_NEAR(sim().c_TraceBufferMax, 45, 2) << "the track is there again beside the own flight";
    world.questions.clear();
    world.chosen.reset();
    form->fileMenu.saveSession.click();
    ASSERT_EQ(world.questions.size(), 1U);
    EXPECT_EQ(world.questions[0].present, "home.ts") << "not where it lies aside";
}

TEST_F(TracksTest, WhatNobodyCanFollowIsTold) {
    write("far.csv", log({48.2, 16}));
    load("far.csv"); // as dropped on the window
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("A flight ends 80 NM from it")));
    const std::string shown = sim().c_SessionFileName;
    const int samples = sim().reference.size();
    for (const auto& [text, told] : {std::pair{"time,lat,lon\n1,2,3\n2,x,3\n", "line 3: expected "
                                                                               "latitude"},
                                     {"<kml/>", "line 1: expected XML by the rules of GPX"},
                                     {"", "The file is empty."}}) {
        write("wrong.gpx", text);
        load("wrong.gpx");
        EXPECT_THAT(world.boxes.back(), testing::AllOf(HasSubstr("wrong.gpx\n"), HasSubstr(told),
                                                       HasSubstr("Nothing was changed.")));
    }
    load("missing.gpx");
    EXPECT_THAT(world.boxes.back(), HasSubstr("There is no such file.\nNothing was changed."));
    EXPECT_EQ(sim().c_SessionFileName.get(), shown);
    EXPECT_EQ(sim().reference.size(), samples);
}

} // namespace
} // namespace tarnel
