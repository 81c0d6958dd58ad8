#include "shell/chart_finder.h"
#include "support/nav_files.h"
#include "trainer_fixture.h"

namespace tarnel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ChartFinderTest : public testing::Test {
  protected:
    std::string names() {
        std::string all;
        for (const auto& station : finder.stations())
            all += (station ? finder.lineOf(*station).identifier : "-") + " ";
        return all;
    }
    void choose(const std::string& words) {
        finder.search(words);
        ASSERT_THAT(finder.hits(), Not(IsEmpty()));
        finder.choosePlace(finder.hits().front());
    }
    StationProperties& slot(Slot which) { return trainer.sim().slot(which); }

    NavFiles files;
    Trainer trainer;
    ChartFinder finder{trainer.sim(), trainer.form.boxes, files.folders()};
};

TEST_F(ChartFinderTest, ProposesFiveStationsThatCanBeExchangedAndMakesAChartOfThem) {
    EXPECT_EQ(finder.titleOf(finder.sources()[0]), "FlightGear - ~/flightgear/Navaids/nav.dat.gz");
    EXPECT_EQ(finder.summary(),
              "6 stations read. Rows left out: 1. The first is line 6: expected latitude.");
    EXPECT_FALSE(finder.mayMake());
    choose("LOWS 15");
    EXPECT_EQ(names(), "SBG LNZ SI SBG OES ");
    EXPECT_EQ(finder.offerText(*finder.stations()[4]),
              "OES, LOWS 15, LOC 109.90 MHz, course 157°, 0 NM");
    EXPECT_EQ(finder.offerText(*finder.stations()[2]), "SI, SALZBURG NDB, NDB 410 kHz, 3 NM, 334°");
    EXPECT_THAT(finder.notes(), HasSubstr("SBG −2°, LNZ −2°."));

    const auto munich = finder.offers(Slot::vor2).back();
    EXPECT_EQ(finder.lineOf(munich).kind, "VOR");
    finder.exchange(Slot::vor1, finder.stations()[1]);
    finder.exchange(Slot::vor2, munich);
    finder.exchange(Slot::ndb2, {});
    EXPECT_EQ(names(), "LNZ MUN SI - OES ");
    trainer.start();
    trainer.fly(60);
    trainer.form.StopFly();
    const std::string before = slot(Slot::vor1).name;
    EXPECT_FALSE(finder.make()); // cancelled
    EXPECT_EQ(slot(Slot::vor1).name.get(), before);
    trainer.world.chosen = files.path + "/new.map";
    EXPECT_TRUE(finder.make());
    EXPECT_EQ(trainer.world.questions.back().present, "OES.map");
    EXPECT_THAT(trainer.world.boxes, IsEmpty());
    EXPECT_EQ(trainer.sim().c_ChartFileName.get(), *trainer.world.chosen);
    EXPECT_EQ(slot(Slot::vor1).name.get() + slot(Slot::vor1).frequency.get(), "LNZ116.60");
    EXPECT_EQ(slot(Slot::vor2).dmeEnabled, off);
    EXPECT_EQ(slot(Slot::ndb2).enabled, off);
    EXPECT_EQ(trainer.sim().c_LocCrs1, 337);
    EXPECT_FALSE(trainer.sim().flightUnsaved());
    const double across = trainer.sim().picture.size / trainer.sim().c_MAPscale;
    EXPECT_GT(across, 90); // from Munich to Linz, more than a file's scale can show
}

TEST_F(ChartFinderTest, RefusesAnotherKindOfFileWithItsLineAndKeepsItsStations) {
    choose("mun");
    trainer.world.chosen = files.path + "/fix.dat";
    files.put("fix.dat", "I\n1100 Version\n\n 47.0 11.0 ALPHA\n99\n");
    finder.readOther();
    EXPECT_THAT(trainer.world.boxes,
                ElementsAre(testing::AllOf(HasSubstr("/fix.dat\nline 4: expected a row of nav.dat"),
                                           HasSubstr("Nothing was changed."))));
    EXPECT_EQ(names(), "MUN SBG SBG SI OES ");
    std::filesystem::remove(files.at / "navaids.csv");
    finder.read(1);
    EXPECT_EQ(trainer.world.boxes.size(), 2U);
    EXPECT_EQ(finder.source(), 0U);
}

TEST_F(ChartFinderTest, OffersRunwaysWhereOurAirportsKnowsNoLocalizer) {
    finder.read(1);
    EXPECT_EQ(finder.summary(), "3 stations read.");
    choose("sbg");
    EXPECT_EQ(names(), "SBG - - - LOWS 33 ");
    EXPECT_THAT(finder.notes(), HasSubstr("LOWS 33 is a runway"));
    std::filesystem::remove(files.at / "runways.csv");
    finder.read(1);
    EXPECT_THAT(finder.summary(), HasSubstr("OurAirports knows no localizers."));
    const ChartFinder without(trainer.sim(), trainer.form.boxes, {});
    EXPECT_THAT(without.summary(), HasSubstr("No navigation data were found"));
}

} // namespace
} // namespace tarnel
