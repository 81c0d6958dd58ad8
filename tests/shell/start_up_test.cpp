#include "trainer_fixture.h"

namespace tarnel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(StartUp, RestsPausedOnTheDefaultChart) {
    Trainer trainer;
    Form1& form = trainer.form;
    EXPECT_TRUE(trainer.world.boxes.empty());
    EXPECT_FALSE(form.simulationRuns());
    EXPECT_EQ(form.inst2.type, rmi);
    EXPECT_EQ(form.inst3.type, hsi);
    EXPECT_EQ(form.inst1.instrument.Display, rmi);
    EXPECT_EQ(form.UserControl11.c_TimerSIMrate, 333);
    EXPECT_EQ(form.NAVControlFace1.c_Freq1.get(), "112.30");
    EXPECT_EQ(form.NAVControlFace2.c_SetFreq, 1);
    EXPECT_EQ(form.DMEControlFace1.frequency.pictures()[0], 2) << "the DME shows its frequency";
    EXPECT_EQ(form.UserControl11.c_TAS, 120);
    EXPECT_EQ(form.UserControl11.c_Altitude, 6000);
    EXPECT_EQ(form.UserControl11.c_NAVRadCenter, on);
    EXPECT_EQ(form.sessionPanel.text(), "New Session.ts");
    EXPECT_THAT(
        (std::vector{form.windPanel.text(), form.hidePanel.text(), form.tracePanel.text(),
                     form.vectorsPanel.text(), form.modePanel.text()}),
        ElementsAre("[W]ind OFF", "[H]ide OFF", "[T]race ON", "[V]-Vectors OFF", "Pause [M]ode"));
    EXPECT_DOUBLE_EQ(form.UserControl11.recording.at(1).traceLat, 48.29);
    EXPECT_EQ(form.UserControl11.recording.at(1).traceAPtas, 120);
}

// Every DME must stay inside the practise area on all that a student would fly.
TEST(StartUp, DefaultChartStandsWellInsideThePractiseArea) {
    Trainer trainer;
    for (const Slot slot : {Slot::vor1, Slot::vor2, Slot::localizer})
        EXPECT_LT(trainer.sim().slot(slot).dme, 30);
    EXPECT_EQ(trainer.sim().c_LocCrs1, 83);
}

TEST(StartUp, ChartFrequenciesReachTheFaces) {
    Trainer trainer;
    trainer.sim().slot(Slot::vor2).frequency = "117.15";
    trainer.sim().slot(Slot::ndb1).frequency = "400";
    trainer.sim().slot(Slot::localizer).frequency = "110.90";
    trainer.couple(1);
    EXPECT_EQ(trainer.form.NAVControlFace1.c_Freq3.get(), "110.90");
    EXPECT_EQ(trainer.form.NAVControlFace1.c_Freq2.get(), "117.15");
    EXPECT_EQ(trainer.form.DMEControlFace1.c_Freq2.get(), "117.15");
    EXPECT_EQ(trainer.form.ADFControlFace1.c_Freq1.get(), "400");
    EXPECT_EQ(trainer.form.NAVControlFace2.frequency.pictures(),
              (std::vector<std::int16_t>{2, 2, 8, 2, 6}))
        << "the selected slot is shown anew";
}

TEST(StartUp, MissingChartIsToldAndTheBuiltInOneFlies) {
    const ApplicationFolder empty;
    Trainer trainer(empty.path);
    ASSERT_EQ(trainer.world.boxes.size(), 1);
    EXPECT_THAT(trainer.world.boxes[0], HasSubstr("c_loadChart ERROR # 53 was generated "));
    trainer.start();
    trainer.fly(60);
    EXPECT_GT(trainer.sim().aircraft.aircraftLat, 49.03);
}

TEST(StartUp, WrongChartNamesTheLineAndTheBuiltInOneFlies) {
    const ApplicationFolder folder;
    folder.writeChart(":v1id:,ABC\r\n:v1fr:,113.00\r\n:v2id:,DEF\n");
    Trainer trainer(folder.path);
    ASSERT_EQ(trainer.world.boxes.size(), 1);
    EXPECT_THAT(trainer.world.boxes[0], HasSubstr("line 4"));
    EXPECT_THAT(trainer.world.boxes[0], HasSubstr("built-in chart"));
    EXPECT_EQ(trainer.sim().slot(Slot::vor1).name.get(), "VOR1");
}

} // namespace
} // namespace tarnel
