#include "core/holding_answer.h"
#include "core/run_time_error.h"
#include "exercises/heading_offers.h"
#include "exercises/question_draw.h"
#include "exercises/val_str.h"
#include "support/told.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace tarnel {
namespace {

TEST(Numbers, AreReadFromTheFrontOfAText) {
    EXPECT_EQ(told(Val("12,5"), Val("  -1.45 kt"), Val("+.5"), Val("1e2x")), "12 -1.45 0.5 100");
    for (const char* text : {"", " ", "x1", "-", "--1", "+-1", ".", "nan", "inf", "1e999", "°5"})
        EXPECT_EQ(Val(text), 0) << text;
    EXPECT_EQ(told(Str(7), Str(0), Str(-7)), " 7  0 -7");
}

TEST(OfferedHeadings, WrapAndArePadded) {
    const HeadingOffers offers{355, 355, {0, 10, 5, 90, 180}};
    EXPECT_EQ(offers.captions(), (std::vector<std::string>{"355", "005", "360", "085", "175"}));
    const HeadingOffers north{0, 0, {90, 0, 180, 10}};
    EXPECT_EQ(north.captions()[1], "360");
    EXPECT_TRUE(north.isRight(1));
    const HeadingOffers writtenAs360{360, 360, {90, 0, 180, 10}};
    EXPECT_EQ(writtenAs360.captions(), north.captions());
    EXPECT_TRUE(writtenAs360.isRight(1));
    EXPECT_FALSE(writtenAs360.isRight(3));
}

struct Holding {
    Holding(int heading, int inboundCourse, std::string kind) : HLDtype(std::move(kind)) {
        find(heading, inboundCourse);
    }
    void find(int heading, int inboundCourse) {
        findHoldingAnswer(static_cast<std::int16_t>(heading),
                          static_cast<std::int16_t>(inboundCourse), HLDtype, entry, outbound,
                          offsetHDG, abeam, firstHDG, firstTurn);
    }
    std::string HLDtype, entry, firstTurn;
    std::int16_t outbound = 0, offsetHDG = 0, abeam = 0, firstHDG = 0;
};

TEST(Holding, EntersByTheSectorWithItsEnds) {
    const std::tuple<int, const char*, const char*> table[] = {
        {0, "direct", "direct"},     {1, "direct", "direct"},     {70, "direct", "direct"},
        {71, "direct", "parallel"},  {110, "direct", "parallel"}, {111, "offset", "parallel"},
        {180, "offset", "parallel"}, {181, "parallel", "offset"}, {249, "parallel", "offset"},
        {250, "parallel", "direct"}, {289, "parallel", "direct"}, {290, "direct", "direct"},
        {359, "direct", "direct"}};
    for (const int inbound : {0, 10, 180, 295, 359})
        for (const auto& [d, standard, left] : table) {
            SCOPED_TRACE(std::to_string(inbound) + " + " + std::to_string(d));
            const int heading = (inbound + d) % 360;
            EXPECT_EQ(Holding(heading, inbound, "Standard").entry, standard);
            EXPECT_EQ(Holding(heading, inbound, "Non Standard").entry, left);
        }
}

TEST(Holding, GivesCoursesAndTurns) {
    const Holding standard(10, 10, "Standard");
    EXPECT_EQ(told(standard.HLDtype, standard.outbound, standard.abeam, standard.offsetHDG,
                   standard.firstHDG, standard.firstTurn),
              "1 190 100 160 190 right");
    const Holding left(10, 10, "standard");
    EXPECT_EQ(left.HLDtype, "0") << "the word counts to the letter";
    EXPECT_EQ(told(left.abeam, left.offsetHDG, left.firstTurn, Holding(0, 180, "").outbound),
              "280 220 left 0");
    EXPECT_EQ(Holding(200, 0, "Standard").firstTurn, "left") << "parallel";
    EXPECT_EQ(Holding(100, 0, "").firstTurn, "right") << "parallel";

    EXPECT_EQ(told(Holding(150, 0, "Standard").firstTurn, Holding(149, 0, "Standard").firstTurn,
                   Holding(151, 0, "Standard").firstTurn),
              "maintain right left");
    // The long way round: no turn over north.
    const Holding overNorth(350, 220, "Standard");
    EXPECT_EQ(overNorth.firstHDG, 10);
    EXPECT_EQ(overNorth.firstTurn, "left");
}

TEST(Holding, OutsideAllSectorsKeepsTheAnswerBefore) {
    Holding holding(180, 0, "Standard");
    EXPECT_EQ(holding.entry, "offset");
    holding.HLDtype = "Standard";
    holding.find(360, 0);
    EXPECT_EQ(holding.entry, "offset");
    EXPECT_EQ(holding.firstHDG, 150);
    holding.find(32767, -32768);
    EXPECT_EQ(holding.firstTurn, "left");
}

RC_GTEST_PROP(Holding, MirrorsItself, ()) {
    const int d = *rc::gen::inRange(0, 360);
    const int inbound = *rc::gen::inRange(0, 360);
    const Holding standard((inbound + d) % 360, inbound, "Standard");
    RC_ASSERT((standard.outbound - inbound + 360) % 360 == 180);
    RC_ASSERT(standard.firstHDG == standard.outbound ||
              (standard.entry == "offset" && standard.firstHDG == standard.offsetHDG));
    // Left turns are the same seen from behind the paper, but for 180, in the lower range of
    // both.
    const Holding left((inbound + 360 - d) % 360, inbound, "");
    if (d == 180)
        return;
    RC_ASSERT(left.entry == standard.entry);
    RC_ASSERT((left.offsetHDG + standard.offsetHDG - 2 * inbound) % 360 == 0);
}

std::vector<int> shuffled(QuestionDraw& draw, int lastQuestion) {
    draw.shuffle(lastQuestion);
    std::vector<int> order;
    for (int slot = 0; slot <= lastQuestion; ++slot)
        order.push_back(draw.question(slot));
    return order;
}

RC_GTEST_PROP(QuestionDraw, ShufflesAllButTheLast, ()) {
    const auto seed = *rc::gen::arbitrary<std::uint32_t>();
    const int lastQuestion = *rc::gen::inRange(0, maxStudyRecords);
    QuestionDraw draw([&] { return seed; });
    const std::vector<int> order = shuffled(draw, lastQuestion);
    if (lastQuestion == 0) {
        RC_ASSERT(order == std::vector<int>{0});
        return;
    }
    RC_ASSERT(*std::ranges::max_element(order) < lastQuestion);
    RC_ASSERT(shuffled(draw, lastQuestion) == order);
    // In a long file 1000 tries may miss the one record that is left.
    const std::set<int> placed(order.begin(), order.end() - 1);
    if (lastQuestion <= 50)
        RC_ASSERT(placed.size() == static_cast<std::size_t>(lastQuestion));
}

RC_GTEST_PROP(QuestionDraw, DrawsEachOfferOnceBecauseTheQuestionsMarkedTheRest, ()) {
    constexpr std::int16_t five[] = {90, 150, 180, 210, 270};
    constexpr std::int16_t four[] = {90, 0, 180, 10};
    const auto seed = *rc::gen::arbitrary<std::uint32_t>();
    QuestionDraw draw([&] { return seed; });
    draw.shuffle(*rc::gen::inRange(7, 60));
    const auto isPermutation = [&](std::span<const std::int16_t> offsets) {
        const std::vector<std::int16_t> drawn = draw.drawnOffsets();
        return std::ranges::is_permutation(drawn, offsets);
    };
    draw.drawChoices(five, 6);
    RC_ASSERT(isPermutation(five));
    draw.drawChoices(four, 6);
    RC_ASSERT(isPermutation(four));
    draw.drawChoices(five, 5);
    RC_ASSERT(isPermutation(five));
}

TEST(QuestionDraw, NeedsEightQuestionsForTheOffersOfDgHolding) {
    constexpr std::int16_t offsets[] = {90, 150, 180, 210, 270};
    int fatal = 0;
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        QuestionDraw draw([&] { return seed; });
        draw.shuffle(6);
        draw.drawChoices(offsets, 6);
        try {
            (void)draw.drawnOffsets();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), RunTimeError::subscriptOutOfRange);
            ++fatal;
        }
    }
    EXPECT_GT(fatal, 100);
}

} // namespace
} // namespace tarnel
