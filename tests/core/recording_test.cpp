#include "core/flight_clock.h"
#include "core/recording.h"
#include "core/run_time_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tarnel {
namespace {

TEST(Recording, SamplesFallOnEveryFourthTickFromTheThird) {
    Recording recording;
    std::vector<int> sampled;
    for (int tick = 1; tick <= 16; ++tick)
        if (recording.tickIsSample())
            sampled.push_back(tick);
    EXPECT_THAT(sampled, testing::ElementsAre(3, 7, 11, 15));
}

TEST(Recording, WarnsTwiceAndStartsOver) {
    Recording recording;
    recording.edit(1).traceTAS = 77;
    std::vector<std::pair<int, BufferWarning>> warned;
    for (int sample = 2; sample <= 5980; ++sample) {
        const BufferWarning warning = recording.advance();
        if (warning != BufferWarning::none)
            warned.emplace_back(sample, warning);
    }
    EXPECT_THAT(warned, testing::ElementsAre(std::pair(5900, BufferWarning::almostFull),
                                             std::pair(5980, BufferWarning::full)));
    EXPECT_EQ(recording.sampleIndex(), 1);
    EXPECT_EQ(recording.at(1).traceTAS, 77); // until overwritten
    recording.edit(1).traceComment = 2;
    recording.write(Sample{}, noComment);
    EXPECT_EQ(recording.at(1).traceComment, 2) << "a comment stays with its sample";
    recording.clear();
    EXPECT_EQ(recording.sampleIndex(), 0);
    EXPECT_EQ(recording.at(1).traceTAS, 0);
}

TEST(Recording, ChecksItsBounds) {
    Recording recording;
    recording.edit(0).traceTAS = 1;
    recording.edit(6000).traceTAS = 2;
    for (const int index : {-1, 6001}) {
        try {
            (void)recording.at(index);
            ADD_FAILURE() << index << " was taken";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

TEST(FlightClock, CarriesSecondsMinutesAndHours) {
    FlightClock clock;
    const auto tick = [&](int ticks) {
        for (int i = 0; i < ticks; ++i) {
            clock.tickStopwatch();
            clock.tickFlightTime();
        }
    };
    tick(179);
    EXPECT_EQ(static_cast<int>(clock.stopwatchSeconds), 59);
    EXPECT_EQ(clock.stopwatchMinutes, 0);
    tick(1);
    EXPECT_EQ(clock.stopwatchSeconds, 0);
    EXPECT_EQ(clock.stopwatchMinutes, 1);
    tick(180 * 59);
    EXPECT_EQ(clock.stopwatchMinutes, 0); // no hours
    EXPECT_EQ(clock.flightMinutes, 0);
    EXPECT_EQ(clock.flightHours, 1);
    tick(180 * 61);
    EXPECT_EQ(clock.flightMinutes, 1);
    EXPECT_EQ(clock.flightHours, 2);
}

} // namespace
} // namespace tarnel
