#include "engine/simulation_fixture.h"

#include <rapidcheck/gtest.h>

namespace tarnel {
namespace {

class FlightTest : public SimulationTest {};

TEST_F(FlightTest, AnHourEndsWhereTheSailingSays) {
    struct Case {
        double heading;
        double tolerance; ///< miles; the east-west line hangs on the last digits of the latitude
    };
    constexpr Case cases[] = {{33, 0.005}, {122, 0.005}, {180, 0.005}, {281, 0.005}, {90, 0.25}};
    for (const Case& c : cases) {
        UserControl2 flight(messages);
        flight.turnAircraft(c.heading);
        flight.c_TAS = 120;
        flight.c_TimerEN = 1;
        for (int i = 0; i < hour; ++i)
            flight.Timer1();
        const CourseDistance flown = CourseAndDistance({49, 11}, flight.aircraft.published());
        EXPECT_NEAR(flown.distance, 120, c.tolerance) << c.heading;
        EXPECT_NEAR(std::remainder(flown.course - c.heading, 360), 0, 0.001) << c.heading;
        EXPECT_EQ(flight.c_ApHours2, 1);
        EXPECT_EQ(flight.c_ApMinutes2, 0);
        EXPECT_EQ(flight.c_ApSeconds2, 0);
    }
}

TEST_F(FlightTest, WindComesFromItsDirection) {
    sim.wind = {200, 30};
    start(0);
    tick(hour);
    const CourseDistance drift = CourseAndDistance({49, 11}, place());
    EXPECT_NEAR(drift.distance, 30, 0.005);
    EXPECT_NEAR(drift.course, 20, 0.001);
    EXPECT_EQ(sim.speedVectors.groundTrack, 20);
    EXPECT_EQ(sim.speedVectors.groundSpeed, 30);
    EXPECT_EQ(sim.c_ApMinutes2, 0); // drifting is not flying
}

TEST_F(FlightTest, HeadingGoesRoundTheCompass) {
    const std::tuple<double, std::int16_t, double> cases[] = {
        {359.5, 3, 0.5}, {0.5, -3, 359.5}, {359, 3, 0}, {100, 1, 100.0 + 1.0 / 3}, {10, 0, 10}};
    for (const auto& [heading, turnRate, after] : cases) {
        start(120, heading);
        sim.Turn_Rate = turnRate;
        tick(1);
        EXPECT_NEAR(sim.c_HDG, after, 0.000002) << heading;
        EXPECT_EQ(sim.c_HDG, sim.aircraft.trueHeading - (sim.c_HDG == 90 ? 0.000001 : 0));
        sim.c_TimerEN = 0;
    }
}

TEST_F(FlightTest, PassingOverAVorFlipsTheRadial) {
    sim.c_Altitude = 6000;
    start(120);
    tick(minute);
    EXPECT_NEAR(station(Slot::vor2).radial, 180, 0.01);
    EXPECT_EQ(station(Slot::vor2).dme, 2.2); // 2 along the ground
    EXPECT_EQ(station(Slot::vor2).dmeGroundSpeed, 120);
    tick(minute);
    EXPECT_EQ(station(Slot::vor2).dme, 1); // the height
    tick(minute);
    EXPECT_NEAR(std::remainder(station(Slot::vor2).radial, 360), 0, 0.01);
    EXPECT_EQ(station(Slot::vor2).dme, 2.2);
    EXPECT_EQ(station(Slot::vor2).dmeGroundSpeed, 120);
    EXPECT_LT(worstRadial(0), 0.3);
}

TEST_F(FlightTest, StationsThatAreOffAreStillMeasured) {
    for (const Slot which : {Slot::vor1, Slot::ndb1, Slot::localizer})
        sim.slot(which).enabled = off;
    sim.slot(Slot::vor1).dmeEnabled = off;
    sim.slot(Slot::ndb1).dmeGroundSpeed = 55; // never measured: it keeps what was set
    start(120, 90);
    tick(2 * minute);
    EXPECT_LT(worstRadial(0), 0.3);
    EXPECT_NEAR(station(Slot::localizer).radial, trueRadial(Slot::localizer), 0.001);
    EXPECT_GT(station(Slot::vor1).dme, 4);
    EXPECT_EQ(station(Slot::ndb1).dmeGroundSpeed, 55);
}

TEST_F(FlightTest, SettingAPropertyNeverMovesTheAircraft) {
    start(120, 45);
    tick(7);
    const GeoPosition before = place();
    const double heading = sim.aircraft.trueHeading;
    for (PropertyBase* property : sim.properties.all()) {
        ASSERT_TRUE(property->setText(property->text())) << property->name();
        EXPECT_EQ(place(), before) << property->name();
        EXPECT_EQ(sim.aircraft.trueHeading, heading) << property->name();
    }
    sim.c_HDG = 200; // the published copy only
    EXPECT_EQ(sim.aircraft.trueHeading, heading);
    tick(1);
    EXPECT_NEAR(milesBetween(before, place()), 120.0 / 3600 / 3, 0.00001);
}

RC_GTEST_FIXTURE_PROP(FlightTest, TrackAndSpeedAreThoseOfTheFlight, ()) {
    sim.wind = {static_cast<double>(*rc::gen::inRange(0, 360)),
                *rc::gen::inRange<std::int16_t>(0, 50)};
    start(*rc::gen::inRange<std::int16_t>(60, 200), *rc::gen::inRange(0, 359) + 0.5);
    tick(5 * minute);
    const CourseDistance flown = CourseAndDistance({49, 11}, place());
    RC_ASSERT(std::abs(flown.distance * 12 - sim.speedVectors.groundSpeed) < 1.5);
    RC_ASSERT(std::abs(std::remainder(flown.course - sim.speedVectors.groundTrack, 360)) < 1.1);
}

} // namespace
} // namespace tarnel
