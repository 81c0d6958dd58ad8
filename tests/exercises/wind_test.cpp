#include "exercise_fixture.h"

namespace tarnel {
namespace {

using enum StudyColumn;

class WindTest : public ExerciseTest {
  protected:
    void start() {
        ExerciseTest::start(8, {{qa, "270"},
                                {qb, "25"},
                                {ans1, "20"},
                                {ans2, "Head"},
                                {ans3, "10"},
                                {ans4, "links"},
                                {ans5, "0"},
                                {ans6, "-"},
                                {ans7, "1.30"},
                                {qc, "Inbound 250"},
                                {qd, "TAS 120"}});
    }
};

TEST_F(WindTest, ARowsButtonsComeAliveWithTyping) {
    start();
    play("Label33>Wind mit 270/25; WindKnown>Inbound 250, TAS 120; Option47.enabled>0; Option47; "
         "Label34>hidden; Text4=2; Option47.enabled>1; Option54.enabled>0; Text8=1; "
         "Option58.enabled>1; Command12; Option47.enabled>0; Option58.enabled>0");
    EXPECT_EQ(get<TextField>("Text4").text(), "");
}

TEST_F(WindTest, AllRightInOrder) {
    start();
    play("Text4=21; Option47; Label34>+Head 20; Label43>hidden; Text5=10; Option54; "
         "Label36>+links 10; Text6=0; Option53; Label35>+- 0; Text7=1; Text8=30; result>0; "
         "Option58; Label37>+1.30 min.sec; result>6");
    EXPECT_FALSE(get<TextField>("Text4").visible());
}

TEST_F(WindTest, TakesAFifthOffButNotThatItself) {
    const std::tuple<const char*, std::vector<const char*>, const char*> right[] = {
        {"Text4", {"16.1", "20", "23.9", " 20 kt", "2E1"}, "Option47; Label34>+Head 20"},
        {"Text4", {"16", "24", "-20", "kt", "16,9", "1e999"}, "Option47; Label34>-FALSCH"},
        {"Text4", {"20"}, "Option35; Label34>-FALSCH"}, // the number, but not the word
        {"Text4", {"20"}, "Option42; Label34>-FALSCH"},
        {"Text5", {"10"}, "Option56; Label36>-FALSCH"},
        {"Text6", {"0", "none"}, "Option53; Label35>+- 0"},
        {"Text6", {"0.1"}, "Option53; Label35>-FALSCH"}, // zero has no tolerance
        {"Text6", {"0"}, "Option52; Label35>-FALSCH"}};
    for (const auto& [field, texts, rest] : right)
        for (const std::string text : texts) {
            start();
            play(std::string(field) + "=" + text + "; " + rest);
        }
}

TEST_F(WindTest, ReadsTimesAsMinutesAndSeconds) {
    // Minutes alone, seconds alone. 1.45 loses a second to its binary fraction: 104 x 1.2 is 124.8.
    for (const auto& [recorded, minutes, seconds, isRight] : {std::tuple("1.45", "1", "45", true),
                                                              {"1.00", "1", "", true},
                                                              {"1.00", "", "60", true},
                                                              {"1.00", "", "48", false},
                                                              {"1.00", "", "49", true},
                                                              {"1.00", "1", "12", false},
                                                              {"1.45", "", "124", true},
                                                              {"1.45", "", "125", false},
                                                              {"", "0", "0", false}}) {
        ExerciseTest::start(8, {{ans7, recorded}});
        play("Text7=" + std::string(minutes) + "; Text8=" + seconds + "; Option58; Label37>" +
             (isRight ? "+" + std::string(recorded) + " min.sec" : "-FALSCH"));
    }
}

TEST_F(WindTest, TheFirstRowMustBeAnsweredFirst) {
    start();
    const AnswerRow& first = *form.activePanel()->rows[0];
    EXPECT_NE(shown("WindRule"), "");
    play("Text4=20; Text5=12.5; Option54; Text4.enabled>0; Text4=21; Option47.enabled>0; "
         "Option47; Label34>hidden");
    EXPECT_EQ(form.activePanel()->rows[1]->given(), "Left 12.5");
    EXPECT_EQ(first.state(), RowState::shut);
    play("Command12; result>2");
    EXPECT_EQ(first.state(), RowState::open);
    // Only the first row is shut.
    play("Text5=10; Option54; Label36>+links 10; Text6=0; Option53; Label35>+- 0; Text7=1; "
         "Text8=5; Option58; result>0");
    EXPECT_EQ(form.activePanel()->rows[3]->given(), "1.05 min.sec") << "as a record writes it";
    play("Command12; stat wind_bad>2");
}

} // namespace
} // namespace tarnel
