#include "core/run_time_error.h"
#include "persistence/flight_shelf.h"
#include "support/sample_session.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

class FlightShelfTest : public testing::Test {
  protected:
    static KeptFlight flightOf(std::size_t samples) {
        KeptFlight flight;
        flight.session.samples.resize(samples, sampleOfLines());
        for (std::size_t i = 0; i < samples; ++i)
            flight.session.samples[i].traceHeading = static_cast<double>(i) / 3;
        flight.session.comments = {"Größe, then \"turn\"", "---"};
        flight.session.stations[0].identifier = "ALB";
        flight.session.stations[4].identifier = "ILS EAST";
        flight.reference.append({48.1, 11.7 / 3});
        return flight;
    }
    [[nodiscard]] std::ptrdiff_t filesEndingOn(const std::string& suffix) const {
        return std::ranges::count_if(fs::directory_iterator(folder), [&](const auto& entry) {
            return entry.path().extension() == suffix;
        });
    }

    const TemporaryFolder temporary;
    const fs::path folder = temporary.at / "flights";
};

TEST_F(FlightShelfTest, TwentyFlightsLieWholeAndTheOldestGoes) {
    FlightShelf shelf(folder.string());
    constexpr std::int64_t newYear2026 = 1767225600;
    for (int i = 0; i < 22; ++i)
        shelf.put(flightOf(static_cast<std::size_t>(30 + i)), newYear2026 + i / 2);
    std::ofstream(folder / "mine.ts") << "a user's own file";
    const std::vector<ShelvedFlight> flights = shelf.flights();
    ASSERT_EQ(flights.size(), FlightShelf::most);
    EXPECT_EQ(flights.front().time, newYear2026 + 10);
    EXPECT_EQ(flights.front().seconds, 68); // 51 samples of 4/3 s
    EXPECT_EQ(flights.back().seconds, 42);  // the first two have gone
    EXPECT_THAT(flights.front().path, testing::HasSubstr("20260101T000010Z"));
    EXPECT_EQ(FlightShelf::stations(flights.front()), "ALB ILS EAST");
    EXPECT_EQ(filesEndingOn(".ts"), 21);
    EXPECT_EQ(filesEndingOn(".track"), 20);

    const KeptFlight wanted = flightOf(51);
    const KeptFlight got = FlightShelf::read(flights.front());
    EXPECT_EQ(got.session.samples, wanted.session.samples);
    EXPECT_EQ(got.session.comments, wanted.session.comments);
    EXPECT_EQ(got.reference, wanted.reference);
    EXPECT_FALSE(got.session.problem);
}

TEST_F(FlightShelfTest, TheCopyOfAProgramThatRunsIsItsOwn) {
    FlightShelf first(folder.string());
    FlightShelf second(folder.string());
    first.writeCopy(flightOf(40));
    second.writeCopy(flightOf(50));
    second.adoptCopies(30);
    FlightShelf(folder.string()).adoptCopies(30);
    EXPECT_TRUE(first.flights().empty());
    second.dropCopy();
    EXPECT_EQ(filesEndingOn(".ts"), 1);
    first.put(flightOf(40), 0);
    second.put(flightOf(40), 0); // in the same second
    EXPECT_EQ(first.flights().size(), 2U);
}

TEST_F(FlightShelfTest, TheCopyOfAProgramThatEndedIsPutAsideUnlessItIsShort) {
    FlightShelf(folder.string()).writeCopy(flightOf(23));
    FlightShelf shelf(folder.string());
    shelf.adoptCopies(30);
    ASSERT_EQ(shelf.flights().size(), 1U);
    EXPECT_EQ(shelf.flights()[0].seconds, 30);
    EXPECT_GT(shelf.flights()[0].time, 1767225600);
    EXPECT_EQ(FlightShelf::read(shelf.flights()[0]).reference, flightOf(23).reference);
    EXPECT_FALSE(shelf.wasOffered(shelf.flights()[0]));
    shelf.noteOffered(shelf.flights()[0]);
    EXPECT_TRUE(FlightShelf(folder.string()).wasOffered(shelf.flights()[0]));

    FlightShelf(folder.string()).writeCopy(flightOf(22));
    shelf.adoptCopies(30);
    EXPECT_EQ(shelf.flights().size(), 1U);
    EXPECT_EQ(filesEndingOn(".ts"), 1);
    EXPECT_EQ(filesEndingOn(".lock"), 1); // this program's
}

} // namespace
} // namespace tarnel
