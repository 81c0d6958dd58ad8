#include "core/run_time_error.h"
#include "exercise_fixture.h"

#include <algorithm>

namespace tarnel {
namespace {

using enum StudyColumn;

using HeadingExercisesTest = ExerciseTest;

std::vector<StudyRecord> many(Columns columns) {
    return std::vector<StudyRecord>(8, recordOf(columns));
}

constexpr const char* outboundOptions[] = {"Option1", "Option2", "Option3", "Option4", "Option5"};

TEST_F(HeadingExercisesTest, HoldingComputesItsAnswers) {
    start(3, many({{ans1, "180"}, {ans2, "000"}, {ans3, "Standard"}}));
    EXPECT_EQ(title(), "HSI HOLDING ÜBUNGEN ( 1 von 8)");
    EXPECT_EQ(label("Label2").text(), "Fly the current heading to the Station. Join the  Standard "
                                      "Holding inbound 000");
    EXPECT_EQ(label("Label5").text(), "First Turn after passing Station:");
    std::vector<std::string> offers;
    for (const char* name : outboundOptions)
        offers.push_back(caption(name));
    EXPECT_TRUE(std::ranges::is_permutation(
        offers, std::vector<std::string>{"090", "150", "180", "210", "270"}));
    EXPECT_EQ(caption("Option6") + caption("Option8") + caption("Option10"), "090180270");

    EXPECT_EQ(rightAfter("Label8", "Option13"), "offset");
    EXPECT_EQ(
        rightAfter("Label9", outboundOptions[std::ranges::find(offers, "180") - offers.begin()]),
        " 180");
    EXPECT_EQ(rightAfter("Label10", "Option7"), " 150");
    EXPECT_EQ(takeResult(), 0);
    EXPECT_EQ(rightAfter("Label11", "Option14"), "left");
    EXPECT_EQ(takeResult(), 6);
}

TEST_F(HeadingExercisesTest, HoldingWrongAndItsSolution) {
    start(4, many({{ans1, "100"}, {ans2, "180"}, {ans3, "Left"}}));
    EXPECT_EQ(title(), "DG HOLDING ÜBUNGEN ( 1 von 8)");
    EXPECT_EQ(caption("Option8"), "360");
    EXPECT_TRUE(wrongAfter("Label8", "Option12")) << "direct: 280 from the inbound course";
    EXPECT_TRUE(wrongAfter("Label10", "Option6"));
    EXPECT_TRUE(wrongAfter("Label11", "Option16"));
    click("Command27");
    EXPECT_EQ(takeResult(), 6);
    EXPECT_EQ(answer("Label8", solutionColours), "direct");
    EXPECT_EQ(answer("Label9", solutionColours), "0");
    EXPECT_EQ(answer("Label10", solutionColours), "0");
    EXPECT_EQ(answer("Label11", solutionColours), "left");
    EXPECT_FALSE(option("Option1").visible());
    EXPECT_EQ(get<FormFrame>("Frame2").height(), 1100);

    click("Command28");
    EXPECT_EQ(get<FormFrame>("Frame2").height(), 4250);
    EXPECT_EQ(rightAfter("Label10", "Option8"), " 0") << "360 on the button is judged as 0";
}

TEST_F(HeadingExercisesTest, ARecordsNorthIsNorthHoweverItIsWritten) {
    start(3, many({{ans1, "360"}, {ans2, "360"}, {ans3, "Standard"}}));
    EXPECT_EQ(rightAfter("Label8", "Option11"), "direct");
    EXPECT_EQ(rightAfter("Label10", "Option8"), " 180");
    start(6, many({{ans1, "360"}}));
    for (const char* name : {"Option50", "Option49", "Option48", "Option46"})
        if (caption(name) == "360")
            click(name);
    EXPECT_EQ(right("Label27"), "360");
}

TEST_F(HeadingExercisesTest, InterceptJudgesItsFourRows) {
    start(
        6,
        many({{qa, "090"}, {ans1, "355"}, {ans2, "grösser"}, {ans3, "right"}, {ans4, "maintain"}}));
    EXPECT_EQ(label("Label32").text(), "Intercept QDM 090");
    EXPECT_EQ(label("Label28").text(), "Winkel zw. ACT und RQ QDM wird:");
    EXPECT_EQ(caption("Option37") + caption("Option36"), "< als actual QDM> als actual QDM");
    std::vector<std::string> offers;
    for (const char* name : {"Option50", "Option49", "Option48", "Option46"}) {
        offers.push_back(caption(name));
        if (offers.back() == "355")
            click(name);
    }
    EXPECT_TRUE(
        std::ranges::is_permutation(offers, std::vector<std::string>{"085", "355", "175", "005"}));
    EXPECT_EQ(right("Label27"), "355");
    EXPECT_EQ(rightAfter("Label25", "Option38"), "grösser");
    EXPECT_EQ(rightAfter("Label26", "Option43"), "right");
    EXPECT_EQ(rightAfter("Label24", "Option36"), "maintain");
    EXPECT_EQ(takeResult(), 6);
}

TEST_F(HeadingExercisesTest, InterceptKnowsItsWords) {
    const std::pair<const char*, const char*> words[] = {
        {"increase", "Option38"},        {"grösser", "Option38"},  {"gleich", "Option39"},
        {"remain constant", "Option39"}, {"decrease", "Option40"}, {"kleiner", "Option40"}};
    for (const auto& [angle, button] : words) {
        start(7, many({{ans1, "010"}, {ans2, angle}, {ans3, "rechts"}, {ans4, "kleiner"}}));
        EXPECT_EQ(rightAfter("Label25", button), angle);
    }
    EXPECT_TRUE(wrongAfter("Label26", "Option43")) << "turns are English in every language";
    EXPECT_EQ(rightAfter("Label24", "Option37"), "kleiner");
    start(7, many({{ans1, "010"}, {ans2, "größer"}}));
    EXPECT_TRUE(wrongAfter("Label25", "Option38")) << "here the word has a double s";
}

TEST_F(HeadingExercisesTest, QdrNamesItsUpperOfferPerQuestion) {
    std::vector<StudyRecord> records = many({{qa, "2"}, {ans1, "250"}, {ans4, "increase"}});
    records[0] = recordOf({{qa, "1"}, {ans1, "250"}, {ans4, "maintain"}});
    start(7, records);
    EXPECT_EQ(label("Label32").text(), "Intercept QDR 1");
    EXPECT_EQ(caption("Option37"), "< als RQ QDR");
    EXPECT_EQ(caption("Option36"), "250");
    click("Command9");
    EXPECT_EQ(caption("Option36"), ">  RQ QDR");
    click("Command10");
    EXPECT_EQ(takeResult(), 6);
    EXPECT_EQ(answer("Label24", solutionColours), "increase");
    EXPECT_EQ(get<FormFrame>("Frame20").height(), 1100);
}

TEST_F(HeadingExercisesTest, DmeArcTiesItsTwoRowsToOneDraw) {
    const std::map<std::string, std::string> partner = {{"Option1", "Option10"},
                                                        {"Option2", "Option8"},
                                                        {"Option3", "Option9"},
                                                        {"Option4", "Option7"},
                                                        {"Option5", "Option6"}};
    for (seed = 0; seed < 20; ++seed) {
        start(9, many({{qc, "Join"}, {ans1, "maintain"}, {ans2, "0"}, {ans3, "7"}}));
        EXPECT_EQ(label("Label2").text(), "Join");
        for (const auto& [heading, radial] : partner) {
            if (caption(heading) != "360")
                continue;
            EXPECT_EQ(caption(radial), "007");
            click(heading);
            click(radial);
        }
        EXPECT_EQ(right("Label9"), "0") << "as the record writes it";
        EXPECT_EQ(right("Label10"), "7");
        EXPECT_EQ(rightAfter("Label8", "Option12"), "maintain");
        EXPECT_EQ(takeResult(), 6) << "three rows";
    }
}

TEST_F(HeadingExercisesTest, TheFourthRowIsGoneInADmeArcAndBackInAHolding) {
    start(9, many({{ans1, "left"}, {ans2, "10"}, {ans3, "20"}}));
    EXPECT_FALSE(label("Label5").visible());
    EXPECT_FALSE(option("Option14").visible());
    option("Option14").choose();
    option("Option46").choose();
    EXPECT_FALSE(label("Label11").visible()) << "nor is a click from elsewhere judged";
    EXPECT_TRUE(wrongAfter("Label8", "Option13"));
    click("Command27");
    EXPECT_EQ(answer("Label10", solutionColours), "20");
    EXPECT_FALSE(label("Label11").visible());
    start(3, many({{ans1, "0"}, {ans2, "0"}, {ans3, "Standard"}}));
    EXPECT_TRUE(label("Label5").visible());
    EXPECT_TRUE(option("Option16").visible());
    EXPECT_EQ(label("Label3").text(), "Entry:");
}

TEST_F(HeadingExercisesTest, AFatalQuestionShowsNothingAndCanBePassed) {
    start(1, {{ans1, "090"}});
    EXPECT_THROW(start(3, {recordOf({{ans1, "99999"}}), recordOf({{ans1, "0"}})}), RunTimeError);
    EXPECT_FALSE(label("Label3").visible());
    EXPECT_FALSE(get<CommandButton>("Command27").enabled());
    EXPECT_EQ(form.c_QASessionFileName.get(), "");
    click("Command28");
    EXPECT_EQ(title(), "HSI HOLDING ÜBUNGEN ( 2 von 2)");
    EXPECT_TRUE(label("Label3").visible());
}

} // namespace
} // namespace tarnel
