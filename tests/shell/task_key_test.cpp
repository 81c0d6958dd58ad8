#include "shell/task_key.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace tarnel {
namespace {

const std::vector<Sample> example(3);

std::optional<std::vector<Sample>> exampleNamed(const std::string& name) {
    return name == "adf practise 01.ts" ? std::optional(example) : std::nullopt;
}

Task anyTask() {
    const auto station = *rc::gen::map(rc::gen::inRange(0, static_cast<int>(slotCount)),
                                       [](int slot) { return static_cast<Slot>(slot); });
    const auto fraction = [](int most) { return *rc::gen::inRange(0, most * 8 + 1) / 8.0; };
    const bool flag = *rc::gen::arbitrary<bool>();
    const HoldTask hold{station, fraction(360), flag ? HoldingSide::left : HoldingSide::right,
                        fraction(4)};
    switch (*rc::gen::inRange(0, 5)) {
    case 0:
        return LineTask{station, fraction(360), flag, *rc::gen::arbitrary<bool>(),
                        *rc::gen::arbitrary<bool>() ? std::optional(fraction(90)) : std::nullopt};
    case 1:
        return hold;
    case 2:
        return WindTask{hold};
    case 3:
        return ArcTask{hasDme(station) ? station : Slot::localizer, fraction(40), flag,
                       fraction(360), *rc::gen::arbitrary<bool>()};
    default:
        return ReferenceTask{example};
    }
}

RC_GTEST_PROP(TaskKeys, ComeBackAsTheTaskAndNoTornOneAsAnother, ()) {
    const Task task = anyTask();
    const std::string key = taskKey(task, "adf practise 01.ts");
    RC_ASSERT(taskOfKey(key, exampleNamed) == std::optional(task));
    const auto cut = static_cast<std::size_t>(*rc::gen::inRange(0, static_cast<int>(key.size())));
    const std::optional<Task> torn = taskOfKey(key.substr(0, cut), exampleNamed);
    RC_ASSERT(!torn || key[cut] == ' ' || key[cut] == '.' || std::isdigit(key[cut]));
    RC_ASSERT(!taskOfKey(key + " more", exampleNamed));
}

TEST(TaskKeys, AreReadByOtherProgramsAndTellNothingWhereTheyAreWrong) {
    EXPECT_EQ(taskOfKey("hold ndb1 240 right 1.5", exampleNamed),
              Task(HoldTask{Slot::ndb1, 240, HoldingSide::right, 1.5}));
    EXPECT_EQ(taskOfKey("track loc 85 to join cut 30", exampleNamed),
              Task(LineTask{Slot::localizer, 85, true, true, 30}));
    for (const char* wrong :
         {"", " ", "hold", "Warteschleife MUN, rechts, Inbound-Kurs 240°", "hold vor3 240 right 1",
          "hold vor1 nan right 1", "hold vor1 1e9 right 1", "hold vor1 -1 right 1",
          "hold vor1 240 up 1", "hold  vor1 240 right 1", "track vor1 85 to cut join",
          "arc ndb1 10 clockwise 275 to", "reference gone.ts", "reference ", "reference", "\xFF"})
        EXPECT_EQ(taskOfKey(wrong, exampleNamed), std::nullopt) << wrong;
}

} // namespace
} // namespace tarnel
