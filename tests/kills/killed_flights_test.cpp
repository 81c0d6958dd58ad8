#include "shell/form_1.h"
#include "strings/string_table.h"
#include "support/temporary_folder.h"
#include "window/frame/flight_guard.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <poll.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

/// What a killed program may lose.
constexpr Seconds mostLost{10};

/// What a flying program tells: that a sample is recorded.
struct Report {
    Clock::time_point time;
    std::int16_t sample = 0;
};

struct SilentWorld : OutsideWorld {
    void messageBox(BoxKind, const std::string&, const std::string&) override {}
};

/// A program that has flown for `seconds` and flies on, four times as fast as real, until it is
/// ended. It reports each sample.
int flyUntilEnded(const std::string& folder, int seconds, int report) {
    int count = 1;
    char name[] = "kills";
    char* words[] = {name, nullptr};
    QCoreApplication application(count, words);
    SilentWorld world;
    Form1 form(englishTable(), world, TARNEL_DATA_FOLDER);
    FlightGuard guard(form.flightDesk.keeper, QString::fromStdString(folder));
    form.rateQuadruple.choose();
    form.startButton.click();
    const auto fly = [&] {
        form.UserControl11.Turn_Rate = 3; // stays in the practise area
        form.simulationTimer();
    };
    for (int i = 0; i < 3 * seconds; ++i)
        fly();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        fly();
        const Report newest{Clock::now(), form.UserControl11.recording.sampleIndex()};
        if (::write(report, &newest, sizeof newest) < 0)
            QCoreApplication::exit(1);
    });
    timer.start(form.UserControl11.c_TimerSIMrate);
    return QCoreApplication::exec();
}

/// Such a program from outside.
class Flight {
  public:
    Flight(const fs::path& place, int seconds, Seconds life) : folder(place), end(life) {
        int ends[2];
        if (::pipe(ends) != 0)
            throw std::runtime_error("no pipe");
        process = ::fork();
        if (process == 0) {
            ::close(ends[0]);
            ::_exit(flyUntilEnded(folder.string(), seconds, ends[1]));
        }
        ::close(ends[1]);
        reports = ends[0];
    }
    ~Flight() { ::close(reports); }
    Flight(const Flight&) = delete;
    Flight& operator=(const Flight&) = delete;

    /// Takes what was reported so far.
    void listen() {
        pollfd file{reports, POLLIN, 0};
        Report newest;
        while (::poll(&file, 1, 0) == 1 && ::read(reports, &newest, sizeof newest) > 0)
            if (samples.empty() || newest.sample > samples.back().sample)
                samples.push_back(newest);
    }
    [[nodiscard]] bool due() const {
        return !samples.empty() && Clock::now() - samples.front().time > end;
    }

    /// Ends the program with `signal`. Its exit code, -1 if the signal ended it.
    int finish(int signal) {
        ::kill(process, signal);
        ended = Clock::now();
        int status = 0;
        ::waitpid(process, &status, 0);
        listen();
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// The real time from the first sample that the next start does not find to the end.
    [[nodiscard]] Seconds lost() const {
        FlightShelf shelf(folder.string());
        shelf.adoptCopies(FlightKeeper::leastSeconds);
        const auto flights = shelf.flights();
        const std::size_t found =
            flights.size() == 1 ? FlightShelf::read(flights[0]).session.samples.size() : 0;
        for (const Report& report : samples)
            if (static_cast<std::size_t>(report.sample) > found)
                return ended - report.time;
        return Seconds(0);
    }

  private:
    fs::path folder;
    Seconds end;
    pid_t process = 0;
    int reports = -1;
    Clock::time_point ended;
    std::vector<Report> samples;
};

class KilledFlights : public testing::Test {
  protected:
    /// Flies `count` programs at once, each with an own length and life of up to `longest` seconds,
    /// and ends each by `signal`.
    std::vector<Seconds> flyAndEnd(int count, int signal, int exitCode, double longest) {
        std::uniform_int_distribution<int> flown(40, 6000);
        std::uniform_real_distribution<double> life(0.1, longest);
        std::vector<std::unique_ptr<Flight>> flights;
        for (int i = 0; i < count; ++i)
            flights.push_back(std::make_unique<Flight>(folder.at / std::to_string(made++),
                                                       flown(random), Seconds(life(random))));
        std::vector<Seconds> lost;
        while (!flights.empty()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            for (const auto& flight : flights)
                flight->listen();
            const auto due = std::ranges::find_if(flights, [](auto& each) { return each->due(); });
            if (due == flights.end())
                continue;
            EXPECT_EQ((*due)->finish(signal), exitCode);
            lost.push_back((*due)->lost());
            flights.erase(due);
        }
        return lost;
    }

    const TemporaryFolder folder;
    std::mt19937 random{std::random_device{}()};
    int made = 0;
};

/// TARNEL_KILLS tells how many, 6 without it.
TEST_F(KilledFlights, LoseTenSecondsAtMost) {
    const char* wanted = std::getenv("TARNEL_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 6;
    constexpr int atOnce = 20;
    std::vector<Seconds> lost;
    for (int left = kills; left > 0; left -= atOnce)
        for (const Seconds& each : flyAndEnd(std::min(left, atOnce), SIGKILL, -1, 16))
            lost.push_back(each);
    ASSERT_EQ(lost.size(), static_cast<std::size_t>(kills));
    const Seconds worst = *std::ranges::max_element(lost);
    std::cout << kills << " kills, at worst " << worst.count() << " s lost\n";
    EXPECT_LE(worst, mostLost);
}

TEST_F(KilledFlights, LoseNothingWhenToldToEnd) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        for (const Seconds& lost : flyAndEnd(2, signal, 0, 2))
            EXPECT_EQ(lost.count(), 0) << signal;
}

} // namespace
} // namespace tarnel
