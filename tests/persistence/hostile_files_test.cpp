#include "persistence/chart_file.h"
#include "persistence/older_session_file.h"
#include "persistence/session_file.h"
#include "support/sample_chart.h"
#include "support/sample_session.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <clocale>
#include <cmath>
#include <locale>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

void readAsEverything(const std::string& bytes) {
    (void)readChart(bytes);
    (void)readSession(bytes);
    (void)readOlderSession(bytes);
}

#ifdef __SANITIZE_ADDRESS__
constexpr bool freedMemoryStays = true;
#else
constexpr bool freedMemoryStays = false;
#endif

/// The most memory in MB that a process of its own holds that reads `bytes` as every kind of file.
long megabytesToRead(const std::string& bytes) {
    const pid_t child = fork();
    if (child == 0) {
        readAsEverything(bytes);
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        _exit(static_cast<int>(std::min(usage.ru_maxrss / 1024, 255L)));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(HostileFiles, OfAnyShapeStayWithinMemory) {
    const std::string comment = ":c:";
    const std::string enciphered = std::string(54, '*') + "\n\n\n7\n";
    const auto head = sessionHeadLines();
    const std::string start = joinLines(head, head.size());
    const auto filledUp = [](std::string text, const std::string& part) {
        while (text.size() + part.size() <= largestSession)
            text += part;
        return text;
    };
    const std::string files[] = {
        filledUp("", std::string(1, '\0')),
        filledUp("", "\n"),
        filledUp("", ":c:\n"),
        filledUp(comment, "\xFC"),
        filledUp(":v1id:,", "ü"),
        filledUp(enciphered, "\xFF"),
        filledUp(enciphered, "\n"),
        filledUp(start, "9"),
        filledUp(start + "0.", "0"),
        filledUp(start, "\"\" "),
        filledUp(start, "0\n"),
        filledUp("*****", "\xED\xA0\n"),
    };
    for (const std::string& file : files) {
        const long used = megabytesToRead(file);
        EXPECT_GE(used, 0) << file.substr(0, 20);
        EXPECT_TRUE(used < 255 || freedMemoryStays) << used << ' ' << file.substr(0, 20);
    }
}

RC_GTEST_PROP(HostileFiles, ChangedBytesNeverGiveASessionThatCannotBeSaved, ()) {
    const auto lines = sessionLines(2);
    std::string text = joinLines(lines, lines.size());
    const int changes = *rc::gen::inRange(1, 12);
    for (int i = 0; i < changes; ++i)
        text[*rc::gen::inRange<std::size_t>(0, text.size())] =
            *rc::gen::element('\0', '\n', '\r', '@', ':', '-', '9', '.', 'e', '"', '\xff');
    readAsEverything(text);
    const SessionFile session = readSession(text);
    for (const Sample& sample : session.samples)
        RC_ASSERT(std::abs(sample.traceLat) <= 90 && sample.traceComment <= 100);
    const std::string saved = writeSession(session, {});
    RC_ASSERT(writeSession(readSession(saved), {}) == saved);
}

/// A German's numbers, whether or not the system has that locale.
struct GermanNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Files, AreTheSameInAnyLocale) {
    const auto lines = sessionLines(1);
    SessionFile session = readSession(joinLines(lines, lines.size()));
    session.samples[0].traceTAS = 345;
    const ChartFile chart = readChart(joinLines(sampleChartLines(), 31));
    const std::string sessionBytes = writeSession(session, {});
    const std::string chartBytes = writeChart(chart, {});
    const std::locale before = std::locale::global(std::locale(std::locale(), new GermanNumbers));
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(writeSession(readSession(sessionBytes), {}), sessionBytes);
    EXPECT_EQ(writeChart(chart, {}), chartBytes);
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
}

} // namespace
} // namespace tarnel
