#include "window/progress/time_spans.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace tarnel {
namespace {

/// On a clock of central Europe, whatever the computer's is.
class TimeSpansTest : public testing::Test {
  protected:
    TimeSpansTest() { setZone("CET-1CEST,M3.5.0,M10.5.0/3"); }
    ~TimeSpansTest() override { setZone(before.isNull() ? nullptr : before.constData()); }
    static void setZone(const char* zone) {
        if (zone)
            ::setenv("TZ", zone, 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }
    const QByteArray before = qgetenv("TZ");
};

TEST_F(TimeSpansTest, FollowEachOtherOverYearsEndAndChangesOfTheClock) {
    const struct {
        SpanKind kind;
        QDate day;
        std::string marks; ///< of the last three
        std::string title;
        int hours; ///< of the last
    } cases[] = {
        {SpanKind::day, {2027, 1, 1}, "30 31 1", "1 January", 24},
        {SpanKind::day, {2026, 3, 29}, "27 28 29", "29 March", 23},
        {SpanKind::day, {2026, 10, 25}, "23 24 25", "25 October", 25},
        {SpanKind::day, {2028, 3, 1}, "28 29 1", "1 March", 24},
        {SpanKind::week, {2026, 1, 1}, "51 52 1", "29 December – 4 January", 168},
        {SpanKind::week, {2027, 1, 3}, "51 52 53", "28 December – 3 January", 168},
        {SpanKind::week, {2027, 1, 4}, "52 53 1", "4 – 10 January", 168},
        {SpanKind::week, {2026, 3, 23}, "11 12 13", "23 – 29 March", 167},
        {SpanKind::month, {2027, 1, 31}, "Nov Dec Jan", "January 2027", 744},
        {SpanKind::month, {2026, 3, 31}, "Jan Feb Mar", "March 2026", 743},
    };
    for (const auto& [kind, day, marks, title, hours] : cases) {
        const TimeSpans spans(kind, day, englishTable());
        EXPECT_EQ(spans.title().toStdString(), title);
        const int last = TimeSpans::count - 1;
        EXPECT_EQ((spans.mark(last - 2) + ' ' + spans.mark(last - 1) + ' ' + spans.mark(last))
                      .toStdString(),
                  marks);
        const auto bounds = spans.bounds();
        ASSERT_EQ(bounds.size(), TimeSpans::count + 1U);
        EXPECT_EQ((bounds.back() - bounds[bounds.size() - 2]) / 3'600'000, hours) << title;
        EXPECT_TRUE(spans.showsDay(day));
        EXPECT_FALSE(spans.showsDay(spans.neighbour(-1)) || spans.showsDay(spans.neighbour(1)));
        EXPECT_EQ(TimeSpans(kind, spans.neighbour(-1), englishTable()).bounds().back(),
                  bounds[bounds.size() - 2]);
    }
}

} // namespace
} // namespace tarnel
