#pragma once

#include "../rapidcheck.h"

#define RC_GTEST_PROP(Suite, Name, Arguments)                                                      \
    static void Suite##Name##Property Arguments;                                                   \
    TEST(Suite, Name) {                                                                            \
        rc::tryOften(Suite##Name##Property);                                                       \
    }                                                                                              \
    static void Suite##Name##Property Arguments

#define RC_GTEST_FIXTURE_PROP(Fixture, Name, Arguments)                                            \
    struct Fixture##Name : Fixture {                                                               \
        void TestBody() override {}                                                                \
        void property Arguments;                                                                   \
    };                                                                                             \
    TEST_F(Fixture, Name) {                                                                        \
        rc::tryOften([] { Fixture##Name().property(); });                                          \
    }                                                                                              \
    void Fixture##Name::property Arguments
