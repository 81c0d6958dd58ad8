#include "engine/simulation_fixture.h"

#include <array>

namespace tarnel {
namespace {

class HandHistoryTest : public SimulationTest {
  protected:
    void drag(ChartButton button, Point from, Point to) {
        sim.mouse.down(button, from);
        for (int i = 1; i <= 4; ++i)
            sim.mouse.move({from.x + (to.x - from.x) * i / 4, from.y + (to.y - from.y) * i / 4});
        sim.mouse.up();
    }
    void dragStation(Slot slot, Point by) {
        const Point at = inSlot(sim.stations, slot).place.wide;
        drag(ChartButton::left, at, {at.x + by.x, at.y + by.y});
    }
    void fly(int samples) {
        start(120);
        tick(4 * samples);
        sim.c_TimerEN = 0;
    }
    void goTo(int sample) { sim.c_RepeatValue = static_cast<std::int16_t>(sample); }
    /// All that the hand can change.
    [[nodiscard]] std::string told() const {
        std::string text = std::to_string(sim.aircraft.published().latitude) + " " +
                           std::to_string(sim.c_HDG) + " " + sim.c_wind.get();
        for (const Station& station : sim.stations)
            text += " " + std::to_string(toPlain(station.position).longitude);
        return text;
    }
    [[nodiscard]] double recorded(int sample) const {
        return sim.recording.at(sample).traceStations[0].longitude;
    }
};

TEST_F(HandHistoryTest, EachDragIsOneStepThatIsTakenBackAndDoneAgain) {
    std::vector<std::string> states{told()};
    std::vector<Deed> deeds;
    const auto did = [&](Deed deed) {
        states.push_back(told());
        ASSERT_NE(states[states.size() - 2], states.back());
        ASSERT_NE(sim.history.undoable(), nullptr);
        EXPECT_EQ(sim.history.undoable()->deed, deed);
    };
    std::int16_t bug = 0;
    sim.headingDrawn = [&](std::int16_t heading) { sim.c_HDGbug = bug = heading; };
    drag(ChartButton::left, {3000, 3000}, {2000, 2500});
    did(Deed::placeAircraft);
    drag(ChartButton::right, {2000, 2500}, {4000, 3500});
    did(Deed::turnAircraft);
    sim.c_WindSetEN = 1;
    drag(ChartButton::left, {3000, 3000}, {4000, 3000});
    did(Deed::setWind);
    sim.c_mapedit = 1;
    dragStation(Slot::ndb2, {500, -300});
    did(Deed::moveStation);
    for (const double direction : {10, 15, 20}) // as a wheel turns it
        sim.setWind({direction, 10});
    did(Deed::setWind);

    for (std::size_t i = states.size() - 1; i-- > 0;) {
        EXPECT_TRUE(sim.undo());
        EXPECT_EQ(told(), states[i]) << i;
    }
    EXPECT_EQ(bug, 0);
    EXPECT_FALSE(sim.undo());
    for (std::size_t i = 1; i < states.size(); ++i) {
        EXPECT_TRUE(sim.redo());
        EXPECT_EQ(told(), states[i]) << i;
    }
    EXPECT_FALSE(sim.redo());
    sim.undo();
    drag(ChartButton::left, {3000, 3000}, {2500, 2500});
    EXPECT_FALSE(sim.redo()) << "what was taken back is gone";
    for (std::size_t i = 0; i < 2 * HandHistory::longest; ++i)
        sim.c_WindSetEN = i % 2 == 0 ? 0 : 3;
    std::size_t steps = 0;
    while (sim.undo())
        ++steps;
    EXPECT_EQ(steps, HandHistory::longest);
}

TEST_F(HandHistoryTest, TheFlightThatAPressEndedComesBackWhole) {
    sim.c_SessionFileName = "mine.ts";
    sim.reference.append({49, 11});
    fly(30);
    goTo(20);
    const GeoPosition there = place();
    const std::array shown = {&sim.c_TraceBufferMax, &sim.c_FlyEN,      &sim.c_replayInstLock,
                              &sim.c_RepeatValue,    &sim.c_ApMinutes,  &sim.c_ApSeconds,
                              &sim.c_ApHours2,       &sim.c_ApMinutes2, &sim.c_ApSeconds2};
    const auto kept = [&] {
        std::string text = sim.c_SessionFileName.get() + std::to_string(sim.clock.flightSeconds);
        for (const auto* property : shown)
            text += " " + property->text();
        return text;
    };
    const std::string before = kept();
    sim.placedByHand = [&] { // as a strip that comes to rest
        for (auto* property : shown)
            property->publish(77);
        sim.c_SessionFileName = "another";
    };
    drag(ChartButton::left, {1000, 1000}, {900, 900});
    sim.mouse.down(ChartButton::left, {3000, 3000});
    sim.mouse.takeBack();
    EXPECT_TRUE(sim.reference.empty());
    EXPECT_TRUE(sim.undo());
    EXPECT_EQ(place(), there);
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(sim.presentSampleIndex(), 20);
    EXPECT_FALSE(sim.reference.empty());
    sim.c_TimerEN = 1;
    tick(4);
    EXPECT_EQ(sim.c_TraceBufferMax, 21) << "it goes on from there";
    EXPECT_FALSE(sim.undo()) << "not in flight";
    sim.setWind({90, 40});
    sim.c_TimerEN = 0;
    EXPECT_FALSE(sim.undo()) << "nor what was done there";
}

TEST_F(HandHistoryTest, AMovedStationIsWrittenFromThePresentSampleOn) {
    fly(9);
    sim.recording.edit(8).traceStations[0].longitude = 12; // moved in flight
    const double old = recorded(2);
    goTo(5);
    sim.c_mapedit = 1;
    const auto moved = [&] { return toPlain(sim.stations[0].position).longitude; };
    sim.mouse.down(ChartButton::left, sim.stations[0].place.wide);
    sim.mouse.move({100, 100});
    EXPECT_NE(moved(), old);
    EXPECT_TRUE(sim.mouse.takeBack());
    EXPECT_EQ(moved(), old);
    EXPECT_EQ(sim.history.undoable(), nullptr);

    dragStation(Slot::vor1, {700, 0});
    const double now = moved();
    for (int i = 2; i <= 9; ++i)
        EXPECT_EQ(recorded(i), i < 5 ? old : now) << i;
    goTo(2);
    EXPECT_EQ(moved(), old);
    EXPECT_TRUE(sim.undo()) << "a replay does not forget it";
    for (int i = 2; i <= 9; ++i)
        EXPECT_EQ(recorded(i), i == 8 ? 12 : old) << i;
    EXPECT_EQ(moved(), old);
    EXPECT_TRUE(sim.redo());
    EXPECT_EQ(recorded(8), now);
    goTo(8);
    EXPECT_NEAR(moved(), now, 1e-9);
    sim.mouse.down(ChartButton::left, sim.stations[0].place.wide);
    sim.mouse.move({2000, 2000});
    sim.mouse.up();
    sim.mouse.takeBackDrag(); // the second press of a double click
    EXPECT_EQ(recorded(9), now);
    EXPECT_FALSE(sim.redo());
}

TEST_F(HandHistoryTest, EndsWithWhatMakesItMeaningless) {
    const auto fill = [this] {
        sim.c_mapedit = 1;
        dragStation(Slot::vor1, {100, 100});
        sim.setWind({90, sim.wind.speed == 10 ? std::int16_t{20} : std::int16_t{10}});
        ASSERT_EQ(sim.history.undoable()->deed, Deed::setWind);
    };
    fly(5);
    fill();
    goTo(3);
    EXPECT_EQ(sim.history.undoable()->deed, Deed::moveStation);
    for (const auto& end : std::initializer_list<std::function<void()>>{
             [this] { sim.c_NewSession = 1; }, [this] { sim.dropRecording(); },
             [this] {
                 sim.c_TimerEN = 1;
                 sim.c_TimerEN = 0;
             }}) {
        fill();
        end();
        EXPECT_FALSE(sim.undo());
    }
}

} // namespace
} // namespace tarnel
