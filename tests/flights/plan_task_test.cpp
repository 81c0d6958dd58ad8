#include "flights/plan_error.h"
#include "flights/plan_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tarnel {
namespace {

const std::string lineTask = "kind = \"line\"\nstation = \"NDB2\"\ncourse = 90\n";
const std::string holding = "kind = \"holding\"\nstation = \"LOC\"\ncourse = 360\n";
const std::string wind = "kind = \"wind\"\nstation = \"VOR2\"\ncourse = 0\n";
const std::string arc =
    "kind = \"arc\"\nstation = \"LOC\"\nfinal = 9\nsense = \"clockwise\"\ndistance = 9\n";
const std::string reference = "kind = \"reference\"\nsession = \"a.ts\"\n";

PlannedTask taskOf(const std::string& keys) {
    return *readPlan("seconds = 9\n[task]\n" + keys, "plans/plan.toml").task;
}

/// The line of the error and what it expected; empty if the plan is taken.
std::string refused(const std::string& keys) {
    try {
        (void)taskOf(keys);
    } catch (const PlanError& error) {
        return std::to_string(error.line()) + ": " + error.expected();
    }
    return "";
}

TEST(PlanTask, TakesWhatItsKeysSay) {
    const std::pair<std::string, Task> tasks[] = {
        {lineTask, LineTask{.station = Slot::ndb2, .course = 90}},
        {lineTask + "cut = 45",
         LineTask{.station = Slot::ndb2, .course = 90, .joins = true, .cut = 45}},
        {lineTask + "cut = 45\njoins = false",
         LineTask{.station = Slot::ndb2, .course = 90, .cut = 45}},
        {lineTask + "way = \"outbound\"\njoins = true",
         LineTask{.station = Slot::ndb2, .course = 90, .inbound = false, .joins = true}},
        {holding, HoldTask{.fix = Slot::localizer, .inbound = 360}},
        {holding + "turns = \"left\"\nminutes = 1.5",
         HoldTask{Slot::localizer, 360, HoldingSide::left, 1.5}},
        {wind + "turns = \"right\"", WindTask{{.fix = Slot::vor2}}},
        {arc, ArcTask{Slot::localizer, 9, true, 9, true}}};
    for (const auto& [keys, task] : tasks)
        EXPECT_EQ(taskOf(keys).task, task) << keys;
    for (const auto& [words, limits] : {std::pair("wide", Strictness::wide),
                                        {"standard", Strictness::standard},
                                        {"check ride", Strictness::checkRide}})
        EXPECT_EQ(taskOf(lineTask + "limits = \"" + words + "\"").limits, limits);
    EXPECT_EQ(taskOf(reference).session, "plans/a.ts");
}

/// Both ends of each range are taken; what lies beyond is refused in its own line.
TEST(PlanTask, HoldsEachNumberToItsRange) {
    const struct {
        std::string keys, key;
        const char *low, *high, *below, *above;
        const char* expected;
    } ranges[] = {
        {"kind = \"line\"\nstation = \"VOR1\"\n", "course", "0", "360", "-1", "361", "0 to 360"},
        {lineTask, "cut", "5", "120", "4.9", "120.1", "from 5 to 120"},
        {"kind = \"holding\"\nstation = \"VOR1\"\n", "course", "0", "360", "-1", "0.5", "0 to 360"},
        {holding, "minutes", "0.5", "3", "0.4", "3.1", "from 0.5 to 3"},
        {wind, "minutes", "0.5", "3", "0.49", "nan", "from 0.5 to 3"},
        {"kind = \"arc\"\nstation = \"VOR1\"\nsense = \"clockwise\"\nfinal = 9\n", "distance", "2",
         "60", "1.9", "60.1", "from 2 to 60"},
        {"kind = \"arc\"\nstation = \"VOR1\"\nsense = \"clockwise\"\ndistance = 9\n", "final", "0",
         "360", "-1", "361", "0 to 360"}};
    for (const auto& range : ranges) {
        const auto lines = std::ranges::count(range.keys, '\n');
        const auto with = [&](const char* value) {
            return refused(range.keys + range.key + " = " + value);
        };
        EXPECT_EQ(with(range.low), "");
        EXPECT_EQ(with(range.high), "");
        for (const char* wrong : {range.below, range.above, "\"x\""})
            EXPECT_THAT(with(wrong),
                        testing::AllOf(testing::StartsWith(std::to_string(lines + 3) + ": "),
                                       testing::HasSubstr("'" + range.key + "'")))
                << range.keys << wrong;
        EXPECT_THAT(with(range.below), testing::HasSubstr(range.expected));
    }
}

TEST(PlanTask, RefusesOtherWordsKeysAndGaps) {
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {lineTask + "limits = \"check-ride\"", "6:", "\"wide\", \"standard\" or \"check ride\""},
        {lineTask + "way = \"in\"", "6:", "\"inbound\" or \"outbound\""},
        {lineTask + "joins = 1", "6:", "'joins' as true or false"},
        {lineTask + "turns = \"left\"", "6:", "not 'turns'"},
        {lineTask + "minutes = 1", "6:", "not 'minutes'"},
        {holding + "turns = \"Left\"", "6:", "\"left\" or \"right\""},
        {holding + "cut = 45", "6:", "not 'cut'"},
        {wind + "sense = \"clockwise\"", "6:", "not 'sense'"},
        {arc + "joins = true", "8:", "not 'joins'"},
        {reference + "station = \"VOR1\"", "5:", "not 'station'"},
        {"kind = \"arc\"\nstation = \"VOR1\"\nfinal = 9\ndistance = 9", "2:", "'sense' as well"},
        {"kind = \"arc\"\nstation = \"VOR1\"\nfinal = 9\nsense = \"clockwise\"",
         "2:", "'distance' as well"},
        {"kind = \"arc\"\nstation = \"VOR1\"\nsense = \"clockwise\"\ndistance = 9",
         "2:", "'final' as well"},
        {"kind = \"arc\"\nsense = \"left\"", "4:", "\"clockwise\" or \"anticlockwise\""},
        {"kind = \"wind\"\nstation = \"VOR1\"", "2:", "'course' as well"},
        {"kind = \"holding\"\nstation = \"vor1\"", "4:", "\"NDB2\" or \"LOC\""},
        {"kind = \"reference\"", "2:", "'session' as well"},
        {"kind = \"reference\"\nsession = \"\"", "4:", "a path"},
        {"limits = \"wide\"", "2:", "'kind' as well"}};
    for (const auto& [keys, at, expected] : cases)
        EXPECT_THAT(refused(keys),
                    testing::AllOf(testing::StartsWith(at), testing::HasSubstr(expected)))
            << keys;
}

} // namespace
} // namespace tarnel
