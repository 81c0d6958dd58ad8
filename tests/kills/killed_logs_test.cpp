#include "log/sqlite_log.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarnel {
namespace {

/// A program that writes answers and flights without end, and reports each once it is told that it
/// is saved.
[[noreturn]] void writeUntilEnded(const std::string& folder, int program, int report) {
    int count = 1;
    char name[] = "kills";
    char* words[] = {name, nullptr};
    const QCoreApplication application(count, words);
    SqliteLog log(folder);
    for (std::int64_t number = 1;; ++number) {
        AnsweredRow row;
        row.when = number;
        row.question = program;
        row.given = std::string(200, 'x');
        log.add(row);
        if (number % 4 == 0)
            log.add(LoggedFlight{.when = number,
                                 .taskKey = std::to_string(program),
                                 .title = {},
                                 .findings = {}},
                    std::string(20'000, 's'), {.most = 20});
        if (::write(report, &number, sizeof number) < 0)
            ::_exit(1);
    }
}

/// What such a program has reported when it was killed.
std::int64_t writeAndKill(const std::string& folder, int program, std::chrono::milliseconds life) {
    int ends[2];
    if (::pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t process = ::fork();
    if (process == 0) {
        ::close(ends[0]);
        writeUntilEnded(folder, program, ends[1]);
    }
    ::close(ends[1]);
    std::int64_t last = 0;
    if (::read(ends[0], &last, sizeof last) <= 0) // it writes now
        throw std::runtime_error("it never wrote");
    std::this_thread::sleep_for(life);
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    while (::read(ends[0], &last, sizeof last) > 0) {
    }
    ::close(ends[0]);
    return last;
}

/// TARNEL_KILLS tells how many, 6 without it. All write to one log, two at once.
TEST(KilledLogs, LoseNothingThatWasToldAsSaved) {
    const char* wanted = std::getenv("TARNEL_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 6;
    const TemporaryFolder folder;
    const std::string path = (folder.at / "training").string();
    std::mt19937 random{std::random_device{}()};
    std::uniform_int_distribution<int> life(1, 120);
    std::vector<std::int64_t> reported(static_cast<std::size_t>(kills));
    for (int program = 0; program < kills; program += 2) {
        const auto run = [&](int each, int milliseconds) {
            if (each < kills)
                reported[static_cast<std::size_t>(each)] =
                    writeAndKill(path, each, std::chrono::milliseconds(milliseconds));
        };
        std::thread other(run, program + 1, life(random));
        run(program, life(random));
        other.join();
    }
    int count = 1;
    char name[] = "kills";
    char* words[] = {name, nullptr};
    const QCoreApplication application(count, words);
    SqliteLog log(path);
    bool damaged = false;
    log.onSetAside = [&](const std::string&) { damaged = true; };
    std::vector<std::int64_t> found(static_cast<std::size_t>(kills));
    log.eachAnswer([&](const AnswerFacts& answer) {
        std::int64_t& last = found.at(static_cast<std::size_t>(answer.question));
        EXPECT_EQ(answer.when, ++last) << "none missing in between";
    });
    std::int64_t saved = 0;
    for (std::size_t program = 0; program < found.size(); ++program) {
        EXPECT_GE(found[program], reported[program]) << program;
        saved += reported[program];
    }
    std::ptrdiff_t flights = 0;
    for (const LoggedFlight& flight : log.flights()) {
        EXPECT_TRUE(log.session(flight.id)) << "a flight in the list can be opened";
        ++flights;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(path + "/flights"), {}), flights)
        << "no session is left behind";
    EXPECT_FALSE(damaged);
    std::cout << kills << " kills, " << saved << " answers told as saved\n";
}

} // namespace
} // namespace tarnel
