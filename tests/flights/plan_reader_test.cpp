#include "core/recording.h"
#include "flights/plan_error.h"
#include "flights/plan_reader.h"
#include "support/told.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarnel {
namespace {

using testing::HasSubstr;

PlanError errorOf(const std::string& text) {
    try {
        (void)readPlan(text, "wrong.toml");
    } catch (const PlanError& error) {
        return error;
    }
    ADD_FAILURE() << "no error in\n" << text;
    return {"", -1, ""};
}

TEST(PlanReader, TakesEveryKey) {
    const FlightPlan plan = readPlan(R"(
chart = "maps/alps.map"
seconds = 600
north_up = false
[aircraft]
latitude = 48
longitude = -11.5
heading = 360
tas = 0
[wind]
direction = 240
speed = 20
[radios]
nav1 = 0
nav2 = 1
adf = 1
dme = 2
[inst2]
type = "HSI"
nav = 2
adf_card = 1
obs = 90
[inst3]
type = "DG"
[task]
kind = "arc"
limits = "check ride"
station = "VOR2"
distance = 12.5
sense = "anticlockwise"
final = 90
way = "outbound"
[[event]]
at = 600
comment_end = true
[[event]]
at = 59.5
heading = 180
tas = 50
obs2 = 120
obs3 = 30
nav1 = 2
nav2 = 0
adf = 0
dme = 1
wind = "270/15"
comment = "Größe, #2"
)",
                                     "flights/plan.toml");
    EXPECT_EQ(told(plan.chart, plan.chartLine, plan.seconds), "flights/maps/alps.map 2 600");
    EXPECT_FALSE(plan.northUp);
    EXPECT_EQ(plan.position, (GeoPosition{48, -11.5}));
    EXPECT_EQ(told(plan.start.heading, plan.start.tas, plan.start.wind->direction,
                   plan.start.wind->speed, plan.start.nav2, plan.start.dme, plan.start.obs2,
                   plan.inst2.type, plan.inst2.receiver, plan.inst2.adfCard, plan.inst3.type),
              "360 0 240 20 1 2 90 4 2 1 5");
    ASSERT_TRUE(plan.task);
    EXPECT_EQ(plan.task->limits, Strictness::checkRide);
    const auto& arc = std::get<ArcTask>(plan.task->task);
    EXPECT_EQ(
        told(static_cast<int>(arc.station), arc.distance, arc.clockwise, arc.final, arc.inbound),
        "1 12.5 0 90 0");
    ASSERT_EQ(plan.events.size(), 2U); // in the order of their time
    EXPECT_EQ(told(plan.events[0].at, plan.events[0].settings.obs3,
                   plan.events[0].settings.wind->direction, plan.events[0].settings.wind->speed,
                   plan.events[0].settings.comment),
              "59.5 30 270 15 Größe, #2");
    EXPECT_TRUE(plan.events[1].settings.commentEnds);
}

TEST(PlanReader, AsksForSecondsAlone) {
    const FlightPlan plan = readPlan("seconds = 0.5", "short.toml");
    EXPECT_EQ(plan.seconds, 0.5);
    EXPECT_TRUE(plan.northUp);
    EXPECT_FALSE(plan.chart);
    EXPECT_FALSE(plan.position);
    EXPECT_FALSE(plan.start.heading);
    EXPECT_FALSE(plan.inst2.type);
}

TEST(PlanReader, NamesTheLineAndWhatWasExpected) {
    const std::tuple<const char*, int, const char*> cases[] = {
        {"", 1, "'seconds' as well"},
        {"seconds = 60\nseconds = 70", 2, "valid TOML"},
        {"seconds = 60\n[wind", 2, "valid TOML"},
        {"seconds = 24000.1", 1, "'seconds' as a number from 0 to 24000"},
        {"seconds = nan", 1, "'seconds' as a number"},
        {"seconds = true", 1, "'seconds' as a number"},
        {"seconds = 9\nnorth_up = 1", 2, "'north_up' as true or false"},
        {"seconds = 9\nchart = 5", 2, "'chart' as a path"},
        {"seconds = 9\nspeed = 5", 2, "one of chart, seconds, north_up"},
        {"secnds = 9\n[[event]]\nat = 5", 1, "not 'secnds'"},
        {"seconds = 9\naircraft = 5", 2, "[aircraft]"},
        {"seconds = 9\n[aircraft]\nlatitude = -70.5\nlongitude = 1", 3, "from -70 to 70"},
        {"seconds = 9\n[aircraft]\nlatitude = 1\nlongitude = 181", 4, "from -180 to 180"},
        {"seconds = 9\n[aircraft]\nlatitude = 48", 2, "'longitude' as well"},
        {"seconds = 9\n[aircraft]\n\nheading = 361", 4, "whole number from 0 to 360"},
        {"seconds = 9\n[aircraft]\nheading = 90.0", 3, "'heading' as a whole number"},
        {"seconds = 9\n[aircraft]\ntas = 49", 3, "0, or 50 to 360"},
        {"seconds = 9\n[aircraft]\ntas = 361", 3, "0, or 50 to 360"},
        {"seconds = 9\n[aircraft]\nscale = 2", 3, "not 'scale'"},
        {"seconds = 9\n[wind]\nspeed = 10", 2, "'direction' as well"},
        {"seconds = 9\n[wind]\ndirection = 0\nspeed = 101", 4, "from 0 to 100"},
        {"seconds = 9\n[radios]\nnav1 = 3", 3, "from 0 to 2"},
        {"seconds = 9\n[radios]\nadf = 2", 3, "from 0 to 1"},
        {"seconds = 9\n[inst2]\ntype = \"hsi\"", 3, "\"HSI\""},
        {"seconds = 9\n[inst2]\nnav = 0", 3, "from 1 to 2"},
        {"seconds = 9\n[inst3]\nadf_card = 3", 3, "from 1 to 2"},
        {"seconds = 9\n[inst3]\nobs = -1", 3, "from 0 to 360"},
        {"seconds = 9\n[task]\nstation = \"VOR1\"", 2, "'kind' as well"},
        {"seconds = 9\n[task]\nkind = \"hold\"", 3, "\"line\", \"holding\""},
        {"seconds = 9\n[task]\nkind = \"line\"\ncourse = 9", 2, "'station' as well"},
        {"seconds = 9\n[task]\nkind = \"line\"\nturns = \"left\"", 2, "'station' as well"},
        {"seconds = 9\n[task]\nkind = \"arc\"\nstation = \"NDB1\"", 4, "\"VOR2\" or \"LOC\""},
        {"seconds = 9\n[task]\nkind = \"wind\"\nminutes = 4", 4, "from 0.5 to 3"},
        {"seconds = 9\n[task]\nkind = \"reference\"\nsession = 3", 4, "a path"},
        {"seconds = 9\n[event]\nat = 5", 2, "[[event]]"},
        {"seconds = 9\nevent = [5]", 2, "[[event]]"},
        {"seconds = 9\n[[event]]\nheading = 5", 2, "'at' as well"},
        {"seconds = 9\n[[event]]\nat = 9.5", 3, "from 0 to 9"},
        {"seconds = 9\n[[event]]\nat = 1\n[[event]]\nat = 2\nobs = 5", 6, "not 'obs'"},
        {"seconds = 9\n[[event]]\nat = 1\nwind = \"270\"", 4, "such as \"270/15\""},
        {"seconds = 9\n[[event]]\nat = 1\nwind = \"270/15kt\"", 4, "such as \"270/15\""},
        {"seconds = 9\n[[event]]\nat = 1\nwind = \"361/15\"", 4, "0 to 360"},
        {"seconds = 9\n[[event]]\nat = 1\nwind = \"270/101\"", 4, "0 to 100"},
        {"seconds = 9\n[[event]]\nat = 1\ncomment = \"\"", 4, "one line of text"},
        {"seconds = 9\n[[event]]\nat = 1\ncomment = \"two\\nlines\"", 4, "one line of text"},
        {"seconds = 9\n[[event]]\nat = 1\ncomment = \"a\"\ncomment_end = true", 2, "either"},
    };
    for (const auto& [text, line, wanted] : cases) {
        const PlanError error = errorOf(text);
        EXPECT_EQ(error.line(), line) << text;
        EXPECT_THAT(error.expected(), HasSubstr(wanted)) << text;
    }
    EXPECT_STREQ(errorOf("seconds = 1\nchart = 5").what(),
                 "wrong.toml:2: expected 'chart' as a path");
}

TEST(PlanReader, WhatTheParserCouldNotBearIsRefusedBefore) {
    const auto many = [](const std::string& part, int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += part;
        return text;
    };
    const std::tuple<std::string, int, const char*> cases[] = {
        {"seconds = 1\n" + many("a.", 150000) + "a = 1", 2, "at most 8 parts"},
        {"x = 1.5 # a.b.c.d.e.f.g.h.i\n[" + many("\"a\" . ", 8) + "a]", 2, "at most 8 parts"},
        {"comment = \"\"\"a\n\"\"\"\"\"\n" + many("a.", 8) + "a = 1", 3, "at most 8 parts"},
        {"a = " + many("[", 17), 1, "16 brackets"},
        {"a = '\\'\n" + many("a={", 17), 2, "16 brackets"},
        {"\n\xCF\xBA = 1", 2, "outside of quotes"},
        {"a = \"\\\"\xCF\xBA\"\nb\xCF\xBA = 1", 2, "outside of quotes"},
        {"seconds = 1\n[\ninst3]\n", 0, "valid TOML"},
        {many("\n", (1 << 20) + 1), 0, "at most 1048576 bytes"},
    };
    for (const auto& [text, line, expected] : cases) {
        const PlanError error = errorOf(text);
        EXPECT_EQ(error.line(), line) << expected;
        EXPECT_THAT(error.expected(), HasSubstr(expected));
    }
    EXPECT_THAT(errorOf("seconds = 1\n" + many("a.", 7) + "a = 1").expected(),
                HasSubstr("not 'a'"));
}

TEST(PlanReader, SaysThatAFileCannotBeRead) {
    try {
        (void)readPlanFile("no/such.toml");
        ADD_FAILURE() << "read";
    } catch (const PlanError& error) {
        EXPECT_EQ(error.line(), 0);
        EXPECT_THAT(error.what(), testing::StartsWith("no/such.toml: expected a plan"));
    }
}

TEST(PlanReader, CountsCommentsAndTheirCharacters) {
    const auto planWith = [](std::size_t comments, const std::string& text) {
        std::string plan = "seconds = 9\n";
        for (std::size_t i = 0; i < comments; ++i)
            plan += "[[event]]\nat = 1\ncomment = \"" + text + "\"\n";
        return plan;
    };
    EXPECT_EQ(readPlan(planWith(Comments::count, "a"), "").events.size(), Comments::count);
    const PlanError full = errorOf(planWith(Comments::count + 1, "a"));
    EXPECT_EQ(full.line(), 2 + 3 * 101);
    EXPECT_THAT(full.expected(), HasSubstr("at most 101 comments"));

    std::string umlauts;
    for (std::size_t i = 0; i < plan_limits::commentLength; ++i)
        umlauts += "ü";
    EXPECT_EQ(readPlan(planWith(1, umlauts), "").events[0].settings.comment, umlauts);
    EXPECT_EQ(errorOf(planWith(1, umlauts + "ü")).line(), 4);
}

} // namespace
} // namespace tarnel
