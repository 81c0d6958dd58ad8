#include "core/number_text.h"
#include "core/property.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace tarnel {
namespace {

TEST(ParseNumber, TakesTheWholeTextOrNothing) {
    const std::pair<const char*, double> good[] = {{"49.5", 49.5}, {" 11 ", 11}, {"\"7.25\"", 7.25},
                                                   {"+3", 3},      {".5", 0.5},  {"-.5", -0.5},
                                                   {"1e2", 100},   {"-0", 0},    {"12\r", 12}};
    for (const auto& [input, expected] : good) {
        const auto value = parseNumber(input);
        ASSERT_TRUE(value) << input;
        EXPECT_EQ(*value, expected) << input;
    }
    for (const char* text : {"", " ", "\"\"", "+", "-", ".", "+-1", "--1", "1 2", "49,5", "1e",
                             "x1", "1x", "nan", "inf", "1e999", "0x10"})
        EXPECT_FALSE(parseNumber(text)) << text;
}

RC_GTEST_PROP(NumberText, ReadsBackToTheSameBits, (double value)) {
    RC_PRE(std::isfinite(value));
    RC_ASSERT(parseNumber(numberText(value)) == value);
}

TEST(NumberText, PadsOnlyWhatIsShorter) {
    EXPECT_EQ(zeroPadded(7, 3), "007");
    EXPECT_EQ(zeroPadded(1234, 3), "1234");
}

class PropertyTest : public testing::Test {
  protected:
    PropertyBag bag;
    std::vector<std::string> happened;
    Property<std::int16_t> speed{
        bag, "c_TAS", 5,
        [this] { happened.push_back("effect " + numberText(std::int64_t{speed})); }};

    void SetUp() override {
        bag.onChange = [this](std::string_view name) {
            happened.push_back("changed " + std::string(name) + " " + speed.text());
        };
    }
};

TEST_F(PropertyTest, StoresThenSignalsThenActs) {
    speed = 90;
    EXPECT_EQ(happened, (std::vector<std::string>{"changed c_TAS 90", "effect 90"}));
    happened.clear();
    speed.setIfChanged(90);
    speed.publish(91);
    EXPECT_TRUE(happened.empty());
    EXPECT_EQ(speed, 91);
}

TEST_F(PropertyTest, TextOfAnotherTypeChangesNothing) {
    Property<double> angle(bag, "angle");
    const Property<double> nameless(bag, "");
    EXPECT_EQ(bag.all().size(), 2U);
    ASSERT_EQ(bag.find("angle"), &angle);
    EXPECT_EQ(bag.find("c_HDG"), nullptr);

    PropertyBase* found = bag.find("c_TAS");
    ASSERT_NE(found, nullptr);
    for (const char* text : {"1.5", "32768", "-32769", "1e300", "-1e19", "fast", ""})
        EXPECT_FALSE(found->setText(text)) << text;
    EXPECT_TRUE(happened.empty());
    EXPECT_EQ(speed, 5);
    EXPECT_TRUE(found->setText("-32768"));
    EXPECT_EQ(speed, -32768);
    EXPECT_TRUE(angle.setText("0.1"));
    EXPECT_EQ(angle.text(), "0.1");
}

} // namespace
} // namespace tarnel
