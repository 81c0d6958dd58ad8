#include "exercise_fixture.h"

namespace tarnel {
namespace {

using enum StudyColumn;

class PositionTest : public ExerciseTest {
  protected:
    void start(int type, const std::string& first, const std::string& second,
               const std::string& third) {
        ExerciseTest::start(type, {{qa, "R ?"},
                                   {qb, "B ?"},
                                   {qc, "N ?"},
                                   {ans1, first},
                                   {ans2, second},
                                   {ans3, third},
                                   {sessionName, "a.ts"}});
    }
};

TEST_F(PositionTest, HsiAsksThreeListsAndEndsWithTheThird) {
    start(1, "090", "5", "Nach links");
    EXPECT_EQ(title(), "HSI ÜBUNGEN POSITION ( 1 von 1)");
    EXPECT_EQ(form.c_QASessionFileName.get(), "app\\default\\sessions\\a.ts");
    EXPECT_EQ(label("Text1").text() + label("Text2").text() + label("Text3").text(), "R ?B ?N ?");
    EXPECT_EQ(label("Text1").colours(), (LabelColours{0xFFFFFF, 0x806000}));
    EXPECT_EQ(list("Combo1").index(), 0);

    EXPECT_EQ(rightAfter("Text11", "Combo1", "090"), "090");
    EXPECT_EQ(label("Text1").colours(), (LabelColours{0x00FF00, 0x806000}));
    EXPECT_FALSE(list("Combo1").visible());
    EXPECT_EQ(rightAfter("Text12", "Combo2", "005"), "5") << "as the record writes it";
    EXPECT_EQ(takeResult(), 0);
    pick("Combo3", "Nach links");
    EXPECT_EQ(takeResult(), 6);
    start(1, "90", "5", "Nach links");
    for (const auto& [name, entry] :
         {std::pair("Combo3", "Nach links"), {"Combo1", "090"}, {"Combo2", "005"}})
        pick(name, entry);
    EXPECT_EQ(takeResult(), 0) << "only the third ends it";
    start(2, "90", "90", "+Nach links+Nach rechts+");
    EXPECT_TRUE(wrongAfter("Text13", "Combo3", "Nach links")) << "a standard VOR has one answer";
    start(2, "90", "90", "Bleibt gleich");
    for (const auto& [name, entry] :
         {std::pair("Combo1", "090"), {"Combo2", "090"}, {"Combo3", "Bleibt gleich"}})
        pick(name, entry);
    EXPECT_EQ(takeResult(), 1);
    EXPECT_EQ(get<FormFrame>("Frame1").height(), 4250);
}

TEST_F(PositionTest, AWrongPickShowsItAndCannotBeMended) {
    start(1, "090", "5", "Nach links");
    EXPECT_TRUE(wrongAfter("Text12", "Combo2", "010"));
    EXPECT_EQ(label("Text2").colours(), (LabelColours{0xFFFFFF, 0x0000FF}));
    list("Combo2").pick(2);
    EXPECT_TRUE(wrong("Text12"));
    EXPECT_EQ(form.panel(PanelId::frame1).rows[1]->verdict(), Verdict::wrong);
    EXPECT_EQ(form.panel(PanelId::frame1).rows[0]->verdict(), Verdict::notYet);
    pick("Combo1", "090");
    pick("Combo3", "Nach links");
    EXPECT_EQ(takeResult(), 0);
}

TEST_F(PositionTest, OnlyAConfirmedChoiceIsJudged) {
    start(1, "090", "5", "Nach links");
    for (int index = 0; index < 30; ++index)
        list("Combo1").select(index);
    list("Combo1").pick(0);
    list("Combo1").pick(-1);
    list("Combo1").pick(99);
    EXPECT_EQ(right("Text11"), "hidden");
    EXPECT_TRUE(list("Combo1").visible());
    click("Command1");
    EXPECT_EQ(store.stat("hsipos_total"), "-");
}

TEST_F(PositionTest, DegreesAreJudgedByTheirPlace) {
    const std::tuple<int, const char*, int, const char*, bool> cases[] = {
        {1, "Combo1", 1, "0", true},     {1, "Combo1", 1, "000", true},
        {1, "Combo1", 1, "360", true},   {1, "Combo1", 2, "5", true},
        {1, "Combo1", 3, "5", false},    {1, "Combo1", 2, "7", false},
        {1, "Combo1", 72, "355", true},  {2, "Combo1", 72, "355", true},
        {2, "Combo1", 73, "360", true},  {2, "Combo1", 73, "0", false},
        {2, "Combo1", 1, "360", true},   {2, "Combo2", 19, "90 Grad", true},
        {2, "Combo2", 1, "north", true}, {2, "Combo2", 2, "1e999", false},
    };
    for (const auto& [type, name, index, answer, isRight] : cases) {
        SCOPED_TRACE(std::string(name) + " " + std::to_string(index) + " for " + answer);
        start(type, answer, answer, "");
        list(name).pick(index);
        EXPECT_EQ(form.panel(PanelId::frame1).rows[name == std::string("Combo2")]->verdict(),
                  isRight ? Verdict::right : Verdict::wrong);
    }
}

TEST_F(PositionTest, ListsOfferWhatTheExerciseSays) {
    start(1, "", "", "");
    EXPECT_EQ(list("Combo1").entries().size(), 73U);
    EXPECT_EQ(list("Combo1").entries()[0], "auswählen !");
    EXPECT_EQ(list("Combo1").entries()[71], "350");
    EXPECT_EQ(list("Combo1").entries()[72], "");
    EXPECT_EQ(list("Combo2").entries()[72], "355");
    EXPECT_EQ(list("Combo3").entries().size(), 6U);
    start(2, "", "", "");
    EXPECT_EQ(list("Combo1").entries()[72], "355");
    EXPECT_EQ(list("Combo1").entries().at(73), "");
    EXPECT_EQ(list("Combo3").entries(),
              (std::vector<std::string>{"auswählen !", "Bleibt gleich", "Nach links", "Nach rechts",
                                        "", ""}));
    start(10, "", "", "");
    for (const char* name : {"Combo1", "Combo2", "Combo3"}) {
        EXPECT_EQ(list(name).entries().size(), 18U);
        EXPECT_EQ(list(name).entries()[16], "360");
        EXPECT_EQ(list(name).entries()[17], "");
    }
}

TEST_F(PositionTest, HsiTakesEitherAnswerOfAPairEvenUnclosed) {
    const auto verdict = [this](const std::string& answer, const char* picked) {
        start(1, "0", "0", answer);
        pick("Combo3", picked);
        return form.panel(PanelId::frame1).rows[2]->verdict() == Verdict::right;
    };
    const std::string pair = "+Nach links+Nach rechts+";
    EXPECT_TRUE(verdict(pair, "Nach links"));
    EXPECT_TRUE(verdict(pair, "Nach rechts"));
    EXPECT_EQ(right("Text13"), pair);
    EXPECT_FALSE(verdict(pair, "Nach vorne"));
    EXPECT_TRUE(verdict("+Nach links+Nach rechts", "Nach rechts"));
    EXPECT_TRUE(verdict("+Nach links", "Nach links"));
    EXPECT_FALSE(verdict("+", "Nach links"));
    EXPECT_FALSE(verdict("Nach links+", "Nach links"));
}

TEST_F(PositionTest, OrientationComparesTextsAndStartsAtRandom) {
    start(10, "30", "360", "090");
    EXPECT_EQ(title(), "ORIENTIERUNGSÜBUNGEN ( 1 von 1)");
    EXPECT_EQ(get<CheckBox>("Check1").value(), 1);
    EXPECT_TRUE(wrongAfter("Text11", "Combo1", "030"));
    EXPECT_EQ(rightAfter("Text12", "Combo2", "360"), "360");
    click("Command1");
    EXPECT_EQ(store.stat("hsipos_bad 0"), "1") << "counted with HSI positions";
    start(1, "0", "0", "");
    EXPECT_EQ(get<CheckBox>("Check1").value(), 1) << "until the student clears it";
}

TEST_F(PositionTest, AdfJudgesValuesByTextAndTrendsByWord) {
    const auto adf = [this](const std::string& qdrTrend, const std::string& qdmTrend) {
        ExerciseTest::start(5, {{qa, "090"},
                                {qb, "100"},
                                {qc, "110"},
                                {qd, "120"},
                                {qe, "270"},
                                {qf, "280"},
                                {qg, "290"},
                                {qh, "300"},
                                {qi, "000"},
                                {qj, "010"},
                                {qk, "020"},
                                {ql, "030"},
                                {ans1, "110"},
                                {ans2, qdrTrend},
                                {ans3, "300"},
                                {ans4, qdmTrend},
                                {ans5, "000"}});
    };
    adf("größer", "kleiner");
    EXPECT_EQ(title(), "ADF POSITION ÜBUNG ( 1 von 1)");
    EXPECT_EQ(label("Label20").text(), "Wie lautet Ihr QDR ?");
    EXPECT_EQ(caption("Option22") + caption("Option20") + caption("Option23"), "090110120");
    EXPECT_EQ(caption("Option28") + caption("Option17"), "größerkleiner");
    EXPECT_EQ(rightAfter("Label14", "Option20"), "110");
    EXPECT_FALSE(option("Option22").visible());
    EXPECT_FALSE(option("Option20").chosen());
    click("Option28");
    click("Option29");
    EXPECT_EQ(rightAfter("Label13", "Option17"), "kleiner");
    EXPECT_EQ(takeResult(), 0);
    click("Option27");
    EXPECT_EQ(takeResult(), 6) << "in any order";

    adf("größer", "kleiner");
    EXPECT_TRUE(wrongAfter("Label14", "Option21"));
    EXPECT_TRUE(wrongAfter("Label22", "Option33"));
    EXPECT_TRUE(wrongAfter("Label13", "Option19"));
    click("Command7");
    EXPECT_EQ(takeResult(), 1);
    EXPECT_EQ(answer("Label13", solutionColours), "kleiner");
    EXPECT_EQ(get<FormFrame>("Frame11").height(), 4250);

    // The English word of the QDM trend is looked for in the column of the QDR trend.
    adf("increase", "decrease");
    EXPECT_EQ(rightAfter("Label22", "Option28"), "increase");
    EXPECT_EQ(rightAfter("Label13", "Option19"), "decrease");
    adf("remain constant", "gleich");
    EXPECT_EQ(rightAfter("Label13", "Option18"), "gleich");
    adf("grösser", "");
    EXPECT_TRUE(wrongAfter("Label22", "Option28")) << "here the word has its ß";
}

} // namespace
} // namespace tarnel
