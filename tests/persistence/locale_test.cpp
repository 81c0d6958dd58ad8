#include "persistence/chart_file.h"
#include "persistence/session_file.h"
#include "support/sample_chart.h"
#include "support/sample_session.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>

namespace tarnel {
namespace {

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
