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
    /// Whether the answer is right in a question of its own.
    bool isRight(int row, const char* field, const std::string& typed, const char* button) {
        start();
        type(field, typed);
        click(button);
        const Verdict verdict = form.panel(PanelId::frame29).rows[row]->verdict();
        EXPECT_NE(verdict, Verdict::notYet);
        return verdict == Verdict::right;
    }
    bool timeIsRight(const std::string& recorded, const std::string& minutes,
                     const std::string& seconds) {
        ExerciseTest::start(8, {{ans7, recorded}});
        type("Text7", minutes);
        type("Text8", seconds);
        click("Option58");
        return form.panel(PanelId::frame29).rows[3]->verdict() == Verdict::right;
    }
};

TEST_F(WindTest, ARowsButtonsComeAliveWithTyping) {
    start();
    EXPECT_EQ(label("Label33").text(), "Wind mit 270/25");
    EXPECT_EQ(get<TextPanel>("WindKnown").text(), "Inbound 250, TAS 120");
    EXPECT_FALSE(option("Option47").enabled());
    click("Option47");
    EXPECT_EQ(form.panel(PanelId::frame29).rows[0]->verdict(), Verdict::notYet);
    type("Text4", "2");
    EXPECT_TRUE(option("Option47").enabled());
    EXPECT_FALSE(option("Option54").enabled());
    type("Text8", "1");
    EXPECT_TRUE(option("Option58").enabled());
    click("Command12");
    EXPECT_EQ(get<TextField>("Text4").text(), "");
    EXPECT_FALSE(option("Option47").enabled());
    EXPECT_FALSE(option("Option58").enabled());
}

TEST_F(WindTest, AllRightInOrder) {
    start();
    type("Text4", "21");
    EXPECT_EQ(rightAfter("Label34", "Option47"), "Head 20");
    EXPECT_FALSE(get<TextField>("Text4").visible());
    EXPECT_FALSE(get<TextPanel>("Label43").visible());
    type("Text5", "10");
    EXPECT_EQ(rightAfter("Label36", "Option54"), "links 10");
    type("Text6", "0");
    EXPECT_EQ(rightAfter("Label35", "Option53"), "- 0");
    type("Text7", "1");
    type("Text8", "30");
    EXPECT_EQ(takeResult(), 0);
    EXPECT_EQ(rightAfter("Label37", "Option58"), "1.30 min.sec");
    EXPECT_EQ(takeResult(), 6);
}

TEST_F(WindTest, TakesAFifthOffButNotThatItself) {
    for (const char* typed : {"16.1", "20", "23.9", " 20 kt", "2E1"})
        EXPECT_TRUE(isRight(0, "Text4", typed, "Option47")) << typed;
    for (const char* typed : {"16", "24", "-20", "kt", "16,9", "1e999"})
        EXPECT_FALSE(isRight(0, "Text4", typed, "Option47")) << typed;
    EXPECT_FALSE(isRight(0, "Text4", "20", "Option35")) << "the number, but not the word";
    EXPECT_FALSE(isRight(0, "Text4", "20", "Option42"));
    EXPECT_FALSE(isRight(1, "Text5", "10", "Option56"));
    EXPECT_TRUE(isRight(2, "Text6", "0", "Option53"));
    EXPECT_TRUE(isRight(2, "Text6", "none", "Option53"));
    EXPECT_FALSE(isRight(2, "Text6", "0.1", "Option53")) << "zero has no tolerance";
    EXPECT_FALSE(isRight(2, "Text6", "0", "Option52"));
    EXPECT_TRUE(wrong("Label35"));
}

TEST_F(WindTest, ReadsTimesAsMinutesAndSeconds) {
    EXPECT_TRUE(timeIsRight("1.45", "1", "45"));
    EXPECT_TRUE(timeIsRight("1.00", "1", "")) << "minutes alone";
    EXPECT_TRUE(timeIsRight("1.00", "", "60"));
    EXPECT_FALSE(timeIsRight("1.00", "", "48"));
    EXPECT_TRUE(timeIsRight("1.00", "", "49"));
    EXPECT_FALSE(timeIsRight("1.00", "1", "12"));
    // 1.45 loses a second to its binary fraction: 104 × 1.2 is 124.8.
    EXPECT_TRUE(timeIsRight("1.45", "", "124"));
    EXPECT_FALSE(timeIsRight("1.45", "", "125"));
    EXPECT_FALSE(timeIsRight("", "0", "0"));
}

TEST_F(WindTest, TheFirstRowMustBeAnsweredFirst) {
    start();
    const AnswerRow& first = *form.activePanel()->rows[0];
    EXPECT_NE(get<TextPanel>("WindRule").text(), "");
    type("Text4", "20");
    type("Text5", "12.5");
    click("Option54");
    EXPECT_EQ(form.activePanel()->rows[1]->given(), "Left 12.5");
    EXPECT_EQ(first.state(), RowState::shut);
    EXPECT_FALSE(get<TextField>("Text4").enabled());
    type("Text4", "21");
    EXPECT_FALSE(option("Option47").enabled());
    EXPECT_EQ(rightAfter("Label34", "Option47"), "hidden");
    EXPECT_EQ(first.verdict(), Verdict::notYet);
    click("Command12");
    EXPECT_EQ(first.state(), RowState::open);
    EXPECT_EQ(takeResult(), 2);
    type("Text5", "10");
    EXPECT_EQ(rightAfter("Label36", "Option54"), "links 10");
    type("Text6", "0");
    EXPECT_EQ(rightAfter("Label35", "Option53"), "- 0") << "only the first row is shut";
    type("Text7", "1");
    type("Text8", "5");
    click("Option58");
    EXPECT_EQ(form.activePanel()->rows[3]->given(), "1.05 min.sec") << "as a record writes it";
    EXPECT_EQ(takeResult(), 0);
    click("Command12");
    EXPECT_EQ(store.stat("wind_bad"), "2");
}

} // namespace
} // namespace tarnel
