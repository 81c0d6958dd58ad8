#include "core/run_time_error.h"
#include "exercise_fixture.h"

namespace tarnel {
namespace {

using enum StudyColumn;

class HeadingExercisesTest : public ExerciseTest {
  protected:
    /// Ten questions' worth, as exercises with drawn headings need them.
    static std::vector<StudyRecord> many(Columns columns) {
        return std::vector<StudyRecord>(8, recordOf(columns));
    }
    /// The one of these options that offers `text`; expects that they offer `all`.
    std::string offering(const std::string& text, std::initializer_list<const char*> options,
                         std::vector<std::string> all) {
        std::vector<std::string> offers;
        for (const char* name : options)
            offers.push_back(shown(name));
        EXPECT_TRUE(std::ranges::is_permutation(offers, all));
        return options.begin()[std::ranges::find(offers, text) - offers.begin()];
    }
    std::string interceptOffering(const std::string& text, std::vector<std::string> all) {
        return offering(text, {"Option50", "Option49", "Option48", "Option46"}, all);
    }
};

TEST_F(HeadingExercisesTest, HoldingComputesItsAnswers) {
    start(3, many({{ans1, "180"}, {ans2, "000"}, {ans3, "Standard"}}));
    play("title>HSI HOLDING ÜBUNGEN ( 1 von 8); Label5>First Turn after passing Station:; "
         "Label2>Fly the current heading to the Station. Join the  Standard Holding inbound 000; "
         "Option6>090; Option8>180; Option10>270; Option13; Label8>+offset");
    play(offering("180", {"Option1", "Option2", "Option3", "Option4", "Option5"},
                  {"090", "150", "180", "210", "270"}) +
         "; Label9>+ 180; Option7; Label10>+ 150; result>0; Option14; Label11>+left; result>6");
}

TEST_F(HeadingExercisesTest, HoldingWrongAndItsSolution) {
    start(4, many({{ans1, "100"}, {ans2, "180"}, {ans3, "Left"}}));
    // Direct: 280 from the inbound course.
    play("title>DG HOLDING ÜBUNGEN ( 1 von 8); Option8>360; Option12; Label8>-FALSCH; Option6; "
         "Label10>-FALSCH; Option16; Label11>-FALSCH; Command27; result>6; Label8>direct; "
         "Label9>0; Label10>0; Label11>left; Option1>hidden; Frame2>1100; Command28; "
         "Frame2>4250; Option8; Label10>+ 0"); // 360 on the button is judged as 0
}

TEST_F(HeadingExercisesTest, ARecordsNorthIsNorthHoweverItIsWritten) {
    start(3, many({{ans1, "360"}, {ans2, "360"}, {ans3, "Standard"}}));
    play("Option11; Label8>+direct; Option8; Label10>+ 180");
    start(6, many({{ans1, "360"}}));
    play(interceptOffering("360", {"090", "360", "180", "010"}) + "; Label27>+360");
}

TEST_F(HeadingExercisesTest, InterceptJudgesItsFourRows) {
    start(
        6,
        many({{qa, "090"}, {ans1, "355"}, {ans2, "grösser"}, {ans3, "right"}, {ans4, "maintain"}}));
    play("Label32>Intercept QDM 090; Label28>Winkel zw. ACT und RQ QDM wird:; "
         "Option37>< als actual QDM; Option36>> als actual QDM");
    play(interceptOffering("355", {"085", "355", "175", "005"}) +
         "; Label27>+355; Option38; Label25>+grösser; Option43; Label26>+right; Option36; "
         "Label24>+maintain; result>6");
}

TEST_F(HeadingExercisesTest, InterceptKnowsItsWords) {
    const std::pair<const char*, const char*> words[] = {
        {"increase", "Option38"},        {"grösser", "Option38"},  {"gleich", "Option39"},
        {"remain constant", "Option39"}, {"decrease", "Option40"}, {"kleiner", "Option40"}};
    for (const auto& [angle, button] : words) {
        start(7, many({{ans1, "010"}, {ans2, angle}, {ans3, "rechts"}, {ans4, "kleiner"}}));
        play(std::string(button) + "; Label25>+" + angle);
    }
    // Turns are English in every language.
    play("Option43; Label26>-FALSCH; Option37; Label24>+kleiner");
    start(7, many({{ans1, "010"}, {ans2, "größer"}})); // here the word has a double s
    play("Option38; Label25>-FALSCH");
}

TEST_F(HeadingExercisesTest, QdrNamesItsUpperOfferPerQuestion) {
    std::vector<StudyRecord> records = many({{qa, "2"}, {ans1, "250"}, {ans4, "increase"}});
    records[0] = recordOf({{qa, "1"}, {ans1, "250"}, {ans4, "maintain"}});
    start(7, records);
    play("Label32>Intercept QDR 1; Option37>< als RQ QDR; Option36>250; Command9; "
         "Option36>>  RQ QDR; Command10; result>6; Label24>increase; Frame20>1100");
}

TEST_F(HeadingExercisesTest, DmeArcTiesItsTwoRowsToOneDraw) {
    const std::pair<std::string, std::string> pairs[] = {{"Option1", "Option10"},
                                                         {"Option2", "Option8"},
                                                         {"Option3", "Option9"},
                                                         {"Option4", "Option7"},
                                                         {"Option5", "Option6"}};
    for (seed = 0; seed < 20; ++seed) {
        start(9, many({{qc, "Join"}, {ans1, "maintain"}, {ans2, "0"}, {ans3, "7"}}));
        for (const auto& [heading, radial] : pairs)
            if (shown(heading) == "360")
                play(radial + ">007; " + heading + "; " + radial);
        // As the record writes them; three rows.
        play("Label2>Join; Label9>+0; Label10>+7; Option12; Label8>+maintain; result>6");
    }
}

TEST_F(HeadingExercisesTest, TheFourthRowIsGoneInADmeArcAndBackInAHolding) {
    start(9, many({{ans1, "left"}, {ans2, "10"}, {ans3, "20"}}));
    play("Label5>hidden; Option14>hidden");
    option("Option14").choose();
    option("Option46").choose(); // nor is a click from elsewhere judged
    play("Label11>hidden; Option13; Label8>-FALSCH; Command27; Label10>20; Label11>hidden");
    start(3, many({{ans1, "0"}, {ans2, "0"}, {ans3, "Standard"}}));
    play("Label5>First Turn after passing Station:; Label3>Entry:");
    EXPECT_TRUE(option("Option16").visible());
}

TEST_F(HeadingExercisesTest, AFatalQuestionShowsNothingAndCanBePassed) {
    start(1, {{ans1, "090"}});
    EXPECT_THROW(start(3, {recordOf({{ans1, "99999"}}), recordOf({{ans1, "0"}})}), RunTimeError);
    play("Label3>hidden; Command27.enabled>0; c_QASessionFileName>; Command28; "
         "title>HSI HOLDING ÜBUNGEN ( 2 von 2); Label3>Entry:");
}

} // namespace
} // namespace tarnel
