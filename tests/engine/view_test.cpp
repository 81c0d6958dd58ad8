#include "engine/simulation_fixture.h"

#include <sstream>

namespace tarnel {
namespace {

class ViewTest : public SimulationTest {
  protected:
    void expectHeadingUp() {
        EXPECT_EQ(sim.aircraft.place.wide, (Point{3405, 3405}));
        EXPECT_LT(worstRadial(sim.aircraft.trueHeading), 0.4);
        EXPECT_NEAR(station(Slot::localizer).radial, trueRadial(Slot::localizer), 0.001);
        // The airplane points up.
        const Line& fuselage = sim.picture.airplane.fuselage;
        EXPECT_EQ(fuselage.from, (Point{3405, 3305}));
        EXPECT_EQ(fuselage.to, (Point{3405, 3591}));
    }
};

TEST_F(ViewTest, HeadingUpKeepsTheAircraftOnTheReferencePoint) {
    start(120, 73);
    tick(minute);
    sim.c_TimerEN = 0;
    sim.c_MAPnorthUP = 0;
    expectHeadingUp();
    sim.turnAircraft(300);
    expectHeadingUp();
    sim.c_MAPscale = 500;
    sim.c_MAPCenterSelect = 3;
    sim.MapScale();
    expectHeadingUp();
    sim.c_TimerEN = 1;
    sim.Turn_Rate = 2;
    for (int i = 0; i < minute; ++i) {
        tick(1);
        expectHeadingUp();
    }
    sim.c_TimerEN = 0;
    sim.c_MAPnorthUP = 1; // true at once
    EXPECT_LT(worstRadial(0), 0.3);
}

TEST_F(ViewTest, WhatIsSetIsSeenAtOnce) {
    std::istringstream sets(
        "c_NAVRadI2 1 c_NAVRadI3 1 c_NAV1freq 1 c_Inst2NAVselect 2 c_Inst3NAVselect 2 "
        "c_NAV2freq 1 c_obsI2 50 c_obsI3 60 c_LocCrs1 100 c_SpeedVectorEN 1 c_TAS 120 "
        "c_TraceAheadEN 1 c_VOR1name X c_VOR1Freq 117.2 c_VOR1EN 0 c_DME1EN 0 "
        "c_NAVRadBorder -1 c_NAVRadCenter 0");
    for (std::string property, value; sets >> property >> value;) {
        const std::uint64_t before = sim.picture.surface.revision();
        ASSERT_TRUE(sim.properties.find(property)->setText(value)) << property;
        EXPECT_NE(sim.picture.surface.revision(), before) << property;
    }
    const double below = station(Slot::vor1).dme;
    sim.c_Altitude = 40000;
    EXPECT_GT(station(Slot::vor1).dme, below);
}

TEST_F(ViewTest, WindTurnsWithTheChart) {
    sim.wind = {270, 60};
    start(120, 90); // tail wind
    for (const auto& [northUp, track] : {std::pair{1, 90}, {0, 360}}) {
        ASSERT_TRUE(sim.properties.find("c_MAPnorthUP")->setText(std::to_string(northUp)));
        tick(1);
        EXPECT_EQ(sim.speedVectors.groundTrack, track);
        EXPECT_EQ(sim.speedVectors.groundSpeed, 180);
    }
    EXPECT_NEAR(place().latitude, 49, 0.000001); // the flight itself goes on eastwards
}

TEST_F(ViewTest, ScaleKeepsRadialsAndCentresAsSelected) {
    start(120, 45);
    tick(minute);
    sim.c_MAPCenterSelect = 4;
    for (const std::int16_t scale : MapView::offeredScales) {
        sim.c_MAPscale = scale;
        EXPECT_EQ(inSlot(sim.stations, Slot::ndb1).place.point, (ChartPoint{3405, 3405})) << scale;
        EXPECT_LT(worstRadial(0), 0.6) << scale;
    }
    EXPECT_EQ(sim.picture.milesPer500Twips, 0.5);
    const GeoPosition ndb1 = toPlain(inSlot(sim.stations, Slot::ndb1).position);
    sim.c_MAPCenterSelect = 0;
    sim.c_MAPscale = 250;
    EXPECT_EQ(toPlain(sim.view.mapCenter), ndb1);
    sim.c_MAPCenterSelect = 1;
    sim.MapScale();
    EXPECT_EQ(sim.aircraft.place.point, (ChartPoint{3405, 3405}));
}

TEST_F(ViewTest, CentreTwipsSizeTheChartAboutTheAircraft) {
    start(120, 45);
    tick(minute);
    sim.c_CenterTwips = 5000.5; // a tie
    EXPECT_EQ(sim.picture.size, 10001);
    EXPECT_EQ(sim.aircraft.place.point, (ChartPoint{5000, 5000}));
    EXPECT_EQ(sim.view.mapCenter, toSplit(place()));
    EXPECT_LT(worstRadial(0), 0.4);
}

TEST_F(ViewTest, StationPicturesFollowTheirEnables) {
    for (const Slot which : {Slot::vor1, Slot::vor2, Slot::localizer})
        for (const std::int16_t enabled : {on, off}) {
            sim.slot(which).enabled = enabled;
            sim.slot(which).dmeEnabled = enabled == on ? off : on;
            EXPECT_EQ(inSlot(sim.picture.symbols, which).image,
                      enabled == on ? SymbolImage::stationOnly : SymbolImage::dmeOnly);
            EXPECT_EQ(sim.picture.localizer.centre.visible,
                      which != Slot::localizer || enabled == on);
            sim.slot(Slot::ndb2).enabled = enabled;
            EXPECT_EQ(inSlot(sim.picture.symbols, Slot::ndb2).visible, enabled == on);
        }
    EXPECT_FALSE(sim.picture.localizer.rightClosing.visible);
    EXPECT_FALSE(inSlot(sim.picture.symbols, Slot::localizer).name.visible);
}

TEST_F(ViewTest, RadialLinesGoWhenTheyAreSwitchedOff) {
    sim.c_NAVRadI2 = 1;
    EXPECT_TRUE(sim.picture.radialsI2.course.visible);
    sim.c_NAVRadBorder = on;
    EXPECT_TRUE(sim.picture.radialsI2.borderLeft.visible);
    sim.c_NAVRadCenter = off;
    EXPECT_FALSE(sim.picture.radialsI2.course.visible);
    sim.c_NAVRadI2 = 0;
    EXPECT_FALSE(sim.picture.radialsI2.borderLeft.visible);
}

} // namespace
} // namespace tarnel
