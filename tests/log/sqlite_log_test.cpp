#include "log/finding_names.h"
#include "log/log_tables.h"
#include "log_fixture.h"
#include "persistence/file_bytes.h"
#include "shell/memory_log.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// What every log has to do, whatever it is kept in.
class AnyLog : public LogTest, public testing::WithParamInterface<bool> {
  protected:
    AnyLog() { reopen(); }
    /// As the next start of the program finds it.
    void reopen() {
        if (GetParam())
            log = std::make_unique<SqliteLog>(path());
        else if (!log)
            log = std::make_unique<MemoryLog>();
    }
    std::int64_t fly(const std::string& task, std::int64_t when, const std::string& session,
                     FlightLimits limits = {}) {
        LoggedFlight flight;
        flight.when = when;
        flight.taskKey = task;
        flight.title = "Holding at MÜN";
        flight.findings = {{.value = 0.25,
                            .expected = {},
                            .tolerance = 1.5,
                            .verdict = Verdict::wrong,
                            .weight = 2,
                            .samples = {3, 9},
                            .turn = 1}};
        return log->add(flight, session, limits);
    }
    std::vector<std::int64_t> kept() {
        std::vector<std::int64_t> times;
        for (const LoggedFlight& flight : log->flights())
            times.push_back(flight.when);
        return times;
    }
    std::unique_ptr<TrainingLog> log;
};

TEST_P(AnyLog, KeepsAnswersAndTellsHowQuestionsWentTheLastTime) {
    AnsweredRow own = answer(7, 100, 0, true);
    own.courseKey = "ab/";
    own.courseName = "Kurs ä";
    for (const AnsweredRow& row :
         {answer(7, 100, 0, false), answer(7, 100, 1, true), answer(7, 500, 0, true),
          answer(7, 500, 1, true), answer(-8, 100, 0, true), answer(-8, 100, 1, true),
          answer(-8, 900, 1, true), own}) // the other row of the last was never answered
        log->add(row);
    reopen();
    std::vector<std::string> rows;
    log->eachRow([&](const AnsweredRow& row) {
        EXPECT_EQ(row.given + row.answer, "Übung <090>270");
        rows.push_back(row.courseName + std::to_string(row.question) + (row.right ? "+" : "-"));
    });
    EXPECT_THAT(rows, ElementsAre("7-", "7+", "7+", "7+", "-8+", "-8+", "-8+", "Kurs ä7+"));
    std::vector<AnswerFacts> facts;
    log->eachAnswer([&](const AnswerFacts& fact) { facts.push_back(fact); });
    ASSERT_EQ(facts.size(), 8U);
    EXPECT_EQ(facts[1].when, 2100);
    EXPECT_EQ(facts[1].row, 1);
    EXPECT_EQ(facts[1].spot, Text::spotQdmTurn);
    EXPECT_EQ(facts[1].milliseconds, 1000);
    const auto courses = log->courses();
    ASSERT_EQ(courses.size(), 2U);
    EXPECT_EQ(courses[1].name, "Kurs ä");
    EXPECT_EQ(facts[7].course, courses[1].number);

    const auto told = [&](const std::string& course) {
        std::vector<std::string> lines;
        for (const QuestionStanding& each : log->standings(course, ExerciseType::qdm))
            lines.push_back(std::to_string(each.question) + " " + std::to_string(each.asked) +
                            (each.allRight ? "+" : "-"));
        return lines;
    };
    EXPECT_THAT(told(""), ElementsAre("-8 900-", "7 500+"));
    EXPECT_THAT(told("ab/"), ElementsAre("7 100-"));
    EXPECT_TRUE(log->standings("", ExerciseType::qdr).empty());
}

TEST_P(AnyLog, KeepsFlightsToNumberAndSizeButNeverLosesWhatIsPinned) {
    const std::int64_t first = fly("hold", 1, "first");
    const std::int64_t second = fly("hold", 2, "second");
    fly("arc", 3, "third");
    log->pin(first, true);
    reopen();
    EXPECT_THAT(kept(), ElementsAre(3, 2, 1));
    EXPECT_EQ(log->session(second), "second");
    const LoggedFlight again = log->flights()[1];
    EXPECT_EQ(again.attempt, 2);
    EXPECT_EQ(again.bytes, 6);
    ASSERT_EQ(again.findings.size(), 1U);
    EXPECT_EQ(again.findings[0].tolerance, 1.5);
    EXPECT_EQ(again.findings[0].expected, std::nullopt);
    EXPECT_EQ(again.findings[0].samples, (SampleSpan{3, 9}));
    EXPECT_EQ(again.findings[0].verdict, Verdict::wrong);

    fly("arc", 4, "fourth", {.most = 2});
    EXPECT_THAT(kept(), ElementsAre(4, 3, 1));
    EXPECT_EQ(log->session(second), std::nullopt);
    log->prune({.most = 0});
    EXPECT_THAT(kept(), ElementsAre(4, 1));
    log->prune({.most = 200, .mostBytes = 1});
    EXPECT_THAT(kept(), ElementsAre(4, 1)) << "the newest stays, whatever the limits";
    log->remove(first);
    EXPECT_THAT(kept(), ElementsAre(4));
    if (GetParam()) {
        EXPECT_EQ(std::distance(fs::directory_iterator(path() + "/flights"), {}), 1);
    }
}

TEST_P(AnyLog, KeepsAFlightOnceAndItsLongerFormInItsPlace) {
    LoggedFlight flight{.when = 1, .taskKey = "hold", .fingerprint = INT64_MIN + 7};
    const std::int64_t first = log->add(flight, "short", {});
    log->pin(first, true);
    EXPECT_EQ(log->add(flight, "other bytes", {}), first);
    flight = {.id = first, .when = 2, .taskKey = "arc", .fingerprint = INT64_MIN + 7};
    EXPECT_NE(log->add(flight, "held to something else", {}), first);
    flight = {.id = first, .when = 9, .taskKey = "hold", .fingerprint = 8, .findings = {{}}};
    EXPECT_EQ(log->add(flight, "longer", {}), first);
    if (GetParam()) {
        EXPECT_EQ(std::distance(fs::directory_iterator(path() + "/flights"), {}), 2);
    }
    reopen();
    const LoggedFlight kept = log->flights()[0];
    EXPECT_EQ(log->session(first), "longer");
    EXPECT_EQ(kept.when, 9);
    EXPECT_EQ(kept.bytes, 6);
    EXPECT_EQ(kept.attempt, 1);
    EXPECT_TRUE(kept.pinned);
    EXPECT_EQ(kept.findings.size(), 1U);
    EXPECT_EQ(log->add(flight, "the same again", {}), first);
    log->remove(first);
    EXPECT_NE(log->add(flight, "flown on", {}), 0);
    EXPECT_EQ(log->flights().size(), 2U);
}

TEST_P(AnyLog, GivesTextsBackAsTheyCame) {
    const std::vector<std::string> texts = {
        "",        " ", "Übung <ß>", "it's; DROP TABLE answers; --", "\"?\" %1 :a", "two\r\nlines",
        "✈ 🛩"};
    for (const std::string& text : texts) {
        AnsweredRow row = answer(INT64_MIN + 1, INT64_MAX / 2, 0, true);
        row.given = row.answer = row.courseName = text;
        row.courseKey = "key " + text;
        log->add(row);
        fly(text, 5, text);
    }
    reopen();
    std::vector<std::string> found;
    log->eachRow([&](const AnsweredRow& row) {
        EXPECT_EQ(row.question, INT64_MIN + 1);
        EXPECT_EQ(row.asked, INT64_MAX / 2);
        EXPECT_EQ(row.given, row.answer);
        EXPECT_EQ(row.courseKey, "key " + row.given);
        EXPECT_EQ(row.courseName, row.given);
        found.push_back(row.given);
    });
    EXPECT_EQ(found, texts);
    found.clear();
    for (const LoggedFlight& flight : log->flights()) {
        EXPECT_EQ(log->session(flight.id), flight.taskKey);
        EXPECT_EQ(flight.attempt, 1) << "each text is a task of its own";
        found.insert(found.begin(), flight.taskKey);
    }
    EXPECT_EQ(found, texts);
}

INSTANTIATE_TEST_SUITE_P(Memory, AnyLog, testing::Values(false));
INSTANTIATE_TEST_SUITE_P(Sqlite, AnyLog, testing::Values(true));

class SqliteLogTest : public LogTest {
  protected:
    void write(const std::string& bytes) {
        fs::create_directories(path());
        std::ofstream(path() + "/log.sqlite", std::ios::binary) << bytes;
    }
    /// A log of many answers whose file is spoilt from the middle on, as a bad disk may leave it.
    void spoil() {
        {
            SqliteLog log(path());
            for (int i = 0; i < 400; ++i)
                log.add(answer(i, i, 0, true));
        }
        const auto size = fs::file_size(path() + "/log.sqlite");
        std::fstream file(path() + "/log.sqlite", std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(4096));
        file << std::string(size - 4096, '\x55');
    }
    /// Does that to the log's file behind its back.
    void alter(const char* statement) const {
        {
            auto database = QSqlDatabase::addDatabase("QSQLITE", "behind");
            database.setDatabaseName(QString::fromStdString(path() + "/log.sqlite"));
            EXPECT_TRUE(database.open());
            EXPECT_TRUE(QSqlQuery(database).exec(statement)) << statement;
        }
        QSqlDatabase::removeDatabase("behind");
    }
    std::vector<std::string> aside;
    std::unique_ptr<SqliteLog> noting() {
        auto log = std::make_unique<SqliteLog>(path());
        log->onSetAside = [this](const std::string& name) { aside.push_back(name); };
        return log;
    }
};

TEST_F(SqliteLogTest, OpensNothingBeforeItIsNeeded) {
    const SqliteLog log(path());
    EXPECT_FALSE(fs::exists(path()));
}

TEST_F(SqliteLogTest, SetsADamagedLogAsideAndBeginsANewOne) {
    const std::string garbage(5000, 'x');
    write(garbage);
    auto log = noting();
    log->add(answer(1, 1, 0, true));
    EXPECT_EQ(answersIn(*log), 1U);
    ASSERT_EQ(aside.size(), 1U);
    EXPECT_EQ(readFileBytes(aside[0] + "/log.sqlite", 1 << 20), garbage) << "nothing is lost";

    log.reset();
    fs::remove_all(path());
    spoil();
    log = noting();
    EXPECT_EQ(answersIn(*log), 0U);
    EXPECT_EQ(aside.size(), 2U);
    const auto other = noting(); // a program that has found damage, too, as it may seem to it
    (void)other->courses();
    fs::rename(path(), path() + "-damaged-9");
    log->add(answer(2, 2, 0, true));
    other->add(answer(3, 3, 0, true));
    EXPECT_EQ(answersIn(*noting()), 2U) << "both write to what lies there now";
    EXPECT_EQ(aside.size(), 2U);
}

TEST_F(SqliteLogTest, LeavesAloneWhatItCannotHave) {
    const auto trouble = [&] {
        try {
            SqliteLog(path()).add(answer(1, 1, 0, true));
        } catch (const LogFailure& failure) {
            return static_cast<int>(failure.trouble());
        }
        return -1;
    };
    std::ofstream(path()) << "a file where the folder should be";
    EXPECT_EQ(trouble(), static_cast<int>(LogTrouble::unwritable));
    fs::remove(path());
    fs::create_directories(path() + "/log.sqlite");
    EXPECT_EQ(trouble(), static_cast<int>(LogTrouble::unwritable));
    fs::remove_all(path());
    EXPECT_EQ(trouble(), -1);
    alter("PRAGMA user_version = 99");
    EXPECT_EQ(trouble(), static_cast<int>(LogTrouble::ofNewerVersion));
    EXPECT_TRUE(fs::exists(path() + "/log.sqlite"));
}

TEST_F(SqliteLogTest, ChangesNothingInALogOfANewerProgram) {
    SqliteLog(path()).add(answer(1, 1, 0, true));
    alter("PRAGMA user_version = 99");
    const std::string before = readFileBytes(path() + "/log.sqlite", 1 << 24);
    const std::function<void(SqliteLog&)> uses[] = {
        [](SqliteLog& log) { log.add(answer(2, 2, 0, true)); },
        [](SqliteLog& log) { log.add(LoggedFlight{}, "session", {}); },
        [](SqliteLog& log) { log.prune({.most = 0}); },
        [](SqliteLog& log) { log.clear(); },
    };
    for (const auto& use : uses) {
        const auto log = noting();
        EXPECT_THROW(use(*log), LogFailure);
    }
    EXPECT_TRUE(aside.empty());
    EXPECT_EQ(readFileBytes(path() + "/log.sqlite", 1 << 24), before);
    EXPECT_TRUE(!fs::exists(path() + "/flights") || fs::is_empty(path() + "/flights"));
    alter("PRAGMA user_version = 2");
    EXPECT_EQ(answersIn(*noting()), 1U);
}

TEST_F(SqliteLogTest, PassesOverWhatItCannotNameAndMissesNoOtherFinding) {
    LoggedFlight flight;
#define FINDING(name, unit, limit, text)                                                           \
    flight.findings.emplace_back().kind = FindingKind::name;                                       \
    EXPECT_EQ(findingOf(nameOfFinding(FindingKind::name)), FindingKind::name);
#include "debrief/findings.def"
    EXPECT_EQ(findingOf(""), std::nullopt);
    EXPECT_EQ(findingOf("fromTheFuture"), std::nullopt);
    SqliteLog log(path());
    const std::int64_t id = log.add(flight, "session", {});
    EXPECT_EQ(log.flights()[0].findings, flight.findings) << "in their order";
    alter("UPDATE findings SET kind = 'fromTheFuture' WHERE place = 1");
    flight.findings.erase(flight.findings.begin() + 1);
    EXPECT_EQ(log.flights()[0].findings, flight.findings);

    fs::remove_all(path() + "/flights"); // by hand
    EXPECT_EQ(log.session(id), std::nullopt);
    EXPECT_EQ(log.flights().size(), 1U);
    log.remove(id);
    EXPECT_TRUE(log.flights().empty());
}

TEST_F(SqliteLogTest, TakesWhatSeveralProgramsWriteAtOnce) {
    constexpr int programs = 4;
    constexpr int answers = 60;
    for (int program = 0; program < programs; ++program)
        if (::fork() == 0) {
            SqliteLog log(path()); // they make it at once, too
            for (int i = 0; i < answers; ++i)
                log.add(answer(program, i, 0, true));
            ::_exit(0);
        }
    for (int program = 0, status = 0; program < programs; ++program) {
        ::wait(&status);
        EXPECT_EQ(status, 0);
    }
    SqliteLog log(path());
    EXPECT_EQ(answersIn(log), static_cast<std::size_t>(programs * answers));
}

TEST_F(SqliteLogTest, TakesALogOverThatAnOlderProgramWrote) {
    fs::create_directories(path() + "/flights");
    std::ofstream(path() + "/flights/1.ts") << "session";
    std::ofstream(path() + "/flights/2.ts") << "left behind by a program that was killed";
    for (const char* statement : logMigrations()[0])
        alter(statement);
    alter("INSERT INTO flights VALUES(4, 1, 'Holding', 'Holding MUN', 2, 7, 1, '1.ts')");
    alter("INSERT INTO findings VALUES(4, 0, 'largestDeviation', 2, NULL, 1, 1, 1, 0, 9, 0)");
    alter("PRAGMA user_version = 1");
    SqliteLog log(path());
    ASSERT_EQ(log.flights().size(), 1U);
    const LoggedFlight old = log.flights()[0];
    EXPECT_EQ(old.findings.size(), 1U);
    EXPECT_EQ(log.session(old.id), "session");
    EXPECT_FALSE(fs::exists(path() + "/flights/2.ts"));
    EXPECT_NE(log.add(old, "not known to be the same", {}), 0);
    const std::int64_t next = log.add({.taskKey = "Holding", .fingerprint = 5}, "new", {});
    EXPECT_EQ(log.flights()[1].attempt + log.flights()[0].attempt, 5);
    EXPECT_EQ(SqliteLog(path()).session(next), "new");
}

TEST_F(SqliteLogTest, DeletesEverythingToTheLastByte) {
    write("no log");
    SqliteLog log(path());
    log.clear();
    const auto empty = fs::file_size(path() + "/log.sqlite");
    for (int i = 0; i < 200; ++i)
        log.add(answer(i, i, 0, true));
    log.add(LoggedFlight{.taskKey = "hold", .title = "Holding", .findings = {}}, "session", {});
    const SqliteLog other(path()); // another program
    log.clear();
    EXPECT_EQ(fs::file_size(path() + "/log.sqlite"), empty);
    EXPECT_EQ(answersIn(log), 0U);
    EXPECT_TRUE(log.flights().empty() && log.courses().empty());
    for (const auto& entry : fs::recursive_directory_iterator(folder.at))
        if (entry.is_regular_file()) {
            const std::string bytes = readFileBytes(entry.path().string(), 1 << 24);
            for (const char* word : {"<090>", "Holding", "session", "no log"})
                EXPECT_EQ(bytes.find(word), std::string::npos) << entry.path() << word;
        }
    EXPECT_EQ(log.add(LoggedFlight(), "session", {}), 1) << "nothing tells how many there were";
}

} // namespace
} // namespace tarnel
