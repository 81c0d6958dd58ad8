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

} // namespace
} // namespace tarnel
