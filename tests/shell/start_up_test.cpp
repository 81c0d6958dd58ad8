#include "trainer_fixture.h"

namespace tarnel {
namespace {

using testing::HasSubstr;

TEST(StartUp, RestsPausedOnTheDefaultChart) {
    Trainer trainer;
    Form1& form = trainer.form;
    UserControl2& sim = trainer.sim();
    EXPECT_TRUE(trainer.world.boxes.empty());
    EXPECT_FALSE(form.flight.flies());
    EXPECT_EQ(told(form.inst2.type, form.inst3.type, form.inst1.instrument.Display),
              told(rmi, hsi, rmi));
    EXPECT_EQ(told(sim.c_TimerSIMrate, sim.c_TAS, sim.c_Altitude, sim.c_NAVRadCenter == on),
              "333 120 6000 1");
    EXPECT_EQ(told(form.NAVControlFace1.c_Freq1, form.NAVControlFace2.c_SetFreq), "112.30 1");
    EXPECT_EQ(form.DMEControlFace1.frequency.pictures()[0], 2) << "the DME shows its frequency";
    EXPECT_EQ(told(form.sessionPanel, form.windPanel, form.hidePanel, form.tracePanel,
                   form.vectorsPanel, form.modePanel),
              "New Session.ts [W]ind OFF [H]ide OFF [T]race ON [V]-Vectors OFF Pause [M]ode");
    EXPECT_EQ(told(sim.recording.at(1).traceLat, sim.recording.at(1).traceAPtas), "48.29 120");
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
    const Form1& form = trainer.form;
    EXPECT_EQ(told(form.NAVControlFace1.c_Freq3, form.NAVControlFace1.c_Freq2,
                   form.DMEControlFace1.c_Freq2, form.ADFControlFace1.c_Freq1),
              "110.90 117.15 117.15 400");
    EXPECT_EQ(form.NAVControlFace2.frequency.pictures(), (std::vector<std::int16_t>{2, 2, 8, 2, 6}))
        << "the selected slot is shown anew";
}

TEST(StartUp, AChartThatIsMissingOrWrongIsToldAndTheBuiltInOneFlies) {
    for (const bool wrong : {false, true}) {
        const ApplicationFolder folder;
        if (wrong)
            folder.writeChart(":v1id:,ABC\r\n:v1fr:,113.00\r\n:v2id:,DEF\n");
        Trainer trainer(folder.path);
        ASSERT_EQ(trainer.world.boxes.size(), 1);
        EXPECT_THAT(trainer.world.boxes[0],
                    HasSubstr(wrong ? "line 4" : "c_loadChart ERROR # 53 was generated "));
        EXPECT_THAT(trainer.world.boxes[0], HasSubstr("built-in chart"));
        EXPECT_EQ(trainer.sim().slot(Slot::vor1).name.get(), "VOR1");
        trainer.start();
        trainer.fly(60);
        EXPECT_GT(trainer.sim().aircraft.aircraftLat, 49.03);
    }
}

} // namespace
} // namespace tarnel
