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
    play("title>HSI ÜBUNGEN POSITION ( 1 von 1); Text1>R ?; Text2>B ?; Text3>N ?; "
         "c_QASessionFileName>app\\default\\sessions\\a.ts");
    EXPECT_EQ(label("Text1").colours(), (LabelColours{0xFFFFFF, 0x806000}));
    play("Combo1=090; Text11>+090; Combo2=005; Text12>+5; result>0");
    EXPECT_EQ(label("Text1").colours(), (LabelColours{0x00FF00, 0x806000}));
    EXPECT_FALSE(list("Combo1").visible());
    play("Combo3=Nach links; result>6");
    start(1, "90", "5", "Nach links"); // only the third ends it
    play("Combo3=Nach links; Combo1=090; Combo2=005; result>0");
    start(2, "90", "90", "+Nach links+Nach rechts+"); // a standard VOR has one answer
    play("Combo3=Nach links; Text13>-FALSCH");
    start(2, "90", "90", "Bleibt gleich");
    play("Combo1=090; Combo2=090; Combo3=Bleibt gleich; result>1; Frame1>4250");
}

TEST_F(PositionTest, AWrongPickShowsItAndCannotBeMended) {
    start(1, "090", "5", "Nach links");
    play("Combo2=010; Text12>-FALSCH");
    EXPECT_EQ(label("Text2").colours(), (LabelColours{0xFFFFFF, 0x0000FF}));
    play("Combo2=005; Text12>-FALSCH; Text11>hidden; Combo1=090; Combo3=Nach links; result>0");
}

TEST_F(PositionTest, OnlyAConfirmedChoiceIsJudged) {
    start(1, "090", "5", "Nach links");
    for (int index = 0; index < 30; ++index)
        list("Combo1").select(index);
    for (const int nothing : {0, -1, 99})
        list("Combo1").pick(nothing);
    EXPECT_TRUE(list("Combo1").visible());
    play("Text11>hidden; Command1; stat hsipos_total>-");
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
                  isRight ? Judgement::right : Judgement::wrong);
    }
}

TEST_F(PositionTest, ListsOfferWhatTheExerciseSays) {
    const auto expectEntries = [this](const char* name, std::size_t count, const char* last) {
        const std::vector<std::string> entries = list(name).entries();
        EXPECT_EQ(entries.size(), count) << name;
        EXPECT_EQ(entries.at(0), "auswählen !");
        EXPECT_EQ(entries.at(count - 2), last);
    };
    start(1, "", "", "");
    expectEntries("Combo1", 73, "350");
    EXPECT_EQ(list("Combo2").entries()[72], "355");
    EXPECT_EQ(list("Combo3").entries().size(), 6U);
    start(2, "", "", "");
    EXPECT_EQ(list("Combo1").entries()[72], "355");
    EXPECT_EQ(list("Combo3").entries(),
              (std::vector<std::string>{"auswählen !", "Bleibt gleich", "Nach links", "Nach rechts",
                                        "", ""}));
    start(10, "", "", "");
    for (const char* name : {"Combo1", "Combo2", "Combo3"})
        expectEntries(name, 18, "360");
}

TEST_F(PositionTest, HsiTakesEitherAnswerOfAPairEvenUnclosed) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"+Nach links+Nach rechts+", "Nach links", true},
        {"+Nach links+Nach rechts+", "Nach rechts", true},
        {"+Nach links+Nach rechts+", "Nach vorne", false},
        {"+Nach links+Nach rechts", "Nach rechts", true},
        {"+Nach links", "Nach links", true},
        {"+", "Nach links", false},
        {"Nach links+", "Nach links", false}};
    for (const auto& [answer, picked, right] : cases) {
        start(1, "0", "0", answer);
        play("Combo3=" + std::string(picked));
        EXPECT_EQ(shown("Text13"), right ? "+" + std::string(answer) : "-FALSCH") << answer;
    }
}

TEST_F(PositionTest, OrientationComparesTextsAndStartsAtRandom) {
    start(10, "30", "360", "090");
    EXPECT_EQ(get<CheckBox>("Check1").value(), 1);
    play("title>ORIENTIERUNGSÜBUNGEN ( 1 von 1); Combo1=030; Text11>-FALSCH; Combo2=360; "
         "Text12>+360; Command1; stat hsipos_bad 0>1"); // counted with HSI positions
    start(1, "0", "0", "");
    EXPECT_EQ(get<CheckBox>("Check1").value(), 1) << "until the student clears it";
}

TEST_F(PositionTest, AdfJudgesValuesByTextAndTrendsByWord) {
    const auto adf = [this](const std::string& qdrTrend, const std::string& qdmTrend) {
        StudyRecord record = recordOf(
            {{ans1, "110"}, {ans2, qdrTrend}, {ans3, "300"}, {ans4, qdmTrend}, {ans5, "000"}});
        const char* const offers[] = {"090", "100", "110", "120", "270", "280",
                                      "290", "300", "000", "010", "020", "030"};
        for (int i = 0; i < 12; ++i)
            record.columns[static_cast<std::size_t>(qa) + i] = offers[i];
        ExerciseTest::start(5, {record});
    };
    adf("größer", "kleiner");
    play("title>ADF POSITION ÜBUNG ( 1 von 1); Label20>Wie lautet Ihr QDR ?; Option22>090; "
         "Option20>110; Option23>120; Option28>größer; Option17>kleiner; Option20; Label14>+110; "
         "Option22>hidden; Option28; Option29; Option17; Label13>+kleiner; result>0; Option27; "
         "result>6");
    EXPECT_FALSE(option("Option20").chosen());
    adf("größer", "kleiner");
    play("Option21; Label14>-FALSCH; Option33; Label22>-FALSCH; Option19; Label13>-FALSCH; "
         "Command7; result>1; Label13>kleiner; Frame11>4250");
    // The English word of the QDM trend is looked for in the column of the QDR trend.
    adf("increase", "decrease");
    play("Option28; Label22>+increase; Option19; Label13>+decrease");
    adf("remain constant", "gleich");
    play("Option18; Label13>+gleich");
    adf("grösser", ""); // here the word has its ß
    play("Option28; Label22>-FALSCH");
}

} // namespace
} // namespace tarnel
