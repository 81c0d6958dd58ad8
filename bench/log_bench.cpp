#include "cpu_seconds.h"
#include "log/log_database.h"
#include "log/sqlite_log.h"
#include "shell/progress.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

namespace {

using namespace tarnel;

constexpr int runs = 7;
constexpr int answers = 100'000;
constexpr int flights = 1000;
constexpr std::int64_t hour = 3'600'000;

/// Writes the rows as `SqliteLog` does, but all of them together.
void fill(const std::string& folder) {
    SqliteLog log(folder);
    AnsweredRow first;
    first.when = first.asked = hour;
    first.exercise = ExerciseType::qdm;
    first.spot = Text::spotQdmTurn;
    log.add(first);
    LogDatabase tables(folder + "/log.sqlite");
    const auto minute = [](int number) { return static_cast<qlonglong>(number) * 60'000; };
    tables.together([&] {
        for (int i = 1; i < answers; ++i)
            tables.run(QStringLiteral("INSERT INTO answers(at, asked, course, exercise, question,"
                                      " place, places, spot, correct, took, given, answer)"
                                      " VALUES(?, ?, 1, ?, ?, ?, 4, ?, ?, ?, 'left', 'right')"),
                       {minute(i), minute(i) - 9000, 1 + i % 10,
                        static_cast<qlonglong>(i % 240) * 1'000'000'007, i % 4,
                        static_cast<int>(Text::spotRadial) + i % 39, i % 3 != 0,
                        5000 + i % 20'000});
        for (int i = 0; i < flights; ++i) {
            tables.run(QStringLiteral("INSERT INTO flights(id, at, task, title, attempt, bytes,"
                                      " pinned, file) VALUES(?, ?, 'hold', 'Holding', ?,"
                                      " 20000, 0, 'none')"),
                       {i + 1, minute(60 * i), i});
            for (int place = 0; place < 7; ++place)
                tables.run(QStringLiteral("INSERT INTO findings VALUES(?, ?, 'meanOffReference',"
                                          " 0.4, NULL, 1, 1, 0.5, 3, 90, 0)"),
                           {i + 1, place});
        }
    });
}

/// The same rows and columns, read and thrown away.
void bareQueries(LogDatabase& tables) {
    static qlonglong kept = 0;
    for (const auto& [statement, columns] :
         {std::pair{"SELECT at, asked, course, exercise, question, place, spot, correct, took"
                    " FROM answers ORDER BY id",
                    9},
          std::pair{"SELECT id, at, task, title, attempt, bytes, pinned, fingerprint FROM flights"
                    " ORDER BY at DESC, id DESC",
                    8},
          std::pair{"SELECT flight, kind, value, expected, tolerance, verdict, weight, first, last,"
                    " turn FROM findings ORDER BY flight, place",
                    10}}) {
        QSqlQuery rows = tables.run(QString::fromLatin1(statement));
        while (rows.next())
            for (int column = 0; column < columns; ++column)
                kept += rows.value(column).toLongLong();
    }
}

double median(const std::function<void()>& work) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        const double start = cpuSeconds();
        work();
        times.push_back(cpuSeconds() - start);
    }
    std::ranges::sort(times);
    return times[runs / 2];
}

/// Milliseconds until a log is there and open for its first answer, or only there.
double opening(const std::string& folder, bool needed) {
    return 1000 * median([&] {
               SqliteLog log(folder);
               if (needed)
                   (void)log.courses();
           });
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::string name = (std::filesystem::temp_directory_path() / "tarnel-log-XXXXXX").string();
    const std::string folder = mkdtemp(name.data());
    const std::string full = folder + "/full";
    fill(full);
    std::vector<std::int64_t> weeks;
    for (int week = 0; week <= 12; ++week)
        weeks.push_back(week * 7 * 24 * hour);
    SqliteLog log(full);
    LogDatabase tables(full + "/log.sqlite");
    const double bare = median([&] { bareQueries(tables); });
    std::size_t spots = 0;
    const double all =
        median([&] { spots = progressOf(log, {}, weeks).spots.size() + log.flights().size(); });
    std::printf("log: progress over %d answers and %d flights (%zu lines): %.0f ms, "
                "bare queries %.0f ms, ratio %.2f (at most 3)\n",
                answers, flights, spots, 1000 * all, 1000 * bare, all / bare);
    std::printf("log: at start %.4f ms with all of it, %.4f ms without; opened when needed "
                "%.2f ms, new %.2f ms\n",
                opening(full, false), opening(folder + "/none", false), opening(full, true),
                opening(folder + "/new", true));
    std::filesystem::remove_all(folder);
    constexpr double most = 3;
    return all <= most * bare ? 0 : 1;
}
