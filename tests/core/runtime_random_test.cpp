#include "core/runtime_random.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(RuntimeRandom, GivesTheKnownValuesFromAFreshStart) {
    RuntimeRandom random;
    EXPECT_NEAR(random.next(), 0.7055475, 5e-8);
    EXPECT_NEAR(random.next(), 0.5334240, 5e-8);
    EXPECT_NEAR(random.next(), 0.5795186, 5e-8);
}

TEST(RuntimeRandom, ANegativeArgumentStartsOver) {
    RuntimeRandom random;
    random.next();
    EXPECT_NEAR(random.restart(-1), 0.2240070, 5e-8);
    const double second = random.next();
    random.restart(-1);
    EXPECT_EQ(random.next(), second);
}

TEST(RuntimeRandom, WholeNumbersReachBothEndsAndNoMore) {
    RuntimeRandom random;
    random.seed(0x1234567);
    bool lowest = false;
    bool highest = false;
    for (int i = 0; i < 10000; ++i) {
        const int drawn = random.below(9);
        ASSERT_GE(drawn, 0);
        ASSERT_LT(drawn, 9);
        lowest = lowest || drawn == 0;
        highest = highest || drawn == 8;
    }
    EXPECT_TRUE(lowest && highest);
}

} // namespace
} // namespace tarnel
